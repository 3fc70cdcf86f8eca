// What is done with the shown text, and the window that composes a reference.
#include "DenemeProgramı.h"

#include "app/OrtakDeğişkenlerModülü.h"
#include "controls/RtfOkuyucu.h"
#include "forms/ReferansFormu.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using Yanıt = KutuYanıtlayıcı::Yanıt;

namespace {

const QList<Makale> Örnek = {
    {u"ALİ RIZA IŞIK"_s, u"İNCE ÇİZGİ"_s, u"İlk\u00a0satır\n\tikinci"_s, u"İzmir"_s, u"01.02.2003"_s},
    {u"TEKAD"_s, u"O'NEIL"_s, u"x"_s},
    {u"ZEKİ SU"_s, u"TARİHSİZ"_s, u"y"_s, u"Van"_s, u""_s},
};

} // namespace

class TestTextCommands : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        t = std::make_unique<AnaFormDenemesi>(Örnek);
        t->Göster();
    }
    void cleanup() { t.reset(); }
    void popups();
    void selectAllAndCopy();
    void noPrinter();
    void noWordProcessor();
    void references_data();
    void references();
    void referenceWindow();
    void changesWhileScrolled_data();
    void changesWhileScrolled();
    void wheelWithControl();

private:
    QAction& entry(const QString& name) { return *t->Form->findChild<QAction*>(name); }
    /// Which menu the right button brings up on a widget, "" for none; closes it.
    static QString menuOn(QAbstractScrollArea& widget)
    {
        QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5},
                                widget.viewport()->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(widget.viewport(), &event);
        QWidget* menu = QApplication::activePopupWidget();
        const QString name = menu ? menu->objectName() : QString();
        if (menu)
            menu->close();
        return name;
    }

    std::unique_ptr<AnaFormDenemesi> t;
};

void TestTextCommands::popups()
{
    const auto enabled = [&] {
        return QList({entry(u"TümünüSeçMenüsü"_s).isEnabled(), entry(u"KopyalaMenüsü"_s).isEnabled(),
                      entry(u"YazdırMenüsü"_s).isEnabled(), entry(u"WordeYapıştırMenüsü"_s).isEnabled()});
    };
    QCOMPARE(menuOn(t->Metin()), u"MakaleMetniMenüsü"_s);
    QCOMPARE(enabled(), QList({true, false, true, false}));
    t->Metin().Seç(1, 2);
    QCOMPARE(menuOn(t->Metin()), u"MakaleMetniMenüsü"_s);
    QCOMPARE(enabled(), QList({true, true, true, true}));
    QCOMPARE(menuOn(t->Makaleler()), u"MakaleMenüsü"_s);
    t->Makaleler().ListIndex(-1);
    QCOMPARE(menuOn(t->Makaleler()), QString());
    t->Metin().Text({});
    QCOMPARE(menuOn(t->Metin()), QString());
}

void TestTextCommands::selectAllAndCopy()
{
    entry(u"TümünüSeçMenüsü"_s).trigger();
    entry(u"KopyalaMenüsü"_s).trigger();
    QCOMPARE(QApplication::clipboard()->mimeData()->formats(), QStringList{u"text/plain"_s});
    QCOMPARE(QApplication::clipboard()->text(), Örnek[0].Metin);
    t->Metin().Seç(3, 7);
    QTest::keySequence(&t->Metin(), QKeySequence::Copy);
    QCOMPARE(QApplication::clipboard()->mimeData()->formats(), QStringList{u"text/plain"_s});
    QCOMPARE(QApplication::clipboard()->text(), Örnek[0].Metin.mid(3, 7));
}

void TestTextCommands::noPrinter()
{
    qputenv("CUPS_SERVER", "/nonexistent/sock"); // this machine may have a printer
    KutuYanıtlayıcı box(Yanıt::Tamam);
    entry(u"YazdırMenüsü"_s).trigger();
    QCOMPARE(box.Metin, u"Bilgisayarınızda yüklü bir YAZICI yok!\n\n"
                        u"Lütfen, bir yazıcı yükleyip tekrar deneyiniz."_s);
}

void TestTextCommands::noWordProcessor()
{
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QTemporaryDir().path().toUtf8());
    KutuYanıtlayıcı box(Yanıt::Tamam);
    entry(u"WordeYapıştırMenüsü"_s).trigger();
    qputenv("PATH", path);
    QCOMPARE(box.Metin, u"Bilgisayarınızda \"Microsoft Word\" kurulu olmadığı için işlem yapılamıyor!"_s);
}

void TestTextCommands::references_data()
{
    QTest::addColumn<QString>("author");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("line");
    QTest::newRow("names") << u"ALİ RIZA IŞIK"_s << u"İNCE ÇİZGİ"_s << u"Şubat 2003"_s
                           << u"Ali Rıza Işık, \"İnce Çizgi\", Bursa, Şubat 2003"_s;
    QTest::newRow("no date") << u"ALİ IŞIK"_s << u"A"_s << u""_s << u"Ali Işık, \"A\", Bursa"_s;
    QTest::newRow("one word") << u"IŞIK"_s << u"A"_s << u""_s << u"Işık, \"A\", Bursa"_s;
    QTest::newRow("two blanks") << u"ALİ  IŞIK"_s << u"A"_s << u"1"_s << u"Ali Işık, \"A\", Bursa, 1"_s;
    QTest::newRow("quotes, hyphen") << u"A B-C"_s << u"\"X\" VE 2.SINIF"_s << u""_s
                                    << u"A B-c, \"\"x\" Ve 2.sınıf\", Bursa"_s;
    QTest::newRow("nothing") << u""_s << u""_s << u""_s << u", \"\", Bursa"_s;
}

void TestTextCommands::references()
{
    QFETCH(QString, author);
    QFETCH(QString, title);
    QFETCH(QString, date);
    QTEST(ReferansFormu::Referans(author, title, u"Bursa"_s, date), "line");
}

void TestTextCommands::referenceWindow()
{
    const auto field = [](ReferansFormu& window) {
        return static_cast<ZenginMetinKutusu*>(window.findChild<QWidget*>(u"ReferansBilgisiKutusu"_s));
    };
    ReferansFormu form(u"İNCE ÇİZGİ"_s);
    QCOMPARE(form.windowTitle(), u"Referans Bilgisi Oluşturma..."_s);
    form.findChild<QPushButton*>(u"KopyalaButonu"_s)->click();
    QCOMPARE(QApplication::clipboard()->text(), u"Ali Rıza Işık, \"İnce Çizgi\", İzmir, 01.02.2003"_s);
    for (const QString& title : {u"O'NEIL"_s, u""_s, u"YOK"_s}) { // the query fails, or finds nothing
        ReferansFormu empty(title);
        QCOMPARE(field(empty)->Text(), QString());
    }
    const BiçimliMetin read = RtfOku(field(form)->TextRTF());
    QCOMPARE(read.Metin.trimmed(), u"Ali Rıza Işık, \"İnce Çizgi\", İzmir, 01.02.2003"_s);
    QCOMPARE(read.Parçalar.value(0).Biçim.YarımNokta, 18);
    ReferansFormu noDate(u"TARİHSİZ"_s);
    QCOMPARE(field(noDate)->Text(), u"Zeki Su, \"Tarihsiz\", Van"_s);
}

void TestTextCommands::changesWhileScrolled_data()
{
    using Box = ZenginMetinKutusu;
    QTest::addColumn<QString>("before");
    QTest::addColumn<std::function<void(Box&)>>("change");
    QTest::addColumn<QString>("after");
    QTest::addColumn<bool>("caretShown");
    const auto row = [](const char* name, const QString& before, const std::function<void(Box&)>& change,
                        const QString& after,
                        bool caretShown) { QTest::newRow(name) << before << change << after << caretShown; };
    const auto replace = [](const QString& text) {
        return [text](Box& box) {
            box.Değiştir({text, {{0, 4, {.Kalın = true, .YazıTipi = {}}}}});
            QCOMPARE(box.SelStart(), 0);
        };
    };
    const QString lines = u"Deniz kıyısında bir satır\n"_s.repeated(60);
    const QString letters = u"uzun "_s.repeated(20000);
    row("replaced", lines, replace(lines), lines, true);
    row("replaced by little", letters, replace(u"iki sözcük"_s), u"iki sözcük"_s, true);
    row(
        "made plain", u' ' + letters, [](Box& box) { box.DüzMetneİndir(); }, letters.chopped(1), false);
    row(
        "pasted", lines,
        [lines](Box& box) {
            QApplication::clipboard()->setText(lines);
            box.paste();
        },
        lines + lines, true);
    row(
        "dropped", lines, // before a line like its own
        [lines](Box& box) {
            QMimeData data;
            data.setText(lines);
            QDragEnterEvent enter({}, Qt::CopyAction, &data, Qt::LeftButton, {});
            QApplication::sendEvent(box.viewport(), &enter);
            QDropEvent drop({}, Qt::CopyAction, &data, Qt::LeftButton, {});
            QApplication::sendEvent(box.viewport(), &drop);
        },
        lines + lines, true);
}

void TestTextCommands::changesWhileScrolled()
{
    QFETCH(std::function<void(ZenginMetinKutusu&)>, change);
    QFETCH(QString, before);
    ZenginMetinKutusu box;
    box.setUndoRedoEnabled(true);
    box.resize(600, 200);
    box.show();
    box.Değiştir({before, {}});
    box.verticalScrollBar()->setValue(box.verticalScrollBar()->maximum());
    change(box);
    QTEST(box.Text(), "after");
    QTEST(box.viewport()->rect().intersects(box.cursorRect()), "caretShown");
    box.undo();
    QCOMPARE(box.Text(), before);
}

void TestTextCommands::wheelWithControl()
{
    const int size = t->Metin().FontSize();
    for (const int turn : {120, -120, -120}) {
        QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, turn}, {}, Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(t->Metin().viewport(), &wheel);
        QCOMPARE(t->Metin().FontSize(), size);
    }
}

QTEST_MAIN(TestTextCommands)
#include "test_forms_metin.moc"
