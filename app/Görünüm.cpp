#include "app/Görünüm.h"

#include "system/EkranÖlçüsü.h"

#include <QFontInfo>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr std::array<int, 5> boyutlar = {8, 10, 11, 12, 14};
// The second one carries the name of orange in the list and is magenta on the screen: so it has been since
// the first version, and readers have chosen it.
constexpr std::array<Renk, 6> renkler = {0xFFFFFF, 0xFF00FF, 0xFFFF00, 0x00FF00, 0x00FFFF, DüğmeYüzüRengi};

constexpr Renk SistemRengi = 0x80000000;
double formYazıBoyutu = OlağanYazıBoyutu;
constexpr QSize ÇerçevePayı(8, 32);   // pixels; what a window manager puts around, which isn't known before
constexpr double EnAzKarşıtlık = 4.5; // WCAG 2.1, success criterion 1.4.3
constexpr float SönükYazı = 0.65F;    // opacity: black on white then has a contrast of 7

template<class Tablo> auto tablodan(const Tablo& tablo, qint16 sıra)
{
    return sıra >= 0 && static_cast<std::size_t>(sıra) < tablo.size() ? tablo[static_cast<std::size_t>(sıra)]
                                                                      : typename Tablo::value_type(0);
}

/// What the measures of windows are multiplied by.
double büyütme()
{
    return std::max(formYazıBoyutu / OlağanYazıBoyutu, 1.0);
}

/// Relative luminance, as WCAG 2.1 defines it.
double bağılIşıklılık(const QColor& renk)
{
    const auto doğrusal = [](double kanal) {
        return kanal <= 0.04045 ? kanal / 12.92 : std::pow((kanal + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * doğrusal(renk.redF()) + 0.7152 * doğrusal(renk.greenF()) +
           0.0722 * doğrusal(renk.blueF());
}

double karşıtlık(const QColor& bir, const QColor& iki)
{
    const auto [koyu, açık] = std::minmax({bağılIşıklılık(bir), bağılIşıklılık(iki)});
    return (açık + 0.05) / (koyu + 0.05);
}

} // namespace

int YazıBoyutu(qint16 sıra)
{
    return tablodan(boyutlar, sıra);
}

Renk ZeminRengi(qint16 sıra)
{
    return tablodan(renkler, sıra);
}

QColor EkranRengi(Renk renk, const QPalette& palet)
{
    if (renk & SistemRengi) {
        switch (renk) {
        case DüğmeYüzüRengi:
            return palet.color(QPalette::Button);
        case PencereZeminiRengi:
            return palet.color(QPalette::Base);
        default:
            return palet.color(QPalette::ButtonText);
        }
    }
    return QColor(int(renk & 0xff), int((renk >> 8) & 0xff), int((renk >> 16) & 0xff));
}

QColor OkunurYazıRengi(const QColor& zemin)
{
    // Weights of ITU-R BT.601, which is what the eye's own weighting comes to.
    const double ışıklılık = 0.299 * zemin.red() + 0.587 * zemin.green() + 0.114 * zemin.blue();
    return ışıklılık < 96 ? QColor(Qt::white) : QColor(Qt::black);
}

QColor OkunurTon(const QColor& renk, const QColor& zemin)
{
    if (OkunurYazıRengi(zemin) == QColor(Qt::black))
        return renk;
    QColor ton = renk;
    for (int açıklık = renk.lightness(); açıklık < 255 && karşıtlık(ton, zemin) < EnAzKarşıtlık;)
        ton = QColor::fromHsl(renk.hslHue(), renk.hslSaturation(), ++açıklık);
    return ton;
}

QColor OkunurAltlık(const QColor& yazı, const QColor& zemin)
{
    if (karşıtlık(yazı, zemin) >= EnAzKarşıtlık)
        return {};
    const QColor siyah(Qt::black), beyaz(Qt::white);
    return karşıtlık(yazı, siyah) > karşıtlık(yazı, beyaz) ? siyah : beyaz;
}

void ZeminVer(QWidget& kontrol, const QColor& zemin)
{
    QPalette palet = kontrol.palette();
    palet.setColor(QPalette::Base, zemin);
    QColor yazı = OkunurYazıRengi(zemin);
    palet.setColor(QPalette::Text, yazı);
    yazı.setAlphaF(SönükYazı);
    palet.setColor(QPalette::PlaceholderText, yazı);
    kontrol.setPalette(palet);
}

void FormÖlçüsünüKur(const QFont& masaüstü, const QSize& enAzBoy)
{
    const QSize alan = QGuiApplication::primaryScreen()->availableSize() - ÇerçevePayı;
    const double sığan = std::min(Twip(alan.width()) / double(enAzBoy.width()),
                                  Twip(alan.height()) / double(enAzBoy.height()));
    const double boyut = masaüstü.pointSizeF() > 0 ? masaüstü.pointSizeF() : QFontInfo(masaüstü).pointSizeF();
    formYazıBoyutu = std::min(boyut, OlağanYazıBoyutu * std::max(sığan, 1.0));
}

QFont FormYazıTipi(double nokta)
{
    QFont yazıTipi(QStringLiteral("Liberation Sans"));
    yazıTipi.setPointSizeF(nokta * formYazıBoyutu / OlağanYazıBoyutu);
    yazıTipi.setStyleHint(QFont::SansSerif);
    return yazıTipi;
}

QString FormYazıTipiAdı()
{
    return QFontInfo(FormYazıTipi()).family();
}

int FormPikseli(double twip)
{
    return Piksel(twip * büyütme());
}

int FormTwipi(int piksel)
{
    return static_cast<int>(std::lround(KesirliTwip(piksel) / büyütme()));
}
