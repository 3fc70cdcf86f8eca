// What is stored, as text.
#pragma once

#include <QString>

#include <string_view>

/// The text whose UTF-8 form is stored. A mark at its beginning (U+FEFF) belongs to it.
QString Utf8Metni(std::string_view utf8);
