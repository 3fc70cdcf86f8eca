// The link label and the windows that hold links.
#include "program_fixture.h"

#include "app/Metinler.h"
#include "controls/WebEtiketi.h"
#include "system/EkranÖlçüsü.h"
#include "system/OrtakApilerModülü.h"

#include <QAccessible>
#include <QApplication>
#include <QDesktopServices>
#include <QScopeGuard>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

const QString Site = u"https://www.tepsan.example"_s;

class TestLinks : public QObject
{
    Q_OBJECT

private slots:
    void open(const QUrl& url) { opened.append(url.toString()); }
    void init() { handle(this); }
    void cleanup() { handle(nullptr); }
    void addresses()
    {
        for (const char* address :
             {"https://www.tepsan.example", "HTTP://x.example/?b=c", "MailTo:a@x.example", "file:///a", "/a",
              "javascript:alert(1)", "", " ", "mailto:", "http:///", "x.y", "http://x/\nfile:///a",
              "\nhttp://x", "http s://x"})
            AdresAç(QString::fromUtf8(address));
        QCOMPARE(opened.join(u'|'), Site + u"|http://x.example/?b=c|mailto:a@x.example"_s);
    }
    void storedState()
    {
        QWidget window;
        WebEtiketi link(&window);
        const auto state = [](const QVariantMap& of) { return QVariantMap{{u"Belgenar.WebEtiketi"_s, of}}; };
        QVariantMap keys = {{u"Caption"_s, u"Ğ & ı"_s}, {u"FontUnderline"_s, true},
                            {u"ForeColor"_s, 1u},       {u"Font"_s, QFont(u"Serif"_s, 9)},
                            {u"AktifRenk"_s, 2u},       {u"PasifRenk"_s, 3u},
                            {u"Url"_s, u"http://a"_s},  {u"RenkDeğiştir"_s, true}};
        QVERIFY(link.DurumuOku(state(keys)));
        QCOMPARE(link.ForeColor(), 1u);  // the active colour went to its field only
        keys.remove(u"FontUnderline"_s); // undone by the font, which is read after it
        QCOMPARE(link.DurumuYaz(), state(keys));
        link.FontUnderline(true);
        QCOMPARE(link.Değişenler(), QSet({u"FontUnderline"_s}));
        QVERIFY(!link.DurumuOku({{u"Belgenar.Başka"_s, keys}}) && link.PasifRenk() == 3u);
        QVERIFY(link.DurumuOku(state({{u"PasifRenk"_s, u"mavi"_s}})));
        QCOMPARE(link.DurumuYaz(), state({}));
        QCOMPARE(link.Url() + link.Caption(), Site + u"..."_s);
    }
    void colours()
    {
        WebEtiketi link;
        const auto* label = link.findChild<QLabel*>();
        const auto shown = [&] { return label->palette().color(QPalette::WindowText); };
        link.PasifRenk(0x404080);
        QCOMPARE(shown(), link.palette().color(QPalette::ButtonText));
        QVERIFY(link.AktifRenk() == 0xFF0000u && shown() == QColor(Qt::blue));
        link.AktifRenk(0x404080);
        QCOMPARE(shown(), QColor(0x804040));
        link.setPalette(QPalette(QColor(45, 45, 48)));
        QVERIFY(shown().lightness() > 150 && shown().hslHue() == 0 && link.ForeColor() == 0x404080u);
    }
    void pointerAndKeys()
    {
        WebEtiketi link;
        auto* label = link.findChild<QLabel*>();
        link.show();
        link.Caption(u"Uzunca bir bağlantı"_s);
        link.resize(500, 7);
        QCOMPARE(label->geometry(), QRect(Piksel(30) * QPoint(1, 1), label->sizeHint()));
        QCOMPARE(link.size(), label->size() + 2 * Piksel(30) * QSize(1, 1));
        QList<float> seen;
        link.MouseMove = [&](auto... given) { seen = {float(given)...}, throw 1; }; // which stays inside
        QMouseEvent move(QEvent::MouseMove, QPointF(4, 2), QPointF(), Qt::NoButton,
                         Qt::LeftButton | Qt::MiddleButton, Qt::ShiftModifier | Qt::AltModifier);
        QApplication::sendEvent(label, &move);
        QCOMPARE(seen, QList<float>({5, 5, float(Twip(4)), float(Twip(2))}));
        QTest::mousePress(label, Qt::LeftButton);
        QTest::mouseRelease(label, Qt::LeftButton, {}, QPoint(-5, 0)); // let go beside it
        QTest::mouseClick(label, Qt::LeftButton);
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
            QTest::keyClick(&link, key);
        QAccessibleInterface* access = QAccessible::queryAccessibleInterface(&link);
        QVERIFY(access->role() == QAccessible::Link && access->text(QAccessible::Name) == link.Caption());
        access->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(opened, QStringList(5, Site));
    }
    void windows_data()
    {
        QTest::addColumn<QString>("texts");
        QTest::addColumn<QString>("addresses");
        QTest::newRow("HakkındaMenüsü") << u"Hakkında|Belgenar Programı|Sürüm 1.00"_s << Site;
        QTest::newRow("HatalarıBildirinMenüsü")
            << u"Hataları Bildirin!|Hataları Bildirin!|"_s + Metin(İleti::HataBildirmeAçıklaması)
            << u"mailto:destek@tepsan.example|"_s + Site + u"/asp/mesaj/mesaj.asp?ProgramAdi=Belgenar"_s;
    }
    void windows()
    {
        AnaFormDenemesi program({});
        program.Göster();
        for (const Qt::Key closing : {Qt::Key_Escape, Qt::Key_Return}) {
            opened.clear();
            QTimer::singleShot(0, this, [&] {
                QWidget& window = *QApplication::activeModalWidget();
                const auto end = qScopeGuard([&] { window.close(); });
                QVERIFY(QTest::qWaitForWindowActive(&window, BeklemeSınırı) && !window.parentWidget());
                const auto label = [&](int i) { return window.findChild<QLabel*>(u"Etiket%1"_s.arg(i)); };
                QTEST(window.windowTitle() + u'|' + label(0)->text() + u'|' + label(1)->text(), "texts");
                QTest::mouseMove(window.windowHandle(), {});
                for (auto* link : window.findChildren<QWidget*>(QRegularExpression(u"^WebEtiketi"_s)))
                    pointAndClick(window, *label(0), *static_cast<WebEtiketi*>(link));
                QTest::keyClick(window.windowHandle(), closing);
                QVERIFY(!window.isVisible());
            });
            program.Form->findChild<QAction*>(QString::fromUtf8(QTest::currentDataTag()))->trigger();
            QTEST(opened.join(u'|'), "addresses");
        }
    }

private:
    void handle(QObject* receiver)
    {
        opened.clear();
        for (const char* scheme : {"http", "https", "mailto", "file", "javascript"})
            QDesktopServices::setUrlHandler(QLatin1String(scheme), receiver, "open");
    }
    static void pointAndClick(QWidget& window, const QWidget& far, WebEtiketi& link)
    {
        const QPoint centre = link.mapTo(&window, link.rect().center());
        for (const bool colour : {true, false}) {
            link.RenkDeğiştir(colour);
            QTest::mouseMove(window.windowHandle(), centre);
            QVERIFY(link.FontUnderline() != colour && link.ForeColor() == (colour ? 0xFF0000u : 0x404080u));
            QTest::mouseMove(window.windowHandle(), colour ? QPoint() : far.mapTo(&window, QPoint()));
            QVERIFY(!link.FontUnderline() && link.ForeColor() == 0x404080u);
        }
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, centre);
    }
    QStringList opened;
};

QTEST_MAIN(TestLinks)
#include "test_controls_web.moc"
