#include "controls/Düğme.h"

#include <QKeyEvent>
#include <QShortcutEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

Düğme::Düğme(QWidget* üst) : QPushButton(üst)
{
    setAutoDefault(false);
}

// Some styles leave a caption of medium length no room at its sides.
QSize Düğme::sizeHint() const
{
    return QPushButton::sizeHint() + QSize(2 * fontMetrics().averageCharWidth(), 0);
}

bool Düğme::event(QEvent* olay)
{
    if (olay->type() == QEvent::Shortcut && !static_cast<QShortcutEvent*>(olay)->isAmbiguous()) {
        setFocus(Qt::ShortcutFocusReason);
        const QWidget* odaklı = window()->focusWidget(); // in a window that need not be active yet again
        if (odaklı != this)
            return true;
    }
    return QPushButton::event(olay);
}

void Düğme::keyPressEvent(QKeyEvent* olay)
{
    if (olay->key() == Qt::Key_Return || olay->key() == Qt::Key_Enter)
        click();
    else
        QPushButton::keyPressEvent(olay);
}

void Düğme::paintEvent(QPaintEvent*)
{
    QStylePainter ressam(this);
    QStyleOptionButton seçenek;
    initStyleOption(&seçenek);
    const QString yazı = seçenek.text;
    seçenek.text.clear();
    ressam.drawControl(QStyle::CE_PushButton, seçenek);

    QRect yer = style()->subElementRect(QStyle::SE_PushButtonContents, &seçenek, this);
    if (seçenek.state & (QStyle::State_Sunken | QStyle::State_On))
        yer.translate(style()->pixelMetric(QStyle::PM_ButtonShiftHorizontal, &seçenek, this),
                      style()->pixelMetric(QStyle::PM_ButtonShiftVertical, &seçenek, this));
    const bool altÇizgi = style()->styleHint(QStyle::SH_UnderlineShortcut, &seçenek, this) != 0;
    style()->drawItemText(&ressam, yer,
                          Qt::AlignCenter | Qt::TextWordWrap |
                              (altÇizgi ? Qt::TextShowMnemonic : Qt::TextHideMnemonic),
                          seçenek.palette, isEnabled(), yazı, QPalette::ButtonText);
}
