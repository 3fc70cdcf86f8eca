#include "forms/YazıcıSeçmeFormu.h"

#include "app/Görünüm.h"
#include "app/HataPolitikaları.h"
#include "app/OrtakDeğişkenlerModülü.h"
#include "controls/Etiketler.h"
#include "system/OrtakApilerModülü.h"
#include "system/ÇalışmaHatası.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QGridLayout>
#include <QShortcut>

namespace {

constexpr int KutuGenişliği = 4800; // twips
constexpr int DüğmeGenişliği = 1320;
constexpr int KenarBoşluğu = 180;

// These have no number in the table of texts.
const QString başlık = QStringLiteral("Yazıcı Seç");
const QString çerçeveYazısı = QStringLiteral("Yazıcı ");
const QString adYazısı = QStringLiteral("Yazıcı &Adı :");
const QString bağlantıYazısı = QStringLiteral("&Bağlantı Yeri :");
const QString tamamYazısı = QStringLiteral("Tamam");
const QString iptalYazısı = QStringLiteral("İptal (Esc)");

/// The caption as a screen reader should say it.
QString okunuş(QString yazı)
{
    return yazı.remove(u'&').remove(u':').trimmed();
}

} // namespace

YazıcıSeçmeFormu::YazıcıSeçmeFormu(const QList<Yazıcı>& yazıcılar, QWidget* sahip)
    : QDialog(sahip), yazıcılar_(yazıcılar)
{
    setObjectName(QStringLiteral("YazıcıSeçmeFormu"));
    setModal(true);
    setFont(FormYazıTipi());
    kontrolleriKur();
    yerleştir();
    olaylarıBağla();
    Form_Load();
}

void YazıcıSeçmeFormu::kontrolleriKur()
{
    setWindowTitle(başlık);
    Altlık.setObjectName(QStringLiteral("Altlık"));
    Altlık.setAutoFillBackground(true);
    Çerçeve.setObjectName(QStringLiteral("Çerçeve"));
    Çerçeve.setTitle(çerçeveYazısı);
    YazıcıAdlarıKutusu.setObjectName(QStringLiteral("YazıcıAdlarıKutusu"));
    YazıcıAdlarıKutusu.setMinimumWidth(FormPikseli(KutuGenişliği));
    BağlantıNoktasıKutusu.setObjectName(QStringLiteral("BağlantıNoktasıKutusu"));
    BağlantıNoktasıKutusu.setReadOnly(true);

    const auto etiketiKur = [this](std::size_t sıra, const QString& yazı, QWidget& kontrol) {
        EtiketiKur(Etiket[sıra], sıra, yazı);
        Etiket[sıra].setBuddy(&kontrol);
        kontrol.setAccessibleName(okunuş(yazı));
    };
    etiketiKur(0, adYazısı, YazıcıAdlarıKutusu);
    etiketiKur(1, bağlantıYazısı, BağlantıNoktasıKutusu);
    YazıcıAdlarıKutusu.view()->setAccessibleName(okunuş(adYazısı));

    TamamDüğmesi.setObjectName(QStringLiteral("TamamDüğmesi"));
    TamamDüğmesi.setText(tamamYazısı);
    TamamDüğmesi.setDefault(true);
    İptalDüğmesi.setObjectName(QStringLiteral("İptalDüğmesi"));
    İptalDüğmesi.setText(iptalYazısı);
    for (QPushButton* düğme : {&TamamDüğmesi, &İptalDüğmesi})
        düğme->setMinimumWidth(FormPikseli(DüğmeGenişliği));
}

void YazıcıSeçmeFormu::yerleştir()
{
    const int boşluk = FormPikseli(KenarBoşluğu);
    auto* kutular = new QGridLayout(&Çerçeve);
    kutular->setContentsMargins(boşluk, boşluk, boşluk, boşluk);
    kutular->addWidget(&Etiket[0], 0, 0);
    kutular->addWidget(&YazıcıAdlarıKutusu, 0, 1);
    kutular->addWidget(&Etiket[1], 1, 0);
    kutular->addWidget(&BağlantıNoktasıKutusu, 1, 1);

    auto* düğmeler = new QHBoxLayout;
    düğmeler->addStretch();
    düğmeler->addWidget(&TamamDüğmesi);
    düğmeler->addWidget(&İptalDüğmesi);

    auto* panel = new QVBoxLayout(&Altlık);
    panel->setContentsMargins(boşluk, boşluk, boşluk, boşluk);
    panel->addWidget(&Çerçeve);
    panel->addLayout(düğmeler);

    auto* pencere = new QVBoxLayout(this);
    pencere->setContentsMargins(0, 0, 0, 0);
    pencere->addWidget(&Altlık);
    pencere->setSizeConstraint(QLayout::SetFixedSize); // grows with its fonts only

    setTabOrder(&YazıcıAdlarıKutusu, &BağlantıNoktasıKutusu);
    setTabOrder(&BağlantıNoktasıKutusu, &TamamDüğmesi);
    setTabOrder(&TamamDüğmesi, &İptalDüğmesi);
    YazıcıAdlarıKutusu.setFocus();
}

void YazıcıSeçmeFormu::olaylarıBağla()
{
    connect(&TamamDüğmesi, &QPushButton::clicked, this, &YazıcıSeçmeFormu::TamamDüğmesi_Click);
    connect(&İptalDüğmesi, &QPushButton::clicked, this, &YazıcıSeçmeFormu::İptalDüğmesi_Click);
    // The dialog's own answer to Esc is that of the title bar.
    auto* esc = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    connect(esc, &QShortcut::activated, &İptalDüğmesi, &QPushButton::click);
}

void YazıcıSeçmeFormu::Form_Load()
{
    AdımAdım([this] { TürkçeKarakterKümesiUygula(*this); }, [this] { Altlık.setPalette(palette()); },
             [this] {
                 QStringList adlar;
                 for (const Yazıcı& yazıcı : yazıcılar_)
                     adlar.append(yazıcı.Ad);
                 YazıcıAdlarıKutusu.AddItems(adlar);
                 for (int i = 0; i < YazıcıAdlarıKutusu.ListCount(); ++i)
                     YazıcıAdlarıKutusu.ItemData(i, i);
             },
             [this] {
                 if (yazıcılar_.isEmpty()) // and asking for the current one would ask the print service again
                     return;
                 YazıcıAdlarıKutusu.ListIndex(-1); // the first was selected when it was added
                 YazıcıAdlarıKutusu.Click = [this] { YazıcıAdlarıKutusu_Click(); };
                 YazıcıAdlarıKutusu.Text(GeçerliYazıcı());
             },
             [this] { TamamDüğmesi.setEnabled(YazıcıAdlarıKutusu.ListIndex() >= 0); });
}

void YazıcıSeçmeFormu::YazıcıAdlarıKutusu_Click()
{
    AdımAdım([this] {
        const Yazıcı& yazıcı = seçiliYazıcı();
        TamamDüğmesi.setEnabled(true);
        YazıcıAdlarıKutusu.setToolTip(yazıcı.Ad);
        BağlantıNoktasıKutusu.Text(yazıcı.BağlantıNoktası);
        BağlantıNoktasıKutusu.setToolTip(yazıcı.BağlantıNoktası);
        BağlantıNoktasıKutusu.setCursorPosition(0);
    });
}

void YazıcıSeçmeFormu::TamamDüğmesi_Click()
{
    İlkHatadaBit([this] {
        GeçerliYazıcı(seçiliYazıcı().Ad);
        close();
        QCoreApplication::processEvents();
    });
}

void YazıcıSeçmeFormu::İptalDüğmesi_Click()
{
    AdımAdım([this] {
        YazdırmaİptalEdildi = true;
        close();
    });
}

const Yazıcı& YazıcıSeçmeFormu::seçiliYazıcı() const
{
    const int sıra = YazıcıAdlarıKutusu.ListIndex();
    if (sıra < 0)
        throw ÇalışmaHatası(ÇalışmaHataNo::GeçersizDizin, QStringLiteral("Seçili yazıcı yok."));
    return yazıcılar_.at(YazıcıAdlarıKutusu.ItemData(sıra));
}
