#include "text/TürkçeArama.h"

#include "text/TürkçeHarfler.h"

#include <QStringMatcher>

QList<qsizetype> TümYerler(QStringView metin, QStringView aranan)
{
    QList<qsizetype> yerler;
    if (aranan.isEmpty())
        return yerler;
    const QString katlı = Katla(metin); // keeps every position
    const QStringMatcher bulucu(Katla(aranan));
    for (qsizetype yer = bulucu.indexIn(katlı); yer >= 0; yer = bulucu.indexIn(katlı, yer + 1))
        yerler.append(yer);
    return yerler;
}
