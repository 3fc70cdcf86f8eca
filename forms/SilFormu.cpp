#include "forms/SilFormu.h"

#include "app/HataPolitikaları.h"
#include "app/Metinler.h"
#include "app/OrtakDeğişkenlerModülü.h"
#include "app/İletiKutusu.h"
#include "controls/Etiketler.h"
#include "controls/TuşSüzgeci.h"
#include "forms/AnaPencere.h"
#include "system/OrtakApilerModülü.h"

#include <QGridLayout>

namespace {

constexpr int OlağanGenişlik = 10800; // twips
constexpr int OlağanYükseklik = 8400;
constexpr int EnUzunAranan = 25; // letters

} // namespace

SilFormu::SilFormu(QWidget& sahip, AnaPencere& ana) : QDialog(&sahip), ana_(ana)
{
    setObjectName(QStringLiteral("SilFormu"));
    setFont(FormYazıTipi());
    kontrolleriKur();
    yerleştir();
    olaylarıBağla();
    TürkçeKarakterKümesiUygula(*this);
    resize(FormPikseli(OlağanGenişlik), FormPikseli(OlağanYükseklik));
    Form_Load();
}

void SilFormu::kontrolleriKur()
{
    setWindowTitle(Metin(İleti::SilmeBaşlığı));
    MakaleListesi.setObjectName(QStringLiteral("MakaleListesi"));
    MakaleBulKutusu.setObjectName(QStringLiteral("MakaleBulKutusu"));
    YazarAdıKutusu.setObjectName(QStringLiteral("YazarAdıKutusu"));
    YayımYeriKutusu.setObjectName(QStringLiteral("YayımYeriKutusu"));
    YayımTarihiKutusu.setObjectName(QStringLiteral("YayımTarihiKutusu"));
    MakaleMetniKutusu.setObjectName(QStringLiteral("MakaleMetniKutusu"));
    ToplamMakaleSayısı.setObjectName(QStringLiteral("ToplamMakaleSayısı"));
    SilButonu.setObjectName(QStringLiteral("SilButonu"));
    KapatButonu.setObjectName(QStringLiteral("KapatButonu"));

    EtiketiKur(Etiket[0], 0, İleti::Makaleler, MakaleListesi);
    EtiketiKur(Etiket[1], 1, İleti::MakaleBul, MakaleBulKutusu);
    EtiketiKur(Etiket[2], 2, İleti::SilinenYazarAdı, YazarAdıKutusu);
    EtiketiKur(Etiket[3], 3, İleti::SilinenYayımYeri, YayımYeriKutusu);
    EtiketiKur(Etiket[4], 4, İleti::SilinenYayımTarihi, YayımTarihiKutusu);
    EtiketiKur(Etiket[5], 5, İleti::MakaleMetni, MakaleMetniKutusu);
    SilButonu.setText(Metin(İleti::SeçiliMakaleyiSil));
    KapatButonu.setText(Metin(İleti::Kapat));

    MakaleBulKutusu.setMaxLength(EnUzunAranan);
    for (MetinKutusu* kutu : {&YazarAdıKutusu, &YayımYeriKutusu, &YayımTarihiKutusu})
        kutu->setReadOnly(true);
    MakaleMetniKutusu.YalnızOkunur();
    ToplamMakaleSayısı.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    toplamıYaz(0);
}

// The list on the left, the selected article beside it.
void SilFormu::yerleştir()
{
    auto* liste = new QGridLayout;
    liste->addWidget(&Etiket[0], 0, 0);
    liste->addWidget(&ToplamMakaleSayısı, 0, 1);
    liste->addWidget(&MakaleListesi, 1, 0, 1, 2);
    liste->addWidget(&Etiket[1], 2, 0);
    liste->addWidget(&MakaleBulKutusu, 3, 0, 1, 2);

    auto* ayrıntı = new QGridLayout;
    ayrıntı->addWidget(&Etiket[2], 0, 0);
    ayrıntı->addWidget(&YazarAdıKutusu, 0, 1);
    ayrıntı->addWidget(&Etiket[3], 1, 0);
    ayrıntı->addWidget(&YayımYeriKutusu, 1, 1);
    ayrıntı->addWidget(&Etiket[4], 2, 0);
    ayrıntı->addWidget(&YayımTarihiKutusu, 2, 1);
    ayrıntı->addWidget(&Etiket[5], 3, 0, 1, 2);
    ayrıntı->addWidget(&MakaleMetniKutusu, 4, 0, 1, 2);
    ayrıntı->setRowStretch(4, 1);

    auto* düğmeler = new QHBoxLayout;
    düğmeler->addStretch();
    düğmeler->addWidget(&SilButonu);
    düğmeler->addWidget(&KapatButonu);

    auto* ızgara = new QGridLayout(this);
    ızgara->addLayout(liste, 0, 0);
    ızgara->addLayout(ayrıntı, 0, 1);
    ızgara->addLayout(düğmeler, 1, 0, 1, 2);
    ızgara->setColumnStretch(0, 2);
    ızgara->setColumnStretch(1, 3);
}

void SilFormu::olaylarıBağla()
{
    MakaleListesi.Click = [this] { MakaleListesi_Click(); };
    MakaleListesi.KeyUp = [this](int tuş) { MakaleListesi_KeyUp(tuş); };
    MakaleBulKutusu.Change = [this] { MakaleBulKutusu_Change(); };
    MakaleBulKutusu.KeyPress = [](char16_t& kod) { HarfBüyüsün(kod); };
    connect(&SilButonu, &QPushButton::clicked, this, &SilFormu::SilButonu_Click);
    connect(&KapatButonu, &QPushButton::clicked, this, &SilFormu::KapatButonu_Click);

    odakEtiketi_.Bağla(MakaleListesi, Etiket[0]);
    odakEtiketi_.Bağla(MakaleBulKutusu, Etiket[1], OdakEtiketi::Giriş::TümünüSeç);
    odakEtiketi_.Bağla(MakaleMetniKutusu, Etiket[5]);
}

void SilFormu::Form_Load()
{
    İlkHatadaBit([this] {
        const QStringList başlıklar =
            SütunuOku(QStringLiteral("SELECT [MakaleBasligi] FROM [Makaleler] ORDER BY [MakaleBasligi] ASC"),
                      u"MakaleBasligi");
        if (başlıklar.isEmpty())
            return;
        MakaleListesi.AddItems(başlıklar);
        toplamıYaz(başlıklar.size());
        MakaleListesi.ListIndex(0);
    });
}

void SilFormu::toplamıYaz(qint64 sayı)
{
    ToplamMakaleSayısı.setText(ToplamYazısı(sayı));
}

void SilFormu::MakaleListesi_Click()
{
    AdımAdım([this] {
        ayrıntılarıBoşalt(); // what is shown must not be another article's
        Recordset kayıtlar = MakaleyiAç(MakaleListesi.Text());
        if (kayıtlar.Bof() && kayıtlar.Eof())
            return;
        AdımAdım(
            [&] {
                const Makale makale = Makale::KünyesiniOku(kayıtlar);
                YazarAdıKutusu.Text(makale.Yazar);
                YayımYeriKutusu.Text(makale.Yer);
                YayımTarihiKutusu.Text(makale.Tarih);
            },
            [&] { MakaleMetniKutusu.Text(Makale::MetniniOku(kayıtlar)); });
    });
}

void SilFormu::MakaleBulKutusu_Change()
{
    AdımAdım([this] {
        if (MakaleBulKutusu.Text().isEmpty())
            return;
        const int sıra = MakaleListesi.ÖnekleBul(MakaleBulKutusu.Text());
        MakaleListesi.ListIndex(sıra);
        if (sıra < 0)
            ayrıntılarıBoşalt();
    });
}

void SilFormu::ayrıntılarıBoşalt()
{
    for (MetinKutusu* kutu : {&YazarAdıKutusu, &YayımYeriKutusu, &YayımTarihiKutusu})
        kutu->Text({});
    MakaleMetniKutusu.Text({});
}

void SilFormu::MakaleListesi_KeyUp(int tuş)
{
    if (tuş == Qt::Key_Delete)
        SilButonu_Click();
}

void SilFormu::SilButonu_Click()
{
    AdımAdım([this] {
        if (silinsinMi())
            sil();
    });
}

bool SilFormu::silinsinMi()
{
    if (MakaleListesi.Text().isEmpty()) {
        İletiGöster(Metin(İleti::SilinecekMakaleSeçiniz), İletiSimgesi::Bilgi, İletiDüğmeleri::Tamam);
        return false;
    }
    if (MakaleListesi.ListCount() == 1) {
        İletiGöster(Metin(İleti::SonMakaleSilinmez), İletiSimgesi::Bilgi, İletiDüğmeleri::Tamam);
        MakaleListesi.ListIndex(0);
        return false;
    }
    return İletiGöster(Metin(İleti::SilinsinMi), İletiSimgesi::Soru,
                       İletiDüğmeleri::EvetHayırVarsayılanHayır) == İletiYanıtı::Evet;
}

void SilFormu::sil()
{
    QString yazar;
    AdımAdım(
        [&] {
            Recordset kayıtlar = MakaleyiAç(MakaleListesi.Text());
            yazar = Makale::KünyesiniOku(kayıtlar).Yazar;
            kayıtlar.Delete();
        },
        [this] { MakaleListesi.RemoveItem(MakaleListesi.ListIndex()); }, [this] { ayrıntılarıBoşalt(); },
        [this] { toplamıYaz(MakaleListesi.ListCount()); }, [&] { ana_.YazarListesiYükle({yazar}); },
        [this] { ana_.MakaleleriBoşalt(); });
}

void SilFormu::KapatButonu_Click()
{
    accept();
}
