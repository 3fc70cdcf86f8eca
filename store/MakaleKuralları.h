// What an article must have and how its names are written, whichever way it comes into the library.
#pragma once

#include "store/Makale.h"
#include "store/MakaleTablosu.h"

#include <bitset>

/// What the entry windows ask for, in the order in which they ask.
enum class MakaleEksiği
{
    Yok,
    YazarAdıBoş,
    YazarAdıTekSözcük, ///< without a blank between two names
    BaşlıkBoş,
    YerBoş,
    MetinBoş
};

/// The first thing that the article lacks.
MakaleEksiği EksiğiBul(const Makale& makale);

/// The article as its author, title, place and date would have been typed: blanks around them are dropped,
/// an apostrophe becomes the acute accent, and author and title are in capitals. The text stays.
Makale YazılmışGibi(Makale makale);

/// What keeps the program from showing, finding or changing an article as its reader expects. The first two
/// YazılmışGibi mends.
enum class MakaleKusuru
{
    Kesme,      ///< an apostrophe in author or title, by which queries break
    Yazım,      ///< other letters or blanks than would have been typed
    TekSözcük,  ///< an author of one word
    Eksik,      ///< no place or no text
    Uzun,       ///< a value of which the entry windows show the beginning only
    AynıBaşlık, ///< another article has the title; only a look at all tells
};
inline constexpr std::size_t MakaleKusuruSayısı = 6;

/// All but AynıBaşlık, by their numbers.
std::bitset<MakaleKusuruSayısı> Kusurları(const Makale& makale);

/// Why the library can't hold this value, as a Turkish sentence; empty where it can.
QString DeğerSorunu(const QString& değer, MakaleSütunu sütun);
/// The first such sentence of the article's values; empty where there is none.
QString DeğerSorunu(const Makale& makale);
