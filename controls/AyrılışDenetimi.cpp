#include "controls/AyrılışDenetimi.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QWindow>

namespace {

/// The control that a press at this place gives the focus to; none where it stays.
QWidget* odakAlan(QWidget* kontrol)
{
    while (kontrol && !(kontrol->isEnabled() && kontrol->focusPolicy() & Qt::ClickFocus))
        kontrol = kontrol->isWindow() ? nullptr : kontrol->parentWidget();
    while (kontrol && kontrol->focusProxy())
        kontrol = kontrol->focusProxy();
    return kontrol;
}

} // namespace

AyrılışDenetimi::AyrılışDenetimi(QLineEdit& kutu, std::function<Karar()> sor)
    : kutu_(kutu), sor_(std::move(sor))
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool AyrılışDenetimi::eventFilter(QObject* nesne, QEvent* olay)
{
    if (!kutu_.hasFocus())
        return false;
    const QWidget* pencere = kutu_.window();
    switch (olay->type()) {
    case QEvent::MouseButtonPress: // on its way to the control, which would get the focus before the press
        return nesne == pencere->windowHandle() && basışıTut(*static_cast<QMouseEvent*>(olay));
    case QEvent::KeyPress: {
        const int tuş = static_cast<QKeyEvent*>(olay)->key();
        return nesne == &kutu_ && (tuş == Qt::Key_Tab || tuş == Qt::Key_Backtab) && sor_() == Karar::Kalsın;
    }
    case QEvent::Shortcut: {
        const auto* kontrol = qobject_cast<QWidget*>(nesne);
        const auto* etiket = qobject_cast<QLabel*>(nesne);
        const bool buraya = etiket && etiket->buddy() == &kutu_;
        return kontrol && kontrol->window() == pencere && !buraya && sor_() == Karar::Kalsın;
    }
    default:
        return false;
    }
}

bool AyrılışDenetimi::basışıTut(const QMouseEvent& olay)
{
    QWidget* hedef = odakAlan(kutu_.window()->childAt(olay.position().toPoint()));
    if (!hedef || hedef == &kutu_)
        return false;
    switch (sor_()) {
    case Karar::Serbest:
        return false;
    case Karar::Onaylı: // the button of the mouse was let go meanwhile: what it pressed follows here
        hedef->setFocus(Qt::MouseFocusReason);
        if (auto* düğme = qobject_cast<QAbstractButton*>(hedef); düğme && olay.button() == Qt::LeftButton)
            düğme->click();
        return true;
    case Karar::Kalsın:
        break;
    }
    return true;
}
