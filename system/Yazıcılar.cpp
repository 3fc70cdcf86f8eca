#include "system/Yazıcılar.h"

#include "system/OrtakApilerModülü.h"
#include "system/SayfaDökümü.h"
#include "system/ÇalışmaHatası.h"

#include <QCursor>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPrinter>
#include <QScopeGuard>

#include <algorithm>
#include <cups/cups.h>
#include <memory>

namespace {

// How long the print service may take to connect and to tell its printers, in ms. The service's library
// would wait for ever for one that is stuck.
constexpr int BağlanmaSüresi = 1500;
constexpr int YanıtSüresi = 3000;
constexpr double BakışAralığı = 0.25; // s

constexpr double KenarBoşluğu = 20;   // mm
constexpr int BoyamaAralığı = 50;     // ms between two paintings of the windows
constexpr qsizetype EnUzunİşAdı = 80; // UTF-16 units; the service takes 255 bytes

QString seçilenAd;    // in this run
QString varsayılanAd; // as last listed; the first printer where the service names none

struct BulunanYazıcı
{
    Yazıcı Yazıcısı;
    bool Varsayılan;
};

QList<BulunanYazıcı> hizmeteSor()
{
    const std::unique_ptr<http_t, decltype(&httpClose)> bağlantı(
        httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1, BağlanmaSüresi,
                     nullptr),
        &httpClose);
    if (!bağlantı)
        return {};
    QElapsedTimer süre;
    süre.start();
    httpSetTimeout(
        bağlantı.get(), BakışAralığı,
        [](http_t*, void* başlangıç) {
            return static_cast<QElapsedTimer*>(başlangıç)->hasExpired(YanıtSüresi) ? 0 : 1;
        },
        &süre);

    cups_dest_t* hedefler = nullptr;
    const int sayı = cupsGetDests2(bağlantı.get(), &hedefler);
    const auto bırak = qScopeGuard([&] { cupsFreeDests(sayı, hedefler); });
    QList<BulunanYazıcı> bulunanlar;
    for (int i = 0; i < sayı; ++i) {
        const cups_dest_t& hedef = hedefler[i];
        QString ad = QString::fromUtf8(hedef.name);
        if (hedef.instance)
            ad += u'/' + QString::fromUtf8(hedef.instance);
        const char* adres = cupsGetOption("device-uri", hedef.num_options, hedef.options);
        bulunanlar.append({{ad, QString::fromUtf8(adres)}, hedef.is_default != 0});
    }
    return bulunanlar;
}

QString işAdı(const QString& başlık)
{
    QString ad = başlık.left(EnUzunİşAdı).simplified();
    if (!ad.isEmpty() && ad.back().isHighSurrogate()) // cut between the two halves
        ad.chop(1);
    return ad;
}

} // namespace

QList<Yazıcı> Yazıcılar()
{
    const QList<BulunanYazıcı> bulunanlar = hizmeteSor();
    QList<Yazıcı> yazıcılar;
    for (const BulunanYazıcı& bulunan : bulunanlar)
        yazıcılar.append(bulunan.Yazıcısı);
    const auto varsayılan = std::find_if(bulunanlar.begin(), bulunanlar.end(),
                                         [](const BulunanYazıcı& b) { return b.Varsayılan; });
    varsayılanAd = varsayılan != bulunanlar.end() ? varsayılan->Yazıcısı.Ad : yazıcılar.value(0).Ad;
    return yazıcılar;
}

QString GeçerliYazıcı()
{
    if (!seçilenAd.isEmpty())
        return seçilenAd;
    if (varsayılanAd.isEmpty())
        Yazıcılar();
    return varsayılanAd;
}

void GeçerliYazıcı(const QString& ad)
{
    seçilenAd = ad;
}

void MetinYazdır(const QString& metin, const QString& yazıTipi, int nokta, const QString& başlık)
{
    if (metin.isEmpty())
        return;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const auto imleç = qScopeGuard([] { QGuiApplication::restoreOverrideCursor(); });
    // The toolkit takes any name for a printer, and waits for ever for a service that is stuck: ask first.
    const QList<Yazıcı> yazıcılar = Yazıcılar();
    const QString ad = seçilenAd.isEmpty() ? varsayılanAd : seçilenAd;
    const bool var = std::any_of(yazıcılar.begin(), yazıcılar.end(),
                                 [&ad](const Yazıcı& yazıcı) { return yazıcı.Ad == ad; });
    if (!var)
        throw ÇalışmaHatası(ÇalışmaHataNo::Yazıcı, ad.isEmpty()
                                                       ? QStringLiteral("Kurulu bir yazıcı bulunamadı.")
                                                       : QStringLiteral("Yazıcı bulunamadı: ") + ad);

    QPrinter yazıcı(QPrinter::HighResolution);
    yazıcı.setPrinterName(ad);
    yazıcı.setDocName(işAdı(başlık));
    if (!yazıcı.pageLayout().isValid())
        yazıcı.setPageSize(QPageSize(QPageSize::A4));
    // The paper of a label printer has no room for the margins of a letter.
    const QSizeF kâğıt = yazıcı.pageLayout().fullRect(QPageLayout::Millimeter).size();
    const double kenar = std::min(KenarBoşluğu, std::min(kâğıt.width(), kâğıt.height()) / 10);
    yazıcı.setPageMargins(QMarginsF(kenar, kenar, kenar, kenar), QPageLayout::Millimeter);
    QFont yazı(yazıTipi);
    yazı.setPointSize(nokta);
    QElapsedTimer son;
    son.start();
    SayfaDökümü döküm(yazıcı, yazı, [&son] {
        if (son.hasExpired(BoyamaAralığı)) {
            PencereleriBoya();
            son.start();
        }
    });
    döküm.Metin(metin);
    döküm.Bitir();
    if (cupsLastError() > IPP_STATUS_OK_EVENTS_COMPLETE)
        throw ÇalışmaHatası(
            ÇalışmaHataNo::Yazıcı,
            QStringLiteral("Yazıcı işi kabul etmedi: %1").arg(QString::fromUtf8(cupsLastErrorString())));
}
