// The toolkit's own words.
#pragma once

/// Turkish for all that the toolkit itself says, whatever the environment's language. Once, after the
/// application was made; a missing translation is logged.
void DiliKur();
