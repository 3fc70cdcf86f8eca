// The window that sets how the article text is shown.
#pragma once

#include "controls/AçılırListe.h"
#include "controls/Düğme.h"
#include "controls/OdakEtiketi.h"
#include "controls/ZenginMetinKutusu.h"

#include <QDialog>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>

#include <array>

class AnaPencere;

/// Made for one showing. Changes nothing until its OK button is pressed, which can be done after a choice
/// only.
class AyarlarFormu : public QDialog
{
public:
    explicit AyarlarFormu(AnaPencere& ana);

private:
    void kontrolleriKur();
    void yerleştir();
    void olaylarıBağla();

    void Form_Load();
    void ZeminRengiListesi_Click();
    void İlkAyarlarButonu_Click();
    void TamamButonu_Click();
    void İptalButonu_Click();

    void örnekYazısınıGüncelle(); // what a click in the lists of fonts and of sizes does
    void yazıTipiniSeç(const QString& ad);
    static qint16 seçiliSıra(const AçılırListe& liste) { return static_cast<qint16>(liste.ListIndex()); }

    AnaPencere& ana_;
    QFrame Altlık;
    QGroupBox Çerçeve;
    std::array<QLabel, 3> Etiket;
    AçılırListe YazıTipiListesi{AçılırListe::Tür::YalnızSeçim};
    AçılırListe YazıTipiBoyutuListesi{AçılırListe::Tür::YalnızSeçim};
    AçılırListe ZeminRengiListesi{AçılırListe::Tür::YalnızSeçim};
    ZenginMetinKutusu ÖrnekMetinKutusu;
    Düğme İlkAyarlarButonu, TamamButonu, İptalButonu, YardımButonu;
    OdakEtiketi odakEtiketi_;
};
