// Articles as comma-separated values (RFC 4180), by libcsv.
#pragma once

#include "tools/KayıtDosyası.h"
#include "tools/MakaleKaynağı.h"

#include <memory>

/// One row of fields, each in quotes, behind a comma; with its line break.
QByteArray CsvSatırı(const QStringList& alanlar);
QByteArray CsvSatırı(const Makale& makale);
/// The byte order mark, by which spreadsheets know UTF-8, and a row of columns' names.
QByteArray CsvBaşı(const QStringList& sütunlar);
/// The same with those of an article.
QByteArray CsvBaşı();

/// The columns stand in the order that the first row names, or that was given. UTF-8 with or without a byte
/// order mark, else Windows-1254; fields behind commas or semicolons, whichever the first row has more of.
class CsvKaynağı : public MakaleKaynağı
{
public:
    /// Throws as KayıtDosyası, and AraçHatası where a column that an article can't lack isn't named, or
    /// one is named twice.
    /// @param sütunlar the columns' names behind commas, "-" for one that isn't wanted, where the file has no
    /// row of names; empty where it has one
    CsvKaynağı(const QString& yol, const QString& sütunlar, const DurdurmaBekçisi& bekçi);
    ~CsvKaynağı() override;

    /// Throws AraçHatası for quotes that are not closed or stand amid a field, for bytes that are no UTF-8
    /// among such that are, and for a row with more or fewer fields than columns.
    std::optional<GelenMakale> Sonraki() override;
    qint64 Konum() const override { return dosya_.Konum(); }
    qint64 Boy() const override { return dosya_.Boy(); }

private:
    class Çözücü;

    bool kayıtOku();
    void sütunlarıTanı(const QStringList& adlar);

    KayıtDosyası dosya_;
    std::unique_ptr<Çözücü> çözücü_;
    std::vector<QString Makale::*> sütunlar_; // null for one that isn't wanted
    qint64 kayıtNo_ = 0;                      // line in which the row begins
};
