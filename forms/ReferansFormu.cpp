#include "forms/ReferansFormu.h"

#include "app/HataPolitikaları.h"
#include "app/Metinler.h"
#include "app/OrtakDeğişkenlerModülü.h"
#include "app/WordAktarımı.h"
#include "system/OrtakApilerModülü.h"
#include "text/TürkçeHarfler.h"

#include <QClipboard>
#include <QGridLayout>
#include <QGuiApplication>
#include <QMimeData>

#include <memory>

namespace {

constexpr int OlağanGenişlik = 7800; // twips
constexpr int OlağanYükseklik = 2700;
constexpr int SimgeBoyu = 720;

} // namespace

ReferansFormu::ReferansFormu(const QString& başlık)
{
    setObjectName(QStringLiteral("ReferansFormu"));
    setFont(FormYazıTipi());
    kontrolleriKur();
    yerleştir();
    connect(&KopyalaButonu, &QPushButton::clicked, this, &ReferansFormu::KopyalaButonu_Click);
    connect(&WordeYapıştırButonu, &QPushButton::clicked, this, &ReferansFormu::WordeYapıştırButonu_Click);
    connect(&KapatButonu, &QPushButton::clicked, this, &ReferansFormu::KapatButonu_Click);
    TürkçeKarakterKümesiUygula(*this);
    resize(FormPikseli(OlağanGenişlik), FormPikseli(OlağanYükseklik));
    İlkHatadaBit([&] { Form_Load(başlık); });
}

void ReferansFormu::kontrolleriKur()
{
    setWindowTitle(Metin(İleti::ReferansBaşlığı));
    ReferansBilgisiKutusu.setObjectName(QStringLiteral("ReferansBilgisiKutusu"));
    ReferansBilgisiKutusu.setAccessibleName(SadeMetin(İleti::ReferansBaşlığı));
    ReferansBilgisiKutusu.YalnızOkunur();
    SimgeKutusu.setObjectName(QStringLiteral("SimgeKutusu"));
    SimgeKutusu.setPixmap(windowIcon().pixmap(FormPikseli(SimgeBoyu)));
    KopyalaButonu.setObjectName(QStringLiteral("KopyalaButonu"));
    KopyalaButonu.setText(Metin(İleti::Kopyala));
    WordeYapıştırButonu.setObjectName(QStringLiteral("WordeYapıştırButonu"));
    WordeYapıştırButonu.setText(Metin(İleti::WordeYapıştır));
    KapatButonu.setObjectName(QStringLiteral("KapatButonu"));
    KapatButonu.setText(Metin(İleti::Kapat));
}

void ReferansFormu::yerleştir()
{
    auto* ızgara = new QGridLayout(this);
    ızgara->addWidget(&SimgeKutusu, 0, 0, Qt::AlignTop);
    ızgara->addWidget(&ReferansBilgisiKutusu, 0, 1);
    auto* düğmeler = new QHBoxLayout;
    düğmeler->addStretch();
    düğmeler->addWidget(&KopyalaButonu);
    düğmeler->addWidget(&WordeYapıştırButonu);
    düğmeler->addWidget(&KapatButonu);
    ızgara->addLayout(düğmeler, 1, 0, 1, 2);
}

void ReferansFormu::Form_Load(const QString& başlık)
{
    ReferansBilgisiKutusu.Text(Referans(başlık));
}

QString ReferansFormu::Referans(const QString& başlık)
{
    Recordset kayıtlar = Veritabanı->OpenRecordset(
        QStringLiteral("SELECT * FROM [Makaleler] WHERE [MakaleBasligi]= '") + başlık + u'\'');
    Makale makale = Makale::KünyesiniOku(kayıtlar);
    makale.Başlık = başlık;
    return Referans(makale);
}

QString ReferansFormu::Referans(const Makale& makale)
{
    const qsizetype ayraç = makale.Yazar.lastIndexOf(u' ');
    const QString soyadı = TürkçeÖzelAd(makale.Yazar.mid(ayraç + 1));
    const QString adlar = ayraç < 0 ? QString() : TürkçeÖzelAd(makale.Yazar.left(ayraç)) + u' ';
    QString satır = adlar + soyadı + QStringLiteral(", \"") + TürkçeÖzelAd(makale.Başlık) +
                    QStringLiteral("\", ") + makale.Yer;
    if (!makale.Tarih.isEmpty())
        satır += QStringLiteral(", ") + makale.Tarih;
    return satır;
}

void ReferansFormu::KopyalaButonu_Click()
{
    İlkHatadaBit([this] { QGuiApplication::clipboard()->setText(ReferansBilgisiKutusu.Text()); });
}

void ReferansFormu::WordeYapıştırButonu_Click()
{
    İlkHatadaBit([this] {
        WordeAktar([this](WordBasic& word) {
            const QByteArray rtf = ReferansBilgisiKutusu.TextRTF();
            auto pano = std::make_unique<QMimeData>();
            pano->setText(ReferansBilgisiKutusu.Text());
            for (const QString& tür : {QStringLiteral("text/rtf"), QStringLiteral("application/rtf")})
                pano->setData(tür, rtf);
            QGuiApplication::clipboard()->setMimeData(pano.release());
            word.EditPaste();
        });
    });
}

void ReferansFormu::KapatButonu_Click()
{
    accept();
}
