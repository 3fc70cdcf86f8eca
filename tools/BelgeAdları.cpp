#include "tools/BelgeAdları.h"

#include "text/TürkçeHarfler.h"

#include <algorithm>

namespace {

// Encrypting file systems take 143 bytes; some room is left for a number and the ending.
constexpr qsizetype EnUzunAd = 120; // bytes of UTF-8
constexpr QStringView Yasaklar = u"/\\:*?\"<>|";

QString temiz(const QString& metin)
{
    QString ad;
    for (const QChar harf : metin) {
        const bool olmaz = Yasaklar.contains(harf) || harf.category() == QChar::Other_Control ||
                           harf.category() == QChar::Other_Format;
        ad += olmaz ? QChar(u' ') : harf;
    }
    return ad.simplified();
}

QString kısalt(QString ad)
{
    while (ad.toUtf8().size() > EnUzunAd)
        ad.chop(ad.back().isLowSurrogate() ? 2 : 1);
    while (ad.endsWith(u'.') || ad.endsWith(u' '))
        ad.chop(1);
    return ad;
}

QString anahtar(const QString& ad)
{
    return Katla(ad.normalized(QString::NormalizationForm_KC)).replace(u'ı', u'i');
}

} // namespace

QString BelgeAdları::Ver(const Makale& makale)
{
    QString ad = kısalt(temiz(makale.Yazar + QStringLiteral(" - ") + makale.Başlık));
    if (ad.isEmpty() || ad.startsWith(u'.') || ad.startsWith(u'-'))
        ad.prepend(u'_');
    QString denenen = ad;
    int& sayı = verilenler_[anahtar(ad)];
    while (++sayı > 1) { // a name with a number may be another article's own
        denenen = ad + QStringLiteral(" (%1)").arg(sayı);
        if (!verilenler_.contains(anahtar(denenen)))
            break;
    }
    verilenler_.insert(anahtar(denenen), std::max(1, verilenler_.value(anahtar(denenen))));
    return denenen + uzantı_;
}
