// What the store's tests share: a temporary program folder with a library in it, and the start sequence.
#pragma once

#include "store/MakaleKitaplığı.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <optional>

class Bağlantı;

/// One article, its five columns.
struct Makale
{
    QString Yazar, Başlık, Metin;
    QString Yer = QStringLiteral("Ankara");
    QString Tarih = QStringLiteral("Şubat 2003");

    bool operator==(const Makale&) const = default;
};

/// A program folder of its own with a library that holds the given articles; deleted with this object.
class DenemeKitaplığı
{
public:
    explicit DenemeKitaplığı(const QList<Makale>& makaleler = {});
    /// Makes the files in an existing folder, which is then left alone.
    DenemeKitaplığı(const QString& klasör, const QList<Makale>& makaleler);

    /// With a separator at its end.
    const QString& Klasör() const { return klasör_; }
    QString Yol(QStringView dosya) const { return KitaplıkYolu(klasör_, dosya); }

private:
    void kur(const QList<Makale>& makaleler);

    std::unique_ptr<QTemporaryDir> geçici_;
    QString klasör_;
};

/// The whole start sequence, and what stays open after it.
class Açılış
{
public:
    /// Throws what any of the steps throws.
    /// @param bildir called while the library is copied
    explicit Açılış(const QString& klasör, const DBEngine::İlerlemeBildirimi& bildir = {});

    DBEngine Motor;
    std::optional<Workspace> Alan;
    Database Veritabanı;
};

/// A started açılış_süreci that has reported that it is ready; killed when destroyed. Null when it could
/// not be started or ended before.
std::unique_ptr<QProcess> YardımcıSüreç(const QStringList& sözler);

/// The library file alone, without its start sequence; for tests of what lies below it.
/// @param önbellek pages that SQLite may keep in memory, 0 for its usual number
std::shared_ptr<Bağlantı> DosyaBağlantısı(const QString& klasör, int önbellek = 0);

/// Appends the articles, each in a transaction of its own unless one is open.
void Ekle(const Database& veritabanı, const QList<Makale>& makaleler);

/// Every article of the library in the order of their keys.
QList<Makale> Makaleler(const Database& veritabanı);
/// The values of one column, row by row.
QStringList Değerler(Recordset kayıtlar, QStringView sütun);

/// The error number that the call throws, 0 when it throws none.
int HataNumarası(const std::function<void()>& iş);

/// A text of about that many letters which no compression or chance makes equal to another.
QString UzunMetin(int tohum, qsizetype boy);

/// The text with a check sum of itself in front, and that check sum; empty when the two don't agree.
QString DamgalıMetin(const QString& gövde);
QString MetninDamgası(const QString& damgalıMetin);

QByteArray DosyaOku(const QString& yol);
void DosyaYaz(const QString& yol, const QByteArray& baytlar);
/// Every file of the folder with its bytes.
QMap<QString, QByteArray> KlasörOku(const QString& klasör);
