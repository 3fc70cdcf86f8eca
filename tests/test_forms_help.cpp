// The help: what the guide must hold, and the window that shows it.
#include "program_fixture.h"

#include "app/HataBildirimi.h"
#include "app/İletiKutusu.h"
#include "forms/Yardım.h"
#include "store/VeritabanıHatası.h"
#include "text/TürkçeHarfler.h"
#include "tools/YardımMetni.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTreeWidget>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

QString read(const char* path)
{
    QFile file(QStringLiteral(SOURCE_FOLDER "/") + QString::fromUtf8(path));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList found(const QString& text, const QString& pattern)
{
    QStringList all;
    for (const auto& match :
         QRegularExpression(pattern, QRegularExpression::MultilineOption).globalMatch(text))
        all.append(match.captured(1));
    return all;
}

template<class T> T& child(const QString& name)
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == u"YardımFormu"_s)
            return *static_cast<T*>(window->findChild<QWidget*>(name));
    }
    qFatal("There is no help window");
}
KılavuzKutusu& text()
{
    return child<KılavuzKutusu>(u"KılavuzKutusu"_s);
}
QWidget& help()
{
    return *text().window();
}
/// As when the user is in that window.
void press(QWidget& where, int key, Qt::KeyboardModifiers with = {})
{
    where.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(where.window(), BeklemeSınırı));
    QTest::keyClick(&where, Qt::Key(key), with);
}

/// The section that is told to be at the top.
QString section()
{
    const QTreeWidgetItem* item = child<QTreeWidget>(u"İçindekilerAğacı"_s).currentItem();
    return item ? item->text(0) : QString();
}

} // namespace

class TestHelp : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        t.reset();
        answer.reset();
    }
    void structure();
    void guideHolds_data();
    void guideHolds();
    void guideLinks();
    void windows_data();
    void windows();
    void boxes_data();
    void boxes();
    void index();
    void finding();
    void picturesFit();
    void besideModalWindows(); // the last one: it ends the program

private:
    void start()
    {
        answer = std::make_unique<Yardım>(*qApp);
        t = std::make_unique<AnaFormDenemesi>(QList<Makale>{{u"ALİ KAYA"_s, u"ARI"_s, u"Arı bal yapar."_s}});
        t->Göster();
    }
    void menu(const QString& name) { t->Form->findChild<QAction*>(name)->trigger(); }
    std::unique_ptr<Yardım> answer;
    std::unique_ptr<AnaFormDenemesi> t;
};

void TestHelp::structure()
{
    const Kılavuz guide(
        u"# Ad\n\nIlk [Bağ](#x) **Düğme:** ve **vurgu**, `k.txt`, **iki\nsatır** **Iki\nsatır**.\n\n"
        "    Belgenar/araç ver Belgenar x\n\n## Şu İş: a.b\n\n| Kod | Ne |\n|---|---|\n| 12 | Ön `x` |\n"
        "| Bu olmaz. | **Düğme** |\n| `\\|` | y |\n");
    QStringList sections, terms;
    for (const Kılavuz::Bölüm& b : guide.Bölümler())
        sections += u"%1 %2 #%3"_s.arg(b.Düzey).arg(b.Başlık, b.Çapa);
    for (const Kılavuz::Terim& terim : guide.Terimler())
        terms += u"%1%2/%3"_s.arg(terim.Bölüm).arg(terim.Yazı, terim.Ek);
    QCOMPARE(sections.join(u'|'), u"1 Ad #ad|2 Şu İş: a.b #şu-iş-ab"_s);
    terms.sort();
    QCOMPARE(
        terms.join(u';'),
        u"0Ad/;0Düğme/;0Iki satır/;0araç ver/;0k.txt/;112/Ön x;1Bu olmaz./;1Düğme/;1\\|/;1x/;1Şu İş: a.b/"_s);
    QVERIFY(guide.NumaraBul(12) && !guide.NumaraBul(1));
    QVERIFY(guide.İletiBul(u"BU OLMAZ.\nYarın gelin!"_s) && !guide.İletiBul(u"Düğme"_s));
    QCOMPARE(guide.BölümBul(u"şu-iş-ab"), 1);
}

void TestHelp::guideHolds_data()
{
    QTest::addColumn<QStringList>("wanted");
    QTest::addColumn<QStringList>("there");
    const Kılavuz guide(read("docs/kılavuz.md"));
    QStringList anchors, terms, numbers;
    for (const Kılavuz::Bölüm& bölüm : guide.Bölümler())
        anchors.append(bölüm.Çapa);
    for (const Kılavuz::Terim& terim : guide.Terimler())
        (terim.Ek.isEmpty() ? terms : numbers).append(terim.Yazı);
    const auto numbered = [](const char* header) { return found(read(header), u"^ +\\S+ = (\\d+),?$"_s); };
    QTest::newRow("sections of windows") << Yardım::Konular() << anchors;
    QTest::newRow("errors of the library") << numbered("store/VeritabanıHatası.h") << numbers;
    QTest::newRow("errors of the system") << numbered("system/ÇalışmaHatası.h") << numbers;
    QTest::newRow("links") << found(read("docs/kılavuz.md"), u"\\]\\(#([^)]+)\\)"_s) << anchors;
    QTest::newRow("the companion's commands")
        << found(YardımMetni, u"^  belgenar-kitaplik (\\S+)"_s) << terms;
    QTest::newRow("the companion's options") << found(YardımMetni, u"^ +(--[^ ,]+)"_s) << terms;
}

void TestHelp::guideHolds()
{
    QFETCH(QStringList, wanted);
    QFETCH(QStringList, there);
    QVERIFY(wanted.size() > 6);
    for (const QString& one : wanted) {
        const bool is = std::any_of(there.begin(), there.end(), [&](const QString& other) {
            return other == one || other.startsWith(one + u' ');
        });
        QVERIFY2(is, qPrintable(one));
    }
}

// Nothing in the guide leads out of it, and every message of the program is told.
void TestHelp::guideLinks()
{
    const QString guide = read("docs/kılavuz.md");
    QCOMPARE(found(guide, u"\\]\\(((?!#|resim/)[^)]+)\\)"_s), QStringList());
    const QStringList pictures = found(guide, u"!\\[[^\\]]*\\]\\(([^)]+)\\)"_s);
    QVERIFY(pictures.size() > 10);
    for (const QString& picture : pictures)
        QVERIFY2(!QImage(u":/belgenar/"_s + picture).isNull(), qPrintable(picture));
    const Kılavuz parsed(guide);
    const QString table = u'\n' + read("resources/metinler.tsv"), names = read("app/Metinler.h");
    int messages = 0;
    for (const char* folder : {"app", "forms", "program"}) {
        QDirIterator sources(QStringLiteral(SOURCE_FOLDER "/") + QString::fromUtf8(folder), {u"*.cpp"_s});
        while (sources.hasNext()) {
            const QString source =
                read((QString::fromUtf8(folder) + u'/' + QFileInfo(sources.next()).fileName()).toUtf8());
            for (const QString& name :
                 found(source, u"(?:İletiGöster\\(\\s*Metin|söyle|reddet|HataMetni)\\(İleti::([^,)]+)"_s)) {
                const QString number = found(names, u"^ +%1 = (\\d+)"_s.arg(name)).value(0);
                const QString message = found(table, u"^%1\\t(.*)$"_s.arg(number)).value(0);
                QVERIFY2(!message.isEmpty() && parsed.İletiBul(message.section(u"\\n"_s, 0, 0)),
                         qPrintable(name));
                ++messages;
            }
        }
    }
    QVERIFY(messages > 15);
}

void TestHelp::windows_data()
{
    QTest::addColumn<QString>("menu");
    QTest::addColumn<QString>("title");
    QTest::newRow("add") << u"MakaleEkleMenüsü"_s << u"Makale ekleme"_s;
    QTest::newRow("edit") << u"MakeleDeğiştirMenüsü"_s << u"Makale değiştirme"_s;
    QTest::newRow("delete") << u"MakaleSilMenüsü"_s << u"Makale silme"_s;
    QTest::newRow("reference") << u"ReferansOluşturMenüsü"_s << u"Referans bilgisi"_s;
    QTest::newRow("settings") << u"AyarlarMenüsü1"_s << u"Görünüm ayarları"_s;
    QTest::newRow("about") << u"HakkındaMenüsü"_s << u"Yardım menüsü"_s;
    QTest::newRow("faults") << u"HatalarıBildirinMenüsü"_s << u"Yardım menüsü"_s;
}

void TestHelp::windows()
{
    QFETCH(QString, menu);
    QFETCH(QString, title);
    start();
    press(*t->Form, Qt::Key_F1);
    QCOMPARE(section(), u"Göz atma"_s);
    press(t->Bul<QWidget>(u"BulKutusu"_s), Qt::Key_F1);
    QCOMPARE(section(), u"Gösterilen makalede"_s);
    press(help(), Qt::Key_Escape);
    QVERIFY(!help().isVisible());
    QVERIFY(PencereAç([&] { this->menu(menu); },
                      [&](QDialog& window) {
                          press(window.focusWidget() ? *window.focusWidget() : window, Qt::Key_F1);
                          QVERIFY(help().isVisible());
                          QCOMPARE(section(), title);
                      }));
}

void TestHelp::boxes_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("selected");
    const auto error = [](HataNo number) {
        return HataMetni(İleti::ProgramDevamEdemiyor, VeritabanıHatası(number));
    };
    QTest::newRow("error") << error(HataNo::DosyaBozuk) << u"Sorun giderme"_s << u"3049"_s;
    QTest::newRow("a number within others")
        << HataMetni(İleti::WordBaşlatılamadı, Hata(u"x"_s, 75)) << u"Öteki hata kodları"_s << u"75"_s;
    QTest::newRow("message") << Metin(İleti::TarihKorunsunMu) << u"İletiler"_s
                             << u"Lütfen, tarihi doğru biçimde giriniz."_s;
    QTest::newRow("unknown") << u"Başka bir şey oldu."_s << u"Göz atma"_s << QString();
}

void TestHelp::boxes()
{
    QFETCH(QString, message);
    start();
    KutuYanıtlayıcı box(KutuYanıtlayıcı::Yanıt::Tamam, [&](QMessageBox& kutu) {
        press(kutu, Qt::Key_F1);
        QTEST(text().textCursor().selectedText(), "selected");
        QVERIFY(help().isVisible());
    });
    t->Form->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(t->Form.get(), BeklemeSınırı));
    İletiGöster(message, İletiSimgesi::Bilgi, İletiDüğmeleri::Tamam);
    QCOMPARE(box.Sayı, 1);
    const QTextCursor at = text().textCursor();
    int heading = 0;
    while (text().BaşlıkYeri(heading + 1) > 0 && text().BaşlıkYeri(heading + 1) <= at.selectionStart())
        ++heading;
    QTEST(text().document()->findBlock(text().BaşlıkYeri(heading)).text(), "title");
}

void TestHelp::index()
{
    start();
    menu(u"DizinMenüsü"_s);
    auto& filter = child<MetinKutusu>(u"DizinKutusu"_s);
    auto& list = child<ListeKutusu>(u"DizinListesi"_s);
    const int all = list.ListCount();
    QVERIFY(all > 150);
    Yaz(filter, u"BİRKAÇ SÖZ"_s);
    QCOMPARE(list.ListCount(), 1);
    press(filter, Qt::Key_Return);
    QCOMPARE(section(), u"Birkaç sözcükle aramak"_s);
    filter.Text(u"BIRKAÇ SÖZ"_s); // I is ı
    QCOMPARE(list.ListCount(), 0);
    filter.Text(u"3045"_s);
    list.ListIndex(0);
    QCOMPARE(list.Text(), u"3045: Dosya kullanımda"_s);
    QCOMPARE(text().textCursor().selectedText(), u"3045"_s);
    press(help(), Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(section(), u"Birkaç sözcükle aramak"_s);
    press(help(), Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(section(), u"Sorun giderme"_s);
    filter.Text({});
    QCOMPARE(list.ListCount(), all);
}

void TestHelp::finding()
{
    start();
    menu(u"İçindekilerMenüsü"_s);
    press(help(), Qt::Key_F, Qt::ControlModifier);
    auto& box = child<MetinKutusu>(u"BulKutusu"_s);
    QCOMPARE(help().focusWidget(), &box);
    Yaz(box, u"IŞIK YOK"_s);
    QCOMPARE(child<QLabel>(u"Etiket2"_s).text(), u"Bulunamadı"_s);
    box.Text(u"KAPANMAMIŞ"_s); // twice with other letters around it or once: the count says it
    const int count = child<QLabel>(u"Etiket2"_s).text().section(u' ', -1).toInt();
    QVERIFY(count > 0);
    QList<int> places;
    for (int i = 0; i <= count; ++i) {
        places.append(text().textCursor().selectionStart());
        QCOMPARE(Katla(text().textCursor().selectedText()), u"kapanmamış"_s);
        press(help(), Qt::Key_F3);
    }
    QCOMPARE(places.last(), places.first()); // round and round
    QCOMPARE(QSet<int>(places.begin(), places.end()).size(), count);
}

void TestHelp::picturesFit()
{
    start();
    menu(u"İçindekilerMenüsü"_s);
    for (const int width : {700, 900, 1400}) {
        help().resize(width, 600);
        QTRY_COMPARE_WITH_TIMEOUT(help().width(), width, BeklemeSınırı);
        int pictures = 0;
        for (QTextBlock block = text().document()->begin(); block.isValid(); block = block.next()) {
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                if (!part.fragment().charFormat().isImageFormat())
                    continue;
                const QTextImageFormat format = part.fragment().charFormat().toImageFormat();
                QVERIFY(format.width() > 0 && format.width() <= text().viewport()->width());
                const QSize whole = QImage(u":/belgenar/"_s + format.name()).size();
                QVERIFY(qAbs(format.height() * whole.width() - format.width() * whole.height()) <=
                        whole.width());
                ++pictures;
            }
        }
        QVERIFY(pictures > 10);
        QVERIFY(text().document()->idealWidth() <= text().viewport()->width());
    }
}

// Clicks reach the help whatever is modal and whichever of them came first, and never a window that is shut
// out.
void TestHelp::besideModalWindows()
{
    start();
    menu(u"İçindekilerMenüsü"_s);
    auto& tree = child<QTreeWidget>(u"İçindekilerAğacı"_s);
    const auto usable = [&] {
        for (const int row : {4, 2}) { // the platform's way, which asks who is shut out
            QTreeWidgetItem* item = tree.topLevelItem(row);
            const QPoint place = tree.viewport()->mapTo(&help(), tree.visualItemRect(item).center());
            QTest::mouseClick(help().windowHandle(), Qt::LeftButton, {}, place);
            if (section() != item->text(0))
                return false;
        }
        return true;
    };
    QVERIFY(usable());
    const bool opened = PencereAç([&] { menu(u"MakaleEkleMenüsü"_s); },
                                  [&](QDialog& window) {
                                      QVERIFY(usable());
                                      window.activateWindow();
                                      QVERIFY(QTest::qWaitForWindowActive(&window, BeklemeSınırı));
                                      KutuYanıtlayıcı box(KutuYanıtlayıcı::Yanıt::Tamam,
                                                          [&](QMessageBox&) { QVERIFY(usable()); });
                                      İletiGöster(u"Deneme"_s, İletiSimgesi::Bilgi, İletiDüğmeleri::Tamam);
                                      QCOMPARE(box.Sayı, 1);
                                      QTRY_VERIFY_WITH_TIMEOUT(usable(), BeklemeSınırı);
                                  });
    QVERIFY(opened && usable());
    // A box that stands over the help itself is answered first; the program may end meanwhile.
    help().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&help(), BeklemeSınırı));
    KutuYanıtlayıcı box(KutuYanıtlayıcı::Yanıt::Hayır, [&](QMessageBox& kutu) {
        QCOMPARE(kutu.parentWidget(), &help());
        QVERIFY(!usable());
        t->Form->Kapat(KapanışNedeni::GörevYöneticisi);
    });
    t->Form->close();
    QCOMPARE(box.Sayı, 1);
    QVERIFY(!help().isVisible());
}

QTEST_MAIN(TestHelp)
#include "test_forms_help.moc"
