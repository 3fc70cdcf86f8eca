#include "controls/OdakEtiketi.h"

#include "app/HataPolitikaları.h"

#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QLineEdit>

namespace {

QLineEdit& yazıKutusu(QWidget& kontrol)
{
    const auto* liste = qobject_cast<QComboBox*>(&kontrol);
    return liste ? *liste->lineEdit() : static_cast<QLineEdit&>(kontrol);
}

} // namespace

void OdakEtiketi::Bağla(QWidget& kontrol, QLabel& etiket, Giriş giriş, std::function<void()> çıkış)
{
    bağlar_.insert(&kontrol, {&etiket, giriş, std::move(çıkış)});
    kontrol.installEventFilter(this);
}

bool OdakEtiketi::eventFilter(QObject* nesne, QEvent* olay)
{
    if (olay->type() == QEvent::FocusIn) {
        if (nesne != odaklı_) // else the window came back to the front
            odakGeldi(*static_cast<QWidget*>(nesne));
    } else if (olay->type() == QEvent::FocusOut && nesne == odaklı_) {
        const Qt::FocusReason neden = static_cast<QFocusEvent*>(olay)->reason();
        if (neden != Qt::ActiveWindowFocusReason && neden != Qt::PopupFocusReason &&
            neden != Qt::MenuBarFocusReason && !QApplication::activePopupWidget())
            Ayrıl();
    }
    return false;
}

void OdakEtiketi::odakGeldi(QWidget& kontrol)
{
    Ayrıl();
    odaklı_ = &kontrol;
    const Bağ& bağ = bağlar_[&kontrol];
    QPalette palet = bağ.etiket->palette();
    const QColor mavi = OkunurTon(EkranRengi(OdakMavisi, palet), palet.color(QPalette::Window));
    palet.setColor(QPalette::Active, QPalette::WindowText, mavi);
    palet.setColor(QPalette::Inactive, QPalette::WindowText, mavi);
    bağ.etiket->setPalette(palet);
    if (bağ.giriş == Giriş::TümünüSeç) // after the press that brought the focus has placed the caret
        QMetaObject::invokeMethod(
            &kontrol, [&kontrol] { yazıKutusu(kontrol).selectAll(); }, Qt::QueuedConnection);
}

void OdakEtiketi::Ayrıl()
{
    QWidget* kontrol = std::exchange(odaklı_, nullptr);
    if (!kontrol)
        return;
    const Bağ& bağ = bağlar_[kontrol];
    bağ.etiket->setPalette(QPalette());
    if (bağ.çıkış)
        AdımAdım(bağ.çıkış);
}
