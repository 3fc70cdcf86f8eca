// Finds out what is wrong with a library, changing nothing.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

struct DenetimSonucu
{
    QStringList Bulgular; ///< Turkish sentences about what is wrong, each beginning with the file's name
    QStringList Notlar;   ///< what is odd but does no harm
    qint64 MakaleSayısı = 0;
};

/// Called during the check with the number of articles read and of all; both 0 before the first one.
using DenetimBildirimi = std::function<void(qint64, qint64)>;

/// Checks both files of a closed library, each even where the other one is damaged. Where a crash left
/// a write unfinished, a copy is checked, so that the files stay as they are.
/// Throws VeritabanıHatası 3045 while the library is in use and 3024 when there is no such folder.
/// @param klasör with a separator at its end
DenetimSonucu KitaplığıDenetle(const QString& klasör, const DenetimBildirimi& bildir);
