#include "tools/KaynakçaYazıcı.h"

#include "store/MakaleTablosu.h"
#include "tools/KaynakçaBiçimi.h"
#include "tools/KaynakçaTarihi.h"

#include <QLocale>

namespace {

QString damgaMetni(const Makale& makale, const KaynakçaTarihi& tarih)
{
    QByteArray damgalar = DamgaBaşı.toByteArray();
    for (const SütunTanımı& sütun : MakaleSütunları) {
        const QString& değer = makale.*sütun.değer;
        damgalar += (sütun.değer == &Makale::Tarih ? TarihDamgası(değer, tarih.Metin()) : Damga(değer)) + ' ';
    }
    return QString::fromLatin1(damgalar) + makale.Tarih;
}

QByteArray risSatırı(const char* kod, const QString& değer)
{
    return değer.isEmpty() ? QByteArray() : kod + QByteArrayLiteral("  - ") + RisHarfleri(değer) + '\n';
}

} // namespace

QByteArray BibKaydı(const Makale& makale, qint64 sıra)
{
    const KaynakçaTarihi tarih = KaynakçaTarihi::Türkçeden(makale.Tarih);
    QByteArray kayıt = "@article{makale" + QByteArray::number(sıra);
    const auto ekle = [&kayıt](const char* ad, const QByteArray& değer) {
        if (!değer.isEmpty())
            kayıt += QByteArrayLiteral(",\n  ") + ad + " = " + değer;
    };
    const auto ayraçlı = [](const QString& değer) {
        return değer.isEmpty() ? QByteArray() : '{' + BibHarfleri(değer) + '}';
    };
    ekle("author", '{' + ayraçlı(makale.Yazar) + '}'); // not to be taken apart
    ekle("title", '{' + ayraçlı(makale.Başlık) + '}'); // nor put into small letters
    ekle("journal", ayraçlı(makale.Yer));
    ekle("year", ayraçlı(tarih.Yıl));
    if (tarih.AyNo() > 0)
        ekle("month", QLocale::c().monthName(tarih.AyNo(), QLocale::ShortFormat).toLatin1().toLower());
    ekle("day", ayraçlı(tarih.Gün));
    ekle("abstract", ayraçlı(makale.Metin));
    ekle(DamgaAlanı, ayraçlı(damgaMetni(makale, tarih)));
    return kayıt + "\n}\n\n";
}

QByteArray RisKaydı(const Makale& makale)
{
    const KaynakçaTarihi tarih = KaynakçaTarihi::Türkçeden(makale.Tarih);
    QByteArray kayıt = "TY  - JOUR\n";
    kayıt += risSatırı("AU", makale.Yazar) + risSatırı("TI", makale.Başlık) + risSatırı("T2", makale.Yer);
    kayıt += risSatırı("PY", tarih.Yıl);
    if (tarih.AyNo() > 0) {
        kayıt += risSatırı("DA", QStringLiteral("%1/%2/%3")
                                     .arg(tarih.Yıl, tarih.Ay.rightJustified(2, u'0'),
                                          tarih.Gün.rightJustified(2, u'0').remove(QStringLiteral("00"))));
    }
    kayıt += risSatırı("AB", makale.Metin) + risSatırı(DamgaKodu, damgaMetni(makale, tarih));
    return kayıt + "ER  - \n\n";
}
