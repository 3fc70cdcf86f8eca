// The order and equality of authors and titles: Turkish alphabet, without regard to case.
#pragma once

#include <QString>

#include <string>
#include <string_view>

/// Negative, zero or positive as the first UTF-8 text comes before, is equal to or comes after the
/// second. ICU's Turkish collation at secondary strength: case makes no difference, accents do, and
/// ı and i are different letters. Malformed UTF-8 compares as U+FFFD. Terminates the program when ICU
/// has no collation at all, since nothing could be ordered then.
int TürkçeKarşılaştır(std::string_view a, std::string_view b) noexcept;
/// The same for texts in normal form C.
int TürkçeKarşılaştır(const QString& a, const QString& b);

/// Which version of the order it is: what was sorted by another one may have to be sorted anew.
std::string SıralamaSürümü();
