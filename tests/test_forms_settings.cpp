// The window that sets how the article text is shown.
#include "program_fixture.h"

#include "controls/AçılırListe.h"
#include "controls/YazıTipleriModülü.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QFontDatabase>
#include <QScrollBar>
#include <QStringEncoder>
#include <QTest>

using namespace Qt::StringLiterals;
using List = QStringList; // font, size, colour

static const QString Sans = u"Liberation Sans"_s, Mono = u"Liberation Mono"_s;
static const QString Text = (u"uzunca sözcüklerle "_s.repeated(20) + u'\n').repeated(300);
static const List Names = {u"YazıTipiListesi"_s, u"YazıTipiBoyutuListesi"_s, u"ZeminRengiListesi"_s};
static const QColor Dark(40, 44, 48);

class TestSettingsWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setPalette(QPalette(Dark, Qt::black)); }
    void init() { t = std::make_unique<AnaFormDenemesi>(QList<Makale>{{u"ALİ SU"_s, u"UZUN"_s, Text}}); }
    void cleanup() { t.reset(); }
    void loads_data();
    void loads();
    void choices_data();
    void choices();
    void everyFamilyIsListed();

private:
    template<class T> T& child(const QString& n) { return *static_cast<T*>(box->findChild<QWidget*>(n)); }
    AçılırListe& list(int i) { return child<AçılırListe>(Names[i]); }
    ZenginMetinKutusu& sample() { return child<ZenginMetinKutusu>(u"ÖrnekMetinKutusu"_s); }
    QPushButton& button(const QString& name) { return child<QPushButton>(name); }
    /// Opens the window and runs the user's part in it.
    void open(const QString& menu, const std::function<void()>& user)
    {
        QAction& entry = *t->Form->findChild<QAction*>(menu);
        QVERIFY(PencereAç([&] { entry.trigger(); }, [&](QDialog& opened) { (box = &opened, user()); }));
    }
    static QColor ground(const QWidget& w) { return w.palette().color(QPalette::Base); }
    static void store(const List& a)
    {
        AyarYaz(Ayarlar::YazıTipi, a[0]);
        AyarMetni(Ayarlar::YazıBoyutu, a[1]);
        AyarMetni(Ayarlar::ZeminRengi, a[2]);
    }
    static List stored()
    {
        return {AyarMetni(Ayarlar::YazıTipi), AyarMetni(Ayarlar::YazıBoyutu), AyarMetni(Ayarlar::ZeminRengi)};
    }
    QDialog* box = nullptr;
    std::unique_ptr<AnaFormDenemesi> t;
};

void TestSettingsWindow::loads_data()
{
    QTest::addColumn<List>("inStore");
    QTest::addColumn<List>("selected");
    QTest::addColumn<int>("points");
    QTest::addColumn<QColor>("background");
    QTest::addColumn<QColor>("letters");
    AçılırListe fonts(AçılırListe::Tür::YalnızSeçim);
    YazıTipleriniDoldur(fonts);
    const QString tiny = u"En Küçük"_s;
    const QColor black(Qt::black), white(Qt::white);
    QTest::newRow("nothing") << List{} << List{Sans, u"Orta"_s, u"Beyaz"_s} << 11 << white << black;
    QTest::newRow("capitals") << List{u"LIBERATION MONO"_s, u"0"_s, u"1"_s} << List{Mono, tiny, u"Turuncu"_s}
                              << 8 << QColor(Qt::magenta) << black;
    QTest::newRow("no such font") << List{u"Yok"_s, u"x"_s, u"5"_s} << List{fonts.itemText(0), tiny, u"Gri"_s}
                                  << 8 << Dark << white;
    QTest::newRow("outside") << List{Sans, u"5"_s, u"-7"_s} << List{Sans, {}, {}} << 9 << black << white;
}

void TestSettingsWindow::loads()
{
    QFETCH(List, inStore);
    QFETCH(List, selected);
    if (!inStore.isEmpty())
        store(inStore);
    t->Göster();
    QCOMPARE(t->Metin().FontName(), inStore.isEmpty() ? Sans : inStore[0]);
    QTEST(t->Metin().FontSize(), "points");
    QTEST(ground(t->Metin()), "background");
    QTEST(t->Metin().palette().color(QPalette::Text), "letters");
    open(u"AyarlarMenüsü1"_s, [&] {
        QVERIFY(!box->parentWidget() && box->isModal() && !button(u"TamamButonu"_s).isEnabled());
        button(u"YardımButonu"_s).click();
        QVERIFY(box->isVisible() && button(u"YardımButonu"_s).text() == u"Yardım"_s);
        QCOMPARE(List({list(0).Text(), list(1).Text(), list(2).Text()}), selected);
        QCOMPARE(sample().FontName(), selected[0]);
        QTEST(sample().FontSize(), "points");
        QTEST(ground(sample()), "background");
        QTEST(sample().palette().color(QPalette::Text), "letters");
        list(1).ListIndex(3);
        button(u"TamamButonu"_s).click();
    });
    QCOMPARE(stored(), List({selected[0], u"3"_s, QString::number(ZeminRengiSırası)}));
}

void TestSettingsWindow::choices_data()
{
    QTest::addColumn<int>("changed"); // a list; else the defaults are asked for
    QTest::addColumn<QString>("choice");
    QTest::addColumn<QString>("end"); // a button, or none: Esc
    QTest::addColumn<List>("saved");
    const QString ok = u"TamamButonu"_s;
    QTest::newRow("font") << 0 << Mono << ok << List{Mono, u"3"_s, u"5"_s};
    QTest::newRow("size") << 1 << u"En Büyük"_s << ok << List{Sans, u"4"_s, u"5"_s};
    QTest::newRow("colour") << 2 << u"Turuncu"_s << ok << List{Sans, u"3"_s, u"1"_s};
    QTest::newRow("defaults") << -1 << QString() << ok << List{Sans, u"2"_s, u"0"_s};
    QTest::newRow("cancelled") << 0 << Mono << u"İptalButonu"_s << List{Sans, u"3"_s, u"5"_s};
    QTest::newRow("Esc after the defaults") << -1 << QString() << QString() << List{Sans, u"3"_s, u"5"_s};
}

void TestSettingsWindow::choices()
{
    QFETCH(int, changed);
    QFETCH(QString, choice);
    QFETCH(QString, end);
    store({Sans, u"3"_s, u"5"_s});
    t->Göster();
    ZenginMetinKutusu& pane = t->Metin();
    pane.verticalScrollBar()->setValue(pane.verticalScrollBar()->maximum() / 2);
    const auto top = [&pane] { return pane.cursorForPosition({2, 2}).blockNumber(); };
    const int before = top();
    QFont font = pane.font();
    QColor background = ground(pane);
    open(u"AyarlarMenüsü"_s, [&] {
        changed >= 0 ? list(changed).Text(choice) : button(u"İlkAyarlarButonu"_s).click();
        QVERIFY(button(u"TamamButonu"_s).isEnabled());
        QCOMPARE(stored(), List({Sans, u"3"_s, u"5"_s}));
        if (end == u"TamamButonu"_s)
            font = sample().font(), background = ground(sample());
        end.isEmpty() ? QTest::keyClick(&list(0), Qt::Key_Escape) : button(end).click();
        QVERIFY(!box->isVisible());
    });
    QCOMPARE(pane.font(), font);
    QCOMPARE(ground(pane), background);
    QVERIFY(before > 100 && top() == before);
    QTEST(stored(), "saved");
    open(u"AyarlarMenüsü"_s, [&] {
        QCOMPARE(list(0).Text(), stored()[0]);
        button(u"İlkAyarlarButonu"_s).click(); // also where these are in force
        QVERIFY(button(u"TamamButonu"_s).isEnabled());
    });
}

// Names that the toolkit's own font list leaves out are among them.
void TestSettingsWindow::everyFamilyIsListed()
{
    const QByteArray font = DosyaOku(u"/usr/share/fonts/truetype/liberation/LiberationSans-Regular.ttf"_s);
    QStringEncoder utf16(QStringEncoder::Utf16BE);
    const QByteArray own = utf16(Sans);
    const List odd = {u".iberation Sans"_s, u"@iberation Sans"_s, u"Çiberation Sans"_s};
    for (const QString& name : odd) {
        const QByteArray other = utf16(name);
        QVERIFY(QFontDatabase::addApplicationFontFromData(QByteArray(font).replace(own, other)) >= 0);
    }
    AçılırListe fonts(AçılırListe::Tür::YalnızSeçim);
    fonts.AddItems({u"önceki"_s});
    YazıTipleriniDoldur(fonts);
    QCOMPARE(fonts.ListCount(), int(QFontDatabase::families().size()));
    QVERIFY(fonts.findText(odd[0]) >= 0 && fonts.findText(odd[1]) >= 0);
    QVERIFY(fonts.findText(odd[2]) > 0 && fonts.findText(odd[2]) < fonts.findText(Mono));
}

QTEST_MAIN(TestSettingsWindow)
#include "test_forms_settings.moc"
