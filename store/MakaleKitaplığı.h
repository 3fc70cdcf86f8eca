// The article library's file set and the steps in which it is opened and closed.
#pragma once

#include "store/DBEngine.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class Bağlantı;
class ÇalışmaGrubu;
struct Anahtar;
enum class AçmaKipi;

/// The file set, all in the program folder. No namespace, since moc can't read the name of one.
struct DosyaAdları
{
    static constexpr QStringView Kitaplık = u"Makale.mde";
    static constexpr QStringView Grup = u"Makale.tps";
    /// Target of the compaction; kept until the next start, so that a whole copy exists at every moment.
    static constexpr QStringView Kopya = u"Makale.md_";
};

/// Throws DosyaVar when either file of a library or its spare copy exists in the folder.
void KitaplıkKurulabilmeli(const QString& klasör);
/// Creates an empty library and its workgroup file in the folder, readable for their owner only. What a
/// killed creation left is replaced. Throws as KitaplıkKurulabilmeli, and then creates nothing.
void KitaplıkKur(const QString& klasör);

/// The same with a library file that somebody else makes. The callback makes the whole file at the given path
/// and returns its salt; what it throws comes through, and then nothing is left.
void KitaplıkKur(const QString& klasör, const std::function<QByteArray(const QString& yol)>& dosyayıYap);

/// The owner's workspace; the engine's workgroup file must be set.
Workspace SahipÇalışmaAlanı(DBEngine& motor);
/// The workspace of the account under which the library stays open.
Workspace KullanıcıÇalışmaAlanı(DBEngine& motor);

/// Replaces the library by a compacted copy of itself, and makes its files readable for their owner only.
/// Whatever fails, the library file stands as it was. Returns what CompactDatabase returned.
YapıDurumu VeritabanınıSıkıştır(DBEngine& motor, const QString& klasör,
                                const DBEngine::İlerlemeBildirimi& bildir);

/// How far VeritabanınıSıkıştır has come, from 0 to 1, by the sizes of what it has written so far; for its
/// bildir.
double SıkıştırmaOranı(const QString& klasör);

/// For an orderly end, the library closed: see DBEngine::SealDatabase.
void VeritabanınıMühürle(DBEngine& motor, const QString& klasör);

/// Makes sure that the user account exists; it stands already where the last run ended abnormally.
void KullanıcıHesabınıHazırla(const Workspace& sahip);
/// Deletes the user account, which lives for one run only.
void KullanıcıHesabınıSil(const Workspace& sahip);

/// Opens the library in the user's workspace.
Database KitaplıkAç(const Workspace& çalışmaAlanı, const QString& klasör);
/// The same for those who only read: a file that can't be written is opened for reading, unless a crash
/// left a write in it that must be rolled back (SaltOkunur).
Database OkunurKitaplıkAç(const Workspace& çalışmaAlanı, const QString& klasör);

/// Begins with what takes long in opening the library, while something else is done. Never throws: what is
/// wrong with the file, opening it tells.
void KitaplığıHazırla(const QString& klasör);

/// Used inside store/ only: what can be told of the library without an engine.
/// What opens a library file with that salt.
Anahtar KitaplıkAnahtarı(const QByteArray& tuz);
/// The library file's connection; throws as the function that takes a password.
std::unique_ptr<Bağlantı> KitaplıkBağlantısı(const QString& klasör, AçmaKipi kip, ÇalışmaGrubu& grup);
/// HesapGeçersiz where the file doesn't know the owner account, ParolaYanlış where it belongs to another
/// library.
std::optional<HataNo> YabancıGrup(ÇalışmaGrubu& grup);

/// @param klasör with a separator at its end
QString KitaplıkYolu(const QString& klasör, QStringView dosya);
