#include "controls/AyrılışDenetimi.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QScopedValueRollback>
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

AyrılışDenetimi::AyrılışDenetimi(QLineEdit& kutu, std::function<bool()> uygun, std::function<bool()> sor)
    : kutu_(kutu), uygun_(std::move(uygun)), sor_(std::move(sor))
{
    QCoreApplication::instance()->installEventFilter(this);
    connect(&kutu_, &QLineEdit::textEdited, this, [this] { izinli_ = false; });
}

bool AyrılışDenetimi::odakta() const
{
    return kutu_.window()->focusWidget() == &kutu_;
}

AyrılışDenetimi::Karar AyrılışDenetimi::karar()
{
    if (soruluyor_)
        return Karar::Kalsın;
    if (izinli_ || uygun_())
        return Karar::Serbest;
    const QScopedValueRollback soru(soruluyor_, true);
    izinli_ = sor_();
    return izinli_ ? Karar::Onaylı : Karar::Kalsın;
}

bool AyrılışDenetimi::OdağıVer(QWidget& hedef)
{
    if (soruluyor_ || ((odakta() || içeride_) && karar() == Karar::Kalsın))
        return false;
    hedef.setFocus();
    return true;
}

bool AyrılışDenetimi::eventFilter(QObject* nesne, QEvent* olay)
{
    auto* kontrol = qobject_cast<QWidget*>(nesne);
    const QWidget* pencere = kutu_.window();
    switch (olay->type()) {
    case QEvent::FocusIn:
        return kontrol && kontrol->window() == pencere && gidişiTut(*kontrol);
    case QEvent::MouseButtonPress: // on its way to the control, which would get the focus before the press
        return kutu_.hasFocus() && nesne == pencere->windowHandle() &&
               basışıTut(*static_cast<QMouseEvent*>(olay));
    case QEvent::KeyPress: {
        const int tuş = static_cast<QKeyEvent*>(olay)->key();
        return nesne == &kutu_ && (tuş == Qt::Key_Tab || tuş == Qt::Key_Backtab) && odakta() &&
               karar() == Karar::Kalsın;
    }
    case QEvent::Shortcut: {
        const auto* etiket = qobject_cast<QLabel*>(nesne);
        const bool buraya = etiket && etiket->buddy() == &kutu_;
        return kontrol && kontrol->window() == pencere && !buraya && odakta() && karar() == Karar::Kalsın;
    }
    default:
        return false;
    }
}

bool AyrılışDenetimi::gidişiTut(QWidget& hedef)
{
    if (&hedef == &kutu_) {
        içeride_ = true;
        izinli_ = false;
        return false;
    }
    if (!içeride_)
        return false;
    if (!kutu_.isEnabled() || izinli_ || uygun_()) {
        içeride_ = false;
        return false;
    }
    kutu_.setFocus();
    // Not from within the change of the focus: a message box changes it, too.
    QMetaObject::invokeMethod(
        this,
        [this, yer = QPointer<QWidget>(&hedef)] {
            if (yer)
                OdağıVer(*yer);
        },
        Qt::QueuedConnection);
    return true;
}

bool AyrılışDenetimi::basışıTut(const QMouseEvent& olay)
{
    QWidget* basılan = kutu_.window()->childAt(olay.position().toPoint());
    QWidget* hedef = odakAlan(basılan);
    if (!hedef || hedef == &kutu_)
        return false;
    switch (karar()) {
    case Karar::Serbest:
        return false;
    case Karar::Onaylı: // the button of the mouse was let go meanwhile: what it pressed follows here
        hedef->setFocus(Qt::MouseFocusReason);
        if (olay.button() != Qt::LeftButton)
            return true;
        if (auto* düğme = qobject_cast<QAbstractButton*>(hedef))
            düğme->click();
        else if (auto* liste =
                     qobject_cast<QComboBox*>(basılan)) // its arrow: the field is a control of its own
            liste->showPopup();
        return true;
    case Karar::Kalsın:
        break;
    }
    return true;
}
