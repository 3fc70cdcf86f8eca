// An article as a text file: four lines that name it, an empty line, the text.
#pragma once

#include "store/Makale.h"

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

/// UTF-8. Line breaks and backslashes in the four lines are written as escapes; the text is as it is.
QByteArray MetinKaydı(const Makale& makale);

/// The article, letter for letter; nothing for any other file.
std::optional<Makale> MetinKaydıÇöz(QByteArrayView baytlar);
