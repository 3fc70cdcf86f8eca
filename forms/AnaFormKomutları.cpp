// What the main window's menus lead to.
#include "forms/AnaForm.h"

#include "app/HataPolitikaları.h"
#include "app/Metinler.h"
#include "app/OrtakDeğişkenlerModülü.h"
#include "app/İletiKutusu.h"
#include "forms/DeğiştirFormu.h"
#include "forms/EkleFormu.h"
#include "forms/HakkındaFormu.h"
#include "forms/HataBildirmeFormu.h"
#include "forms/SilFormu.h"

#include <QScopeGuard>

void AnaForm::menüOlaylarınıBağla()
{
    connect(&MakaleEkleMenüsü, &QAction::triggered, this, &AnaForm::MakaleEkleMenüsü_Click);
    connect(&MakeleDeğiştirMenüsü, &QAction::triggered, this, &AnaForm::MakeleDeğiştirMenüsü_Click);
    connect(&MakaleSilMenüsü, &QAction::triggered, this, &AnaForm::MakaleSilMenüsü_Click);
    connect(&HatalarıBildirinMenüsü, &QAction::triggered, this, &AnaForm::HatalarıBildirinMenüsü_Click);
    connect(&HakkındaMenüsü, &QAction::triggered, this, &AnaForm::HakkındaMenüsü_Click);
}

void AnaForm::MakaleEkleMenüsü_Click()
{
    Olay("MakaleEkleMenüsü_Click", [this] {
        EkleFormu form(*this);
        ekleFormu_ = &form;
        const auto sonunda = qScopeGuard([this] { ekleFormu_ = nullptr; });
        form.exec();
    });
}

void AnaForm::MakeleDeğiştirMenüsü_Click()
{
    Olay("MakeleDeğiştirMenüsü_Click", [this] {
        if (SeçiliMakale().isEmpty()) {
            İletiGöster(Metin(550), İletiSimgesi::Bilgi, İletiDüğmeleri::Tamam);
            MakaleListesi.setFocus();
            return;
        }
        DeğiştirilenYazarAdı.clear();
        DeğiştirilenMakaleBaşlığı.clear();
        DeğiştirFormu(*this).exec();
        if (!bitti_ && !DeğiştirilenYazarAdı.isEmpty())
            değişeniSeç();
    });
}

void AnaForm::değişeniSeç()
{
    if (sonuçGörünümü()) // the results may name a title that is gone
        tümündeBul();
    YazarListesi.Text(DeğiştirilenYazarAdı);
    MakaleListesi.Text(DeğiştirilenMakaleBaşlığı);
}

void AnaForm::MakaleSilMenüsü_Click()
{
    AdımAdım([this] {
        SilFormu form(*this);
        if (!SeçiliMakale().isEmpty())
            form.Seç(SeçiliMakale());
        form.exec();
    });
}

void AnaForm::HatalarıBildirinMenüsü_Click()
{
    Olay("HatalarıBildirinMenüsü_Click", [] { HataBildirmeFormu().exec(); });
}

void AnaForm::HakkındaMenüsü_Click()
{
    Olay("HakkındaMenüsü_Click", [] { HakkındaFormu().exec(); });
}
