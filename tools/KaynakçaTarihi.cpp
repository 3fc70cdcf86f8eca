#include "tools/KaynakçaTarihi.h"

#include "text/TürkçeHarfler.h"

#include <QLocale>
#include <QRegularExpression>

namespace {

constexpr int AySayısı = 12;
constexpr qsizetype KısaAdBoyu = 3;

QString ayAdı(int ay)
{
    return QLocale(QLocale::Turkish, QLocale::Turkey).monthName(ay);
}

int ayNo(const QString& ay)
{
    bool sayı = false;
    if (const int no = ay.toInt(&sayı); sayı)
        return no >= 1 && no <= AySayısı ? no : 0;
    const QString aranan = Katla(ay.endsWith(u'.') ? ay.chopped(1) : ay);
    for (int no = 1; no <= AySayısı; ++no) {
        const QString ingilizce = Katla(QLocale::c().monthName(no));
        if (aranan == Katla(ayAdı(no)) || aranan == ingilizce || aranan == ingilizce.first(KısaAdBoyu))
            return no;
    }
    return 0;
}

/// A day that stands in the month's place: "12 May", "May 12".
void günüAyır(KaynakçaTarihi& tarih)
{
    const QStringList parçalar = tarih.Ay.simplified().split(u' ');
    if (!tarih.Gün.isEmpty() || parçalar.size() != 2)
        return;
    for (const qsizetype ay : {0, 1}) {
        const QString& gün = parçalar[1 - ay];
        if (ayNo(parçalar[ay]) > 0 && !gün.isEmpty() && gün[0].isDigit()) {
            tarih.Gün = gün;
            tarih.Ay = parçalar[ay];
            return;
        }
    }
}

QString sıfırsız(const QString& sayı)
{
    return sayı.startsWith(u'0') ? sayı.mid(1) : sayı;
}

} // namespace

KaynakçaTarihi KaynakçaTarihi::Sayılardan(const QString& değer)
{
    static const QRegularExpression kalıp(
        QStringLiteral(R"(^(\d{4})(?:[-/](\d{0,2})(?:[-/](\d{0,2})(?:/(.*))?)?)?(?:[T/].*)?$)"));
    const auto bulunan = kalıp.match(değer.trimmed());
    if (!bulunan.hasMatch())
        return {değer.simplified(), {}, {}};
    KaynakçaTarihi tarih{bulunan.captured(1), sıfırsız(bulunan.captured(2)), sıfırsız(bulunan.captured(3))};
    if (tarih.Ay.isEmpty())
        tarih.Ay = bulunan.captured(4).simplified();
    return tarih;
}

KaynakçaTarihi KaynakçaTarihi::Türkçeden(const QString& değer)
{
    static const QRegularExpression adlı(QStringLiteral(R"(^(?:(\d{1,2}) )?(\p{L}+) (\d{4})$)"));
    static const QRegularExpression sayılı(QStringLiteral(R"(^(\d{1,2})[./-](\d{1,2})[./-](\d{4})$)"));
    static const QRegularExpression yıllı(QStringLiteral(R"((?<!\d)\d{4}(?!\d))"));
    for (const QRegularExpression& kalıp : {adlı, sayılı}) {
        const auto bulunan = kalıp.match(değer);
        const KaynakçaTarihi tarih{bulunan.captured(3), bulunan.captured(2), sıfırsız(bulunan.captured(1))};
        if (bulunan.hasMatch() && tarih.AyNo() > 0)
            return {tarih.Yıl, QString::number(tarih.AyNo()), tarih.Gün};
    }
    return {yıllı.match(değer).captured(), {}, {}};
}

int KaynakçaTarihi::AyNo() const
{
    return ayNo(Ay);
}

QString KaynakçaTarihi::Metin() const
{
    KaynakçaTarihi tarih = *this;
    günüAyır(tarih);
    const int no = tarih.AyNo();
    QStringList parçalar;
    if (!tarih.Ay.isEmpty())
        parçalar = {sıfırsız(tarih.Gün), no > 0 ? ayAdı(no) : tarih.Ay};
    parçalar += tarih.Yıl;
    parçalar.removeAll(QString());
    return parçalar.join(u' ');
}

int KaynakçaTarihi::Ayrıntı() const
{
    return int(!Yıl.isEmpty()) + int(!Ay.isEmpty()) + int(!Gün.isEmpty());
}
