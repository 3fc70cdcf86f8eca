// Finding in the main window.
#include "DenemeProgramı.h"

#include "app/Görünüm.h"
#include "app/OrtakDeğişkenlerModülü.h"
#include "forms/AnaForm.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QTest>
#include <QTextBlock>

namespace {

const QList<Makale> Örnek = {
    {QStringLiteral("ALİ KAYA"), QStringLiteral("ZEYTİN"),
     QStringLiteral("Deniz kıyısında deniz, bir deniz var. İri taş\nsu deniz")},
    {QStringLiteral("ALİ KAYA"), QStringLiteral("ARI"), QStringLiteral("Arı çiçekten bal yapar.")},
    {QStringLiteral("ALİ KAYAALP"), QStringLiteral("IŞIK"),
     QStringLiteral("IŞIK ve ışık ve ISIK. 100% [köşe")},
    {QStringLiteral("ALİ KAYA"), QStringLiteral("ÇAY"),
     QStringLiteral("İİİ 😀 e\u0301 deniz 😀 DENİZ son denizde")},
    {QStringLiteral("ZEKİ SU"), QStringLiteral("BOŞLUK"), QStringLiteral("a  bb bb bb c")},
};

QString yol(const char* ad)
{
    return QString::fromUtf8(ad);
}

} // namespace

class TestFinding : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void listPrefix_data();
    void listPrefix();
    void typedKeys_data();
    void typedKeys();
    void enterMovesOn();
    void focusColours();
    void marks_data();
    void marks();
    void marksLeaveTheArticleAlone();
    void findMessages();
    void findInAll_data();
    void findInAll();
    void resultViewAndBack();
    void oddWords_data();
    void oddWords();
    void stateOfTheWordBox();
    void inputDuringSearch();

private:
    template<class T> T& find(const char* name)
    {
        return *static_cast<T*>(form->findChild<QWidget*>(yol(name)));
    }
    ListeKutusu& authors() { return find<ListeKutusu>("YazarListesi"); }
    ListeKutusu& articles() { return find<ListeKutusu>("MakaleListesi"); }
    ZenginMetinKutusu& text() { return find<ZenginMetinKutusu>("MakaleMetniKutusu"); }
    MetinKutusu& word() { return find<MetinKutusu>("BulKutusu"); }
    QPushButton& button(const char* name) { return find<QPushButton>(name); }
    QString label(const char* name) { return find<QLabel>(name).text(); }
    /// The marked stretches of the shown text.
    QStringList marked()
    {
        QStringList found;
        for (QTextBlock block = text().document()->begin(); block.isValid(); block = block.next()) {
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                const QTextCharFormat format = part.fragment().charFormat();
                if (format.foreground().color() == QColor(Qt::red) && format.fontWeight() == QFont::Bold)
                    found.append(part.fragment().text());
            }
        }
        return found;
    }
    void showArticle(int author, int article)
    {
        authors().ListIndex(author);
        articles().ListIndex(article);
    }
    void focus(QWidget& widget)
    {
        widget.setFocus();
        QApplication::processEvents();
    }

    std::unique_ptr<DenemeProgramı> program;
    std::unique_ptr<AnaForm> form;
};

void TestFinding::init()
{
    program = std::make_unique<DenemeProgramı>(Örnek);
    form = std::make_unique<AnaForm>();
    form->Göster();
    QVERIFY(QTest::qWaitForWindowActive(form.get()));
}

void TestFinding::cleanup()
{
    form.reset();
    program.reset();
}

void TestFinding::listPrefix_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("author");
    QTest::addColumn<int>("titles");
    QTest::newRow("lower case") << QStringLiteral("zek") << 2 << 1;
    QTest::newRow("beginning of two names takes the first") << QStringLiteral("ali kaya") << 0 << 3;
    QTest::newRow("the longer name") << QStringLiteral("ali kayaa") << 1 << 1;
    QTest::newRow("dotless i is another letter") << QStringLiteral("alı") << -1 << 0;
    QTest::newRow("no author") << QStringLiteral("x") << -1 << 0;
}

void TestFinding::listPrefix()
{
    QFETCH(QString, typed);
    auto& kutu = find<MetinKutusu>("YazarBulKutusu");
    Yaz(kutu, typed);
    QTEST(authors().ListIndex(), "author");
    QTEST(articles().ListCount(), "titles");
    QCOMPARE(text().Text().isEmpty(), articles().ListCount() == 0);
    QCOMPARE(label("ToplamMakaleSayısıEtiketi"), QStringLiteral("Toplam: %1").arg(articles().ListCount()));

    // Emptying the box changes nothing.
    const int önceki = authors().ListIndex();
    kutu.Text({});
    QCOMPARE(authors().ListIndex(), önceki);

    // The title box only moves the selection.
    showArticle(0, 0);
    Yaz(find<MetinKutusu>("MakaleBulKutusu"), QStringLiteral("z"));
    QCOMPARE(articles().Text(), yol("ZEYTİN"));
    Yaz(find<MetinKutusu>("MakaleBulKutusu"), QStringLiteral("zz"));
    QCOMPARE(articles().ListIndex(), -1);
    QCOMPARE(articles().ListCount(), 3);
}

void TestFinding::typedKeys_data()
{
    QTest::addColumn<QByteArray>("box");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    const QString harfler = QStringLiteral("iışğüöçß'a1");
    QTest::newRow("author") << QByteArray("YazarBulKutusu") << harfler << QStringLiteral("İIŞĞÜÖÇß´A1");
    QTest::newRow("title") << QByteArray("MakaleBulKutusu") << harfler << QStringLiteral("İIŞĞÜÖÇß´A1");
    QTest::newRow("word") << QByteArray("BulKutusu") << harfler << QStringLiteral("iışğüöçß´a1");
}

void TestFinding::typedKeys()
{
    QFETCH(QByteArray, box);
    QFETCH(QString, typed);
    auto& kutu = find<MetinKutusu>(box);
    Yaz(kutu, typed);
    QTEST(kutu.Text(), "shown");
    QInputMethodEvent birleşik;
    birleşik.setCommitString(QStringLiteral("'"));
    QApplication::sendEvent(&kutu, &birleşik);
    QVERIFY(kutu.Text().endsWith(u'´'));
    QTest::keyClick(&kutu, Qt::Key_Backspace);
    QTEST(kutu.Text(), "shown");
    QApplication::clipboard()->setText(QStringLiteral("o'neil"));
    kutu.clear();
    kutu.paste();
    QCOMPARE(kutu.Text(), QStringLiteral("o'neil"));
}

void TestFinding::enterMovesOn()
{
    const QStringList sıra = {yol("YazarListesi"),    yol("YazarBulKutusu"),    yol("MakaleListesi"),
                              yol("MakaleBulKutusu"), yol("MakaleMetniKutusu"), yol("BulKutusu")};
    focus(authors());
    for (const QString& ad : sıra) {
        QCOMPARE(QApplication::focusWidget()->objectName(), ad);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QApplication::processEvents();
    }
}

void TestFinding::focusColours()
{
    const QColor mavi = EkranRengi(OdakMavisi, {});
    const char* const kontroller[] = {"YazarListesi",    "YazarBulKutusu",    "MakaleListesi",
                                      "MakaleBulKutusu", "MakaleMetniKutusu", "BulKutusu"};
    word().Text(QStringLiteral("sözcük"));
    for (int i = 0; i < 6; ++i) {
        focus(find<QWidget>(kontroller[i]));
        for (int j = 0; j < 6; ++j) {
            const auto& etiket = find<QLabel>(qPrintable(QStringLiteral("Etiket%1").arg(j)));
            QCOMPARE(etiket.palette().color(QPalette::WindowText) == mavi, i == j);
        }
    }
    QCOMPARE(word().selectedText(), QStringLiteral("sözcük"));
}

void TestFinding::marks_data()
{
    QTest::addColumn<int>("author");
    QTest::addColumn<int>("article");
    QTest::addColumn<QString>("sought");
    QTest::addColumn<QStringList>("stretches");
    // ALİ KAYA: 0 ARI, 1 ÇAY, 2 ZEYTİN
    QTest::newRow("only between two blanks")
        << 0 << 2 << QStringLiteral("deniz") << QStringList{yol(" deniz")};
    QTest::newRow("in capitals") << 0 << 2 << QStringLiteral("DENİZ") << QStringList{yol(" deniz")};
    QTest::newRow("i is not ı") << 0 << 2 << QStringLiteral("denız") << QStringList{};
    QTest::newRow("behind emoji and marks")
        << 0 << 1 << QStringLiteral("deniz") << QStringList{yol(" deniz"), yol(" DENİZ")};
    QTest::newRow("an emoji") << 0 << 1 << QStringLiteral("😀") << QStringList{yol(" 😀"), yol(" 😀")};
    QTest::newRow("neighbours share their blank")
        << 2 << 0 << QStringLiteral("bb") << QStringList{yol(" bb bb bb")};
    QTest::newRow("one letter") << 0 << 2 << QStringLiteral("a") << QStringList{};
}

void TestFinding::marks()
{
    QFETCH(int, author);
    QFETCH(int, article);
    QFETCH(QString, sought);
    showArticle(author, article);
    word().Text(sought);
    focus(word());
    KutuYanıtlayıcı tamam(KutuYanıtlayıcı::Yanıt::Tamam);
    QTest::keyClick(&word(), Qt::Key_Return);
    QTEST(marked(), "stretches");
    QVERIFY(!text().textCursor().hasSelection());
}

void TestFinding::marksLeaveTheArticleAlone()
{
    showArticle(0, 2);
    const QString önce = text().Text();
    word().Text(QStringLiteral("deniz"));
    button("BulButonu").click();
    QCOMPARE(marked().size(), 1);
    QCOMPARE(text().Text(), önce);
    QCOMPARE(text().SelStart(), önce.indexOf(yol(" deniz var")) + 1);
    // The next article is not coloured by the marks of this one, and clearing takes them away.
    articles().ListIndex(0);
    QVERIFY(marked().isEmpty());
    articles().ListIndex(2);
    button("BulButonu").click();
    button("TemizleButonu").click();
    QVERIFY(marked().isEmpty());
    QCOMPARE(text().Text(), önce);
}

void TestFinding::findMessages()
{
    showArticle(0, 0);
    word().Text(QStringLiteral("yoktur"));
    {
        KutuYanıtlayıcı tamam(KutuYanıtlayıcı::Yanıt::Tamam);
        button("BulButonu").click();
        QCOMPARE(tamam.Metin, yol("Aradığınız sözcük metin içinde bulunamadı!"));
    }
    QCOMPARE(form->focusWidget(), &word());
    articles().Clear();
    text().Text({});
    word().Text(QStringLiteral("y")); // an empty pane comes before the length of the word
    KutuYanıtlayıcı tamam(KutuYanıtlayıcı::Yanıt::Tamam);
    button("BulButonu").click();
    QCOMPARE(tamam.Metin, yol("Lütfen listeden bir makale seçiniz!"));
    QCOMPARE(form->focusWidget(), &articles());
}

void TestFinding::findInAll_data()
{
    QTest::addColumn<QString>("sought");
    QTest::addColumn<QStringList>("titles");
    QTest::newRow("inside words too") << QStringLiteral("DENİZ") << QStringList{yol("ÇAY"), yol("ZEYTİN")};
    QTest::newRow("dotless") << QStringLiteral("ışık") << QStringList{yol("IŞIK")};
    QTest::newRow("wildcard") << QStringLiteral("çi?ek*bal") << QStringList{yol("ARI")};
    QTest::newRow("digit") << QStringLiteral("##0%") << QStringList{yol("IŞIK")};
    QTest::newRow("list") << QStringLiteral("[ab]rı") << QStringList{yol("ARI")};
    QTest::newRow("unclosed bracket") << QStringLiteral("[köşe") << QStringList{yol("IŞIK")};
    QTest::newRow("emoji") << QStringLiteral("😀 deniz") << QStringList{yol("ÇAY")};
    QTest::newRow("nothing") << QStringLiteral("yoktur") << QStringList{};
}

void TestFinding::findInAll()
{
    QFETCH(QString, sought);
    QFETCH(QStringList, titles);
    word().Text(sought);
    button("TümündeBulButonu").click();
    QStringList bulunan;
    for (int i = 0; i < articles().ListCount(); ++i)
        bulunan.append(articles().Item(i));
    QCOMPARE(bulunan, titles);
    QCOMPARE(label("Etiket5"), titles.isEmpty() ? yol("makale bulunamadı!")
                                                : QStringLiteral("%1 makale bulundu!").arg(titles.size()));
    QCOMPARE(text().Text().isEmpty(), titles.isEmpty());
    QVERIFY(titles.isEmpty() ? word().hasFocus() : articles().hasFocus());
    QVERIFY(!find<QWidget>("Altlık").isEnabled() && !find<QWidget>("Etiket0").isEnabled());
    QVERIFY(button("ÇıkışButonu").isEnabled() && button("TemizleButonu").isEnabled());
    QVERIFY(!button("TümündeBulButonu").isEnabled());
    QVERIFY(!QApplication::overrideCursor());
}

void TestFinding::resultViewAndBack()
{
    word().Text(QStringLiteral("ve"));
    button("TümündeBulButonu").click();
    QCOMPARE(articles().Text(), yol("IŞIK"));
    QCOMPARE(marked().size(), 2);
    QCOMPARE(authors().Text(), yol("ALİ KAYAALP"));

    // The author of a title is looked up by beginning: the shorter name finds itself first.
    word().Text(QStringLiteral("deniz"));
    QVERIFY(button("TümündeBulButonu").isEnabled());
    button("TümündeBulButonu").click();
    QCOMPARE(authors().Text(), yol("ALİ KAYA"));
    QCOMPARE(articles().ListCount(), 2); // the author click is inert here
    articles().ListIndex(1);
    QCOMPARE(marked(), QStringList{yol(" deniz")});

    word().Text({}); // emptying by hand is the whole clear action
    QVERIFY(find<QWidget>("Altlık").isEnabled() && find<QWidget>("YazarBulKutusu").isEnabled());
    QCOMPARE(authors().ListIndex(), -1);
    QCOMPARE(articles().ListCount(), 0);
    QVERIFY(text().Text().isEmpty());
    QCOMPARE(label("ToplamMakaleSayısıEtiketi"), yol("Toplam: 0"));
    QCOMPARE(label("Etiket5"), yol("Bulunacak Söz&cük"));
    QVERIFY(word().hasFocus());
    authors().ListIndex(0);
    QCOMPARE(articles().ListCount(), 3);
}

void TestFinding::oddWords_data()
{
    QTest::addColumn<QString>("odd");
    QTest::newRow("apostrophe") << QStringLiteral("o'neil");
    QTest::newRow("injection") << QStringLiteral("x' OR '1'='1");
    QTest::newRow("10,000 letters") << QString(10000, u'a');
    QTest::newRow("lone wildcard") << QStringLiteral("**");
    QTest::newRow("brackets") << QStringLiteral("[]");
    QTest::newRow("unclosed") << QStringLiteral("[a-");
    QTest::newRow("line breaks") << QStringLiteral("a\nb\r\nc");
    QTest::newRow("NUL") << QStringLiteral("ab") + QChar(u'\0') + u'c';
    QTest::newRow("half an emoji") << QString(2, QChar(0xD83D));
}

void TestFinding::oddWords()
{
    QFETCH(QString, odd);
    KutuYanıtlayıcı tamam(KutuYanıtlayıcı::Yanıt::Tamam);
    word().Text(odd);
    button("BulButonu").click();
    const int önceki = tamam.Sayı;
    button("TümündeBulButonu").click();
    QCOMPARE(tamam.Sayı, önceki); // no box
    QVERIFY(!QApplication::overrideCursor());
    button("TemizleButonu").click();
    QVERIFY(find<QWidget>("Altlık").isEnabled() && button("ÇıkışButonu").isEnabled());
    QVERIFY(word().Text().isEmpty());
    authors().ListIndex(0);
    QCOMPARE(articles().ListCount(), 3);
}

void TestFinding::stateOfTheWordBox()
{
    const auto açık = [this] {
        return QList<bool>{button("BulButonu").isEnabled(), button("TemizleButonu").isEnabled(),
                           button("TümündeBulButonu").isEnabled()};
    };
    QCOMPARE(açık(), QList<bool>(3, false));
    Yaz(word(), QStringLiteral("x"));
    QCOMPARE(açık(), QList<bool>(3, true));
    button("TümündeBulButonu").click(); // too short: nothing happens
    QVERIFY(find<QWidget>("Altlık").isEnabled());
    QCOMPARE(açık(), QList<bool>(3, true));
    QTest::keyClick(&word(), Qt::Key_Backspace);
    QCOMPARE(açık(), QList<bool>(3, false));
}

void TestFinding::inputDuringSearch()
{
    Veritabanı->TekİşlemdeYap([] {
        QList<Makale> çok;
        for (int i = 0; i < 3000; ++i)
            çok.append({QStringLiteral("ÇOK YAZAR"), QStringLiteral("BAŞLIK %1").arg(i), UzunMetin(i, 3000)});
        Ekle(*Veritabanı, çok);
    });
    word().Text(QStringLiteral("*q*q*q*q*q*yok")); // slow on purpose
    int boyama = 0;
    QTimer saat;
    QObject::connect(&saat, &QTimer::timeout, &saat, [&] {
        if (++boyama != 1)
            return;
        QVERIFY(QApplication::overrideCursor());
        QVERIFY(!button("ÇıkışButonu").isEnabled());
        form->Kapat(KapanışNedeni::GörevYöneticisi); // the system ends the program in the middle
    });
    saat.start(5);
    button("TümündeBulButonu").click();
    QVERIFY(boyama >= 1);
    QVERIFY(!Veritabanı);
    QVERIFY(!QApplication::overrideCursor());
}

QTEST_MAIN(TestFinding)
#include "test_forms_bulma.moc"
