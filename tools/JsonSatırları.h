// Articles as JSON Lines: one object a line, whose members are the five columns.
#pragma once

#include "store/MakaleTablosu.h"
#include "tools/MetinSatırları.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// The article as a line of UTF-8 with its line break.
QByteArray MakaleSatırı(const Makale& makale);

/// Reads such lines one by one.
class JsonSatırları
{
public:
    /// As MetinSatırları.
    JsonSatırları(const QString& yol, const DurdurmaBekçisi& bekçi) : bekçi_(bekçi), satırlar_(yol, bekçi) {}

    /// The next article, nothing at the end. Strict: a line holds exactly the five members, each once, and
    /// each a string that an article can have; they come back in normal form C. Blank lines are passed over.
    /// Throws AraçHatası with the line's number for a bad line, and what MetinSatırları::Oku throws.
    std::optional<Makale> Sonraki();

    bool BirKezOkunur() const { return satırlar_.BirKezOkunur(); }
    void BaşaDön() { satırlar_.BaşaDön(); }
    qint64 Konum() const { return satırlar_.Konum(); }
    qint64 Boy() const { return satırlar_.Boy(); }

private:
    const DurdurmaBekçisi& bekçi_;
    MetinSatırları satırlar_;
    QByteArray satır_;
};
