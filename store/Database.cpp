#include "store/Database.h"

#include "store/Bağlantı.h"

namespace {

// As SQLite counts: KiB below zero. A connection that was given another size keeps it.
constexpr int OlağanÖnbellek = -2000;
constexpr int GenişÖnbellek = -16000;

} // namespace

Recordset Database::OpenRecordset(const QString& sql) const
{
    Dosya();
    return Recordset(bağlantı_, sql);
}

void Database::İlerlemeAta(std::function<bool()> sürsünMü) const
{
    Dosya().SürdürmeAta(std::move(sürsünMü));
}

void Database::TekİşlemdeYap(const std::function<void()>& iş) const
{
    Dosya();
    try {
        // Bulk work touches every page of the indices again and again.
        if (bağlantı_->Sayı("PRAGMA cache_size") == OlağanÖnbellek)
            bağlantı_->Çalıştır("PRAGMA cache_size=" + QByteArray::number(GenişÖnbellek));
        İşlem işlem(*bağlantı_);
        iş();
        işlem.Onayla();
    } catch (...) {
        // After a full disk it is the next read that brings the file back.
        try {
            bağlantı_->Sayı("SELECT count(*) FROM sqlite_master");
        } catch (const std::exception&) {
            // It stays for the next opening.
        }
        throw;
    }
}

Bağlantı& Database::Dosya() const
{
    if (!bağlantı_)
        throw VeritabanıHatası(HataNo::NesneKapalı);
    return *bağlantı_;
}
