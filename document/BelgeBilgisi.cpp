#include "document/BelgeBilgisi.h"

#include <algorithm>

namespace {

constexpr qsizetype EnUzunÖzellik = 4096; // far more than the library takes
constexpr int İlkYıl = 1980;              // of personal computers' files

// For comparing names only: all four kinds of i are one.
QString adınıSadeleştir(QStringView ad)
{
    QString sade;
    for (const QChar harf : ad) {
        if (QStringView(u"İIı").contains(harf))
            sade += u'i';
        else if (harf.isLetterOrNumber())
            sade += harf.toLower();
    }
    return sade;
}

bool biri(const QString& sadeAd, std::initializer_list<QStringView> adlar)
{
    return std::find(adlar.begin(), adlar.end(), sadeAd) != adlar.end();
}

} // namespace

void BelgeÖzelliğiEkle(BelgeBilgisi& bilgi, QStringView ad, const QString& değer)
{
    const QString sade = adınıSadeleştir(ad);
    QString* yer = nullptr;
    if (biri(sade, {u"yayimyeri", u"yer", u"place", u"location"}))
        yer = &bilgi.Yer;
    else if (biri(sade, {u"yayimtarihi", u"tarih", u"date"}))
        yer = &bilgi.Tarih;
    if (yer && yer->isEmpty())
        *yer = BelgeÖzelliği(değer);
}

QString BelgeÖzelliği(QString ham)
{
    ham.truncate(EnUzunÖzellik);
    for (qsizetype i = 0; i < ham.size(); ++i) {
        const bool çift = ham[i].isHighSurrogate() && i + 1 < ham.size() && ham[i + 1].isLowSurrogate();
        if (çift)
            ++i;
        else if (ham[i].isSurrogate())
            ham[i] = QChar::ReplacementCharacter;
        else if (ham[i].category() == QChar::Other_Control || ham[i] == QChar::LineSeparator ||
                 ham[i] == QChar::ParagraphSeparator)
            ham[i] = u' ';
    }
    return ham.trimmed();
}

QString BelgeTarihi(QDate gün)
{
    return gün.isValid() && gün.year() >= İlkYıl && gün != QDate(1980, 1, 1)
               ? gün.toString(QStringLiteral("dd.MM.yyyy"))
               : QString();
}
