// Finding in the main window.
#include "program_fixture.h"

#include "app/Görünüm.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QTest>
#include <QTextBlock>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

const QList<Makale> Örnek = {
    {u"ALİ KAYA"_s, u"ZEYTİN"_s, u"Deniz kıyısında deniz, bir deniz var. İri taş\nsu deniz"_s},
    {u"ALİ KAYA"_s, u"ARI"_s, u"Arı çiçekten bal yapar."_s},
    {u"ALİ KAYAALP"_s, u"IŞIK"_s, u"IŞIK ve ışık ve ISIK. 100% [köşe"_s},
    {u"ALİ KAYA"_s, u"ÇAY"_s, u"İİİ 😀 e\u0301 deniz 😀 DENİZ son denizde"_s},
    {u"ZEKİ SU"_s, u"BOŞLUK"_s, u"a  bb bb bb c"_s},
};
const QStringList Kontroller = {u"YazarListesi"_s,    u"YazarBulKutusu"_s,    u"MakaleListesi"_s,
                                u"MakaleBulKutusu"_s, u"MakaleMetniKutusu"_s, u"BulKutusu"_s};

} // namespace

namespace {

QStringList bildirimler; // what screen readers are told without the focus being there

} // namespace

// Stand in for a desktop with a screen reader, which the offscreen platform has none of.
bool QAccessible::isActive()
{
    return true;
}
void QAccessible::updateAccessibility(QAccessibleEvent* event)
{
    const QAccessibleInterface* told = event->type() == ObjectShow ? event->accessibleInterface() : nullptr;
    if (told && told->role() == Notification)
        bildirimler.append(told->text(Name));
}

class TestFinding : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        t = std::make_unique<AnaFormDenemesi>(Örnek);
        t->Göster();
        QVERIFY(QTest::qWaitForWindowActive(t->Form.get(), BeklemeSınırı));
    }
    void cleanup() { t.reset(); }
    void listPrefix()
    {
        MetinKutusu& authors = box(u"YazarBulKutusu"_s);
        const auto typed = [&](const QString& text) {
            authors.Text({}); // which changes nothing
            Yaz(authors, text);
            const int count = t->Makaleler().ListCount();
            return u"%1 %2 %3 "_s.arg(t->Yazarlar().ListIndex()).arg(count).arg(t->Metin().Text().isEmpty()) +
                   t->Etiket(u"ToplamMakaleSayısıEtiketi"_s);
        };
        QCOMPARE(typed(u"zek"_s), u"2 1 0 Toplam: 1"_s);
        QCOMPARE(typed(u"ali kayaa"_s), u"1 1 0 Toplam: 1"_s);
        QCOMPARE(typed(u"alı"_s), u"-1 0 1 Toplam: 0"_s);     // dotless i is another letter
        QCOMPARE(typed(u"ali kaya"_s), u"0 3 0 Toplam: 3"_s); // begins two names: the first one
        QCOMPARE(typed({}), u"0 3 0 Toplam: 3"_s);
        // The title box only moves the selection.
        Yaz(box(u"MakaleBulKutusu"_s), u"z"_s);
        QCOMPARE(t->Makaleler().Text(), u"ZEYTİN"_s);
        Yaz(box(u"MakaleBulKutusu"_s), u"z"_s);
        QCOMPARE(t->Makaleler().ListIndex(), -1);
        QCOMPARE(titles(), QStringList({u"ARI"_s, u"ÇAY"_s, u"ZEYTİN"_s}));
    }
    void typedKeys()
    {
        for (const QString& name : {u"YazarBulKutusu"_s, u"MakaleBulKutusu"_s, u"BulKutusu"_s}) {
            const QString shown = name == u"BulKutusu"_s ? u"iışğüöçß´a1"_s : u"İIŞĞÜÖÇß´A1"_s;
            MetinKutusu& typed = box(name);
            Yaz(typed, u"iışğüöçß'a1"_s);
            QCOMPARE(typed.Text(), shown);
            QInputMethodEvent composed;
            composed.setCommitString(u"'"_s);
            QApplication::sendEvent(&typed, &composed);
            QCOMPARE(typed.Text(), shown + u'´');
        }
    }
    void focus()
    {
        word().Text(u"sözcük"_s);
        t->Yazarlar().setFocus();
        for (const QString& name : Kontroller) {
            QApplication::processEvents();
            QCOMPARE(QApplication::focusWidget()->objectName(), name);
            for (int i = 0; i < Kontroller.size(); ++i)
                QCOMPARE(t->Bul<QLabel>(u"Etiket%1"_s.arg(i)).palette().color(QPalette::WindowText) ==
                             EkranRengi(OdakMavisi, {}),
                         Kontroller[i] == name);
            if (name != Kontroller.last())
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); // goes on to the next one
        }
        QCOMPARE(word().selectedText(), u"sözcük"_s);
    }
    void marks()
    {
        QString text;
        const auto find = [&](int author, int article, const QString& sought) {
            t->Yazarlar().ListIndex(author);
            t->Makaleler().ListIndex(-1);
            t->Makaleler().ListIndex(article);
            text = t->Metin().Text();
            word().Text(sought);
            KutuYanıtlayıcı none(KutuYanıtlayıcı::Yanıt::Tamam);
            QTest::keyClick(&word(), Qt::Key_Return);
            return marked().join(u'|');
        };
        // ALİ KAYA: 0 ARI, 1 ÇAY, 2 ZEYTİN
        QCOMPARE(find(0, 2, u"denız"_s), u""_s);
        QCOMPARE(find(0, 2, u"a"_s), u""_s);
        QCOMPARE(find(0, 1, u"deniz"_s), u" deniz| DENİZ"_s); // behind emoji and marks
        QCOMPARE(find(0, 1, u"😀"_s), u" 😀| 😀"_s);
        QCOMPARE(find(2, 0, u"bb"_s), u" bb bb bb"_s); // neighbours share their blank
        QCOMPARE(find(0, 2, u"DENİZ"_s), u" deniz"_s); // only between two blanks
        QCOMPARE(t->Metin().Text(), text);
        QVERIFY(!t->Metin().textCursor().hasSelection());
        QCOMPARE(t->Metin().SelStart(), text.indexOf(u" deniz var"_s) + 1);
        // The next article is not coloured by the marks of this one, and clearing takes them away.
        t->Makaleler().ListIndex(0);
        QCOMPARE(marked(), QStringList());
        QCOMPARE(find(0, 2, u"deniz"_s), u" deniz"_s);
        press(u"TemizleButonu"_s);
        QCOMPARE(marked(), QStringList());
        QCOMPARE(t->Metin().Text() + word().Text(), text);
    }
    void places_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("sought");
        QTest::addColumn<QString>("keys"); // F3 for each +, Shift+F3 for each -, the find button for b
        QTest::addColumn<QString>("selected");
        QTest::addColumn<int>("start");
        QTest::addColumn<QString>("told");
        const auto row = [](const char* name, QStringView title, QStringView sought, const QString& keys,
                            const QString& selected, int start, const QString& told) {
            QTest::newRow(name) << title.toString() << sought.toString() << keys << selected << start << told;
        };
        row("first", u"ZEYTİN", u"deniz", u"+"_s, u"Deniz"_s, 0, u"1 / 4"_s);
        row("inside a word", u"ÇAY", u"deniz", u"+++"_s, u"deniz"_s, 28, u"3 / 3"_s);
        row("on over the end", u"ZEYTİN", u"deniz", u"+++++"_s, u"Deniz"_s, 0, u"1 / 4, baştan"_s);
        row("back over the beginning", u"ZEYTİN", u"deniz", u"+-"_s, u"deniz"_s, 49, u"4 / 4, sondan"_s);
        row("dotless", u"IŞIK", u"ışık", u"++"_s, u"ışık"_s, 8, u"2 / 2"_s);
        row("signs", u"ZEYTİN", u"k?y*taş", u"++"_s, u"taş"_s, 42, u"2 / 2"_s);
        row("the only one again", u"IŞIK", u"köşe", u"++"_s, u"köşe"_s, 28, u"1 / 1, baştan"_s);
        row("none", u"ZEYTİN", u"denız", u"+"_s, {}, 0, u"Yok"_s);
        row("short word", u"ZEYTİN", u"d", u"+"_s, {}, 0, {});
        row("no word", u"ZEYTİN", u"", u"+"_s, {}, 0, {});
        row("no article", u"", u"deniz", u"+"_s, {}, 0, u"Yok"_s);
        // Marking leaves the caret at its last mark; the reader sees the first one.
        row("behind marking", u"ÇAY", u"deniz", u"b+"_s, u"deniz"_s, 9, u"1 / 3"_s);
    }
    void places()
    {
        QFETCH(QString, title);
        QFETCH(QString, sought);
        QFETCH(QString, keys);
        t->Yazarlar().Text(title == u"IŞIK"_s ? u"ALİ KAYAALP"_s : u"ALİ KAYA"_s);
        t->Makaleler().Text(title);
        if (title.isEmpty())
            t->Metin().Text({});
        word().Text(sought);
        word().setFocus();
        const QString before = t->Metin().Text();
        QStringList marks;
        bildirimler.clear();
        for (const QChar key : keys) {
            if (key == u'b')
                (press(u"BulButonu"_s), marks = marked());
            else
                QTest::keyClick(&word(), Qt::Key_F3, key == u'+' ? Qt::NoModifier : Qt::ShiftModifier);
        }
        const auto& notice = t->Bul<QLabel>(u"KöşeBildirimi"_s);
        QTEST(notice.isVisible() ? notice.text() : QString(), "told");
        QTEST(bildirimler.value(bildirimler.size() - 1), "told"); // to a screen reader
        QTEST(t->Metin().SelText(), "selected");
        QTEST(t->Metin().SelStart(), "start");
        QVERIFY(word().hasFocus() && !QApplication::activeModalWidget());
        QCOMPARE(t->Metin().Text(), before);
        QCOMPARE(marked(), marks); // it only selects
        word().Text(u"başka"_s);
        QVERIFY(!notice.isVisible());
    }
    void placeIsSeen()
    {
        t->Metin().Text(u"satır\n"_s.repeated(500) + u"deniz\n"_s + u"satır\n"_s.repeated(500));
        word().Text(u"deniz"_s);
        QTest::keyClick(&word(), Qt::Key_F3);
        const QRect pane = t->Metin().viewport()->rect(), line = t->Metin().cursorRect();
        QVERIFY(qAbs(line.center().y() - pane.center().y()) <= 2 * line.height());
        t->Metin().Text(QString(30, u' ') + u"deniz"_s); // nothing to scroll: the notice makes room
        QTest::keyClick(&word(), Qt::Key_F3);
        const auto& notice = t->Bul<QLabel>(u"KöşeBildirimi"_s);
        QVERIFY(notice.isVisible());
        QVERIFY(!notice.geometry().intersects(
            t->Metin().cursorRect().adjusted(-pane.width(), 0, pane.width(), 0)));
    }
    void findInAll()
    {
        const auto finds = [&](const QString& sought, const QStringList& expected = {}) {
            seekAll(sought);
            const bool none = expected.isEmpty();
            QCOMPARE(titles(), expected);
            QCOMPARE(t->Etiket(u"Etiket5"_s),
                     none ? u"makale bulunamadı!"_s : u"%1 makale bulundu!"_s.arg(expected.size()));
            QCOMPARE(t->Metin().Text().isEmpty(), none);
            QVERIFY(none ? word().hasFocus() : t->Makaleler().hasFocus());
            QVERIFY(!on(u"Altlık"_s) && !on(u"YazarBulKutusu"_s) && !on(u"Etiket0"_s) && !on(u"Etiket1"_s));
            QVERIFY(on(u"ÇıkışButonu"_s) && !QApplication::overrideCursor());
            QCOMPARE(state(), u"01000"_s);
        };
        finds(u"DENİZ"_s, {u"ÇAY"_s, u"ZEYTİN"_s}); // inside words too
        finds(u"yoktur"_s);
        finds(u"ışık"_s, {u"IŞIK"_s});
        finds(u"çi?ek*bal"_s, {u"ARI"_s});
        finds(u"😀 deniz"_s, {u"ÇAY"_s});
    }
    void resultViewAndBack()
    {
        QCOMPARE(state(), u"00011"_s);
        seekAll(u"x"_s); // too short: nothing happens
        QVERIFY(on(u"Altlık"_s));
        QCOMPARE(state(), u"11100"_s);
        seekAll(u"ve"_s);
        QCOMPARE(t->Makaleler().Text(), u"IŞIK"_s);
        QCOMPARE(marked().size(), 2);
        QCOMPARE(t->Yazarlar().Text(), u"ALİ KAYAALP"_s);

        // The author of a title is looked up by beginning: the shorter name finds itself first.
        seekAll(u"deniz"_s);
        QCOMPARE(t->Yazarlar().Text(), u"ALİ KAYA"_s);
        QCOMPARE(titles().size(), 2); // the author click is inert here
        t->Makaleler().ListIndex(1);
        QCOMPARE(marked(), QStringList{u" deniz"_s});

        word().Text({}); // emptying by hand is the whole clear action
        QVERIFY(on(u"Altlık"_s) && on(u"YazarBulKutusu"_s) && on(u"Etiket0"_s) && word().hasFocus());
        QCOMPARE(t->Yazarlar().ListIndex(), -1);
        QCOMPARE(t->Metin().Text() + titles().join(u' '), QString());
        QCOMPARE(t->Etiket(u"ToplamMakaleSayısıEtiketi"_s), u"Toplam: 0"_s);
        QCOMPARE(t->Etiket(u"Etiket5"_s), u"Bulunacak Söz&cük"_s);
        QCOMPARE(state(), u"00011"_s);
    }
    void oddWords()
    {
        for (const QString& odd :
             {u"o'neil"_s, u"x' OR '1'='1"_s, QString(10000, u'a'), u"**"_s, u"[]"_s, u"[a-"_s,
              u"a\nb\r\nc"_s, u"ab"_s + QChar(u'\0') + u'c', QString(2, QChar(0xD83D))}) {
            KutuYanıtlayıcı notFound(KutuYanıtlayıcı::Yanıt::Tamam);
            word().Text(odd);
            press(u"BulButonu"_s);
            const int boxes = notFound.Sayı;
            seekAll(odd);
            QCOMPARE(notFound.Sayı, boxes);
            press(u"TemizleButonu"_s);
            QVERIFY(on(u"Altlık"_s) && on(u"ÇıkışButonu"_s) && !QApplication::overrideCursor());
            t->Yazarlar().ListIndex(0);
            QCOMPARE(titles().size(), 3);
        }
    }
    void inputDuringSearch()
    {
        Veritabanı->TekİşlemdeYap([] {
            QList<Makale> many;
            for (int i = 0; i < 3000; ++i)
                many.append({u"ÇOK YAZAR"_s, u"BAŞLIK %1"_s.arg(i), UzunMetin(i, 3000)});
            Ekle(*Veritabanı, many);
        });
        bool ended = false;
        QTimer clock;
        QObject::connect(&clock, &QTimer::timeout, &clock, [&] {
            if (std::exchange(ended, true))
                return;
            QVERIFY(QApplication::overrideCursor());
            QVERIFY(!on(u"ÇıkışButonu"_s));
            t->Form->Kapat(KapanışNedeni::GörevYöneticisi); // the system ends the program in the middle
        });
        word().Text(u'a' + QString(20, u'?') + u'#'); // slow on purpose: no letters to look for
        clock.start(5);
        press(u"TümündeBulButonu"_s);
        QVERIFY(ended && !Veritabanı && !QApplication::overrideCursor());
    }

    /// What a screen reader is told.
    void announced()
    {
        const auto told = [] { return bildirimler.isEmpty() ? QString() : bildirimler.takeLast(); };
        t->Yazarlar().ListIndex(0);
        t->Makaleler().ListIndex(2);
        word().setFocus();
        word().Text(u"deniz"_s);
        for (int i = 0; i < 2; ++i) { // also a second time
            press(u"BulButonu"_s);
            QCOMPARE(told(), u"1 yer işaretlendi"_s);
        }
        press(u"TümündeBulButonu"_s);
        QCOMPARE(QApplication::focusWidget(), &t->Makaleler());
        QCOMPARE(told(), u"2 makale bulundu!"_s);
        seekAll(u"xyzt"_s);
        QCOMPARE(told(), u"makale bulunamadı!"_s);
    }

    /// The contrast that WCAG 2.1 asks for, by its formula, on all six backgrounds and in a dark theme.
    void contrast_data()
    {
        QTest::addColumn<int>("background");
        QTest::addColumn<QColor>("face");
        for (int i = 0; i < 6; ++i) {
            QTest::addRow("%d, light", i) << i << QColor(0xef, 0xef, 0xef);
            QTest::addRow("%d, dark", i) << i << QColor(0x31, 0x36, 0x3b);
        }
    }
    void contrast()
    {
        QFETCH(int, background);
        QFETCH(QColor, face);
        const auto luminance = [](const QColor& colour) {
            const auto linear = [](double c) {
                return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
            };
            return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
                   0.0722 * linear(colour.blueF());
        };
        ZenginMetinKutusu pane;
        QPalette palette = pane.palette();
        palette.setColor(QPalette::Button, face);
        pane.setPalette(palette);
        pane.BackColor(ZeminRengi(qint16(background)));
        pane.Text(u"bir deniz var"_s);
        pane.İşaretle({3}, 6);
        QTextCursor cursor(pane.document());
        cursor.setPosition(6);
        const QTextCharFormat mark = cursor.charFormat();
        QCOMPARE(mark.foreground().color(), QColor(Qt::red));
        const QColor paper = pane.palette().color(QPalette::Base);
        const QColor ground = mark.background().style() == Qt::NoBrush ? paper : mark.background().color();
        const auto ratio = [&](const QColor& one, const QColor& two) {
            const auto [dark, light] = std::minmax({luminance(one), luminance(two)});
            return (light + 0.05) / (dark + 0.05);
        };
        qInfo("%s: red alone %.2f, on its ground %.2f", qPrintable(paper.name()), ratio(Qt::red, paper),
              ratio(Qt::red, ground));
        QVERIFY(ratio(Qt::red, ground) >= 4.5);
        cursor.setPosition(12);
        QCOMPARE(cursor.charFormat().background().style(), Qt::NoBrush);
    }

private:
    MetinKutusu& box(const QString& name) { return t->Bul<MetinKutusu>(name); }
    MetinKutusu& word() { return box(u"BulKutusu"_s); }
    bool on(const QString& name) { return t->Bul<QWidget>(name).isEnabled(); }
    void press(const QString& button) { t->Bul<QPushButton>(button).click(); }
    void seekAll(const QString& sought) { (word().Text(sought), press(u"TümündeBulButonu"_s)); }
    QStringList titles()
    {
        QStringList all;
        for (int i = 0; i < t->Makaleler().ListCount(); ++i)
            all.append(t->Makaleler().Item(i));
        return all;
    }
    /// The marked stretches of the shown text.
    QStringList marked()
    {
        QStringList found;
        int end = -1; // of the one before: its blank has no ground, and is a part of its own
        for (QTextBlock block = t->Metin().document()->begin(); block.isValid(); block = block.next()) {
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                const QTextCharFormat format = part.fragment().charFormat();
                if (format.foreground().color() != QColor(Qt::red) || format.fontWeight() != QFont::Bold)
                    continue;
                const QTextFragment fragment = part.fragment();
                if (fragment.position() == end)
                    found.last() += fragment.text();
                else
                    found.append(fragment.text());
                end = fragment.position() + fragment.length();
            }
        }
        return found;
    }
    /// Which of the find buttons are on, then which of the two ways to the settings.
    QString state()
    {
        QString all;
        for (const QString& name : {u"BulButonu"_s, u"TemizleButonu"_s, u"TümündeBulButonu"_s})
            all += QString::number(on(name));
        for (const QString& name : {u"AyarlarMenüsü"_s, u"AyarlarMenüsü1"_s})
            all += QString::number(t->Form->findChild<QAction*>(name)->isEnabled());
        return all;
    }

    std::unique_ptr<AnaFormDenemesi> t;
};

QTEST_MAIN(TestFinding)
#include "test_forms_finding.moc"
