#include "controls/KöşeBildirimi.h"

#include "app/Görünüm.h"
#include "controls/ZenginMetinKutusu.h"

#include <QAccessibleWidget>
#include <QEvent>

namespace {

constexpr int KöşePayı = 90; // twips
constexpr int İçPay = 60;

// Screen readers say what a notification shows as soon as it shows it. The toolkit asks this for the
// interface of every object.
QAccessibleInterface* erişimKur(const QString&, QObject* nesne)
{
    auto* bildirim = dynamic_cast<KöşeBildirimi*>(nesne);
    return bildirim ? new QAccessibleWidget(bildirim, QAccessible::Notification) : nullptr;
}

} // namespace

// A child of the box, not of its viewport, whose children move along when it scrolls.
KöşeBildirimi::KöşeBildirimi(ZenginMetinKutusu& kutu) : QLabel(&kutu), kutu_(kutu)
{
    QAccessible::installFactory(&erişimKur); // once only, however often it is asked for
    setObjectName(QStringLiteral("KöşeBildirimi"));
    setTextFormat(Qt::PlainText);
    setFont(FormYazıTipi());
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setContentsMargins(QMargins(1, 1, 1, 1) * FormPikseli(İçPay));
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setAutoFillBackground(true);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    kutu.viewport()->installEventFilter(this);
    connect(&kutu, &QPlainTextEdit::textChanged, this, &QWidget::hide);
    connect(&kutu, &QPlainTextEdit::selectionChanged, this, &QWidget::hide);
    connect(&kutu, &QPlainTextEdit::cursorPositionChanged, this, &QWidget::hide);
}

void KöşeBildirimi::Göster(const QString& yazı)
{
    const bool yeniden = isVisible();
    setText(yazı);
    setAccessibleName(yazı);
    adjustSize();
    yerleş();
    raise();
    show();
    if (yeniden) { // else showing it has told so
        QAccessibleEvent göründü(this, QAccessible::ObjectShow);
        QAccessible::updateAccessibility(&göründü);
    }
}

void KöşeBildirimi::yerleş()
{
    const int pay = FormPikseli(KöşePayı);
    const QRect alan = kutu_.viewport()->geometry().adjusted(pay, pay, -pay, -pay);
    QRect yer(QPoint(alan.right() - width() + 1, alan.top()), size());
    const QRect satır = kutu_.cursorRect().translated(kutu_.viewport()->pos());
    if (satır.top() <= yer.bottom())
        yer.moveBottom(alan.bottom());
    setGeometry(yer);
}

bool KöşeBildirimi::eventFilter(QObject*, QEvent* olay)
{
    if (olay->type() == QEvent::Resize)
        yerleş();
    return false;
}
