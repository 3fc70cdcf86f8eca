// A folder that holds a library's two files: copied or checked as a whole, made, taken away. What backups are
// made of.
#pragma once

#include "store/KitaplıkYapısı.h"

#include <QString>
#include <QStringList>

#include <functional>

/// Called during long work with the bytes that were copied and that are to be, both 0 while something is
/// checked. The work ends with İşlemDurduruldu when it returns false. May be empty.
using SürdürmeBildirimi = std::function<bool(qint64 yapılan, qint64 toplam)>;

/// What both files together are worth.
struct ÇiftDurumu
{
    YapıDurumu Durum; ///< Sağlam or DizinBozuk
    qint64 MakaleSayısı;
};

/// Reads both files whole: the accounts, the library's structure and every value of every row. An unfinished
/// write is rolled back in a copy, so the folder stays as it is. Nobody may write to the folder meanwhile.
/// Throws DosyaBozuk, DosyaYarım and the like with the path of the file that is meant, DosyaYok where one is
/// missing, HesapGeçersiz or ParolaYanlış where Makale.tps is another program's.
/// @param klasör with a separator at its end
ÇiftDurumu ÇiftiDenetle(const QString& klasör, const SürdürmeBildirimi& bildir);

/// Copies both files into an empty folder, has an unfinished write rolled back there, checks the copies as
/// ÇiftiDenetle does (errors name the source) and writes them to the disk. Half of the work may stay in hedef
/// on failure.
/// @param klasör, hedef with a separator at their ends
ÇiftDurumu ÇiftiKopyala(const QString& klasör, const QString& hedef, const SürdürmeBildirimi& bildir);

/// Throws KlasörlerAyrıDeğil where the backups' folder is the library's, lies in it, or is one in which the
/// library's files really lie, by whatever links.
void AyrıOlmalı(const QString& klasör, const QString& yedekler);
/// Whether a folder is another one or lies in it, by whatever links. They need not exist.
bool İçinde(const QString& iç, const QString& dış);

/// Whether there is anything of this name, be it a link that leads nowhere.
bool Var(const QString& yol);

/// Whether the folder holds nothing but files that a library folder may have.
bool YalnızKitaplıkVar(const QString& klasör);
/// Takes away a folder with the library's files in it, and nothing else: throws DosyaVar where something else
/// is in it. No matter if there is none.
void KitaplıkKlasörünüSil(const QString& klasör);

/// Throws where YeniKlasör could not make the folder, or it is one into which nothing can be written. For
/// saying beforehand what a command would do.
void KlasörYapılabilmeli(const QString& yol);

/// A folder that is there while this lives: it and the folders above it are made where they are missing, for
/// their owner only, and those that were made are taken away again, empty ones only, unless they were kept.
class YeniKlasör
{
public:
    /// Throws DosyaVar where a file has that name, SaltOkunur, DiskDolu and the like.
    explicit YeniKlasör(const QString& yol);
    ~YeniKlasör();
    YeniKlasör(const YeniKlasör&) = delete;
    YeniKlasör& operator=(const YeniKlasör&) = delete;
    void Kalsın() { yapılanlar_.clear(); }

private:
    YeniKlasör() = default;

    QStringList yapılanlar_; // the lowest one last
};

/// A new folder for a library's files that aren't whole yet: whatever a killed process left in it goes first,
/// and it goes with its files when this is destroyed, unless it was renamed.
class GeçiciKlasör
{
public:
    explicit GeçiciKlasör(const QString& yol);
    ~GeçiciKlasör();
    GeçiciKlasör(const GeçiciKlasör&) = delete;
    GeçiciKlasör& operator=(const GeçiciKlasör&) = delete;
    /// With a separator at its end.
    QString İçi() const { return yol_ + u'/'; }
    /// Makes it lasting: gives it its name once all that is in it has been written to the disk.
    void Adlandır(const QString& yeniYol);

private:
    QString yol_;
};
