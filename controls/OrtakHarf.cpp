#include "controls/OrtakHarf.h"

#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QShortcutEvent>

OrtakHarf::OrtakHarf(QMenuBar& çubuk, QAction& öğe, QLabel& etiket, QWidget& kontrol)
    : QObject(&çubuk), öğe_(öğe), kontrol_(kontrol)
{
    for (QWidget* izlenen : std::initializer_list<QWidget*>{&çubuk, &etiket, &kontrol_})
        izlenen->installEventFilter(this);
}

bool OrtakHarf::eventFilter(QObject* nesne, QEvent* olay)
{
    if (olay->type() == QEvent::Shortcut) {
        const auto& kısayol = static_cast<const QShortcutEvent&>(*olay);
        if (!kısayol.isAmbiguous() || kısayol.key() != QKeySequence::mnemonic(öğe_.text()))
            return false;
        if (geldi_ && öğe_.isEnabled()) {
            geldi_ = false;
            öğe_.trigger();
        } else {
            kontrol_.setFocus(Qt::ShortcutFocusReason);
            geldi_ = true;
        }
        return true;
    }
    if (nesne == &kontrol_) {
        const bool başkaTuş =
            olay->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(olay)->key() != Qt::Key_Alt;
        if (başkaTuş || olay->type() == QEvent::FocusOut)
            geldi_ = false;
    }
    return false;
}
