#include "forms/KarşılamaFormu.h"

#include "app/Görünüm.h"
#include "app/Metinler.h"
#include "app/OrtakDeğişkenlerModülü.h"
#include "app/PencereYeri.h"
#include "app/ProgramSimgesi.h"

#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int SimgeBoyu = 1920; // twips
constexpr int KenarBoşluğu = 360;
constexpr int EnAzGenişlik = 4200;
constexpr int AdBoyu = 20;        // points
constexpr qint64 UzunSüre = 1000; // ms

const QString İlerlemeMetni = QStringLiteral("Kitaplık hazırlanıyor: %%1");

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

    İlerlemeEtiketi.setObjectName(QStringLiteral("İlerlemeEtiketi"));
    İlerlemeEtiketi.setText(QStringLiteral(" ")); // its line is kept free

    auto* düzen = new QVBoxLayout(this);
    const int boşluk = FormPikseli(KenarBoşluğu);
    düzen->setContentsMargins(boşluk, boşluk, boşluk, boşluk);
    for (QLabel* etiket : {&SimgeKutusu, &AdEtiketi, &SürümEtiketi, &İlerlemeEtiketi}) {
        etiket->setAlignment(Qt::AlignCenter);
        düzen->addWidget(etiket);
    }
    setMinimumWidth(FormPikseli(EnAzGenişlik));
    adjustSize();
    move(OrtalıYer(screen()->geometry(), size()));
}

void KarşılamaFormu::İlerle(double oran)
{
    if (!süre_.isValid())
        süre_.start();
    yüzde_ = std::max(yüzde_, int(100 * oran));
    if (süre_.hasExpired(UzunSüre))
        İlerlemeEtiketi.setText(İlerlemeMetni.arg(yüzde_));
}
