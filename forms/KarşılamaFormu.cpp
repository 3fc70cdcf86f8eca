#include "forms/KarşılamaFormu.h"

#include "app/Görünüm.h"
#include "app/Metinler.h"
#include "app/OrtakDeğişkenlerModülü.h"
#include "app/PencereYeri.h"
#include "app/ProgramSimgesi.h"

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
    setWindowTitle(Metin(İleti::ProgramAdı));
    setFont(FormYazıTipi());

    SimgeKutusu.setObjectName(QStringLiteral("SimgeKutusu"));
    ProgramResmiKoy(SimgeKutusu, SimgeBoyu);
    AdEtiketi.setObjectName(QStringLiteral("AdEtiketi"));
    AdEtiketi.setText(Metin(İleti::ProgramAdı));
    QFont adYazıTipi = FormYazıTipi(AdBoyu);
    adYazıTipi.setBold(true);
    AdEtiketi.setFont(adYazıTipi);
    SürümEtiketi.setObjectName(QStringLiteral("SürümEtiketi"));
    SürümEtiketi.setText(SürümYazısı());

    auto* düzen = new QVBoxLayout(this);
    const int boşluk = FormPikseli(KenarBoşluğu);
    düzen->setContentsMargins(boşluk, boşluk, boşluk, boşluk);
    for (QLabel* etiket : {&SimgeKutusu, &AdEtiketi, &SürümEtiketi}) {
        etiket->setAlignment(Qt::AlignCenter);
        düzen->addWidget(etiket);
    }
    setMinimumWidth(FormPikseli(EnAzGenişlik));
    adjustSize();
    move(OrtalıYer(screen()->geometry(), size()));
}
