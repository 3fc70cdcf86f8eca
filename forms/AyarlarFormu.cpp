#include "forms/AyarlarFormu.h"

#include "app/Ayarlar.h"
#include "app/HataPolitikaları.h"
#include "app/Metinler.h"
#include "app/OrtakDeğişkenlerModülü.h"
#include "controls/Etiketler.h"
#include "controls/YazıTipleriModülü.h"
#include "forms/AnaPencere.h"
#include "system/OrtakApilerModülü.h"
#include "text/TürkçeHarfler.h"

#include <QGridLayout>

namespace {

constexpr int ÖrnekGenişliği = 6600; // twips
constexpr int ÖrnekSatırı = 6;       // lines of the largest size; some fonts have high ones
constexpr qint16 EnBüyükSıra = 4;
constexpr int ListeGenişliği = 3600;

/// Names of font families are not Turkish: I and i are one letter in them.
QString aileAdıKatla(const QString& ad)
{
    return Katla(ad).replace(u'ı', u'i');
}

} // namespace

AyarlarFormu::AyarlarFormu(AnaPencere& ana) : ana_(ana)
{
    setObjectName(QStringLiteral("AyarlarFormu"));
    setFont(FormYazıTipi());
    kontrolleriKur();
    yerleştir();
    TürkçeKarakterKümesiUygula(*this);
    Form_Load();
    olaylarıBağla(); // a list that is being filled selects its first entry, which is nobody's choice
}

void AyarlarFormu::kontrolleriKur()
{
    setWindowTitle(Metin(İleti::AyarlarBaşlığı));
    Altlık.setObjectName(QStringLiteral("Altlık"));
    Çerçeve.setObjectName(QStringLiteral("Çerçeve"));
    YazıTipiListesi.setObjectName(QStringLiteral("YazıTipiListesi"));
    YazıTipiBoyutuListesi.setObjectName(QStringLiteral("YazıTipiBoyutuListesi"));
    ZeminRengiListesi.setObjectName(QStringLiteral("ZeminRengiListesi"));
    ÖrnekMetinKutusu.setObjectName(QStringLiteral("ÖrnekMetinKutusu"));
    İlkAyarlarButonu.setObjectName(QStringLiteral("İlkAyarlarButonu"));
    TamamButonu.setObjectName(QStringLiteral("TamamButonu"));
    İptalButonu.setObjectName(QStringLiteral("İptalButonu"));
    YardımButonu.setObjectName(QStringLiteral("YardımButonu"));

    EtiketiKur(Etiket[0], 0, İleti::YazıTipleri, YazıTipiListesi);
    EtiketiKur(Etiket[1], 1, İleti::YazıTipiBoyutu, YazıTipiBoyutuListesi);
    EtiketiKur(Etiket[2], 2, İleti::ZeminRengi, ZeminRengiListesi);
    İlkAyarlarButonu.setText(Metin(İleti::İlkAyarlar));
    TamamButonu.setText(Metin(İleti::Tamam));
    İptalButonu.setText(Metin(İleti::İptal));
    YardımButonu.setText(Metin(İleti::YardımMenüsü)); // nothing answers it yet
    TamamButonu.setDefault(true);

    // Only looked at: it takes no focus.
    ÖrnekMetinKutusu.Text(Metin(İleti::ÖrnekMetin));
    ÖrnekMetinKutusu.YalnızOkunur();
    ÖrnekMetinKutusu.setAccessibleName(QStringLiteral("Örnek metin"));
    ÖrnekMetinKutusu.setFocusPolicy(Qt::NoFocus);
    ÖrnekMetinKutusu.setContextMenuPolicy(Qt::PreventContextMenu);
}

// The choices above, what comes of them below.
void AyarlarFormu::yerleştir()
{
    QFont enBüyük = font();
    enBüyük.setPointSize(YazıBoyutu(EnBüyükSıra));
    ÖrnekMetinKutusu.setMinimumSize(FormPikseli(ÖrnekGenişliği),
                                    ÖrnekSatırı * QFontMetrics(enBüyük).lineSpacing());
    auto* örnek = new QVBoxLayout(&Çerçeve);
    örnek->addWidget(&ÖrnekMetinKutusu);

    auto* düğmeler = new QHBoxLayout;
    düğmeler->addWidget(&İlkAyarlarButonu);
    düğmeler->addStretch();
    düğmeler->addWidget(&TamamButonu);
    düğmeler->addWidget(&İptalButonu);
    düğmeler->addWidget(&YardımButonu);

    auto* ızgara = new QGridLayout(&Altlık);
    int satır = 0;
    for (AçılırListe* liste : {&YazıTipiListesi, &YazıTipiBoyutuListesi, &ZeminRengiListesi}) {
        liste->setMinimumWidth(FormPikseli(ListeGenişliği));
        ızgara->addWidget(&Etiket[static_cast<std::size_t>(satır)], satır, 0);
        ızgara->addWidget(liste, satır++, 1);
    }
    ızgara->addWidget(&Çerçeve, satır, 0, 1, 2);
    ızgara->setRowStretch(satır++, 1);
    ızgara->addLayout(düğmeler, satır, 0, 1, 2);
    ızgara->setColumnStretch(1, 1);

    auto* bütün = new QVBoxLayout(this);
    bütün->setContentsMargins({});
    bütün->addWidget(&Altlık);
    resize(minimumSizeHint());
}

void AyarlarFormu::olaylarıBağla()
{
    YazıTipiListesi.Click = [this] { örnekYazısınıGüncelle(); };
    YazıTipiBoyutuListesi.Click = [this] { örnekYazısınıGüncelle(); };
    ZeminRengiListesi.Click = [this] { ZeminRengiListesi_Click(); };
    connect(&İlkAyarlarButonu, &QPushButton::clicked, this, &AyarlarFormu::İlkAyarlarButonu_Click);
    connect(&TamamButonu, &QPushButton::clicked, this, &AyarlarFormu::TamamButonu_Click);
    connect(&İptalButonu, &QPushButton::clicked, this, &AyarlarFormu::İptalButonu_Click);

    odakEtiketi_.Bağla(YazıTipiListesi, Etiket[0]);
    odakEtiketi_.Bağla(YazıTipiBoyutuListesi, Etiket[1]);
    odakEtiketi_.Bağla(ZeminRengiListesi, Etiket[2]);
}

void AyarlarFormu::Form_Load()
{
    AdımAdım(
        [this] {
            Altlık.setPalette(palette());
            for (const İleti metin :
                 {İleti::EnKüçük, İleti::Küçük, İleti::Orta, İleti::Büyük, İleti::EnBüyük})
                YazıTipiBoyutuListesi.AddItems({Metin(metin)});
            for (const İleti metin :
                 {İleti::Beyaz, İleti::Turuncu, İleti::Turkuaz, İleti::Yeşil, İleti::Sarı, İleti::Gri})
                ZeminRengiListesi.AddItems({Metin(metin)});
            YazıTipleriniDoldur(YazıTipiListesi);
        },
        [this] {
            yazıTipiniSeç(MakaleYazıTipi);
            YazıTipiBoyutuListesi.ListIndex(YazıBoyutuSırası);
            ZeminRengiListesi.ListIndex(ZeminRengiSırası);
        },
        [this] { örnekYazısınıGüncelle(); }, [this] { ZeminRengiListesi_Click(); });
    TamamButonu.setEnabled(false);
}

void AyarlarFormu::örnekYazısınıGüncelle()
{
    ÖrnekMetinKutusu.FontName(YazıTipiListesi.Text());
    ÖrnekMetinKutusu.FontSize(YazıBoyutu(seçiliSıra(YazıTipiBoyutuListesi)));
    TamamButonu.setEnabled(true);
}

void AyarlarFormu::ZeminRengiListesi_Click()
{
    ÖrnekMetinKutusu.BackColor(ZeminRengi(seçiliSıra(ZeminRengiListesi)));
    TamamButonu.setEnabled(true);
}

// The first family stands for one that is not installed.
void AyarlarFormu::yazıTipiniSeç(const QString& ad)
{
    const QString aranan = aileAdıKatla(ad);
    int sıra = 0;
    while (sıra < YazıTipiListesi.ListCount() && aileAdıKatla(YazıTipiListesi.itemText(sıra)) != aranan)
        ++sıra;
    YazıTipiListesi.ListIndex(sıra < YazıTipiListesi.ListCount() ? sıra : 0);
}

void AyarlarFormu::İlkAyarlarButonu_Click()
{
    yazıTipiniSeç(FormYazıTipiAdı());
    YazıTipiBoyutuListesi.ListIndex(static_cast<int>(Ayarlar::YazıBoyutu.Varsayılan));
    ZeminRengiListesi.ListIndex(static_cast<int>(Ayarlar::ZeminRengi.Varsayılan));
    TamamButonu.setEnabled(true); // also where all three were selected before
}

void AyarlarFormu::TamamButonu_Click()
{
    MakaleYazıTipi = YazıTipiListesi.Text();
    YazıBoyutuSırası = seçiliSıra(YazıTipiBoyutuListesi);
    ZeminRengiSırası = seçiliSıra(ZeminRengiListesi);
    AdımAdım([this] { ana_.GörünümüUygula(); }, [] { AyarYaz(Ayarlar::YazıTipi, MakaleYazıTipi); },
             [] { AyarYaz(Ayarlar::YazıBoyutu, YazıBoyutuSırası); },
             [] { AyarYaz(Ayarlar::ZeminRengi, ZeminRengiSırası); });
    accept();
}

void AyarlarFormu::İptalButonu_Click()
{
    reject();
}
