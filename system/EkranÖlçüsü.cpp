#include "system/EkranÖlçüsü.h"

#include <QGuiApplication>
#include <QScreen>

#include <cmath>

namespace {

constexpr double TwipİnçBaşına = 1440.0;
constexpr double OlağanNokta = 96.0;

double pikseldeTwip()
{
    const QScreen* ekran = QGuiApplication::primaryScreen();
    return TwipİnçBaşına / (ekran ? ekran->logicalDotsPerInch() : OlağanNokta);
}

} // namespace

int Piksel(double twip)
{
    return static_cast<int>(std::lround(twip / pikseldeTwip()));
}

int Twip(double piksel)
{
    return static_cast<int>(std::lround(piksel * pikseldeTwip()));
}
