// A file of records: lines, their encoding undone.
#pragma once

#include "tools/MetinSatırları.h"

/// UTF-8 or Windows-1254. Open while this lives.
class KayıtDosyası
{
public:
    /// Reads the file once, to tell UTF-8 from Windows-1254. Throws what MetinSatırları throws, AraçHatası
    /// for what is no regular file and for text in UTF-16.
    /// @param utf8İmi bytes that stand in files of UTF-8 only; may be empty
    KayıtDosyası(const QString& yol, const DurdurmaBekçisi& bekçi, QByteArrayView utf8İmi = {});

    /// The next line in UTF-8, with its "\n"; wrong bytes stay in a file that is UTF-8 otherwise.
    /// @return false at the end. Throws as MetinSatırları::Oku.
    bool Oku(QByteArray& satır);

    const QString& Ad() const { return satırlar_.Ad(); }
    qint64 SatırNo() const { return satırlar_.SatırNo(); }
    QString Nerede(qint64 satırNo) const { return satırlar_.Nerede(satırNo); }
    [[noreturn]] void HataVer(qint64 satırNo, const QString& cümle) const;
    qint64 Konum() const { return satırlar_.Konum(); }
    qint64 Boy() const { return satırlar_.Boy(); }

private:
    void yazısınıTanı(QByteArrayView utf8İmi);

    const DurdurmaBekçisi& bekçi_;
    MetinSatırları satırlar_;
    bool utf8_ = true;
    char son_ = '\n'; // that of very old Macintosh files is '\r'
};
