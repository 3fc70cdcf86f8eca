// The library file as a whole: creating, opening and checking it, and putting a new one in its place.
#pragma once

#include "store/Bağlantı.h"
#include "store/KitaplıkYapısı.h"

#include <QString>

#include <functional>
#include <memory>

class ÇalışmaGrubu;

/// A file that is not whole yet: deleted when this is destroyed, unless it was kept.
class GeçiciDosya
{
public:
    explicit GeçiciDosya(const QString& yol) : yol_(yol) {}
    ~GeçiciDosya();
    GeçiciDosya(const GeçiciDosya&) = delete;
    GeçiciDosya& operator=(const GeçiciDosya&) = delete;
    void Kalsın() { yol_.clear(); }

private:
    QString yol_;
};

/// The journal of a file into which a write is under way, or was when a process died.
QString GünlükYolu(const QString& dosya);

/// Whether a journal with something in it stands beside the file or, where that is a link, beside what it
/// leads to.
bool YarımYazmaVar(const QString& dosya);
/// As DosyayıKopyala, the journal as well where there is one: whoever opens the copy has it rolled back, and
/// the file itself stays as it is.
void GünlüğüyleKopyala(const QString& kaynak, const QString& hedef,
                       const std::function<void(qint64)>& bildir);

/// Whether a file keeps account of which page leads to which, so that its free pages can be cut out.
enum class SayfaDüzeni
{
    Budanır,
    Budanmaz ///< as earlier versions made them
};

/// Creates an empty library. Throws DosyaVar when the file exists.
/// @param anahtar as TuzluAnahtar gives it
void BoşDosyaOluştur(const QString& yol, const Anahtar& anahtar, SayfaDüzeni düzen = SayfaDüzeni::Budanır);

/// Opens an existing library and makes sure that it is one. The workgroup file tells a wrong password
/// (ParolaYanlış) from a damaged file (DosyaBozuk, DosyaYarım). Throws KitaplıkDeğil for another database,
/// SürümYeni for a later version.
std::unique_ptr<Bağlantı> KitaplıkBağlantısı(const QString& yol, const QString& parola, AçmaKipi kip,
                                             ÇalışmaGrubu& grup);

/// The same with a key that is known to be right. Throws ParolaYanlış for a damaged first page.
std::unique_ptr<Bağlantı> KitaplıkBağlantısı(const QString& yol, const Anahtar& anahtar, AçmaKipi kip);

/// Whence a copy's indices come: taken over entry by entry, each put where today's collation wants it,
/// or built anew from the rows, which deciphers all of them twice more.
enum class DizinKaynağı
{
    Dizinler,
    Satırlar
};

/// Copies the rows of an open library into a new file with the same password and salt, and makes its indices.
/// The copy is neither synced nor checked yet, and half a file
/// on failure. Returns the number of rows.
qint64 KitaplığıKopyala(Bağlantı& kaynak, const QString& hedef, const QString& parola, DizinKaynağı dizinler);

/// Whether the free pages are so few that cutting them out costs less than copying all rows.
bool Budanabilir(Bağlantı& kitaplık);
/// Cuts the free pages out of a copy of a library. The copy isn't synced, and worth nothing on failure;
/// throws DosyaBozuk where pages contradict each other.
/// @return whether there were any
bool KopyayıBuda(const QString& kopya, const Anahtar& anahtar);

/// How many sessions have changed the library since all its rows were copied last; up to EnÇokOturum.
int DeğişenOturumlar(Bağlantı& kitaplık);
inline constexpr int EnÇokOturum = 63;
/// Gives the file another number, which tells it from others, and writes that count with it.
void NoVer(Bağlantı& kitaplık, int oturumlar, const QByteArray& veritabanı = "main");

/// Reads every value of every row. Throws DosyaBozuk when one is no whole text (SağlamDeğer). Returns the
/// rows' sum, for DizinleriDenetle.
SatırToplamı SatırlarıOku(Bağlantı& kitaplık);
/// The same; throws DosyaBozuk also when an index has not as many entries as there are rows.
SatırToplamı TümSatırlarıOku(Bağlantı& kitaplık);
/// Whether each index has as many entries.
bool DizinlerinSayısıUyar(Bağlantı& kitaplık, qint64 satırlar);

/// Replaces the library by a copy of the new file, at no moment leaving a half file under its name; where
/// the disk has no room for a copy, the new file itself becomes the library. Follows a symbolic link and
/// keeps the old file's owner and the owner's access rights; nobody else gets any. On failure the old file
/// stands. Throws DosyaYok, DiskDolu, SaltOkunur and DiskHatası, as do all that follow.
void DosyayıYerineKoy(const QString& yeni, const QString& kitaplık, const std::function<void()>& bildir);

/// Has the system begin to write a file's bytes to the disk, so that DiskeYaz waits less.
void DiskeYazmayaBaşla(const QString& yol);
/// Writes a file's bytes and its folder's entry to the disk.
void DiskeYaz(const QString& yol);

/// Writes the folder's entry for this file or folder to the disk.
void ÜstKlasörüDiskeYaz(const QString& yol);

/// Has two files of a folder take each other's name, at no moment leaving one of the names empty; the first
/// one gets the second one's owner and the owner's access rights. Their folder is not written to the disk
/// yet.
/// @return false where the second is a link or the file system can't do that; nothing has changed then
bool DosyalarıDeğiştir(const QString& yeni, const QString& kitaplık);

/// Takes all access rights but the owner's; a file of somebody else's stays as it is.
void YalnızSahibineAç(const QString& yol);

/// Copies a file's bytes into a new one that only its owner may read; half a file on failure. Not synced yet,
/// though its writing to the disk has begun.
/// @param bildir called behind each piece with the bytes in it; what it throws ends the copying
void DosyayıKopyala(const QString& kaynak, const QString& hedef, const std::function<void(qint64)>& bildir);

/// Gives a file or a folder another name, over a file that has it, and writes the folders in which it stands
/// and stood to the disk.
void DosyayıTaşı(const QString& yol, const QString& yeniYol);

/// Deletes a file if there is one.
void DosyayıSil(const QString& yol);

/// The password of a connect string such as ";PWD=..."; the keyword's letter case makes no difference.
QString BağlantıMetnindenParola(const QString& bağlantıMetni);
