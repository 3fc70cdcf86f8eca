// Fonts that hold signs at the places of letters.
#pragma once

#include <QStringView>

#include <array>

/// The sign of each byte; 0 for one that has none of its own.
using SimgeTablosu = std::array<char16_t, 256>;

/// The signs of Symbol, Zapf Dingbats and Wingdings.
/// @param ad a font family under one of its usual names, in any case
/// @return nullptr for any other
const SimgeTablosu* SimgeTablosuBul(QStringView ad);
