// What the main window's menus lead to.
#include "forms/AnaForm.h"

#include "app/HataPolitikaları.h"
#include "app/Metinler.h"
#include "app/OrtakDeğişkenlerModülü.h"
#include "app/İletiKutusu.h"
#include "controls/OrtakHarf.h"
#include "forms/AyarlarFormu.h"
#include "forms/DeğiştirFormu.h"
#include "forms/EkleFormu.h"
#include "forms/HakkındaFormu.h"
#include "forms/HataBildirmeFormu.h"
#include "forms/ReferansFormu.h"
#include "forms/SilFormu.h"
#include "forms/Yardım.h"

#include <QMenuBar>
#include <QScopeGuard>

void AnaForm::menüOlaylarınıBağla()
{
    connect(&MakaleEkleMenüsü, &QAction::triggered, this, &AnaForm::MakaleEkleMenüsü_Click);
    connect(&MakeleDeğiştirMenüsü, &QAction::triggered, this, &AnaForm::MakeleDeğiştirMenüsü_Click);
    connect(&MakaleSilMenüsü, &QAction::triggered, this, &AnaForm::MakaleSilMenüsü_Click);
    connect(&ReferansOluşturMenüsü, &QAction::triggered, this, &AnaForm::ReferansOluşturMenüsü_Click);
    connect(&AyarlarMenüsü, &QAction::triggered, this, &AnaForm::AyarlarMenüsü_Click);
    connect(&AyarlarMenüsü1, &QAction::triggered, this, &AnaForm::AyarlarMenüsü1_Click);
    new OrtakHarf(*menuBar(), AyarlarMenüsü, Etiket[0], YazarListesi); // both captions underline the Y
    connect(&İçindekilerMenüsü, &QAction::triggered, this, &AnaForm::İçindekilerMenüsü_Click);
    connect(&DizinMenüsü, &QAction::triggered, this, &AnaForm::DizinMenüsü_Click);
    connect(&HatalarıBildirinMenüsü, &QAction::triggered, this, &AnaForm::HatalarıBildirinMenüsü_Click);
    connect(&HakkındaMenüsü, &QAction::triggered, this, &AnaForm::HakkındaMenüsü_Click);
}

void AnaForm::MakaleEkleMenüsü_Click()
{
    İlkHatadaBit([this] {
        EkleFormu form(*this);
        ekleFormu_ = &form;
        const auto sonunda = qScopeGuard([this] { ekleFormu_ = nullptr; });
        form.exec();
    });
}

void AnaForm::MakeleDeğiştirMenüsü_Click()
{
    İlkHatadaBit([this] {
        if (SeçiliMakale().isEmpty()) {
            İletiGöster(Metin(İleti::DeğiştirilecekMakaleSeçiniz), İletiSimgesi::Bilgi,
                        İletiDüğmeleri::Tamam);
            MakaleListesi.setFocus();
            return;
        }
        DeğiştirilenYazarAdı.clear();
        DeğiştirilenMakaleBaşlığı.clear();
        DeğiştirFormu(*this, *this).exec();
        if (!bitti_ && !DeğiştirilenYazarAdı.isEmpty())
            değişeniSeç();
    });
}

void AnaForm::değişeniSeç()
{
    if (sonuçGörünümü()) { // the results stay, under the article's new title
        MakaleListesi.Item(MakaleListesi.ListIndex(), DeğiştirilenMakaleBaşlığı);
        MakaleListesi_Click();
        return;
    }
    YazarListesi.Text(DeğiştirilenYazarAdı);
    MakaleListesi.Text(DeğiştirilenMakaleBaşlığı);
}

void AnaForm::MakaleSilMenüsü_Click()
{
    AdımAdım([this] {
        SilFormu form(*this, *this);
        if (!SeçiliMakale().isEmpty())
            form.Seç(SeçiliMakale());
        form.exec();
    });
}

void AnaForm::ReferansOluşturMenüsü_Click()
{
    İlkHatadaBit([this] { ReferansFormu(SeçiliMakale()).exec(); });
}

void AnaForm::AyarlarMenüsü_Click()
{
    İlkHatadaBit([this] { AyarlarFormu(*this).exec(); });
}

void AnaForm::AyarlarMenüsü1_Click()
{
    İlkHatadaBit([this] { AyarlarFormu(*this).exec(); });
}

void AnaForm::İçindekilerMenüsü_Click()
{
    İlkHatadaBit([] { Yardım::İçindekileriAç(); });
}

void AnaForm::DizinMenüsü_Click()
{
    İlkHatadaBit([] { Yardım::DiziniAç(); });
}

void AnaForm::HatalarıBildirinMenüsü_Click()
{
    İlkHatadaBit([] { HataBildirmeFormu().exec(); });
}

void AnaForm::HakkındaMenüsü_Click()
{
    İlkHatadaBit([] { HakkındaFormu().exec(); });
}
