#include "forms/HakkındaFormu.h"

#include "app/Metinler.h"
#include "app/OrtakDeğişkenlerModülü.h"
#include "app/ProgramSimgesi.h"
#include "controls/Etiketler.h"
#include "system/EkranÖlçüsü.h"

namespace {

constexpr int SimgeBoyu = 960; // twips
constexpr int SimgeBoşluğu = 240;
constexpr int AdBoyu = 12; // points

} // namespace

HakkındaFormu::HakkındaFormu() : BilgiFormu(QStringLiteral("HakkındaFormu"), İleti::HakkındaBaşlığı)
{
    SimgeKutusu.setObjectName(QStringLiteral("SimgeKutusu"));
    ProgramResmiKoy(SimgeKutusu, SimgeBoyu);
    EtiketiKur(Etiket[0], 0, Metin(İleti::ProgramAdı) + QStringLiteral(" Programı"));
    EtiketiKur(Etiket[1], 1, SürümYazısı());
    QFont adYazıTipi = FormYazıTipi(AdBoyu);
    adYazıTipi.setBold(true);
    Etiket[0].setFont(adYazıTipi);
    for (QLabel& etiket : Etiket) // in line with the link
        etiket.setIndent(Piksel(::WebEtiketi::KenarBoşluğu));
    bağlantıKur(WebEtiketi, QStringLiteral("WebEtiketi"), ÜreticiSitesi.toString(), ÜreticiSitesi.toString());

    ızgara->addWidget(&SimgeKutusu, 0, 0, 3, 1, Qt::AlignTop);
    ızgara->setColumnMinimumWidth(1, FormPikseli(SimgeBoşluğu));
    ızgara->addWidget(&Etiket[0], 0, 2);
    ızgara->addWidget(&Etiket[1], 1, 2);
    ızgara->addWidget(&WebEtiketi, 2, 2);
    connect(&TamamButonu, &QPushButton::clicked, this, &HakkındaFormu::TamamButonu_Click);
    bitir(TamamButonu, QStringLiteral("TamamButonu"));
}
