// One article.
#pragma once

#include <QString>

class Recordset;

/// An article's five values; those that come from the library are in normal form C. The text stands before
/// what an article may lack.
struct Makale
{
    QString Yazar, Başlık, Metin;
    QString Yer = {}, Tarih = {};

    bool operator==(const Makale&) const = default;

    /// The current row. These three throw what Field::Value throws.
    static Makale Oku(Recordset& kayıtlar);
    /// All but the text, which may be long.
    static Makale KünyesiniOku(Recordset& kayıtlar);
    static QString MetniniOku(Recordset& kayıtlar);

    /// Sets the values of the row that is being added or changed; writes nothing yet. Throws what
    /// Field::Value throws.
    void Yaz(Recordset& kayıtlar) const;
};
