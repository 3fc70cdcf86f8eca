#include "forms/EkleFormu.h"

#include "app/HataPolitikaları.h"
#include "app/Metinler.h"
#include "app/OrtakDeğişkenlerModülü.h"
#include "forms/AnaPencere.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>

namespace {

constexpr int MetinBoyutu = 8; // points

} // namespace

EkleFormu::EkleFormu(AnaPencere& ana)
    : MakaleGirişFormu(nullptr, ana,
                       {.Pencere = QStringLiteral("EkleFormu"),
                        .Başlık = İleti::EklemeBaşlığı,
                        .Kaydet = QStringLiteral("EkleKaydetButonu"),
                        .Vazgeç = QStringLiteral("İptalKapatButonu"),
                        .Yapıştır = QStringLiteral("YapıştırButonu"),
                        .DosyaYükle = QStringLiteral("DosyaYükleButonu"),
                        .KaydetYazısı = İleti::MakaleEkle,
                        .VazgeçYazısı = İleti::Kapat})
{
    basılınca(kaydet_, [this] { EkleKaydetButonu_Click(); });
    basılınca(vazgeç_, [this] { İptalKapatButonu_Click(); });
    Form_Load();
}

void EkleFormu::Form_Load()
{
    düğmeleriKilitle();
    alanlarıKilitle();
    İlkHatadaBit([this] { yazarlarıYükle(QStringLiteral("SELECT DISTINCT [YazarAdi] FROM [Makaleler]")); });
    kaydet_.setFocus();
}

void EkleFormu::düğmeleriKilitle()
{
    dosyaYükle_.setEnabled(false);
    yapıştır_.setEnabled(false);
    kaydet_.setText(Metin(İleti::MakaleEkle));
    vazgeç_.setText(Metin(İleti::Kapat));
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
    dosyaYükle_.setEnabled(true);
    MakaleMetniKutusu.setFont(FormYazıTipi());
    MakaleMetniKutusu.FontSize(MetinBoyutu);
    yapıştır_.setEnabled(!QGuiApplication::clipboard()->text().isEmpty());
    kaydet_.setText(Metin(İleti::Kaydet));
    vazgeç_.setText(Metin(İleti::İptal));
    yeniKayıt();
    YazarAdıListesi.setFocus();
}

void EkleFormu::kaydet()
{
    düğmeleriKilitle();
    if (!eklenen_) // it could not be opened when the entry began
        yeniKayıt();
    const Makale makale = girilen();
    makale.Yaz(*eklenen_);
    eklenen_->Update();
    eklenen_.reset();
    ana_.YazarListesiYükle({makale.Yazar});
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
