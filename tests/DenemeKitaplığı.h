// What the store's tests share: a temporary program folder with a library in it, and the start sequence.
#pragma once

#include "store/KitaplıkYapısı.h"
#include "store/MakaleKitaplığı.h"

#include <QMap>
#include <QTemporaryDir>

class Bağlantı;

/// One article, its five columns.
struct Makale
{
    QString Yazar, Başlık, Metin, Yer = QStringLiteral("Ankara"), Tarih = QStringLiteral("Şubat 2003");
    bool operator==(const Makale&) const = default;
};

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

/// The whole start sequence, and what stays open after it. Throws what any of the steps throws.
struct Açılış
{
    explicit Açılış(const QString& klasör, const DBEngine::İlerlemeBildirimi& bildir = {});
    DBEngine Motor;
    YapıDurumu Durum; ///< what the compaction found
    std::optional<Workspace> Alan;
    std::optional<Database> Veritabanı;
};

/// The library file alone; SQLite keeps that many pages in memory, or KiB where it is below 0.
std::shared_ptr<Bağlantı> DosyaBağlantısı(const QString& klasör, int önbellek = -2000);

/// Sets the pending row's columns and writes it.
void Doldur(Recordset& kayıtlar, const Makale& makale);
/// Appends the articles, each in a transaction of its own unless one is open.
void Ekle(const Database& veritabanı, const QList<Makale>& makaleler);
/// Every article of the library in the order of their keys.
QList<Makale> Makaleler(const Database& veritabanı);
/// The error number that the call throws, 0 when it throws none.
int HataNumarası(const std::function<void()>& iş);
/// A text of that many random letters.
QString UzunMetin(int tohum, qsizetype boy);
QByteArray DosyaOku(const QString& yol);
void DosyaYaz(const QString& yol, const QByteArray& baytlar);
/// Every file of the folder with its bytes.
QMap<QString, QByteArray> KlasörOku(const QString& klasör);
