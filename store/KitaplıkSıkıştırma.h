// Makes the compact copy of a library that each start puts in its place.
#pragma once

#include "store/KitaplıkYapısı.h"

#include <QString>

#include <functional>

class ÇalışmaGrubu;

enum class Kopyanınki
{
    YeniBaytlar,
    AynıBaytlar ///< the source was compact: the copy holds the same bytes
};

struct SıkıştırmaSonucu
{
    YapıDurumu Durum; ///< DizinBozuk where a damaged index was made anew from the table, else Sağlam
    Kopyanınki İçi;
};

/// See DBEngine::CompactDatabase. How much is looked at depends on the seal: a library that is as the last
/// compaction left it is copied page by page; in one that was changed and closed in order the pages are
/// trusted whose codes are right; any other one is looked through page by page and row by row, on both sides.
/// @param bildir called during the work, at most once every 20 ms while a statement runs; may be empty
SıkıştırmaSonucu KitaplığıSıkıştır(const QString& kaynak, const QString& hedef, const QString& parola,
                                   ÇalışmaGrubu& grup, const std::function<void()>& bildir);

/// Seals a library that nobody has open, unless it is sealed.
void KitaplığıMühürle(const QString& yol, const QString& parola, ÇalışmaGrubu& grup);
