#include "forms/HataBildirmeFormu.h"

#include "app/Metinler.h"
#include "controls/Etiketler.h"

namespace {

constexpr int MetinGenişliği = 5400; // twips
constexpr int Girinti = 240;
constexpr int BaşlıkBoyu = 12; // points

} // namespace

HataBildirmeFormu::HataBildirmeFormu()
    : BilgiFormu(QStringLiteral("HataBildirmeFormu"), İleti::HataBildirmeBaşlığı)
{
    EtiketiKur(Etiket[0], 0, Metin(İleti::HataBildirmeBaşlığı));
    EtiketiKur(Etiket[1], 1, Metin(İleti::HataBildirmeAçıklaması));
    EtiketiKur(Etiket[2], 2, Metin(İleti::HataBildirmeAdresleri));
    QFont yazıTipi = font();
    yazıTipi.setBold(true);
    Etiket[2].setFont(yazıTipi);
    yazıTipi = FormYazıTipi(BaşlıkBoyu);
    yazıTipi.setBold(true);
    Etiket[0].setFont(yazıTipi);
    bağlantıKur(WebEtiketi[0], QStringLiteral("WebEtiketi0"), QStringLiteral("E-Posta Gönder"),
                QStringLiteral("mailto:destek@tepsan.example"));
    bağlantıKur(WebEtiketi[1], QStringLiteral("WebEtiketi1"), QStringLiteral("Mesaj Gönder"),
                ÜreticiSitesi.toString() + QStringLiteral("/asp/mesaj/mesaj.asp?ProgramAdi=") +
                    Metin(İleti::ProgramAdı));

    int satır = 0;
    for (QLabel& etiket : Etiket) {
        etiket.setWordWrap(true);
        ızgara->addWidget(&etiket, satır++, 0, 1, 2);
    }
    for (::WebEtiketi& bağlantı : WebEtiketi)
        ızgara->addWidget(&bağlantı, satır++, 1);
    ızgara->setColumnMinimumWidth(0, FormPikseli(Girinti));
    ızgara->setColumnMinimumWidth(1, FormPikseli(MetinGenişliği));
    connect(&KapatButonu, &QPushButton::clicked, this, &HataBildirmeFormu::KapatButonu_Click);
    bitir(KapatButonu, QStringLiteral("KapatButonu"));
}
