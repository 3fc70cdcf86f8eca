#include "controls/OdakEtiketi.h"

#include "app/HataPolitikaları.h"

#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QLineEdit>
#include <QMenuBar>

namespace {

QLineEdit& yazıKutusu(QWidget& kontrol)
{
    const auto* liste = qobject_cast<QComboBox*>(&kontrol);
    return liste ? *liste->lineEdit() : static_cast<QLineEdit&>(kontrol);
}

} // namespace

OdakEtiketi::OdakEtiketi()
{
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget*, QWidget* kontrol) { odakDeğişti(kontrol); });
}

void OdakEtiketi::Bağla(QWidget& kontrol, QLabel& etiket, Giriş giriş, std::function<void()> çıkış)
{
    bağlar_.insert(&kontrol, {&etiket, giriş, std::move(çıkış)});
    pencere_ = kontrol.window();
    pencere_->installEventFilter(this);
}

bool OdakEtiketi::eventFilter(QObject*, QEvent* olay)
{
    if (olay->type() == QEvent::WindowBlocked)
        boya(Ton::Olağan);
    else if (olay->type() == QEvent::WindowUnblocked)
        boya(Ton::Mavi);
    return false;
}

// Once the window is back, the focus may be elsewhere than it was when it went.
void OdakEtiketi::odakDeğişti(QWidget* kontrol)
{
    if (!kontrol || kontrol->window() != pencere_ || kontrol == odaklı_ || qobject_cast<QMenuBar*>(kontrol))
        return;
    Ayrıl();
    if (bağlar_.contains(kontrol))
        odakGeldi(*kontrol);
}

void OdakEtiketi::odakGeldi(QWidget& kontrol)
{
    odaklı_ = &kontrol;
    boya(Ton::Mavi);
    if (bağlar_[&kontrol].giriş ==
        Giriş::TümünüSeç) // after the press that brought the focus has placed the caret
        QMetaObject::invokeMethod(
            &kontrol, [&kontrol] { yazıKutusu(kontrol).selectAll(); }, Qt::QueuedConnection);
}

void OdakEtiketi::boya(Ton ton)
{
    if (!odaklı_)
        return;
    QLabel& etiket = *bağlar_[odaklı_].etiket;
    QPalette palet;
    if (ton == Ton::Mavi) {
        palet = etiket.palette();
        const QColor mavi = OkunurTon(EkranRengi(OdakMavisi, palet), palet.color(QPalette::Window));
        palet.setColor(QPalette::Active, QPalette::WindowText, mavi);
        palet.setColor(QPalette::Inactive, QPalette::WindowText, mavi);
    }
    etiket.setPalette(palet);
}

void OdakEtiketi::Ayrıl()
{
    boya(Ton::Olağan);
    QWidget* kontrol = std::exchange(odaklı_, nullptr);
    if (kontrol && bağlar_[kontrol].çıkış)
        AdımAdım(bağlar_[kontrol].çıkış);
}
