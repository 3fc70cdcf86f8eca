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

QString AyarMetniOku(const QString& uygulama, QStringView bölüm, QStringView anahtar,
                     const QString& varsayılan)
{
    return depo(uygulama).value(tamAnahtar(bölüm, anahtar), varsayılan).toString();
}

// The toolkit's store syncs a temporary file and renames it over the old one when it goes out of scope.
void AyarMetniYaz(const QString& uygulama, QStringView bölüm, QStringView anahtar, const QString& değer)
{
    depo(uygulama).setValue(tamAnahtar(bölüm, anahtar), değer);
}

double AyarOku(const Ayar<double>& ayar)
{
    return AyarOku(ayar, ayar.Varsayılan);
}

double AyarOku(SayıAnahtarı ayar, double varsayılan)
{
    const QString metin = AyarMetniOku(AyarUygulamaAdı, AyarBölümü, ayar.Ad, {});
    if (metin.isNull())
        return varsayılan;
    bool sayıMı = false;
    const double sayı = metin.trimmed().toDouble(&sayıMı);
    return sayıMı && std::isfinite(sayı) ? sayı : 0;
}

QString AyarOku(const Ayar<QStringView>& ayar)
{
    return AyarOku(ayar, ayar.Varsayılan.toString());
}

QString AyarOku(MetinAnahtarı ayar, const QString& varsayılan)
{
    return AyarMetniOku(AyarUygulamaAdı, AyarBölümü, ayar.Ad, varsayılan);
}

void AyarYaz(SayıAnahtarı ayar, qint64 sayı)
{
    AyarYaz(MetinAnahtarı{ayar.Ad}, QString::number(sayı));
}

void AyarYaz(MetinAnahtarı ayar, const QString& metin)
{
    AyarMetniYaz(AyarUygulamaAdı, AyarBölümü, ayar.Ad, metin);
}

qint16 SıraSayısı(double sayı)
{
    const double yuvarlak = std::nearbyint(sayı);
    const bool sığar =
        yuvarlak >= std::numeric_limits<qint16>::min() && yuvarlak <= std::numeric_limits<qint16>::max();
    return sığar ? static_cast<qint16>(yuvarlak) : qint16(-1);
}
