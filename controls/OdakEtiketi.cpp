#include "controls/OdakEtiketi.h"

#include <QFocusEvent>
#include <QLineEdit>

void OdakEtiketi::Bağla(QWidget& kontrol, QLabel& etiket, Giriş giriş)
{
    bağlar_.insert(&kontrol, {&etiket, giriş});
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
            neden != Qt::MenuBarFocusReason)
            odakGitti();
    }
    return false;
}

void OdakEtiketi::odakGeldi(QWidget& kontrol)
{
    odakGitti();
    odaklı_ = &kontrol;
    const Bağ& bağ = bağlar_[&kontrol];
    QPalette palet = bağ.etiket->palette();
    palet.setColor(QPalette::Active, QPalette::WindowText, EkranRengi(OdakMavisi, palet));
    palet.setColor(QPalette::Inactive, QPalette::WindowText, EkranRengi(OdakMavisi, palet));
    bağ.etiket->setPalette(palet);
    if (bağ.giriş == Giriş::TümünüSeç) // after the press that brought the focus has placed the caret
        QMetaObject::invokeMethod(
            &kontrol, [&kontrol] { static_cast<QLineEdit&>(kontrol).selectAll(); }, Qt::QueuedConnection);
}

void OdakEtiketi::odakGitti()
{
    if (QWidget* kontrol = std::exchange(odaklı_, nullptr))
        bağlar_[kontrol].etiket->setPalette(QPalette());
}
