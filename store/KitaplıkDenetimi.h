// Finds out what is wrong with a library, changing nothing.
#pragma once

#include "store/MakaleTablosu.h"
#include "store/VeritabanıHatası.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

struct DenetimBulgusu
{
    QString Dosya; ///< without its folder
    HataNo Numara;
    QString Metin; ///< Turkish, whole sentences

    bool operator==(const DenetimBulgusu&) const = default;
};

struct DenetimSonucu
{
    std::vector<DenetimBulgusu> Bulgular;
    QStringList Notlar; ///< Turkish sentences about what is odd but does no harm
    qint64 MakaleSayısı = 0;
};

/// Called during the check with the number of articles read and of all; both 0 before the first one.
using DenetimBildirimi = std::function<void(qint64, qint64)>;

/// Checks both files of a closed library, each even where the other one is damaged. Where a crash left
/// a write unfinished, a copy is checked, so that the files stay as they are.
/// Throws DosyaKullanımda while the library is in use, DosyaYok when there is no such folder, and when a copy
/// is needed and can't be made DiskDolu, SaltOkunur or DiskHatası.
/// @param klasör with a separator at its end
DenetimSonucu KitaplığıDenetle(const QString& klasör, const DenetimBildirimi& bildir);

/// Of a library whose index is damaged and nothing else.
inline constexpr QStringView DizinBozukMetni = u"Bir dizin tabloyla uyuşmuyor; makaleler duruyor.";
