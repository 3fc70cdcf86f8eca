#include "forms/AnaForm.h"

#include "app/Ayarlar.h"
#include "app/HataPolitikaları.h"
#include "app/Metinler.h"
#include "app/OrtakDeğişkenlerModülü.h"
#include "app/PencereYeri.h"
#include "controls/Etiketler.h"
#include "system/EkranÖlçüsü.h"
#include "system/OrtakApilerModülü.h"
#include "text/TürkçeSıralama.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>
#include <QStringList>

namespace {

constexpr int SınırlamaAralığı = 1000; // ms
constexpr int İletiAralığı = 20;       // ms between two looks at the window's messages during long work
constexpr int DolduranParça = 512;     // rows between two looks at the clock
constexpr int OlağanGenişlik = 12000;  // twips
constexpr int OlağanYükseklik = 9000;
constexpr double EnUzakKonum = 1000000; // twips; what a stored position may be at most
constexpr double TamEkranDeğeri = 2;

const QString YazarlarSql =
    QStringLiteral("SELECT DISTINCT [YazarAdi] FROM [Makaleler]%1 ORDER BY [YazarAdi] ASC");

const QString BaşlangıçMetni = QStringLiteral(
    "Kitaplıkta henüz makale yok.\n\n"
    "İlk makaleyi Makale menüsündeki “Listeye Makale Ekle...” ile ekleyin. Metnini yazabilir, panodan "
    "yapıştırabilir ya da bir metin veya RTF dosyasından yükleyebilirsiniz.\n\n"
    "Elinizde klasörler dolusu belge varsa programı kapatıp hepsini bir kerede alın:\n"
    "belgenar-kitaplik aktar PROGRAM_KLASÖRÜ BELGE_KLASÖRÜ");

} // namespace

AnaForm::AnaForm() : yüzey_(new QWidget(this))
{
    setObjectName(QStringLiteral("AnaForm"));
    kontrolleriKur();
    menüleriKur();
    sekmeSırasıKur();
    olaylarıBağla();
    resize(QSize(FormPikseli(OlağanGenişlik), FormPikseli(OlağanYükseklik))
               .boundedTo(screen()->availableSize()));
}

AnaForm::~AnaForm() = default;

void AnaForm::kontrolleriKur()
{
    yüzey_->setFont(FormYazıTipi());
    setCentralWidget(yüzey_);

    const auto adlandır = [this](QWidget& kontrol, const QString& ad, QWidget* üst = nullptr) {
        kontrol.setObjectName(ad);
        kontrol.setParent(üst ? üst : yüzey_);
    };
    adlandır(Altlık, QStringLiteral("Altlık"));
    for (QLabel& etiket : Etiket)
        etiket.setParent(yüzey_);
    adlandır(YazarListesi, QStringLiteral("YazarListesi"), &Altlık);
    adlandır(ToplamYazarSayısıEtiketi, QStringLiteral("ToplamYazarSayısıEtiketi"));
    adlandır(YazarBulKutusu, QStringLiteral("YazarBulKutusu"));
    adlandır(MakaleListesi, QStringLiteral("MakaleListesi"));
    adlandır(ToplamMakaleSayısıEtiketi, QStringLiteral("ToplamMakaleSayısıEtiketi"));
    adlandır(MakaleBulKutusu, QStringLiteral("MakaleBulKutusu"));
    adlandır(MakaleMetniKutusu, QStringLiteral("MakaleMetniKutusu"));
    adlandır(BulKutusu, QStringLiteral("BulKutusu"));
    adlandır(BulButonu, QStringLiteral("BulButonu"));
    adlandır(TemizleButonu, QStringLiteral("TemizleButonu"));
    adlandır(TümündeBulButonu, QStringLiteral("TümündeBulButonu"));
    adlandır(ÇıkışButonu, QStringLiteral("ÇıkışButonu"));
    adlandır(YazdırKutusu, QStringLiteral("YazdırKutusu"));

    YazdırKutusu.hide();
    YazdırKutusu.setFocusPolicy(Qt::NoFocus);
    MakaleMetniKutusu.YalnızOkunur();
    MakaleListesi.setContextMenuPolicy(Qt::CustomContextMenu);
    MakaleMetniKutusu.setContextMenuPolicy(Qt::CustomContextMenu);
    for (QLabel* etiket : {&ToplamYazarSayısıEtiketi, &ToplamMakaleSayısıEtiketi})
        etiket->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    for (QPushButton* düğme : {&BulButonu, &TemizleButonu, &TümündeBulButonu})
        düğme->setEnabled(false);
    Sınırla.setInterval(SınırlamaAralığı);
}

void AnaForm::menüleriKur()
{
    const auto adlandır = [](QObject& öğe, const QString& ad) { öğe.setObjectName(ad); };
    adlandır(MakaleMenüsü, QStringLiteral("MakaleMenüsü"));
    adlandır(MakaleEkleMenüsü, QStringLiteral("MakaleEkleMenüsü"));
    adlandır(MakeleDeğiştirMenüsü, QStringLiteral("MakeleDeğiştirMenüsü"));
    adlandır(MakaleSilMenüsü, QStringLiteral("MakaleSilMenüsü"));
    adlandır(ReferansOluşturMenüsü, QStringLiteral("ReferansOluşturMenüsü"));
    adlandır(MakaleMetniMenüsü, QStringLiteral("MakaleMetniMenüsü"));
    adlandır(TümünüSeçMenüsü, QStringLiteral("TümünüSeçMenüsü"));
    adlandır(KopyalaMenüsü, QStringLiteral("KopyalaMenüsü"));
    adlandır(YazdırMenüsü, QStringLiteral("YazdırMenüsü"));
    adlandır(WordeYapıştırMenüsü, QStringLiteral("WordeYapıştırMenüsü"));
    adlandır(AyarlarMenüsü, QStringLiteral("AyarlarMenüsü"));
    adlandır(AyarlarMenüsü1, QStringLiteral("AyarlarMenüsü1"));
    adlandır(YardımMenüsü, QStringLiteral("YardımMenüsü"));
    adlandır(İçindekilerMenüsü, QStringLiteral("İçindekilerMenüsü"));
    adlandır(DizinMenüsü, QStringLiteral("DizinMenüsü"));
    adlandır(HatalarıBildirinMenüsü, QStringLiteral("HatalarıBildirinMenüsü"));
    adlandır(HakkındaMenüsü, QStringLiteral("HakkındaMenüsü"));
    adlandır(MenüÇizgisi2, QStringLiteral("MenüÇizgisi2"));
    adlandır(MenüÇizgisi3, QStringLiteral("MenüÇizgisi3"));
    MenüÇizgisi2.setSeparator(true);
    MenüÇizgisi3.setSeparator(true);

    menuBar()->setNativeMenuBar(false);
    menuBar()->addMenu(&MakaleMenüsü);
    MakaleMenüsü.addActions(
        {&MakaleEkleMenüsü, &MakeleDeğiştirMenüsü, &MakaleSilMenüsü, &ReferansOluşturMenüsü});
    menuBar()->addAction(&AyarlarMenüsü);
    menuBar()->addMenu(&YardımMenüsü);
    YardımMenüsü.addActions(
        {&İçindekilerMenüsü, &DizinMenüsü, &MenüÇizgisi3, &HatalarıBildirinMenüsü, &HakkındaMenüsü});
    MakaleMetniMenüsü.addActions({&TümünüSeçMenüsü, &KopyalaMenüsü, &YazdırMenüsü, &WordeYapıştırMenüsü,
                                  &MenüÇizgisi2, &AyarlarMenüsü1});
}

void AnaForm::sekmeSırasıKur()
{
    QWidget* önceki = &YazarListesi;
    for (QWidget* sonraki : std::initializer_list<QWidget*>{
             &YazarBulKutusu, &MakaleListesi, &MakaleBulKutusu, &MakaleMetniKutusu, &BulKutusu, &BulButonu,
             &TemizleButonu, &TümündeBulButonu, &ÇıkışButonu}) {
        setTabOrder(önceki, sonraki);
        önceki = sonraki;
    }
}

void AnaForm::olaylarıBağla()
{
    YazarListesi.Click = [this] { YazarListesi_Click(); };
    MakaleListesi.Click = [this] { MakaleListesi_Click(); };
    bulmaOlaylarınıBağla();
    menüOlaylarınıBağla();
    metinOlaylarınıBağla();
    yerOlaylarınıBağla();
    tuşlarıBağla();
    connect(&ÇıkışButonu, &QPushButton::clicked, this, &AnaForm::ÇıkışButonu_Click);
    connect(&Sınırla, &QTimer::timeout, this, &AnaForm::Sınırla_Timer);
    auto* esc = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    connect(esc, &QShortcut::activated, &ÇıkışButonu, &QPushButton::click);
}

void AnaForm::Göster(const std::function<void()>& yüklendi)
{
    Form_Load();
    if (bitti_) // the system ended the program meanwhile
        return;
    show();
    QCoreApplication::processEvents();
    if (bitti_)
        return;
    if (yüklendi)
        yüklendi();
    ÖneGetir();
    Sınırla.start();
}

void AnaForm::Form_Load()
{
    TürkçeKarakterKümesiUygula(*this);
    Altlık.setPalette(palette());
    setWindowTitle(AnaPencereBaşlığı);
    başlıklarıKoy();
    menüTuşlarınıKur();
    pencereDurumunuOku();
    görünümAyarlarınıOku();
    GörünümüUygula();
    YazarListesiYükle();
    sonYazarıSeç();
    yazarToplamınıYaz();
    makaleToplamınıYaz();
    YazarListesi.setFocus();
}

void AnaForm::başlıklarıKoy()
{
    MakaleMenüsü.setTitle(Metin(İleti::MakaleMenüsü));
    MakaleEkleMenüsü.setText(Metin(İleti::MakaleEkleMenüsü));
    MakeleDeğiştirMenüsü.setText(Metin(İleti::MakaleDeğiştirMenüsü));
    MakaleSilMenüsü.setText(Metin(İleti::MakaleSilMenüsü));
    TümünüSeçMenüsü.setText(Metin(İleti::TümünüSeç));
    KopyalaMenüsü.setText(Metin(İleti::Kopyala));
    YazdırMenüsü.setText(Metin(İleti::Yazdır));
    WordeYapıştırMenüsü.setText(Metin(İleti::WordeYapıştır));
    ReferansOluşturMenüsü.setText(Metin(İleti::ReferansOluşturMenüsü));
    AyarlarMenüsü.setText(Metin(İleti::AyarlarMenüsü));
    AyarlarMenüsü1.setText(Metin(İleti::AyarlarMenüsü));
    YardımMenüsü.setTitle(Metin(İleti::YardımMenüsü));
    İçindekilerMenüsü.setText(Metin(İleti::İçindekilerMenüsü));
    DizinMenüsü.setText(Metin(İleti::DizinMenüsü));
    HatalarıBildirinMenüsü.setText(Metin(İleti::HatalarıBildirinMenüsü));
    HakkındaMenüsü.setText(Metin(İleti::HakkındaMenüsü));

    const std::array<QWidget*, 6> bağlılar = {&YazarListesi,    &YazarBulKutusu,    &MakaleListesi,
                                              &MakaleBulKutusu, &MakaleMetniKutusu, &BulKutusu};
    constexpr std::array<İleti, 6> etiketler = {İleti::Yazarlar,  İleti::YazarBul,    İleti::Makaleler,
                                                İleti::MakaleBul, İleti::MakaleMetni, İleti::BulunacakSözcük};
    for (std::size_t i = 0; i < Etiket.size(); ++i)
        EtiketiKur(Etiket[i], i, etiketler[i], *bağlılar[i]);
    BulButonu.setText(Metin(İleti::Bul));
    TemizleButonu.setText(Metin(İleti::Temizle));
    TümündeBulButonu.setText(Metin(İleti::TümMakalelerdeBul));
    ÇıkışButonu.setText(Metin(İleti::Çıkış));
}

void AnaForm::pencereDurumunuOku()
{
    if (AyarOku(Ayarlar::TamEkran) == TamEkranDeğeri) {
        setWindowState(Qt::WindowMaximized);
        return;
    }
    setWindowState(Qt::WindowNoState);
    PencereyiKoy(*this, [ekran = screen()->virtualGeometry().size()](const QSize& boy) {
        const auto konum = [](SayıAnahtarı ayar, int ekranBoyu, int pencereBoyu) {
            const int orta = (Twip(ekranBoyu) - Twip(pencereBoyu)) / 2;
            const double sayı = AyarOku(ayar, orta);
            return Piksel(std::clamp(sayı, -EnUzakKonum, EnUzakKonum));
        };
        return QPoint(konum(Ayarlar::Sol, ekran.width(), boy.width()),
                      konum(Ayarlar::Üst, ekran.height(), boy.height()));
    });
}

void AnaForm::görünümAyarlarınıOku()
{
    MakaleYazıTipi = AyarOku(Ayarlar::YazıTipi, FormYazıTipiAdı());
    YazıBoyutuSırası = SıraSayısı(AyarOku(Ayarlar::YazıBoyutu));
    ZeminRengiSırası = SıraSayısı(AyarOku(Ayarlar::ZeminRengi));
}

void AnaForm::YazarListesiYükle()
{
    const QStringList yazarlar = SütunuOku(YazarlarSql.arg(QString()), u"YazarAdi");
    boşKitaplığıAnlat(yazarlar.isEmpty());
    if (yazarlar.isEmpty())
        return;
    YazarListesi.Clear();
    YazarListesi.AddItems(yazarlar);
    yazarToplamınıYaz();
}

void AnaForm::YazarListesiYükle(const QStringList& değişenler)
{
    const auto okunur = [](const QString& yazar) { return !yazar.isNull() && !yazar.contains(u'\''); };
    if (YazarListesi.ListCount() <= 1 || !std::all_of(değişenler.begin(), değişenler.end(), okunur))
        return YazarListesiYükle();
    for (const QString& yazar : değişenler)
        yazarıYenile(yazar.normalized(QString::NormalizationForm_C)); // as the library holds it
    YazarListesi.SeçimsizBaşaDön();
    yazarToplamınıYaz();
}

/// Brings the author's entry to what the library holds of him.
void AnaForm::yazarıYenile(const QString& yazar)
{
    // Asked as all are, so that of names that differ in case only the same one is shown.
    const QString sorgu =
        YazarlarSql.arg(QStringLiteral(" WHERE [YazarAdi]>='%1' AND [YazarAdi]<='%1'").arg(yazar));
    const QStringList yeni = SütunuOku(sorgu, u"YazarAdi");
    int ilk = 0; // of the entries that don't come before him
    for (int son = YazarListesi.ListCount(); ilk < son;) {
        const int orta = (ilk + son) / 2;
        if (TürkçeKarşılaştır(YazarListesi.Item(orta), yazar) < 0)
            ilk = orta + 1;
        else
            son = orta;
    }
    const bool vardı =
        ilk < YazarListesi.ListCount() && TürkçeKarşılaştır(YazarListesi.Item(ilk), yazar) == 0;
    if (vardı && !yeni.isEmpty())
        YazarListesi.Item(ilk, yeni.first());
    else if (vardı && YazarListesi.ListCount() > 1) // an empty library leaves the list as it is
        YazarListesi.RemoveItem(ilk);
    else if (!yeni.isEmpty())
        YazarListesi.InsertItem(ilk, yeni.first());
}

/// Nothing else in the window says how to begin.
void AnaForm::boşKitaplığıAnlat(bool boş)
{
    MakaleMetniKutusu.setPlaceholderText(boş ? BaşlangıçMetni : QString());
    MakaleMetniKutusu.setAccessibleDescription(MakaleMetniKutusu.placeholderText());
}

void AnaForm::sonYazarıSeç()
{
    const double sıra = AyarOku(Ayarlar::SonYazar);
    if (sıra >= 0 && sıra <= YazarListesi.ListCount() - 1)
        YazarListesi.ListIndex(static_cast<int>(sıra));
}

void AnaForm::yazarToplamınıYaz()
{
    ToplamYazarSayısıEtiketi.setText(ToplamYazısı(YazarListesi.ListCount()));
}

void AnaForm::makaleToplamınıYaz()
{
    ToplamMakaleSayısıEtiketi.setText(ToplamYazısı(MakaleListesi.ListCount()));
}

void AnaForm::YazarListesi_Click()
{
    if (sonuçGörünümü())
        return;
    const bool tamam = İlkHatadaBit([this] {
        Recordset kayıtlar = Veritabanı->OpenRecordset(
            QStringLiteral("SELECT * FROM [Makaleler] WHERE [YazarAdi]='") + YazarListesi.Text() + u'\'');
        if (!kayıtlar.Eof() && !makaleListesiniDoldur(kayıtlar))
            return;
        makaleToplamınıYaz();
    });
    if (!tamam)
        MakaleleriBoşalt();
}

bool AnaForm::makaleListesiniDoldur(Recordset& kayıtlar)
{
    const int bu = ++doldurma_;
    MakaleListesi.Clear();
    QElapsedTimer saat;
    saat.start();
    QStringList parça;
    for (; !kayıtlar.Eof(); kayıtlar.MoveNext()) {
        parça.append(kayıtlar.Fields(u"MakaleBasligi").Value());
        if (parça.size() < DolduranParça || saat.elapsed() < İletiAralığı)
            continue;
        MakaleListesi.AddItems(std::exchange(parça, {}));
        QCoreApplication::processEvents();
        if (bu != doldurma_) // another author was chosen meanwhile, or the window was closed
            return false;
        saat.restart();
    }
    MakaleListesi.AddItems(parça);
    MakaleListesi.ListIndex(0);
    return true;
}

void AnaForm::MakaleleriBoşalt()
{
    ++doldurma_;
    MakaleListesi.Clear();
    MakaleMetniKutusu.Text({});
    makaleToplamınıYaz();
}

void AnaForm::MakaleListesi_Click()
{
    const bool tamam = İlkHatadaBit([this] {
        Recordset kayıtlar = MakaleyiAç(MakaleListesi.Text());
        if (kayıtlar.Eof()) {
            MakaleMetniKutusu.Text({});
            return;
        }
        makaleyiGöster(Makale::MetniniOku(kayıtlar));
        if (sonuçGörünümü()) {
            yazarıGöster(Makale::KünyesiniOku(kayıtlar).Yazar);
            sözcüğüİşaretle();
        }
    });
    if (tamam)
        return;
    MakaleMetniKutusu.Text({});
    if (sonuçGörünümü())
        YazarListesi.ListIndex(-1);
}

void AnaForm::makaleyiGöster(const QString& metin)
{
    GörünümüUygula();
    MakaleMetniKutusu.Text(metin);
}

void AnaForm::GörünümüUygula()
{
    MakaleMetniKutusu.FontName(MakaleYazıTipi);
    MakaleMetniKutusu.FontSize(YazıBoyutu(YazıBoyutuSırası));
    MakaleMetniKutusu.BackColor(ZeminRengi(ZeminRengiSırası));
}

void AnaForm::ÖneGetir()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    if (QWidget* kutu = QApplication::activeModalWidget()) { // it is the box that waits for the user
        kutu->setWindowState(kutu->windowState() & ~Qt::WindowMinimized);
        kutu->raise();
        kutu->activateWindow();
    }
}
