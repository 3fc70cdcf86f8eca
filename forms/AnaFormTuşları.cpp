// The main window's keys beside those that its captions underline.
#include "forms/AnaForm.h"

#include "app/Metinler.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QShortcut>

namespace {

constexpr auto Ctrl = Qt::ControlModifier;
constexpr auto CtrlShift = Qt::ControlModifier | Qt::ShiftModifier;

} // namespace

void AnaForm::tuşlarıBağla()
{
    const auto bağla = [this](const QKeySequence& tuş, auto iş) {
        auto* kısayol = new QShortcut(tuş, this);
        connect(kısayol, &QShortcut::activated, this, iş);
        return kısayol;
    };
    const auto birKez = [&bağla](const QKeySequence& tuş, auto iş) { // however long it is held
        bağla(tuş, iş)->setAutoRepeat(false);
    };
    bağla(Qt::Key_F3, [this] { yereGit(Yön::İleri); });
    bağla(Qt::ShiftModifier | Qt::Key_F3, [this] { yereGit(Yön::Geri); });
    birKez(Ctrl | Qt::Key_F, [this] {
        BulKutusu.setFocus(Qt::ShortcutFocusReason);
        BulKutusu.selectAll();
    });
    birKez(CtrlShift | Qt::Key_F, [this] { TümündeBulButonu.click(); });
    birKez(CtrlShift | Qt::Key_C, &AnaForm::kaynağıylaKopyala);
    birKez(CtrlShift | Qt::Key_R, &AnaForm::referansıTopla);
    birKez(Ctrl | Qt::Key_P, [this] { // of an empty text the menu does not open either
        if (!MakaleMetniKutusu.document()->isEmpty())
            YazdırMenüsü.trigger();
    });
    birKez(Qt::Key_F10, &AnaForm::menüÇubuğunaGit);
    birKez(Qt::ShiftModifier | Qt::Key_F10, &AnaForm::sağDüğmeMenüsünüAç);
}

// The menus show these keys beside their captions. What can't stand there is told by tips.
void AnaForm::menüTuşlarınıKur()
{
    MakaleEkleMenüsü.setShortcut(Ctrl | Qt::Key_N);
    MakeleDeğiştirMenüsü.setShortcut(Qt::Key_F2);
    MakaleSilMenüsü.setShortcut(Qt::Key_Delete);
    MakaleSilMenüsü.setShortcutContext(Qt::WidgetShortcut); // in the article list only
    MakaleListesi.addAction(&MakaleSilMenüsü);
    YazdırMenüsü.setShortcut(Ctrl | Qt::Key_P);
    YazdırMenüsü.setShortcutContext(Qt::WidgetShortcut); // shown only: the window's own key asks first
    for (QAction* öğe : {&MakaleEkleMenüsü, &MakeleDeğiştirMenüsü, &MakaleSilMenüsü})
        öğe->setAutoRepeat(false);

    BulKutusu.setToolTip(Metin(İleti::BulKutusuTuşları));
    TümündeBulButonu.setToolTip(Metin(İleti::TümMakalelerdeBulTuşu));
    KopyalaMenüsü.setToolTip(Metin(İleti::KaynağıylaKopyalaTuşu));
    ReferansOluşturMenüsü.setToolTip(Metin(İleti::ReferansToplaTuşu));
    for (QMenu* menü : {&MakaleMenüsü, &MakaleMetniMenüsü})
        menü->setToolTipsVisible(true);
}

// The menu bar listens to the Alt key alone, pressed and let go. The event itself adds that key to what is
// held.
void AnaForm::menüÇubuğunaGit()
{
    for (const QEvent::Type tür : {QEvent::ShortcutOverride, QEvent::KeyRelease}) {
        QKeyEvent alt(tür, Qt::Key_Alt, Qt::NoModifier);
        QCoreApplication::sendEvent(this, &alt);
    }
}

// The toolkit answers the menu key so, and that key only.
void AnaForm::sağDüğmeMenüsünüAç()
{
    QWidget* odaklı = QApplication::focusWidget();
    if (!odaklı)
        return;
    const QPoint yer = odaklı->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    QContextMenuEvent olay(QContextMenuEvent::Keyboard, yer, odaklı->mapToGlobal(yer));
    QCoreApplication::sendEvent(odaklı, &olay);
}
