#include "forms/EkleFormu.h"

#include "app/HataPolitikaları.h"
#include "app/Metinler.h"
#include "app/OrtakDeğişkenlerModülü.h"
#include "forms/AnaForm.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>

namespace {

constexpr int MetinBoyutu = 8; // points

} // namespace

EkleFormu::EkleFormu(AnaForm& anaForm)
    : MakaleGirişFormu(nullptr, anaForm,
                       {.Pencere = QStringLiteral("EkleFormu"),
                        .Başlık = İleti::EklemeBaşlığı,
                        .Kaydet = QStringLiteral("EkleKaydetButonu"),
                        .Vazgeç = QStringLiteral("İptalKapatButonu"),
                        .Yapıştır = QStringLiteral("YapıştırButonu"),
                        .DosyaYükle = QStringLiteral("DosyaYükleButonu"),
                        .KaydetYazısı = İleti::MakaleEkle,
                        .VazgeçYazısı = İleti::Kapat})
{
    basılınca(EkleKaydetButonu, [this] { EkleKaydetButonu_Click(); });
    basılınca(İptalKapatButonu, [this] { İptalKapatButonu_Click(); });
    Form_Load();
}

void EkleFormu::Form_Load()
{
    düğmeleriKilitle();
    alanlarıKilitle();
    İlkHatadaBit([this] { yazarlarıYükle(QStringLiteral("SELECT DISTINCT [YazarAdi] FROM [Makaleler]")); });
    EkleKaydetButonu.setFocus();
}

void EkleFormu::düğmeleriKilitle()
{
    DosyaYükleButonu.setEnabled(false);
    YapıştırButonu.setEnabled(false);
    EkleKaydetButonu.setText(Metin(İleti::MakaleEkle));
    İptalKapatButonu.setText(Metin(İleti::Kapat));
}

void EkleFormu::EkleKaydetButonu_Click()
{
    if (!GirişDurumunda())
        girişeBaşla();
    else if (alanlarTamam())
        kaydet();
}

void EkleFormu::girişeBaşla()
{
    alanlarıAç();
    DosyaYükleButonu.setEnabled(true);
    MakaleMetniKutusu.setFont(FormYazıTipi());
    MakaleMetniKutusu.FontSize(MetinBoyutu);
    YapıştırButonu.setEnabled(!QGuiApplication::clipboard()->text().isEmpty());
    EkleKaydetButonu.setText(Metin(İleti::Kaydet));
    İptalKapatButonu.setText(Metin(İleti::İptal));
    yeniKayıt();
    YazarAdıListesi.setFocus();
}

void EkleFormu::kaydet()
{
    düğmeleriKilitle();
    if (!eklenen_) // it could not be opened when the entry began
        yeniKayıt();
    girilen().Yaz(*eklenen_);
    eklenen_->Update();
    eklenen_.reset();
    anaForm_.YazarListesiYükle();
    alanlarıBoşalt();
    alanlarıKilitle();
}

void EkleFormu::yeniKayıt()
{
    eklenen_ = Veritabanı->OpenRecordset(QStringLiteral("SELECT * FROM [Makaleler]"));
    eklenen_->AddNew();
}

void EkleFormu::İptalKapatButonu_Click()
{
    if (!GirişDurumunda()) {
        accept();
        return;
    }
    düğmeleriKilitle();
    alanlarıBoşalt();
    alanlarıKilitle();
    eklenen_.reset();
}

void EkleFormu::alanlarıBoşalt()
{
    YazarAdıListesi.Text({});
    for (MetinKutusu* kutu : {&MakaleBaşlığıKutusu, &YayımYeriKutusu, &YayımTarihiKutusu})
        kutu->Text({});
    MakaleMetniKutusu.Text({});
}

void EkleFormu::alanlarıKilitle()
{
    for (QWidget* alan : alanlar()) {
        alan->setEnabled(false);
        ZeminVer(*alan, palette().color(QPalette::Window));
    }
}

void EkleFormu::alanlarıAç()
{
    for (QWidget* alan : alanlar()) {
        alan->setEnabled(true);
        ZeminVer(*alan, EkranRengi(PencereZeminiRengi, palette()));
    }
}

void EkleFormu::dosyaYüklendi()
{
    QCoreApplication::processEvents();
}

// The title bar and Esc come here: what is being entered is not thrown away by them.
void EkleFormu::reject()
{
    if (!GirişDurumunda())
        MakaleGirişFormu::reject();
}
