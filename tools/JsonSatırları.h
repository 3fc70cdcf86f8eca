// Articles as JSON Lines: one object a line, whose members are the five columns.
#pragma once

#include "tools/MakaleKaynağı.h"
#include "tools/MetinSatırları.h"

/// The text as a JSON string with its quotes.
QByteArray JsonDizesi(const QString& metin);

/// The article as a line of UTF-8 with its line break.
QByteArray MakaleSatırı(const Makale& makale);

/// Strict: a line holds exactly the five members, each once, and each a string that an article can have; they
/// come back in normal form C. Blank lines are passed over.
class JsonKaynağı : public MakaleKaynağı
{
public:
    /// Throws as MetinSatırları.
    JsonKaynağı(const QString& yol, const DurdurmaBekçisi& bekçi) : satırlar_(yol, bekçi), bekçi_(bekçi) {}

    std::optional<GelenMakale> Sonraki() override;
    qint64 Konum() const override { return satırlar_.Konum(); }
    qint64 Boy() const override { return satırlar_.Boy(); }

private:
    MetinSatırları satırlar_;
    const DurdurmaBekçisi& bekçi_;
    QByteArray satır_;
};
