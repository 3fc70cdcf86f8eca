// Articles as JSON Lines: one object a line, whose members are the five columns.
#pragma once

#include "store/MakaleTablosu.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <optional>

/// The article as a line of UTF-8 with its line break.
QByteArray MakaleSatırı(const Makale& makale);

class DurdurmaBekçisi;

/// Reads a file of such lines one by one, so that memory is needed for the longest line only.
class JsonSatırları
{
public:
    /// @param yol a path, or "-" for the standard input. Throws VeritabanıHatası DosyaYok, DiskHatası or
    /// İzinYok.
    /// @param bekçi asked while lines are waited for and read; must outlive this
    JsonSatırları(const QString& yol, const DurdurmaBekçisi& bekçi);

    /// The next article, nothing at the end. Strict: a line holds exactly the five members, each once, and
    /// each a string that an article can have; they come back in normal form C. Blank lines and a byte order
    /// mark at the start are passed over. Throws AraçHatası with the line's number for a bad line and when
    /// interrupted, VeritabanıHatası DiskHatası when the file can't be read on.
    std::optional<Makale> Sonraki();

    /// Whether the lines can be read once only: a pipe, or the standard input.
    bool BirKezOkunur() const { return girdi_ || dosya_.isSequential(); }
    /// Back to the first line.
    void BaşaDön();

    qint64 Konum() const { return okunan_; }     ///< bytes read
    qint64 Boy() const { return dosya_.size(); } ///< bytes in all, 0 where that isn't known

private:
    bool satırOku();
    bool parçaOku();

    QString ad_; // for messages
    bool girdi_; // the standard input
    const DurdurmaBekçisi& bekçi_;
    QFile dosya_;
    qint64 okunan_ = 0;
    QByteArray parça_;        // what was read last
    qsizetype parçaYeri_ = 0; // where the next line begins in it
    QByteArray satır_;
    qint64 satırNo_ = 0; // counts from 1
};
