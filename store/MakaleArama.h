// Articles that hold several words, wherever they stand in them, the best first.
#pragma once

#include "store/Makale.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <utility>
#include <vector>

class Database;

/// An article that holds all words.
struct AramaSonucu
{
    Makale Bulunan; ///< but for its text
    int Puan;       ///< above 0; more for words in the title or the author, for whole words, for many places
    /// A line around a place in the text, the text's beginning where no word stands in it.
    QString Bağlam;
    /// Where words stand in that line: position and length in UTF-16 units, ascending, without overlap.
    std::vector<std::pair<qsizetype, qsizetype>> İşaretler;
};

/// Looks into texts, titles and authors, without regard to case by Turkish rules, also inside longer words.
/// Throws DosyaBozuk where the library can't be read whole.
/// @param sözcükler not empty; each in the forms that count as the word, none of them empty
/// @param bildir called now and then
/// @return the best first, equal ones by title
std::vector<AramaSonucu> MakaleAra(const Database& kitaplık, const std::vector<QStringList>& sözcükler,
                                   const std::function<void()>& bildir);
