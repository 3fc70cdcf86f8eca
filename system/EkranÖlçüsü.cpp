#include "system/EkranÖlçüsü.h"

#include <QGuiApplication>
#include <QScreen>

#include <cmath>

namespace {

constexpr double TwipİnçBaşına = 1440.0;
constexpr double OlağanNokta = 96.0;

double nokta()
{
    const QScreen* ekran = QGuiApplication::primaryScreen();
    return ekran ? ekran->logicalDotsPerInch() : OlağanNokta;
}

} // namespace

int Piksel(double twip)
{
    return static_cast<int>(std::lround(twip * nokta() / TwipİnçBaşına));
}

int Twip(int piksel)
{
    return static_cast<int>(std::lround(KesirliTwip(piksel)));
}

double KesirliTwip(int piksel)
{
    return piksel * TwipİnçBaşına / nokta();
}
