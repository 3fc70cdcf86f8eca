// Articles as JSON Lines: one object a line, whose members are the five columns.
#pragma once

#include "store/MakaleTablosu.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <array>
#include <optional>

/// The columns' values of one article, in the order of the table.
using Makale = std::array<QString, MakaleSütunları.size()>;

/// The article that a line holds, its values in normal form C. Strict: exactly the five members, each a
/// string that an article can have. Throws AraçHatası, which says what is wrong but not where the line
/// stands.
Makale MakaleÇöz(const QByteArray& satır);

/// The article as a line of UTF-8 with its line break.
QByteArray MakaleSatırı(const Makale& makale);

/// Reads a file of such lines one by one, so that memory is needed for the longest line only.
class JsonSatırları
{
public:
    /// @param yol a path, or "-" for the standard input. Throws VeritabanıHatası 3024, 3043 or 3051.
    explicit JsonSatırları(const QString& yol);

    /// The next article, nothing at the end. Blank lines and a byte order mark at the start are passed
    /// over. Throws AraçHatası with the line's number for a bad line, VeritabanıHatası 3043 when the
    /// file can't be read on.
    std::optional<Makale> Sonraki();

    /// Whether the lines can be read once only: a pipe, or the standard input.
    bool BirKezOkunur() const { return girdi_ || dosya_.isSequential(); }
    /// Back to the first line.
    void BaşaDön();

    qint64 Konum() const { return dosya_.pos(); } ///< bytes read
    qint64 Boy() const { return dosya_.size(); }  ///< bytes in all, 0 where that isn't known

private:
    bool satırOku();

    QString ad_; // for messages
    bool girdi_; // the standard input
    QFile dosya_;
    QByteArray satır_;
    qint64 satırNo_ = 0; // counts from 1
};
