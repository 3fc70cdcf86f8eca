// The lines of a file or of the standard input.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

class DurdurmaBekçisi;

/// Reads lines one by one, so that memory is needed for the longest line only.
class MetinSatırları
{
public:
    /// @param yol a path, or "-" for the standard input. Throws VeritabanıHatası DosyaYok, DiskHatası or
    /// İzinYok.
    /// @param bekçi asked while lines are waited for and read; must outlive this
    MetinSatırları(const QString& yol, const DurdurmaBekçisi& bekçi);

    /// @param satır the next line with its end; a byte order mark at the start is passed over
    /// @return false at the end
    /// Throws AraçHatası for a line that is too long and when interrupted, VeritabanıHatası DiskHatası when
    /// the file can't be read on.
    bool Oku(QByteArray& satır);
    /// What ends a line from now on.
    void SonuAta(char son) { son_ = son; }

    const QString& Ad() const { return ad_; }   ///< for messages
    qint64 SatırNo() const { return satırNo_; } ///< of the line read last; counts from 1
    /// A line as messages name it: "dosya, 3. satır".
    QString Nerede(qint64 satırNo) const
    {
        return QStringLiteral("%1, %2. satır").arg(ad_, QString::number(satırNo));
    }
    /// A sentence about a line, as an error that names file and line.
    [[noreturn]] void HataVer(qint64 satırNo, const QString& cümle) const;

    /// Whether the first line began with a byte order mark.
    bool İmli() const { return imli_; }
    /// Whether the lines can be read once only: a pipe, or the standard input.
    bool BirKezOkunur() const { return girdi_ || dosya_.isSequential(); }
    /// Back to the first line.
    void BaşaDön();

    qint64 Konum() const { return okunan_; }     ///< bytes read
    qint64 Boy() const { return dosya_.size(); } ///< bytes in all, 0 where that isn't known

private:
    bool parçaOku();

    QString ad_;
    bool girdi_; // the standard input
    const DurdurmaBekçisi& bekçi_;
    QFile dosya_;
    char son_ = '\n';
    bool imli_ = false;
    qint64 okunan_ = 0;
    QByteArray parça_;        // what was read last
    qsizetype parçaYeri_ = 0; // where the next line begins in it
    qint64 satırNo_ = 0;
};
