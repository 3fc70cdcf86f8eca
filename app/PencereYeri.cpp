#include "app/PencereYeri.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QMargins>
#include <QScopedValueRollback>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include <cmath>

namespace {

QMargins çerçeve(const QWidget& pencere)
{
    const QWindow* yerli = pencere.windowHandle();
    return yerli && yerli->isVisible() ? yerli->frameMargins() : QMargins();
}

/// The frame of another window of the program: most likely one like it is to come.
QMargins beklenenÇerçeve()
{
    const auto pencereler = QApplication::topLevelWidgets();
    for (const QWidget* pencere : pencereler) {
        if (const QMargins kenarlar = çerçeve(*pencere); !kenarlar.isNull())
            return kenarlar;
    }
    return {};
}

QScreen& ekranı(const QWidget& pencere)
{
    const QWidget* yakını = pencere.parentWidget() ? pencere.parentWidget() : QApplication::activeWindow();
    return yakını ? *yakını->screen() : *QGuiApplication::primaryScreen();
}

constexpr int Oturma = 300; // ms in which a window comes to rest
constexpr int EnÇokDüzeltme = 8;

/// Sees to one window's place until a moment after its frame is known, then ends: what the system tells while
/// it puts the frame around may move the window once more.
class ÇerçeveBekleyen : public QObject
{
public:
    ÇerçeveBekleyen(QWidget& pencere, std::function<QPoint(const QSize&)> yer)
        : QObject(&pencere), pencere_(pencere), yer_(std::move(yer)), kenarlar_(beklenenÇerçeve())
    {
        setObjectName(QStringLiteral("ÇerçeveBekleyen"));
        pencere.installEventFilter(this);
        koy();
    }

protected:
    bool eventFilter(QObject*, QEvent* olay) override
    {
        switch (olay->type()) {
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::Paint:
        case QEvent::WindowActivate:
            düzelt();
            break;
        default:
            break;
        }
        return false;
    }

private:
    // While the frame is put around the window, the system tells sizes and frames that are neither's.
    void düzelt()
    {
        if (koyuyor_)
            return;
        if (!pencere_.windowHandle() || !pencere_.windowHandle()->isVisible()) {
            koy(); // it grew on its way to the screen
            return;
        }
        const QMargins gerçek = çerçeve(pencere_);
        const QSize sapma = pencere_.size() - boy_; // a fraction is rounded where the screen is scaled
        if (gerçek.isNull() || std::max(std::abs(sapma.width()), std::abs(sapma.height())) > 1)
            return;
        const bool değişti = gerçek != std::exchange(kenarlar_, gerçek);
        // A window manager may have a place of its own for the window: that is its right.
        if ((değişti || uzakta()) && düzeltme_++ < EnÇokDüzeltme)
            koy();
        if (!std::exchange(belli_, true))
            QTimer::singleShot(Oturma, this, &QObject::deleteLater);
    }

    bool uzakta() const
    {
        const QPoint fark = pencere_.geometry().topLeft() - konum_;
        return fark.manhattanLength() > 2;
    }

    void koy()
    {
        const QScopedValueRollback koyuyor(koyuyor_, true);
        const QSize pay(kenarlar_.left() + kenarlar_.right(), kenarlar_.top() + kenarlar_.bottom());
        const int kesir = pencere_.devicePixelRatioF() > 1 ? 1 : 0; // what rounding may add
        const QSize boy =
            pencere_.size().boundedTo(pencere_.screen()->availableSize() - pay - QSize(kesir, kesir));
        konum_ = yer_(boy + pay) + QPoint(kenarlar_.left(), kenarlar_.top());
        pencere_.setGeometry(QRect(konum_, boy));
        boy_ = pencere_.size();
    }

    QWidget& pencere_;
    std::function<QPoint(const QSize&)> yer_;
    QMargins kenarlar_;
    QSize boy_;
    QPoint konum_;       // of the inner part
    bool belli_ = false; // the frame is known
    int düzeltme_ = 0;
    bool koyuyor_ = false;
};

/// Has the system keep the window over the one that is up: under Wayland no program can put its windows
/// anywhere.
void yakınınınYap(const QWidget& pencere)
{
    if (const QWidget* yakını = QApplication::activeWindow(); yakını && pencere.windowHandle())
        pencere.windowHandle()->setTransientParent(yakını->windowHandle());
}

QPoint içeride(const QPoint& yer, const QSize& boy, const QRect& alan)
{
    const auto eksende = [](int konum, int uzunluk, int baş, int boyut) {
        return std::max(std::min(konum, baş + boyut - uzunluk), baş);
    };
    return {eksende(yer.x(), boy.width(), alan.x(), alan.width()),
            eksende(yer.y(), boy.height(), alan.y(), alan.height())};
}

} // namespace

QPoint OrtalıYer(const QRect& üst, const QSize& kutu)
{
    const auto orta = [](int başlangıç, int uzunluk, int boy) {
        return static_cast<int>(std::nearbyint(başlangıç + uzunluk / 2.0 - boy / 2.0));
    };
    return {orta(üst.x(), üst.width(), kutu.width()), orta(üst.y(), üst.height(), kutu.height())};
}

QRect ÇerçeveliYer(const QWidget& pencere)
{
    return pencere.geometry().marginsAdded(çerçeve(pencere));
}

void PencereyiKoy(QWidget& pencere, std::function<QPoint(const QSize&)> yer)
{
    new ÇerçeveBekleyen(pencere, std::move(yer)); // the window's
}

PencereYerleştirici::PencereYerleştirici(QCoreApplication& uygulama)
{
    uygulama.installEventFilter(this);
}

bool PencereYerleştirici::eventFilter(QObject* nesne, QEvent* olay)
{
    if (olay->type() == QEvent::Show && !olay->spontaneous()) {
        if (auto* pencere = dynamic_cast<QDialog*>(nesne)) {
            QScreen& ekran = ekranı(*pencere);
            pencere->setScreen(&ekran);
            const QWidget* sahip = pencere->parentWidget();
            if (!sahip && QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
                yakınınınYap(*pencere);
            const QRect üst = sahip ? ÇerçeveliYer(*sahip->window()) : ekran.geometry();
            PencereyiKoy(*pencere, [üst, alan = ekran.availableVirtualGeometry()](const QSize& boy) {
                return içeride(OrtalıYer(üst, boy), boy, alan);
            });
        }
    }
    return QObject::eventFilter(nesne, olay);
}
