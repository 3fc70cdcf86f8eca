// What the store's tests share: a temporary program folder with a library in it, and the start sequence.
#pragma once

#include "app/Oturum.h"
#include "store/KitaplıkYapısı.h"
#include "store/Makale.h"
#include "store/MakaleKitaplığı.h"

#include <QMap>
#include <QTemporaryDir>

class Bağlantı;

/// A program folder of its own with a library; deleted with this object.
class DenemeKitaplığı
{
public:
    explicit DenemeKitaplığı(const QList<Makale>& makaleler = {});
    const QString& Klasör() const { return klasör_; } ///< with a separator at its end

private:
    QTemporaryDir geçici_;
    QString klasör_ = geçici_.path() + u'/';
};

/// The program's session. Throws what any of the steps throws.
struct Açılış : Oturum
{
    explicit Açılış(const QString& klasör, const DBEngine::İlerlemeBildirimi& bildir = {})
        : Durum(Aç(klasör, bildir))
    {
    }
    YapıDurumu Durum; ///< what the compaction found
};

/// The library file alone; SQLite keeps that many pages in memory, or KiB where it is below 0.
std::shared_ptr<Bağlantı> DosyaBağlantısı(const QString& klasör, int önbellek = -2000);

/// Appends the articles, each in a transaction of its own unless one is open.
void Ekle(const Database& veritabanı, const QList<Makale>& makaleler);
/// Every article of the library in the order of their keys.
QList<Makale> Makaleler(const Database& veritabanı);
/// The error number that the call throws, 0 when it throws none.
int HataNumarası(const std::function<void()>& iş);
/// A text of that many random letters.
QString UzunMetin(int tohum, qsizetype boy);
/// 200 articles, some 40 pages; every twentieth has pages of its own.
QList<Makale> ÖrnekMakaleler();
QByteArray DosyaOku(const QString& yol);
void DosyaYaz(const QString& yol, const QByteArray& baytlar);
/// Every file of the folder with its bytes.
QMap<QString, QByteArray> KlasörOku(const QString& klasör);
