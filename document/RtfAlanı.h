// Fields of RTF whose instruction says what their result would be.
#pragma once

#include <QStringView>

/// The sign of an instruction like: SYMBOL 97 \f "Symbol". Word processors leave the result of such a field
/// empty.
/// @return 0 for any other instruction, and for a sign outside the 65,536 first ones
char16_t RtfAlanSimgesi(QStringView komut);
