// Opens every window at the desktop's font and scale, and measures it: sizes_driver POINTS
// Prints "ok WINDOW ..." or "FAIL WINDOW ..." for each. To be run under a window manager.
#include "program_fixture.h"

#include "app/Dil.h"
#include "app/Görünüm.h"
#include "app/Metinler.h"
#include "app/PencereYeri.h"
#include "app/İletiKutusu.h"
#include "forms/Yardım.h"
#include "forms/YazıcıSeçmeFormu.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QStyleOptionButton>
#include <QTest>
#include <QWindow>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// What of a label's or a button's text doesn't fit; empty for nothing.
QString cut(const QWidget& control)
{
    if (const auto* label = qobject_cast<const QLabel*>(&control)) {
        if (!label->pixmap(Qt::ReturnByValue).isNull() || label->text().trimmed().isEmpty())
            return {};
        const bool fits = label->wordWrap() ? label->heightForWidth(label->width()) <= label->height()
                                            : label->sizeHint().width() <= label->width();
        return fits && label->fontMetrics().height() <= label->height() ? QString() : label->text();
    }
    if (const auto* button = qobject_cast<const QPushButton*>(&control)) {
        QStyleOptionButton option;
        option.initFrom(button);
        const QRect inside = button->style()->subElementRect(QStyle::SE_PushButtonContents, &option, button);
        const int icon = button->icon().isNull() ? 0 : button->iconSize().width();
        const QRect text = button->fontMetrics().boundingRect(
            QRect(0, 0, inside.width() - icon, 10'000),
            int(Qt::AlignCenter) | Qt::TextWordWrap | Qt::TextShowMnemonic, button->text());
        const bool fits = text.width() + icon <= inside.width() && text.height() <= button->height();
        return fits ? QString() : button->text();
    }
    const bool low =
        qobject_cast<const QLineEdit*>(&control) && control.fontMetrics().height() > control.height();
    return low ? control.objectName() : QString();
}

QStringList faults(const QWidget& window)
{
    QStringList found;
    const QRect frame = ÇerçeveliYer(window), screen = window.screen()->availableGeometry();
    if (!screen.adjusted(-1, -1, 1, 1).contains(frame)) // a fraction of a pixel is rounded
        found.append(u"outside the screen: %1x%2+%3+%4 of %5x%6"_s.arg(frame.width())
                         .arg(frame.height())
                         .arg(frame.x())
                         .arg(frame.y())
                         .arg(screen.width())
                         .arg(screen.height()));
    const auto controls = window.findChildren<QWidget*>();
    for (const QWidget* control : controls) {
        if (!control->isVisible() || control->window() != &window)
            continue;
        if (const QString text = cut(*control); !text.isEmpty())
            found.append(u"cut: %1"_s.arg(text));
        if (qobject_cast<const QAbstractButton*>(control) || qobject_cast<const QLabel*>(control)) {
            const QRect place(control->mapTo(&window, QPoint()), control->size());
            if (!window.rect().contains(place))
                found.append(u"outside its window: %1"_s.arg(control->objectName()));
        }
    }
    return found;
}

void measure(const QWidget& window, const QString& name)
{
    QTest::qWait(500); // until the frame is around it and the window has come to rest
    const QStringList found = faults(window);
    const QString state = u"%1 (%2x%3)"_s.arg(name).arg(window.width()).arg(window.height());
    std::printf("%s %s%s\n", found.isEmpty() ? "ok" : "FAIL", qUtf8Printable(state),
                found.isEmpty() ? "" : qUtf8Printable(u": "_s + found.join(u"; ")));
}

void measureOpened(const QString& name, const std::function<void()>& open)
{
    if (!PencereAç(open, [&name](QDialog& window) { measure(window, name); }))
        std::printf("FAIL %s: not opened\n", qUtf8Printable(name));
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QFont font = QApplication::font();
    font.setPointSizeF(QCoreApplication::arguments().value(1).toDouble());
    DiliKur();
    FormÖlçüsünüKur(font, {AnaForm::EnAzGenişlik, AnaForm::EnAzYükseklik});
    QApplication::setFont(FormYazıTipi());
    const PencereYerleştirici placing(application);
    const Yardım help(application);

    AnaFormDenemesi t({{u"ALİ KAYA"_s, u"ARI"_s, u"Arı çiçekten bal yapar."_s, u"Rize"_s, u"1999"_s}});
    t.Göster();
    t.Form->showNormal();
    t.Form->resize(t.Form->minimumSize());
    measure(*t.Form, u"AnaForm, smallest"_s);
    t.Form->showMaximized();
    measure(*t.Form, u"AnaForm, largest"_s);
    Yardım::DiziniAç();
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == u"YardımFormu"_s)
            measure(*window, window->objectName());
    }
    Yardım::Kapat();
    t.Form->activateWindow();
    t.Makaleler().ListIndex(0);
    for (const QString& name :
         {u"MakaleEkleMenüsü"_s, u"MakeleDeğiştirMenüsü"_s, u"MakaleSilMenüsü"_s, u"ReferansOluşturMenüsü"_s,
          u"AyarlarMenüsü1"_s, u"HatalarıBildirinMenüsü"_s, u"HakkındaMenüsü"_s})
        measureOpened(name, [&] {
            if (QAction* action = t.Form->findChild<QAction*>(name))
                action->trigger();
        });
    measureOpened(u"YazıcıSeçmeFormu"_s, [] {
        YazıcıSeçmeFormu({{u"Bir yazıcı"_s, u"usb://Yazan/Yazar"_s}}).exec();
    });
    measureOpened(u"message"_s, [] {
        İletiGöster(Metin(İleti::VeritabanıYok), İletiSimgesi::Kritik, İletiDüğmeleri::Tamam);
    });
    return 0;
}
