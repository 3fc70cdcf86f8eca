#include "store/Database.h"

#include "store/Bağlantı.h"

Recordset Database::OpenRecordset(const QString& sql) const
{
    if (!bağlantı_)
        throw VeritabanıHatası(HataNo::NesneKapalı);
    return Recordset(bağlantı_, sql);
}
