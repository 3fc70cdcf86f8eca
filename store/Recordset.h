// The rows of a query, and one field of the current row.
#pragma once

#include "store/MakaleTablosu.h"

#include <QString>
#include <QStringView>

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class Bağlantı;
class Recordset;

/// One column of a recordset's current or pending row. Must not outlive the recordset.
class Field
{
public:
    Field(Recordset& kayıtlar, int sütun) : kayıtlar_(kayıtlar), sütun_(sütun) {}

    QString Name() const;
    /// The pending value where one was set, else the current row's. Throws KayıtYok where there is no
    /// current row, KayıtSilinmiş where it was deleted, DosyaBozuk where it can't be read whole.
    QString Value() const;
    /// Sets the pending value, in normal form C. Throws KayıtAçılmadı outside AddNew and Edit, DeğerÇokUzun
    /// for a value longer than the column, DeğerGeçersiz for one that holds NUL.
    void Value(const QString& değer);

private:
    Recordset& kayıtlar_;
    int sütun_;
};

/// Many UTF-8 texts in one block of memory.
class PaketliMetinler
{
public:
    void Ekle(std::string_view metin)
    {
        baytlar_.append(metin);
        sonlar_.push_back(baytlar_.size());
    }
    std::string_view operator[](std::size_t i) const
    {
        const std::size_t ilk = i == 0 ? 0 : sonlar_[i - 1];
        return std::string_view(baytlar_).substr(ilk, sonlar_[i] - ilk);
    }

private:
    std::string baytlar_;
    std::vector<std::size_t> sonlar_;
};

/// The result of a query. Which rows belong to it is fixed when it opens. SELECT * keeps only the rows'
/// keys and titles in memory, reads the other columns when they are asked for and can change the rows;
/// any other query keeps all its values and changes nothing. Move-only; keeps the library open while it
/// lives.
class Recordset
{
public:
    Recordset(std::shared_ptr<Bağlantı> bağlantı, const QString& sorgu);
    ~Recordset();
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;

    /// Both are true exactly when there are no rows.
    bool Bof() const { return satırSayısı_ == 0; }
    bool Eof() const { return yer_ >= satırSayısı_; }
    /// A move drops a pending row, so that it can't be written into another one.
    void MoveFirst();
    /// Throws KayıtYok past the end.
    void MoveNext();
    qint64 RecordCount() const { return static_cast<qint64>(satırSayısı_); }

    /// Throws ÖğeYok for a column that the query does not give.
    Field Fields(QStringView ad);

    /// Begin a new row, begin changing the current one. Throw SaltOkunur on a snapshot.
    void AddNew();
    void Edit();
    /// Writes the pending row, whole or not at all; after a failure it is still pending. The current row
    /// stays the current one. Throws KayıtAçılmadı when nothing is pending, DiskDolu, SaltOkunur.
    void Update();
    void CancelUpdate();
    /// Deletes the current row; it stays current, but without values, until the next move.
    void Delete();

    void Close();

private:
    friend class Field;
    enum class Bekleyen
    {
        Yok,
        Ekleme,
        Değişiklik
    };
    struct Satır // the current row's short columns
    {
        qint64 değişimDamgası = 0; // they hold as long as nothing was changed since
        std::array<QString, MakaleSütunları.size() - 1> değerler;
    };

    void git(std::size_t yer);
    void anahtarlarıOku(const QByteArray& sql);
    void değerleriOku(const QByteArray& sql);
    void değiştirilebilirOlmalı() const;
    qint64 geçerliKimlik() const;
    Bağlantı& açık() const;
    QString değer(int sütun);
    QString makaleDeğeri(MakaleSütunu sütun);
    const Satır& kısaSütunlar();
    void bekleyenDeğer(int sütun, const QString& değer);
    void ekle();
    void değiştir();

    std::shared_ptr<Bağlantı> bağlantı_;
    bool değiştirilebilir_ = false;
    std::vector<QString> sütunlar_;
    std::size_t satırSayısı_ = 0;
    std::size_t yer_ = 0;

    std::vector<qint64> kimlikler_; // of SELECT *; 0 for a deleted row
    PaketliMetinler metinler_;      // the titles of SELECT *, else all values row by row
    qint64 değişimDamgası_ = 0;     // the titles hold as long as nothing was changed since

    std::optional<Satır> satır_;
    Bekleyen bekleyen_ = Bekleyen::Yok;
    std::array<std::optional<QString>, MakaleSütunları.size()> bekleyenler_;
};
