// Generations of backups: dated copies of a library's two files, each in a folder of its own. GeriYükleme.h
// has the way back.
#pragma once

#include "store/KitaplıkKlasörü.h"
#include "store/VeritabanıHatası.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// Dene says what would be done and changes nothing.
enum class YedekKipi
{
    Yap,
    Dene
};

struct YedekSonucu
{
    QString Yol; ///< of the new generation, without a separator at its end
    qint64 MakaleSayısı = 0;
    QStringList Silinenler; ///< names of older generations, the oldest first
    QStringList Notlar;     ///< Turkish sentences about what is odd but did no harm
};

/// One generation as it is found.
struct YedekNesli
{
    QString Ad;      ///< of its folder
    QDateTime Tarih; ///< as its name says, local time
    qint64 MakaleSayısı = 0;
    std::optional<VeritabanıHatası> Sorun; ///< why it can't be put back; nothing where it is whole
    QString Not; ///< a Turkish sentence, as of an index that is damaged; may be empty
};

constexpr int OlağanNesilSayısı = 10;

/// Copies the library's files into a new generation in hedef, which is made where it is missing; it is whole
/// and on the disk when it gets its name. Only then older generations of this library go, so that as many as
/// wanted are left; those that hold anything else, are dated later than now, or are another library's stay.
/// Whatever fails, all older generations stand and nothing of a new one is left. A damaged index is no damage
/// (Notlar). Throws DosyaKullanımda while the library, or hedef, is in use, KlasörlerAyrıDeğil where hedef
/// lies in the library's folder, DosyaBozuk and the like for a library that isn't whole, DiskDolu,
/// SaltOkunur, DosyaVar where a file is in hedef's place, İşlemDurduruldu.
/// @param klasör with a separator at its end
/// @param sakla how many generations may be left, the new one among them; less than 1 is 1
YedekSonucu Yedekle(const QString& klasör, const QString& hedef, int sakla, YedekKipi kip,
                    const SürdürmeBildirimi& bildir = {}, const QDateTime& an = QDateTime::currentDateTime());

/// The generations in hedef, the newest first; each is read whole. Folders of other names are passed over.
/// Throws DosyaYok when there is no such folder, DosyaKullanımda while a backup is made or put back,
/// İşlemDurduruldu.
std::vector<YedekNesli> Yedekler(const QString& hedef, const SürdürmeBildirimi& bildir = {});

/// What a generation is called, such as Belgenar-2026-11-25-154445, or with -2 behind it for the second one
/// in that second; nothing where the name is none.
/// @param ön what the names of these folders begin with
std::optional<QDateTime> AddakiTarih(QStringView ön, const QString& ad);
/// A name of that kind that nothing in the folder has.
/// @param son what stands behind it while it isn't whole, and is looked for as well
QString BoşAd(QStringView ön, const QString& klasör, const QDateTime& an, const QString& son = {});

/// The folder of a generation, with a separator at its end. Throws ÖğeYok where the name is none or there is
/// no such folder.
QString NeslinKlasörü(const QString& hedef, const QString& ad);
