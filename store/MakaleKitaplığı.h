// The article library's file set and the steps in which it is opened and closed.
#pragma once

#include "store/DBEngine.h"

#include <QString>

#include <memory>
#include <optional>

class Bağlantı;
class ÇalışmaGrubu;
enum class AçmaKipi;

/// The file set, all in the program folder. No namespace, since moc can't read the name of one.
struct DosyaAdları
{
    static constexpr QStringView Kitaplık = u"Makale.mde";
    static constexpr QStringView Grup = u"Makale.tps";
    /// Target of the compaction; kept until the next start, so that a whole copy exists at every moment.
    static constexpr QStringView Kopya = u"Makale.md_";
};

/// Creates an empty library and its workgroup file in the folder, readable for their owner only. What a
/// killed creation left is replaced. Throws DosyaVar when either file or the spare copy exists, and then
/// creates nothing.
void KitaplıkKur(const QString& klasör);

/// The owner's workspace; the engine's workgroup file must be set.
Workspace SahipÇalışmaAlanı(DBEngine& motor);
/// The workspace of the account under which the library stays open.
Workspace KullanıcıÇalışmaAlanı(DBEngine& motor);

/// Replaces the library by a compacted copy of itself, and makes its files readable for their owner only.
/// Whatever fails, the library file stands as it was. Returns what CompactDatabase returned.
YapıDurumu VeritabanınıSıkıştır(DBEngine& motor, const QString& klasör,
                                const DBEngine::İlerlemeBildirimi& bildir);

/// Makes sure that the user account exists; it stands already where the last run ended abnormally.
void KullanıcıHesabınıHazırla(const Workspace& sahip);
/// Deletes the user account, which lives for one run only.
void KullanıcıHesabınıSil(const Workspace& sahip);

/// Opens the library in the user's workspace.
Database KitaplıkAç(const Workspace& çalışmaAlanı, const QString& klasör);
/// The same for those who only read: a file that can't be written is opened for reading, unless a crash
/// left a write in it that must be rolled back (SaltOkunur).
Database OkunurKitaplıkAç(const Workspace& çalışmaAlanı, const QString& klasör);

/// Used inside store/ only: what can be told of the library without an engine.
/// The library file's connection; throws as the function that takes a password.
std::unique_ptr<Bağlantı> KitaplıkBağlantısı(const QString& klasör, AçmaKipi kip, ÇalışmaGrubu& grup);
/// HesapGeçersiz where the file doesn't know the owner account, ParolaYanlış where it belongs to another
/// library.
std::optional<HataNo> YabancıGrup(ÇalışmaGrubu& grup);

/// @param klasör with a separator at its end
QString KitaplıkYolu(const QString& klasör, QStringView dosya);
