#include "system/Yazıcılar.h"

#include "system/EkranÖlçüsü.h"
#include "system/OrtakApilerModülü.h"
#include "system/ÇalışmaHatası.h"

#include <QCursor>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPainter>
#include <QPrinter>
#include <QScopeGuard>
#include <QTextLayout>

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
constexpr double SekmeAralığı = 720;  // twips
constexpr int BoyamaAralığı = 50;     // ms between two paintings of the windows
constexpr qsizetype ParçaBoyu = 4096; // UTF-16 units laid out at a time
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

/// Puts lines on pages, one below the other.
class SayfaDökümü
{
public:
    SayfaDökümü(QPrinter& yazıcı, const QFont& yazıTipi) : yazıcı_(yazıcı), yazıTipi_(yazıTipi, &yazıcı)
    {
        biçim_.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        biçim_.setTabStopDistance(Piksel(SekmeAralığı)); // the layout scales the screen's measure
        if (!ressam_.begin(&yazıcı))
            throw ÇalışmaHatası(ÇalışmaHataNo::Yazıcı, QStringLiteral("Yazdırma başlatılamadı."));
        alan_ = ressam_.viewport();
        son_.start();
    }

    /// A paragraph is laid out in pieces, so that one of any length needs little memory. A piece's last
    /// line is not whole unless it ends the paragraph: the next piece begins with it.
    void Paragraf(QStringView paragraf)
    {
        do {
            const QStringView parça = paragraf.left(ParçaBoyu);
            paragraf = paragraf.mid(parçayıDök(parça, parça.size() == paragraf.size()));
        } while (!paragraf.isEmpty());
    }

    void Bitir()
    {
        ressam_.end();
        if (cupsLastError() > IPP_STATUS_OK_EVENTS_COMPLETE)
            throw ÇalışmaHatası(
                ÇalışmaHataNo::Yazıcı,
                QStringLiteral("Yazıcı işi kabul etmedi: %1").arg(QString::fromUtf8(cupsLastErrorString())));
    }

private:
    /// @return how much of the piece was printed
    qsizetype parçayıDök(QStringView parça, bool paragrafSonu)
    {
        QTextLayout düzen(parça.toString(), yazıTipi_, &yazıcı_);
        düzen.setTextOption(biçim_);
        düzen.beginLayout();
        for (QTextLine satır = düzen.createLine(); satır.isValid(); satır = düzen.createLine())
            satır.setLineWidth(alan_.width());
        düzen.endLayout();
        const int satırlar = düzen.lineCount() - (paragrafSonu || düzen.lineCount() < 2 ? 0 : 1);
        for (int i = 0; i < satırlar; ++i)
            satırıDök(düzen.lineAt(i));
        return satırlar < düzen.lineCount() ? düzen.lineAt(satırlar).textStart() : parça.size();
    }

    void satırıDök(const QTextLine& satır)
    {
        const double boy = satır.height() + satır.leading();
        if (y_ > 0 && y_ + satır.height() > alan_.height()) {
            if (!yazıcı_.newPage())
                throw ÇalışmaHatası(ÇalışmaHataNo::Yazıcı, QStringLiteral("Yeni sayfaya geçilemedi."));
            y_ = 0;
        }
        satır.draw(&ressam_, QPointF(0, y_));
        y_ += boy;
        if (son_.hasExpired(BoyamaAralığı)) {
            PencereleriBoya();
            son_.start();
        }
    }

    QPrinter& yazıcı_;
    QPainter ressam_;
    QFont yazıTipi_;
    QTextOption biçim_;
    QRectF alan_;
    double y_ = 0;
    QElapsedTimer son_;
};

void paragraflarıDök(SayfaDökümü& döküm, QStringView metin)
{
    qsizetype baş = 0;
    for (qsizetype i = 0; i <= metin.size(); ++i) {
        const bool son = i == metin.size();
        const QChar harf = son ? QChar(u'\n') : metin[i];
        const bool satırSonu = (harf >= u'\n' && harf <= u'\r') || harf == QChar::ParagraphSeparator;
        if (!satırSonu)
            continue;
        if (!son || i > baş) // a break at the very end begins no further line
            döküm.Paragraf(metin.sliced(baş, i - baş));
        if (harf == u'\r' && i + 1 < metin.size() && metin[i + 1] == u'\n')
            ++i;
        baş = i + 1;
    }
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
    SayfaDökümü döküm(yazıcı, yazı);
    paragraflarıDök(döküm, metin);
    döküm.Bitir();
}
