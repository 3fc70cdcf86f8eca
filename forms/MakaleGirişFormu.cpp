#include "forms/MakaleGirişFormu.h"

#include "app/Ayarlar.h"
#include "app/HataPolitikaları.h"
#include "app/Metinler.h"
#include "app/OrtakDeğişkenlerModülü.h"
#include "app/İletiKutusu.h"
#include "controls/DosyaSorucu.h"
#include "controls/Etiketler.h"
#include "controls/TuşSüzgeci.h"
#include "document/MetinDosyası.h"
#include "store/MakaleKuralları.h"
#include "system/OrtakApilerModülü.h"
#include "text/TürkçeHarfler.h"
#include "text/TürkçeTarih.h"

#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QGuiApplication>
#include <QMimeData>
#include <QScopeGuard>
#include <QStandardPaths>

namespace {

constexpr int OlağanGenişlik = 9600; // twips
constexpr int OlağanYükseklik = 8400;

/// Where the file chosen last lies, else the user's documents; home where that folder is gone.
QString başlangıçKlasörü()
{
    const QString son = AyarOku(Ayarlar::SonAçılan);
    const QString klasör = son.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                                         : QFileInfo(son).absolutePath();
    return DosyaVar(klasör) ? klasör : QDir::homePath();
}

} // namespace

MakaleGirişFormu::MakaleGirişFormu(QWidget* sahip, AnaPencere& ana, const Adlar& adlar)
    : QDialog(sahip), ana_(ana)
{
    setObjectName(adlar.Pencere);
    setFont(FormYazıTipi());
    kontrolleriKur(adlar);
    yerleştir();
    tuşlarıBağla();
    odaklarıBağla();
    basılınca(yapıştır_, [this] { panodanYapıştır(); });
    basılınca(dosyaYükle_, [this] { dosyadanYükle(); });
    TürkçeKarakterKümesiUygula(*this);
    resize(FormPikseli(OlağanGenişlik), FormPikseli(OlağanYükseklik));
}

std::array<QWidget*, 5> MakaleGirişFormu::alanlar()
{
    return {&YazarAdıListesi, &MakaleBaşlığıKutusu, &YayımYeriKutusu, &YayımTarihiKutusu, &MakaleMetniKutusu};
}

void MakaleGirişFormu::kontrolleriKur(const Adlar& adlar)
{
    setWindowTitle(Metin(adlar.Başlık));
    YazarAdıListesi.setObjectName(QStringLiteral("YazarAdıListesi"));
    MakaleBaşlığıKutusu.setObjectName(QStringLiteral("MakaleBaşlığıKutusu"));
    YayımYeriKutusu.setObjectName(QStringLiteral("YayımYeriKutusu"));
    YayımTarihiKutusu.setObjectName(QStringLiteral("YayımTarihiKutusu"));
    MakaleMetniKutusu.setObjectName(QStringLiteral("MakaleMetniKutusu"));
    constexpr std::array<İleti, 5> etiketler = {İleti::GirilenYazarAdı, İleti::GirilenMakaleBaşlığı,
                                                İleti::GirilenYayımYeri, İleti::GirilenYayımTarihi,
                                                İleti::MakaleMetni};
    for (std::size_t i = 0; i < Etiket.size(); ++i)
        EtiketiKur(Etiket[i], i, etiketler[i], *alanlar()[i]);

    const auto uzunluğuKoy = [](QLineEdit& kutu, MakaleSütunu sütun) {
        kutu.setMaxLength(static_cast<int>(Tanım(sütun).yazılabilen));
    };
    uzunluğuKoy(*YazarAdıListesi.lineEdit(), MakaleSütunu::YazarAdi);
    uzunluğuKoy(MakaleBaşlığıKutusu, MakaleSütunu::MakaleBasligi);
    uzunluğuKoy(YayımYeriKutusu, MakaleSütunu::YayimYeri);
    uzunluğuKoy(YayımTarihiKutusu, MakaleSütunu::YayimTarihi);
    MakaleMetniKutusu.setUndoRedoEnabled(true);

    const auto düğmeKur = [](Düğme& düğme, const QString& ad, İleti metin) {
        düğme.setObjectName(ad);
        düğme.setText(Metin(metin));
    };
    düğmeKur(yapıştır_, adlar.Yapıştır, İleti::PanodanYapıştır);
    düğmeKur(dosyaYükle_, adlar.DosyaYükle, İleti::DosyadanYükle);
    düğmeKur(kaydet_, adlar.Kaydet, adlar.KaydetYazısı);
    düğmeKur(vazgeç_, adlar.Vazgeç, adlar.VazgeçYazısı);
}

// Adding to the layout also gives the controls their parent, in the order of the Tab key.
void MakaleGirişFormu::yerleştir()
{
    auto* ızgara = new QGridLayout(this);
    ızgara->addWidget(&Etiket[0], 0, 0);
    ızgara->addWidget(&YazarAdıListesi, 0, 1, 1, 3);
    ızgara->addWidget(&Etiket[1], 1, 0);
    ızgara->addWidget(&MakaleBaşlığıKutusu, 1, 1, 1, 3);
    ızgara->addWidget(&Etiket[2], 2, 0);
    ızgara->addWidget(&YayımYeriKutusu, 2, 1);
    ızgara->addWidget(&Etiket[3], 2, 2);
    ızgara->addWidget(&YayımTarihiKutusu, 2, 3);
    ızgara->addWidget(&Etiket[4], 3, 0, 1, 4);
    ızgara->addWidget(&MakaleMetniKutusu, 4, 0, 1, 4);
    ızgara->setRowStretch(4, 1);
    ızgara->setColumnStretch(1, 3);
    ızgara->setColumnStretch(3, 2);

    auto* düğmeler = new QHBoxLayout;
    düğmeler->addWidget(&yapıştır_);
    düğmeler->addWidget(&dosyaYükle_);
    düğmeler->addStretch();
    düğmeler->addWidget(&kaydet_);
    düğmeler->addWidget(&vazgeç_);
    ızgara->addLayout(düğmeler, 5, 0, 1, 4);
}

void MakaleGirişFormu::tuşlarıBağla()
{
    YazarAdıListesi.KeyPress = [this](char16_t& kod) { BüyükHarfliKutuSüzgeci(YazarAdıListesi, kod); };
    MakaleBaşlığıKutusu.KeyPress = [this](char16_t& kod) {
        BüyükHarfliKutuSüzgeci(MakaleBaşlığıKutusu, kod);
    };
    YayımYeriKutusu.KeyPress = [this](char16_t& kod) { KutuSüzgeci(YayımYeriKutusu, kod); };
    YayımTarihiKutusu.KeyPress = [this](char16_t& kod) { KutuSüzgeci(YayımTarihiKutusu, kod); };
}

void MakaleGirişFormu::basılınca(Düğme& düğme, std::function<void()> iş)
{
    connect(&düğme, &QPushButton::clicked, this, [this, &düğme, iş = std::move(iş)] {
        İlkHatadaBit([&] {
            if (tarihDenetimi_.OdağıVer(düğme))
                iş();
        });
    });
}

void MakaleGirişFormu::odaklarıBağla()
{
    for (std::size_t i = 0; i < Etiket.size(); ++i) {
        QWidget* alan = alanlar()[i];
        odakEtiketi_.Bağla(*alan, Etiket[i],
                           alan == &MakaleMetniKutusu ? OdakEtiketi::Giriş::Olduğu
                                                      : OdakEtiketi::Giriş::TümünüSeç);
        odakGözcüsü_.İzle(*alan, {}, [this, alan] { alanıDüzelt(*alan); });
    }
}

void MakaleGirişFormu::alanıDüzelt(QWidget& alan)
{
    if (&alan == &YazarAdıListesi) {
        YazarAdıListesi.Text(KırpıkSatır(YazarAdıListesi.Text()));
    } else if (&alan == &MakaleMetniKutusu) {
        MakaleMetniKutusu.DüzMetneİndir();
    } else {
        auto& kutu = static_cast<MetinKutusu&>(alan);
        const bool özelAd = &alan != &MakaleBaşlığıKutusu;
        kutu.Text(özelAd ? TürkçeÖzelAd(kutu.KırpıkText()) : kutu.KırpıkText());
    }
}

bool MakaleGirişFormu::tarihUygun()
{
    YayımTarihiKutusu.Text(YayımTarihiKutusu.KırpıkText());
    return YayımTarihiKutusu.Text().isEmpty() || TürkçeTarihMi(YayımTarihiKutusu.Text());
}

bool MakaleGirişFormu::tarihiSor()
{
    return İletiGöster(Metin(İleti::TarihKorunsunMu), İletiSimgesi::Soru, İletiDüğmeleri::EvetHayır) ==
           İletiYanıtı::Evet;
}

void MakaleGirişFormu::yazarlarıYükle(const QString& sorgu)
{
    const QStringList yazarlar = SütunuOku(sorgu, u"YazarAdi");
    if (yazarlar.isEmpty())
        return;
    YazarAdıListesi.Clear();
    YazarAdıListesi.AddItems(yazarlar);
    YazarAdıListesi.Text({}); // the first one is not chosen
}

bool MakaleGirişFormu::alanlarTamam()
{
    odakEtiketi_.Ayrıl();
    odakGözcüsü_.Ayrıl();
    const auto söyle = [](İleti ileti, QWidget& alan) {
        İletiGöster(Metin(ileti), İletiSimgesi::Bilgi, İletiDüğmeleri::Tamam);
        alan.setFocus();
        return false;
    };
    switch (EksiğiBul(girilen())) {
    case MakaleEksiği::YazarAdıBoş:
        return söyle(İleti::YazarAdıBoş, YazarAdıListesi);
    case MakaleEksiği::YazarAdıTekSözcük:
        return söyle(İleti::YazarAdıTekSözcük, YazarAdıListesi);
    case MakaleEksiği::BaşlıkBoş:
        return söyle(İleti::MakaleBaşlığıBoş, MakaleBaşlığıKutusu);
    case MakaleEksiği::YerBoş:
        return söyle(İleti::YayımYeriBoş, YayımYeriKutusu);
    case MakaleEksiği::MetinBoş:
        return söyle(İleti::MakaleMetniBoş, MakaleMetniKutusu);
    case MakaleEksiği::Yok:
        break;
    }
    return true;
}

Makale MakaleGirişFormu::girilen() const
{
    return {.Yazar = YazarAdıListesi.Text(),
            .Başlık = MakaleBaşlığıKutusu.Text(),
            .Metin = MakaleMetniKutusu.Text(),
            .Yer = YayımYeriKutusu.Text(),
            .Tarih = YayımTarihiKutusu.Text()};
}

// What holds no text (a picture) leaves the article text as it is.
void MakaleGirişFormu::panodanYapıştır()
{
    const QMimeData* pano = QGuiApplication::clipboard()->mimeData();
    if (pano && pano->hasText())
        MakaleMetniKutusu.Değiştir({pano->text(), {}});
}

void MakaleGirişFormu::dosyadanYükle()
{
    const QString yol = DosyaSor(*this, Metin(İleti::DosyaAçBaşlığı), başlangıçKlasörü(),
                                 {Metin(İleti::MetinDosyaları), Metin(İleti::ZenginMetinDosyaları)});
    if (yol.isEmpty())
        return;
    const auto uyar = [](const QString& neden) {
        İletiGöster(neden, İletiSimgesi::Uyarı, İletiDüğmeleri::Tamam);
    };
    try {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        const auto sonunda = qScopeGuard([] { QGuiApplication::restoreOverrideCursor(); });
        MakaleMetniKutusu.Değiştir(MetinDosyasıOku(yol));
    } catch (...) {
        uyar(ŞimdikiHata().Açıklama());
        return;
    }
    dosyaYüklendi();
    AyarYaz(Ayarlar::SonAçılan, yol);
}
