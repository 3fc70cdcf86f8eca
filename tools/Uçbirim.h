// What the tool writes: its results, its messages, and how far long work has come.
#pragma once

#include "tools/Durdurma.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QFile>
#include <QString>

#include <functional>

/// The standard output. Buffered; what Bitir hasn't confirmed may not have been written.
class Çıktı
{
public:
    Çıktı();

    /// Throws VeritabanıHatası DiskDolu when the disk is full, else AraçHatası.
    void Yaz(const QByteArray& baytlar);
    void Yaz(const QString& metin) { Yaz(metin.toUtf8()); }
    /// Writes out what is buffered. Throws as Yaz.
    void Bitir();
    bool Uçbirim() const { return uçbirim_; } ///< whether it is one

private:
    [[noreturn]] void hataVer() const;

    QFile dosya_;
    bool uçbirim_;
};

/// What stands before the report of a run that changed nothing.
inline const QString DenemeMetni = QStringLiteral("Deneme; hiçbir şey değiştirilmedi. Yapılacak olan:");

/// The text without what a terminal would take for orders: titles and file names come from elsewhere.
QString Görünür(QString metin);

/// One line on the standard output about work that is done, so a failure to write it is no failure.
void Bildir(const QString& cümle);

/// One line on the standard error, behind the program's name.
void HataBildir(const QString& cümle);

/// A bar on the terminal that is rewritten at most five times a second and gone when this is
/// destroyed. Does nothing when the standard error is no terminal.
class İlerleme
{
public:
    /// @param iş what is being done, such as "Aktarılıyor"
    explicit İlerleme(const QString& iş);
    ~İlerleme();
    İlerleme(const İlerleme&) = delete;
    İlerleme& operator=(const İlerleme&) = delete;

    /// @param toplam in the unit of yapılan; 0 where it isn't known, then there is no bar, and yapılan is
    /// shown as it is, if not 0
    void Göster(qint64 yapılan, qint64 toplam);
    /// The same as a call that also tells whether to go on. Both must outlive it.
    std::function<bool(qint64, qint64)> Sürdüren(const DurdurmaBekçisi& bekçi)
    {
        return [this, &bekçi](qint64 yapılan, qint64 toplam) {
            Göster(yapılan, toplam);
            return !bekçi.Durduruldu();
        };
    }

private:
    QString iş_;
    bool uçbirim_;
    bool yazıldı_ = false;
    QElapsedTimer saat_;
};
