#include "forms/KarşılamaFormu.h"

#include "app/Görünüm.h"
#include "app/Metinler.h"
#include "app/OrtakDeğişkenlerModülü.h"

#include <QScreen>
#include <QVBoxLayout>

namespace {

constexpr int SimgeBoyu = 1920; // twips
constexpr int KenarBoşluğu = 360;
constexpr int EnAzGenişlik = 4200;
constexpr int AdBoyu = 20; // points

} // namespace

KarşılamaFormu::KarşılamaFormu() : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint)
{
    setObjectName(QStringLiteral("KarşılamaFormu"));
    setWindowTitle(Metin(5));
    setFont(FormYazıTipi());

    const int simge = Piksel(SimgeBoyu);
    const double oran = devicePixelRatioF();
    QPixmap resim(QStringLiteral(":/belgenar/simgeler/belgenar.png"));
    resim = resim.scaled(QSize(simge, simge) * oran, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    resim.setDevicePixelRatio(oran);
    SimgeKutusu.setObjectName(QStringLiteral("SimgeKutusu"));
    SimgeKutusu.setPixmap(resim);
    AdEtiketi.setObjectName(QStringLiteral("AdEtiketi"));
    AdEtiketi.setText(Metin(5));
    QFont adYazıTipi = font();
    adYazıTipi.setPointSize(AdBoyu);
    adYazıTipi.setBold(true);
    AdEtiketi.setFont(adYazıTipi);
    SürümEtiketi.setObjectName(QStringLiteral("SürümEtiketi"));
    SürümEtiketi.setText(QStringLiteral("Sürüm ") + SürümMetni());

    auto* düzen = new QVBoxLayout(this);
    const int boşluk = Piksel(KenarBoşluğu);
    düzen->setContentsMargins(boşluk, boşluk, boşluk, boşluk);
    for (QLabel* etiket : {&SimgeKutusu, &AdEtiketi, &SürümEtiketi}) {
        etiket->setAlignment(Qt::AlignCenter);
        düzen->addWidget(etiket);
    }
    setMinimumWidth(Piksel(EnAzGenişlik));
    adjustSize();
    const QRect ekran = screen()->availableGeometry();
    move(ekran.center() - rect().center());
}
