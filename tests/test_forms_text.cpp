// The rich-text box, what is done with the shown text, and the window that composes a reference.
#include "program_fixture.h"

#include "document/RtfOkuyucu.h"
#include "forms/ReferansFormu.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QList<Makale> Örnek = {
    {u"ALİ RIZA IŞIK"_s, u"İNCE ÇİZGİ"_s, u"İlk\u00a0satır\n\tikinci"_s, u"İzmir"_s, u"01.02.2003"_s},
    {u"TEK-AD"_s, u"AD"_s, u"x"_s, u"Ankara"_s, u"Şubat 2003"_s},
    {u"ZEKİ SU"_s, u"TARİHSİZ"_s, u"y"_s, u"kuzey VAN"_s, u""_s},
};
const QString İlkReferans = u"Ali Rıza Işık, \"İnce Çizgi\", İzmir, 01.02.2003"_s;

} // namespace

class TestTextCommands : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        t.emplace(Örnek); // in place of the one before
        t->Göster();
    }
    void mouseAndKeys()
    {
        for (const bool selected : {false, true}) {
            t->Metin().Seç(1, selected);
            QCOMPARE(menuOn(t->Metin()), u"MakaleMetniMenüsü"_s);
            for (const QString& name : {u"KopyalaMenüsü"_s, u"WordeYapıştırMenüsü"_s})
                QCOMPARE(entry(name).isEnabled(), selected);
        }
        QCOMPARE(menuOn(t->Makaleler()), u"MakaleMenüsü"_s);
        t->Makaleler().ListIndex(-1);
        QTest::keySequence(&t->Makaleler(), QKeySequence::Copy); // there is nothing to copy
        QCOMPARE(menuOn(t->Makaleler()), QString());
        t->Metin().Text({});
        QCOMPARE(menuOn(t->Metin()), QString());
        QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, 120}, {}, Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(t->Metin().viewport(), &wheel);
        QCOMPARE(t->Metin().FontSize(), 11);
    }
    void selectAllAndCopy()
    {
        for (const bool byMenu : {true, false}) {
            entry(u"TümünüSeçMenüsü"_s).trigger();
            QCOMPARE(copied(byMenu), Örnek[0].Metin);
            t->Metin().Seç(4, 5);
            QCOMPARE(copied(byMenu), u"satır"_s);
        }
        QApplication::clipboard()->setText(u"önce"_s);
        t->Metin().Text({});
        entry(u"KopyalaMenüsü"_s).trigger(); // of an empty pane: the clipboard stays as it is
        QCOMPARE(QApplication::clipboard()->text(), u"önce"_s);
    }
    void copyWithSource()
    {
        const auto pressed = [&] {
            QTest::keySequence(&t->Metin(), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C));
            return QApplication::clipboard()->text();
        };
        QApplication::clipboard()->setText(u"önce"_s);
        QCOMPARE(pressed(), u"önce"_s); // nothing is selected
        t->Metin().Seç(4, 7);
        QCOMPARE(pressed(), u"satır\n\t\n"_s + İlkReferans);
        t->Makaleler().ListIndex(-1); // what is shown has no source now
        QApplication::clipboard()->setText(u"önce"_s);
        t->Metin().Seç(4, 5);
        QCOMPARE(pressed(), u"önce"_s);
    }
    void gatherReferences()
    {
        const QString second = u"Tek-ad, \"Ad\", Ankara, Şubat 2003"_s,
                      third = u"Zeki Su, \"Tarihsiz\", kuzey VAN"_s;
        const auto press = [&](int author) {
            t->Yazarlar().ListIndex(author);
            QTest::keySequence(&t->Yazarlar(), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_R));
            return QApplication::clipboard()->text().split(u'\n');
        };
        QApplication::clipboard()->setText(u"başka"_s);
        QCOMPARE(press(0), QStringList{İlkReferans}); // in its place
        QCOMPARE(press(1), QStringList({İlkReferans, second}));
        QCOMPARE(press(2), QStringList({İlkReferans, second, third}));
        QCOMPARE(t->Etiket(u"KöşeBildirimi"_s), u"3 referans panoda"_s);
        QCOMPARE(press(1), QStringList({İlkReferans, second, third}));    // is there already
        QApplication::clipboard()->setText(İlkReferans + u'\n' + second); // copied meanwhile: a new gathering
        QCOMPARE(press(2), QStringList{third});
        t->Makaleler().ListIndex(-1);
        QTest::keySequence(&t->Makaleler(), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_R));
        QCOMPARE(QApplication::clipboard()->text(), third);
    }
    void noPrinter()
    {
        qputenv("CUPS_SERVER", "/nonexistent/sock"); // this machine may have a printer
        KutuYanıtlayıcı box(KutuYanıtlayıcı::Yanıt::Tamam);
        entry(u"YazdırMenüsü"_s).trigger();
        QCOMPARE(box.Metin, u"Bilgisayarınızda yüklü bir YAZICI yok!\n\n"
                            u"Lütfen, bir yazıcı yükleyip tekrar deneyiniz."_s);
    }
    void wordProcessor()
    {
        QTemporaryDir folder;
        QFile program(folder.filePath(u"soffice"_s)); // a stand-in that keeps what it was given
        DosyaYaz(program.fileName(), "#!/bin/sh\ncp \"$3\" \"$0.rtf\"\n");
        program.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        qputenv("PATH", folder.path().toUtf8() + ':' + qgetenv("PATH"));
        const auto given = [&] { return DosyaOku(program.fileName() + u".rtf"_s); };
        t->Metin().Seç(4, 5);
        entry(u"WordeYapıştırMenüsü"_s).trigger();
        QTRY_COMPARE_WITH_TIMEOUT(RtfOku(given()).Metin.trimmed(), u"satır"_s, 60000);
        ReferansFormu(Örnek[0].Başlık).findChild<QPushButton*>(u"WordeYapıştırButonu"_s)->click();
        QTRY_COMPARE_WITH_TIMEOUT(RtfOku(given()).Metin.trimmed(), İlkReferans, 60000);
        QCOMPARE(QApplication::clipboard()->mimeData()->data(u"text/rtf"_s), given());
        QCOMPARE(RtfOku(given()).Parçalar.value(0).Biçim.YarımNokta, 18);
    }
    void references()
    {
        QCOMPARE(ReferansFormu::Referans({u"ALİ  IŞIK"_s, u"\"X\" VE 2.SINIF"_s, {}, u"a"_s, u"b"_s}),
                 u"Ali Işık, \"\"x\" Ve 2.sınıf\", a, b"_s);
        for (const auto& [title, line] :
             {std::pair(Örnek[0].Başlık, İlkReferans),
              std::pair(u"TARİHSİZ"_s, u"Zeki Su, \"Tarihsiz\", kuzey VAN"_s), // the place stays as stored
              std::pair(u"AD"_s, u"Tek-ad, \"Ad\", Ankara, Şubat 2003"_s), std::pair(u"O'NEIL"_s, u""_s),
              std::pair(u"YOK"_s, u""_s)}) {
            ReferansFormu window(title);
            QCOMPARE(window.windowTitle(), u"Referans Bilgisi Oluşturma..."_s);
            window.findChild<QPushButton*>(u"KopyalaButonu"_s)->click();
            QCOMPARE(QApplication::clipboard()->text(), line);
        }
    }
    void changesWhileScrolled()
    {
        const QString lines = u"Deniz kıyısında bir satır\n"_s.repeated(60);
        const QString letters = u' ' + u"uzun "_s.repeated(20000);
        for (const auto& [before, after] : {std::pair(lines, lines), std::pair(letters, u"iki sözcük"_s)}) {
            const auto box = scrolled(before);
            box->Değiştir({after, {{1, 3, {}}}});
            QCOMPARE(box->Text(), after);
            QCOMPARE(box->SelStart() + box->verticalScrollBar()->value(), 0);
            QVERIFY(!box->textCursor().charFormat().hasProperty(QTextFormat::FontWeight));
            box->undo();
            QCOMPARE(box->Text(), before);
        }
        const auto box = scrolled(lines);
        auto* data = new QMimeData;
        data->setHtml(u"<b>kalın</b>"_s); // as a browser gives it beside its text
        data->setText(lines.trimmed());
        QApplication::clipboard()->setMimeData(data);
        box->paste();
        QTest::keyClick(box.get(), Qt::Key_Tab); // goes on, and types nothing
        QCOMPARE(box->Text(), lines.trimmed() + lines);
        QVERIFY(box->viewport()->rect().contains(box->cursorRect()));
        QVERIFY(!box->textCursor().charFormat().hasProperty(QTextFormat::FontWeight));
        box->İşaretle({30, 60}, 3);
        QCOMPARE(box->SelStart(), 60);
    }

private:
    QAction& entry(const QString& name) { return *t->Form->findChild<QAction*>(name); }
    /// Which menu the right button brings up on a widget, "" for none; closes it.
    static QString menuOn(QAbstractScrollArea& widget)
    {
        QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5},
                                widget.viewport()->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(widget.viewport(), &event);
        QWidget* menu = QApplication::activePopupWidget();
        return menu && menu->close() ? menu->objectName() : QString();
    }
    QString copied(bool byMenu)
    {
        QApplication::clipboard()->clear();
        byMenu ? entry(u"KopyalaMenüsü"_s).trigger() : QTest::keySequence(&t->Metin(), QKeySequence::Copy);
        const QMimeData* data = QApplication::clipboard()->mimeData();
        return data->formats() == QStringList{u"text/plain"_s} ? data->text() : u"not just text"_s;
    }
    std::unique_ptr<ZenginMetinKutusu> scrolled(const QString& text)
    {
        auto box = std::make_unique<ZenginMetinKutusu>(&*t->Form);
        box->resize(300, 200);
        box->setUndoRedoEnabled(true);
        box->show();
        box->Değiştir({text, {{0, int(text.size()), {.Kalın = true, .YazıTipi = {}}}}});
        box->verticalScrollBar()->setValue(box->verticalScrollBar()->maximum());
        return box;
    }

    std::optional<AnaFormDenemesi> t;
};

QTEST_MAIN(TestTextCommands)
#include "test_forms_text.moc"
