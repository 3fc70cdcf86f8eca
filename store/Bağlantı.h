// The thin layer over SQLCipher's C interface: a connection, a statement, a transaction. Used inside
// store/ only; the C headers stay in the source file.
#pragma once

#include "store/KitaplıkAnahtarı.h"
#include "store/VeritabanıHatası.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

class Deyim;

/// YazılabilirseYaz opens for reading what can't be written; what is then written all the same is SaltOkunur.
enum class AçmaKipi
{
    Oku,
    OkuYaz,
    YazılabilirseYaz,
    Oluştur
};

/// An open encrypted file. Owned by whoever opened it; closes the file when destroyed. Not thread-safe.
class Bağlantı
{
public:
    /// Opens the file, gives the key, registers the Turkish collation and LIKE, and reads once. A password's
    /// key is derived with the salt in the file; a new file gets one of its own.
    /// Throws DosyaYok, DiskDolu, SaltOkunur, ParolaYanlış (see OkunamayanDosyaTanısı), DiskHatası,
    /// YolGeçersiz, DosyaKullanımda, ÇokDosyaAçık, İzinYok, KitaplıkDeğil, DosyaYarım or DosyaBoş. Oluştur
    /// refuses an existing file with DosyaVar.
    Bağlantı(const QString& yol, const Anahtar& anahtar, AçmaKipi kip);
    ~Bağlantı();
    Bağlantı(const Bağlantı&) = delete;
    Bağlantı& operator=(const Bağlantı&) = delete;

    /// Runs one statement that returns no rows.
    void Çalıştır(const QByteArray& sql);
    /// The first column of the first row, 0 where there is none.
    qint64 Sayı(const QByteArray& sql);
    QString Metin(const QByteArray& sql);

    /// Attaches another file, always with a key: without one SQLCipher may write plain text.
    void İliştir(const QString& yol, const Anahtar& anahtar, const QByteArray& ad);

    /// Called once, before the first transaction that may change the file; where it throws, that doesn't
    /// begin, and the next one calls it again.
    void İlkYazmadaÇağır(std::function<void()> iş) { ilkYazma_ = std::move(iş); }

    /// Whether a transaction is open.
    bool İşlemde() const;
    /// Ends the open transaction. Once its journal is gone it stands, whatever fails after that; only what
    /// fails before is thrown.
    void Onayla();

    qint64 SonKimlik() const;     ///< key of the row inserted last
    qint64 DeğişenSatır() const;  ///< rows changed by the last statement
    qint64 ToplamDeğişim() const; ///< rows changed since opening

    /// Called while a statement runs, at most once every 20 ms; empty for none.
    void İlerlemeAta(const std::function<void()>& bildir);
    /// The same, but the running statement ends with İşlemDurduruldu when the call returns false.
    void SürdürmeAta(std::function<bool()> sürsünMü);

    /// Forgets all pages. To be called when a damaged row was read, before a row that may be sound: SQLCipher
    /// tells of a page that doesn't decipher at the next one that is read, which then stands in memory as
    /// zeros though nothing is wrong with it.
    void ÖnbelleğiBoşalt();

    /// Adds tables to what this connection knows of the file, each beginning at a page of its own, and
    /// forgets the ones of the last call; the file stays as it is. So pages can be read to which no path
    /// leads.
    /// @param tablolar pages, and CREATE TABLE statements with the columns that their rows have
    void SayfalarıTabloSay(const std::vector<std::pair<qint64, QByteArray>>& tablolar);

    const QString& Yol() const { return yol_; }
    /// TuzBoyu bytes; empty for a file that is shorter, or can't be read. Read through the open file: a
    /// second descriptor would drop the locks on it.
    QByteArray Tuz() const;

private:
    friend class Deyim;
    friend class İşlem;
    struct Kapatıcı
    {
        void operator()(sqlite3* db) const noexcept;
    };

    void anahtarıVer(const Anahtar& anahtar);
    void ilkOkuma();
    int dene(const char* sql) const;
    bool günlükGitti() const;
    [[noreturn]] void hataVer(int durum, bool adımda) const;
    void denetle(int durum) const;
    static int ilerleme(void* bağlantı);

    QString yol_;
    std::unique_ptr<sqlite3, Kapatıcı> db_;
    std::function<bool()> sürsünMü_;
    std::function<void()> ilkYazma_;
    bool sürüm4_ = false;    // of SQLCipher
    qint64 sonBildirim_ = 0; // ms of the steady clock
};

/// A prepared statement. Must not outlive its connection.
class Deyim
{
public:
    /// Throws Sözdizimi for a syntax error, TabloYok for an unknown table, AlanYok for an unknown column, and
    /// Sözdizimi for a text that holds no statement or more than one.
    Deyim(Bağlantı& bağlantı, const QByteArray& sql);

    /// Parameters count from 1.
    Deyim& Bağla(int sıra, qint64 sayı);
    Deyim& Bağla(int sıra, QStringView metin);
    Deyim& Bağla(int sıra, const QByteArray& baytlar);
    /// A text as its UTF-8 bytes, which must stay where they are until the statement has run.
    Deyim& BağlaYazı(int sıra, std::string_view utf8);

    /// Moves to the next row; false when there is none left.
    bool Adım();
    /// Runs to the end and makes the statement ready for the next run.
    void Çalıştır();
    void Sıfırla();

    /// Columns count from 0.
    qint64 Sayı(int sütun) const;
    QString Metin(int sütun) const;
    /// A text's UTF-8 bytes, valid until the next step. Throws DosyaBozuk where they can't be read, or hold
    /// NUL, which no stored text does: a damaged page deciphers to zeros.
    std::string_view Yazı(int sütun) const;
    /// The column's bytes as they are stored; valid until the next step. Throws DosyaBozuk where they can't
    /// be brought into memory.
    std::string_view Baytlar(int sütun) const;
    int SütunSayısı() const;
    QString SütunAdı(int sütun) const;

private:
    struct Bırakıcı
    {
        void operator()(sqlite3_stmt* deyim) const noexcept;
    };

    Bağlantı& bağlantı_;
    std::unique_ptr<sqlite3_stmt, Bırakıcı> deyim_;
};

/// A write transaction: rolled back when destroyed before Onayla. Within an open one it is a part of that.
class İşlem
{
public:
    explicit İşlem(Bağlantı& bağlantı);
    ~İşlem();
    İşlem(const İşlem&) = delete;
    İşlem& operator=(const İşlem&) = delete;

    void Onayla();

private:
    Bağlantı& bağlantı_;
    bool açık_;
};
