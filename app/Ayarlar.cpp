#include "app/Ayarlar.h"

#include "app/OrtakDeğişkenlerModülü.h"

#include <QSettings>

#include <cmath>
#include <limits>

namespace {

/// "maker\product" names the store's folder and file.
QSettings depo(const QString& uygulama)
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, uygulama.section(u'\\', 0, 0),
                     uygulama.section(u'\\', 1));
}

QString tamAnahtar(QStringView bölüm, QStringView anahtar)
{
    return bölüm.toString() + u'/' + anahtar.toString();
}

} // namespace

QString AyarOku(const QString& uygulama, QStringView bölüm, QStringView anahtar, const QString& varsayılan)
{
    return depo(uygulama).value(tamAnahtar(bölüm, anahtar), varsayılan).toString();
}

void AyarYaz(const QString& uygulama, QStringView bölüm, QStringView anahtar, const QString& değer)
{
    depo(uygulama).setValue(tamAnahtar(bölüm, anahtar), değer);
}

QString AyarOku(QStringView anahtar, const QString& varsayılan)
{
    return AyarOku(AyarUygulamaAdı, AyarBölümü, anahtar, varsayılan);
}

void AyarYaz(QStringView anahtar, const QString& değer)
{
    AyarYaz(AyarUygulamaAdı, AyarBölümü, anahtar, değer);
}

double SayıAyarıOku(QStringView anahtar, double varsayılan)
{
    const QString metin = AyarOku(anahtar, QString());
    if (metin.isNull())
        return varsayılan;
    bool sayıMı = false;
    const double sayı = metin.trimmed().toDouble(&sayıMı);
    return sayıMı && std::isfinite(sayı) ? sayı : 0;
}

qint16 SıraSayısı(double sayı)
{
    const double yuvarlak = std::nearbyint(sayı);
    const bool sığar =
        yuvarlak >= std::numeric_limits<qint16>::min() && yuvarlak <= std::numeric_limits<qint16>::max();
    return sığar ? static_cast<qint16>(yuvarlak) : qint16(-1);
}
