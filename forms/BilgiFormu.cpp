#include "forms/BilgiFormu.h"

#include "app/Görünüm.h"
#include "app/HataPolitikaları.h"
#include "app/Metinler.h"
#include "system/OrtakApilerModülü.h"

#include <QMouseEvent>

namespace {

constexpr int İçBoşluk = 240; // twips

/// "MS Sans Serif" where there is one.
QFont bağlantıYazıTipi()
{
    QFont yazıTipi = FormYazıTipi();
    yazıTipi.setFamilies(QStringList(QStringLiteral("MS Sans Serif")) + yazıTipi.families());
    return yazıTipi;
}

} // namespace

BilgiFormu::BilgiFormu(const QString& ad, İleti başlık) : Altlık(this), ızgara(new QGridLayout(&Altlık))
{
    setObjectName(ad);
    setWindowTitle(Metin(başlık));
    setFont(FormYazıTipi());
    Altlık.setObjectName(QStringLiteral("Altlık"));
    const int boşluk = FormPikseli(İçBoşluk);
    ızgara->setContentsMargins(boşluk, boşluk, boşluk, boşluk);

    setMouseTracking(true);
    Altlık.setMouseTracking(true);
    Altlık.installEventFilter(this);
}

void BilgiFormu::bağlantıKur(WebEtiketi& bağlantı, const QString& ad, const QString& yazı,
                             const QString& adres)
{
    bağlantı.setObjectName(ad);
    bağlantı.Font(bağlantıYazıTipi());
    bağlantı.Caption(yazı);
    bağlantı.Url(adres);
    bağlantı.ForeColor(bağlantı.PasifRenk());
    bağlantı.MouseMove = [this, &bağlantı](qint16, qint16, float, float) { WebEtiketi_MouseMove(bağlantı); };
    bağlantılar_.append(&bağlantı);
}

void BilgiFormu::bitir(Düğme& kapat, const QString& ad)
{
    kapat.setObjectName(ad);
    kapat.setText(Metin(İleti::Tamam));
    kapat.setDefault(true);
    // Pointing at a picture or a text is pointing at the panel.
    for (QLabel* etiket : Altlık.findChildren<QLabel*>(Qt::FindDirectChildrenOnly))
        etiket->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto* düzen = new QVBoxLayout(this);
    düzen->addWidget(&Altlık);
    düzen->addWidget(&kapat, 0, Qt::AlignRight);
    düzen->setSizeConstraint(QLayout::SetFixedSize);
    TürkçeKarakterKümesiUygula(*this);
    kapat.setFocus();
}

void BilgiFormu::WebEtiketi_MouseMove(WebEtiketi& bağlantı)
{
    Altlık_MouseMove(); // the pointer may have come straight from another link
    if (bağlantı.RenkDeğiştir())
        bağlantı.ForeColor(bağlantı.AktifRenk());
    else
        bağlantı.FontUnderline(true);
}

void BilgiFormu::Altlık_MouseMove()
{
    for (WebEtiketi* bağlantı : bağlantılar_) {
        bağlantı->FontUnderline(false);
        bağlantı->ForeColor(bağlantı->PasifRenk());
    }
}

bool BilgiFormu::eventFilter(QObject* nesne, QEvent* olay)
{
    if (nesne == &Altlık && olay->type() == QEvent::MouseMove)
        İlkHatadaBit([this] { Altlık_MouseMove(); });
    return QDialog::eventFilter(nesne, olay);
}

void BilgiFormu::mouseMoveEvent(QMouseEvent* olay)
{
    İlkHatadaBit([this] { Altlık_MouseMove(); });
    QDialog::mouseMoveEvent(olay);
}

void BilgiFormu::leaveEvent(QEvent* olay)
{
    İlkHatadaBit([this] { Altlık_MouseMove(); });
    QDialog::leaveEvent(olay);
}
