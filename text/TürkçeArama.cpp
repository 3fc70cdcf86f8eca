#include "text/TürkçeArama.h"

#include "text/TürkçeHarfler.h"

// Folding keeps every position.
MetinArayıcı::MetinArayıcı(QStringView metin, QStringView aranan)
    : katlı_(Katla(metin)), bulucu_(Katla(aranan))
{
}

qint32 MetinArayıcı::Sonraki(qint32 konum) const
{
    return bulucu_.pattern().isEmpty() ? 0 : static_cast<qint32>(bulucu_.indexIn(katlı_, konum) + 1);
}
