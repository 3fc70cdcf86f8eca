#include "forms/YardımFormu.h"

#include "app/Görünüm.h"
#include "app/Metinler.h"
#include "controls/Duyuru.h"
#include "controls/Etiketler.h"
#include "system/OrtakApilerModülü.h"
#include "text/TürkçeHarfler.h"

#include <QFile>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QScreen>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTimer>
#include <QToolButton>
#include <QWindow>

#include <algorithm>

static void kaynaklarıBağla()
{
    Q_INIT_RESOURCE(kilavuz); // must stand outside any namespace
}

namespace {

constexpr int OlağanGenişlik = 14400; // twips
constexpr int OlağanYükseklik = 10200;
constexpr int SolGenişlik = 4200;
constexpr int BulGenişliği = 1500; // at least
constexpr double MetinBoyu = 10;   // points

const QString kılavuzKlasörü = QStringLiteral(":/belgenar/");

QString kılavuzMetni()
{
    kaynaklarıBağla();
    QFile dosya(kılavuzKlasörü + QStringLiteral("kılavuz.md"));
    if (!dosya.open(QIODevice::ReadOnly))
        qFatal("The user's guide is missing");
    return QString::fromUtf8(dosya.readAll());
}

} // namespace

YardımFormu::YardımFormu() : kılavuz_(kılavuzMetni())
{
    setObjectName(QStringLiteral("YardımFormu"));
    setWindowTitle(Metin(İleti::KılavuzBaşlığı));
    setFont(FormYazıTipi());
    kontrolleriKur();
    yerleştir();
    TürkçeKarakterKümesiUygula(*this);
    KılavuzKutusu.setFont(FormYazıTipi(MetinBoyu));
    KılavuzKutusu.Yükle(kılavuzMetni(), kılavuzKlasörü);
    içindekileriDoldur();
    DizinKutusu_Change();
    olaylarıBağla();
    resize(QSize(FormPikseli(OlağanGenişlik), FormPikseli(OlağanYükseklik))
               .boundedTo(screen()->availableSize() * 0.9));
}

void YardımFormu::kontrolleriKur()
{
    const auto adlandır = [](QWidget& kontrol, const QString& ad, const QString& ipucu = {}) {
        kontrol.setObjectName(ad);
        kontrol.setToolTip(ipucu);
    };
    adlandır(Sayfalar, QStringLiteral("Sayfalar"));
    adlandır(İçindekilerAğacı, QStringLiteral("İçindekilerAğacı"));
    adlandır(DizinKutusu, QStringLiteral("DizinKutusu"));
    adlandır(DizinListesi, QStringLiteral("DizinListesi"));
    adlandır(BulKutusu, QStringLiteral("BulKutusu"), Metin(İleti::KılavuzdaBulİpucu));
    adlandır(GeriButonu, QStringLiteral("GeriButonu"), Metin(İleti::Geriİpucu));
    adlandır(İleriButonu, QStringLiteral("İleriButonu"), Metin(İleti::İleriİpucu));
    adlandır(SonrakiButonu, QStringLiteral("SonrakiButonu"), Metin(İleti::SonrakiYerİpucu));
    adlandır(KılavuzKutusu, QStringLiteral("KılavuzKutusu"));

    EtiketiKur(Etiket[0], 0, İleti::Bul, BulKutusu);
    EtiketiKur(Etiket[1], 1, İleti::AranacakTerim, DizinKutusu);
    EtiketiKur(Etiket[2], 2, QString());
    GeriButonu.setText(Metin(İleti::Geri));
    İleriButonu.setText(Metin(İleti::İleri));
    SonrakiButonu.setText(Metin(İleti::SonrakiYer));
    İçindekilerAğacı.setAccessibleName(SadeMetin(İleti::İçindekilerMenüsü));
    DizinListesi.setAccessibleName(SadeMetin(İleti::DizinMenüsü));
    KılavuzKutusu.setAccessibleName(SadeMetin(İleti::KılavuzBaşlığı));

    İçindekilerAğacı.setHeaderHidden(true);
    Sayfalar.setAccessibleName(QStringLiteral("Konular"));
    for (QLineEdit* kutu : {&DizinKutusu, &BulKutusu}) {
        kutu->setClearButtonEnabled(true);
        kutu->findChild<QToolButton*>()->setAccessibleName(SadeMetin(İleti::Temizle));
    }
    düğmeleriAyarla();
}

// Contents and index on the left; the text with what moves about in it on the right.
void YardımFormu::yerleştir()
{
    auto* dizin = new QVBoxLayout(&dizinSayfası_);
    dizin->addWidget(&Etiket[1]);
    dizin->addWidget(&DizinKutusu);
    dizin->addWidget(&DizinListesi);
    Sayfalar.setUsesScrollButtons(false);
    Sayfalar.addTab(&İçindekilerAğacı, SadeMetin(İleti::İçindekilerMenüsü));
    Sayfalar.addTab(&dizinSayfası_, SadeMetin(İleti::DizinMenüsü));

    auto* üst = new QHBoxLayout;
    üst->addWidget(&GeriButonu);
    üst->addWidget(&İleriButonu);
    üst->addStretch(1);
    üst->addWidget(&Etiket[2]);
    üst->addWidget(&Etiket[0]);
    BulKutusu.setMinimumWidth(FormPikseli(BulGenişliği));
    üst->addWidget(&BulKutusu, 1);
    üst->addWidget(&SonrakiButonu);

    auto* sağ = new QWidget;
    auto* metin = new QVBoxLayout(sağ);
    metin->setContentsMargins({});
    metin->addLayout(üst);
    metin->addWidget(&KılavuzKutusu);

    Bölme.addWidget(&Sayfalar);
    Bölme.addWidget(sağ);
    Bölme.setStretchFactor(1, 1);
    Bölme.setChildrenCollapsible(false);
    Bölme.setSizes({FormPikseli(SolGenişlik), FormPikseli(OlağanGenişlik - SolGenişlik)});
    auto* bütün = new QHBoxLayout(this);
    bütün->addWidget(&Bölme);
}

void YardımFormu::olaylarıBağla()
{
    connect(&İçindekilerAğacı, &QTreeWidget::currentItemChanged, this, &YardımFormu::İçindekilerAğacı_Click);
    connect(&İçindekilerAğacı, &QTreeWidget::itemClicked, this, &YardımFormu::İçindekilerAğacı_Click);
    DizinKutusu.Change = [this] { DizinKutusu_Change(); };
    DizinListesi.Click = [this] { DizinListesi_Click(); };
    BulKutusu.Change = [this] { BulKutusu_Change(); };
    connect(&GeriButonu, &QPushButton::clicked, this, &YardımFormu::GeriButonu_Click);
    connect(&İleriButonu, &QPushButton::clicked, this, &YardımFormu::İleriButonu_Click);
    connect(&SonrakiButonu, &QPushButton::clicked, this, [this] { sonrakiniBul(1); });
    KılavuzKutusu.Bağlantı = [this](const QString& çapa) {
        if (const int bölüm = kılavuz_.BölümBul(çapa); bölüm >= 0)
            git(KılavuzKutusu.BaşlıkYeri(bölüm));
    };
    KılavuzKutusu.Kaydı = [this] { bölümüİşaretle(); };
    connect(&BulKutusu, &QLineEdit::returnPressed, this, [this] { sonrakiniBul(1); });
    connect(&DizinKutusu, &QLineEdit::returnPressed, this, [this] { DizinListesi.ListIndex(0); });

    kısayol(Qt::Key_Escape, [this] { close(); });
    kısayol(Qt::CTRL | Qt::Key_F, [this] {
        BulKutusu.setFocus();
        BulKutusu.selectAll();
    });
    kısayol(Qt::Key_F3, [this] { sonrakiniBul(1); });
    kısayol(Qt::SHIFT | Qt::Key_F3, [this] { sonrakiniBul(-1); });
    kısayol(Qt::ALT | Qt::Key_Left, [this] { GeriButonu_Click(); });
    kısayol(Qt::ALT | Qt::Key_Right, [this] { İleriButonu_Click(); });
}

void YardımFormu::kısayol(const QKeySequence& tuş, std::function<void()> iş)
{
    connect(new QShortcut(tuş, this), &QShortcut::activated, this, std::move(iş));
}

void YardımFormu::içindekileriDoldur()
{
    QList<QTreeWidgetItem*> üstler; // the last one of each level
    for (const Kılavuz::Bölüm& bölüm : kılavuz_.Bölümler()) {
        üstler.resize(std::min<qsizetype>(bölüm.Düzey - 1, üstler.size()));
        auto* dal = new QTreeWidgetItem({bölüm.Başlık});
        dal->setToolTip(0, bölüm.Başlık); // the column may be too narrow for it
        if (üstler.size() > 1)
            üstler.last()->addChild(dal);
        else
            İçindekilerAğacı.addTopLevelItem(dal);
        üstler.append(dal);
        dallar_.append(dal);
    }
}

void YardımFormu::İçindekilerAğacı_Click()
{
    const auto sıra = static_cast<int>(dallar_.indexOf(İçindekilerAğacı.currentItem()));
    if (sıra >= 0)
        git(KılavuzKutusu.BaşlıkYeri(sıra));
}

QString YardımFormu::terimYazısı(const Kılavuz::Terim& terim) const
{
    if (!terim.Ek.isEmpty())
        return terim.Yazı + QStringLiteral(": ") + terim.Ek;
    const auto birçokYerde = [&terim](const Kılavuz::Terim& başka) {
        return başka.Bölüm != terim.Bölüm && Katla(başka.Yazı) == Katla(terim.Yazı);
    };
    return std::any_of(kılavuz_.Terimler().begin(), kılavuz_.Terimler().end(), birçokYerde)
               ? QStringLiteral("%1 (%2)").arg(terim.Yazı, kılavuz_.Bölümler()[terim.Bölüm].Başlık)
               : terim.Yazı;
}

void YardımFormu::DizinKutusu_Change()
{
    const QString aranan = Katla(DizinKutusu.KırpıkText());
    QStringList yazılar;
    dizin_.clear();
    for (int i = 0; i < kılavuz_.Terimler().size(); ++i) {
        const Kılavuz::Terim& terim = kılavuz_.Terimler()[i];
        if (!Katla(terim.Yazı + u' ' + terim.Ek).contains(aranan))
            continue;
        yazılar.append(terimYazısı(terim));
        dizin_.append(i);
    }
    DizinListesi.Clear();
    DizinListesi.AddItems(yazılar);
}

void YardımFormu::DizinListesi_Click()
{
    terimeGit(kılavuz_.Terimler()[dizin_.value(DizinListesi.ListIndex())]);
}

// The first place at or below what is seen, else the first of all.
void YardımFormu::BulKutusu_Change()
{
    bulunanlar_ = KılavuzKutusu.Bul(BulKutusu.Text());
    const int baş = KılavuzKutusu.textCursor().selectionStart();
    bulunanSırası_ = std::lower_bound(bulunanlar_.begin(), bulunanlar_.end(), baş) - bulunanlar_.begin() - 1;
    sonrakiniBul(1);
}

void YardımFormu::sonrakiniBul(int adım)
{
    SonrakiButonu.setEnabled(!bulunanlar_.isEmpty());
    if (bulunanlar_.isEmpty()) {
        bulunanıSöyle(BulKutusu.Text().isEmpty() ? QString() : Metin(İleti::KılavuzdaYok));
        return;
    }
    const qsizetype sayı = bulunanlar_.size();
    bulunanSırası_ = ((bulunanSırası_ + adım) % sayı + sayı) % sayı;
    bulunanıSöyle(QStringLiteral("%1 / %2").arg(bulunanSırası_ + 1).arg(sayı));
    KılavuzKutusu.Git(bulunanlar_[bulunanSırası_], static_cast<int>(BulKutusu.Text().size()));
}

void YardımFormu::bulunanıSöyle(const QString& yazı)
{
    Etiket[2].setText(yazı);
    if (!yazı.isEmpty())
        Duyur(yazı);
}

void YardımFormu::git(int yer, int uzunluk)
{
    if (geçmişSırası_ >= 0)
        geçmiş_[geçmişSırası_] = KılavuzKutusu.ÜsttekiYer();
    geçmiş_.resize(++geçmişSırası_);
    KılavuzKutusu.Git(yer, uzunluk);
    geçmiş_.append(KılavuzKutusu.ÜsttekiYer());
    düğmeleriAyarla();
}

void YardımFormu::terimeGit(const Kılavuz::Terim& terim)
{
    const int yer = KılavuzKutusu.BölümdeBul(terim.Bölüm, terim.Yazı);
    const bool başlıkta = yer == KılavuzKutusu.BaşlıkYeri(terim.Bölüm);
    git(yer, başlıkta ? 0 : static_cast<int>(terim.Yazı.size()));
}

void YardımFormu::geçmişteGit(int adım)
{
    if (geçmişSırası_ + adım < 0 || geçmişSırası_ + adım >= geçmiş_.size())
        return;
    geçmiş_[geçmişSırası_] = KılavuzKutusu.ÜsttekiYer();
    geçmişSırası_ += adım;
    KılavuzKutusu.Git(geçmiş_[geçmişSırası_]);
    düğmeleriAyarla();
}

void YardımFormu::düğmeleriAyarla()
{
    GeriButonu.setEnabled(geçmişSırası_ > 0);
    İleriButonu.setEnabled(geçmişSırası_ + 1 < geçmiş_.size());
    SonrakiButonu.setEnabled(!bulunanlar_.isEmpty());
}

void YardımFormu::bölümüİşaretle()
{
    const QSignalBlocker sessiz(İçindekilerAğacı);
    İçindekilerAğacı.setCurrentItem(dallar_.value(KılavuzKutusu.ÜsttekiBaşlık()));
}

void YardımFormu::İçindekileriGöster()
{
    Sayfalar.setCurrentIndex(0);
    İçindekilerAğacı.setFocus();
    aç();
    if (geçmişSırası_ < 0)
        git(0);
}

void YardımFormu::DiziniGöster()
{
    Sayfalar.setCurrentIndex(1);
    DizinKutusu.setFocus();
    DizinKutusu.selectAll();
    aç();
    if (geçmişSırası_ < 0)
        git(0);
}

void YardımFormu::BölümüGöster(int bölüm)
{
    Sayfalar.setCurrentIndex(0);
    İçindekilerAğacı.setFocus();
    aç();
    git(KılavuzKutusu.BaşlıkYeri(bölüm));
}

void YardımFormu::TerimiGöster(const Kılavuz::Terim& terim)
{
    Sayfalar.setCurrentIndex(0);
    İçindekilerAğacı.setFocus();
    aç();
    terimeGit(terim);
}

void YardımFormu::aç()
{
    create();
    engeleBağlan();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

// A window that is modal to the application shuts out all others but those that belong to it.
void YardımFormu::engeleBağlan()
{
    QWindow* pencere = windowHandle();
    QWindow* engel = QGuiApplication::modalWindow();
    if (pencere->transientParent() == engel)
        return;
    if (engel && pencere->isAncestorOf(engel, QWindow::IncludeTransients))
        return; // the box stands over the help itself
    pencere->setTransientParent(engel);
    if (engel)
        connect(engel, &QWindow::visibleChanged, this, [this] {
            QTimer::singleShot(0, this, [this] { engeleBağlan(); }); // once the next one is known
        });
}

bool YardımFormu::event(QEvent* olay)
{
    if (olay->type() == QEvent::WindowBlocked)
        engeleBağlan();
    return QWidget::event(olay);
}
