// Makes a new library of what can still be read of a damaged one and of its spare copy.
#pragma once

#include "store/KitaplıkYapısı.h"
#include "store/MakaleOkuyucu.h"
#include "store/VeritabanıHatası.h"

#include <QString>

#include <functional>
#include <optional>
#include <vector>

struct KurtarmaSonucu
{
    qint64 Kitaplıktan = 0;              ///< articles that came from Makale.mde
    qint64 Kopyadan = 0;                 ///< that came from Makale.md_, as they were at the last start
    std::vector<MakaleKünyesi> Kayıplar; ///< that didn't come; in the order of author, title and key
    /// Whether there may be lost ones of which nothing is known.
    bool BilinmeyenOlabilir = false;
    /// What Makale.mde's structure is worth. Where pages contradict each other, what came may be old or
    /// mixed.
    YapıDurumu Durum = YapıDurumu::Okunamıyor;
    /// Why nothing at all could be read from Makale.mde: all that came is from the copy.
    std::optional<HataNo> KitaplıkHatası;
    /// Why nothing at all could be read from Makale.md_ (DosyaYok: there is none), where it was needed.
    std::optional<HataNo> KopyaHatası;
    /// Whether a write that a crash had left unfinished in Makale.mde was taken back.
    bool GeriAlındı = false;
};

enum class KurtarmaKipi
{
    Kur,
    Dene ///< finds out what would come, and makes nothing
};

/// Called during the work with the number of articles that have come and of all, which is 0 where it isn't
/// known; both are 0 before the first one. Stops the work by returning false.
using KurtarmaBildirimi = std::function<bool(qint64 gelen, qint64 toplam)>;

/// Makes a library with a workgroup file of its own in the new folder, of every article that can be read:
/// from Makale.mde, whether or not its pages can be reached, with what a crash left taken back; and from
/// Makale.md_ those that can't be, or of which Makale.mde doesn't tell any more whether it held them. Keys
/// stay.
///
/// The old folder's files stay as they are; its lock is held. The new library is read back and on the disk
/// before it gets its name: there is never a part of one. What is needed on the way lies in the new folder
/// and holds encrypted bytes only; a killed rescue leaves it, the next one deletes it. To try needs the
/// folder for temporary files, and only where a copy has to be mended.
///
/// Throws DosyaVar where the new folder holds a library or is the old one, DosyaKullanımda, İşlemDurduruldu,
/// SürümYeni, DiskDolu and the like; and where neither file gives anything, what is wrong with Makale.mde (or
/// with Makale.md_, where only that is there).
/// @param klasör, yeniKlasör with a separator at their ends; the new one is made if it is missing
KurtarmaSonucu KitaplığıKurtar(const QString& klasör, const QString& yeniKlasör, KurtarmaKipi kip,
                               const KurtarmaBildirimi& bildir);
