// Tells whole UTF-8 from damaged bytes, fast enough to look at every text at each start.
#pragma once

#include <string_view>

/// Whether the bytes are well-formed UTF-8: no cut or overlong sequence, no surrogate, nothing above
/// U+10FFFF.
bool Utf8Geçerli(std::string_view baytlar);
