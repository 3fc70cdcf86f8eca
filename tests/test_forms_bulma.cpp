// Finding in the main window.
#include "DenemeProgramı.h"

#include "app/Görünüm.h"
#include "app/OrtakDeğişkenlerModülü.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QTest>
#include <QTextBlock>

using namespace Qt::StringLiterals;

namespace {

const QList<Makale> Örnek = {
    {u"ALİ KAYA"_s, u"ZEYTİN"_s, u"Deniz kıyısında deniz, bir deniz var. İri taş\nsu deniz"_s},
    {u"ALİ KAYA"_s, u"ARI"_s, u"Arı çiçekten bal yapar."_s},
    {u"ALİ KAYAALP"_s, u"IŞIK"_s, u"IŞIK ve ışık ve ISIK. 100% [köşe"_s},
    {u"ALİ KAYA"_s, u"ÇAY"_s, u"İİİ 😀 e\u0301 deniz 😀 DENİZ son denizde"_s},
    {u"ZEKİ SU"_s, u"BOŞLUK"_s, u"a  bb bb bb c"_s},
};

} // namespace

class TestFinding : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { t.reset(); }
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
    MetinKutusu& word() { return t->Bul<MetinKutusu>(u"BulKutusu"_s); }
    QPushButton& button(const QString& name) { return t->Bul<QPushButton>(name); }
    /// The marked stretches of the shown text.
    QStringList marked()
    {
        QStringList found;
        for (QTextBlock block = t->Metin().document()->begin(); block.isValid(); block = block.next()) {
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
        t->Yazarlar().ListIndex(author);
        t->Makaleler().ListIndex(article);
    }
    void focus(QWidget& widget)
    {
        widget.setFocus();
        QApplication::processEvents();
    }

    std::unique_ptr<AnaFormDenemesi> t;
};

void TestFinding::init()
{
    t = std::make_unique<AnaFormDenemesi>(Örnek);
    t->Göster();
    QVERIFY(QTest::qWaitForWindowActive(t->Form.get(), BeklemeSınırı));
}

void TestFinding::listPrefix_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("author");
    QTest::addColumn<int>("titles");
    QTest::newRow("lower case") << u"zek"_s << 2 << 1;
    QTest::newRow("beginning of two names takes the first") << u"ali kaya"_s << 0 << 3;
    QTest::newRow("the longer name") << u"ali kayaa"_s << 1 << 1;
    QTest::newRow("dotless i is another letter") << u"alı"_s << -1 << 0;
    QTest::newRow("no author") << u"x"_s << -1 << 0;
}

void TestFinding::listPrefix()
{
    QFETCH(QString, typed);
    auto& kutu = t->Bul<MetinKutusu>(u"YazarBulKutusu"_s);
    Yaz(kutu, typed);
    QTEST(t->Yazarlar().ListIndex(), "author");
    QTEST(t->Makaleler().ListCount(), "titles");
    QCOMPARE(t->Metin().Text().isEmpty(), t->Makaleler().ListCount() == 0);
    QCOMPARE(t->Etiket(u"ToplamMakaleSayısıEtiketi"_s), u"Toplam: %1"_s.arg(t->Makaleler().ListCount()));

    // Emptying the box changes nothing.
    const int önceki = t->Yazarlar().ListIndex();
    kutu.Text({});
    QCOMPARE(t->Yazarlar().ListIndex(), önceki);

    // The title box only moves the selection.
    showArticle(0, 0);
    Yaz(t->Bul<MetinKutusu>(u"MakaleBulKutusu"_s), u"z"_s);
    QCOMPARE(t->Makaleler().Text(), u"ZEYTİN"_s);
    Yaz(t->Bul<MetinKutusu>(u"MakaleBulKutusu"_s), u"zz"_s);
    QCOMPARE(t->Makaleler().ListIndex(), -1);
    QCOMPARE(t->Makaleler().ListCount(), 3);
}

void TestFinding::typedKeys_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    const QString harfler = u"iışğüöçß'a1"_s;
    QTest::newRow("author") << u"YazarBulKutusu"_s << harfler << u"İIŞĞÜÖÇß´A1"_s;
    QTest::newRow("title") << u"MakaleBulKutusu"_s << harfler << u"İIŞĞÜÖÇß´A1"_s;
    QTest::newRow("word") << u"BulKutusu"_s << harfler << u"iışğüöçß´a1"_s;
}

void TestFinding::typedKeys()
{
    QFETCH(QString, box);
    QFETCH(QString, typed);
    auto& kutu = t->Bul<MetinKutusu>(box);
    Yaz(kutu, typed);
    QTEST(kutu.Text(), "shown");
    QInputMethodEvent birleşik;
    birleşik.setCommitString(u"'"_s);
    QApplication::sendEvent(&kutu, &birleşik);
    QVERIFY(kutu.Text().endsWith(u'´'));
    QTest::keyClick(&kutu, Qt::Key_Backspace);
    QTEST(kutu.Text(), "shown");
    QApplication::clipboard()->setText(u"o'neil"_s);
    kutu.clear();
    kutu.paste();
    QCOMPARE(kutu.Text(), u"o'neil"_s);
}

void TestFinding::enterMovesOn()
{
    const QStringList sıra = {u"YazarListesi"_s,    u"YazarBulKutusu"_s,    u"MakaleListesi"_s,
                              u"MakaleBulKutusu"_s, u"MakaleMetniKutusu"_s, u"BulKutusu"_s};
    focus(t->Yazarlar());
    for (const QString& ad : sıra) {
        QCOMPARE(QApplication::focusWidget()->objectName(), ad);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QApplication::processEvents();
    }
}

void TestFinding::focusColours()
{
    const QColor mavi = EkranRengi(OdakMavisi, {});
    const QString kontroller[] = {u"YazarListesi"_s,    u"YazarBulKutusu"_s,    u"MakaleListesi"_s,
                                  u"MakaleBulKutusu"_s, u"MakaleMetniKutusu"_s, u"BulKutusu"_s};
    word().Text(u"sözcük"_s);
    for (int i = 0; i < 6; ++i) {
        focus(t->Bul<QWidget>(kontroller[i]));
        for (int j = 0; j < 6; ++j) {
            const auto& etiket = t->Bul<QLabel>(u"Etiket%1"_s.arg(j));
            QCOMPARE(etiket.palette().color(QPalette::WindowText) == mavi, i == j);
        }
    }
    QCOMPARE(word().selectedText(), u"sözcük"_s);
}

void TestFinding::marks_data()
{
    QTest::addColumn<int>("author");
    QTest::addColumn<int>("article");
    QTest::addColumn<QString>("sought");
    QTest::addColumn<QStringList>("stretches");
    // ALİ KAYA: 0 ARI, 1 ÇAY, 2 ZEYTİN
    QTest::newRow("only between two blanks") << 0 << 2 << u"deniz"_s << QStringList{u" deniz"_s};
    QTest::newRow("in capitals") << 0 << 2 << u"DENİZ"_s << QStringList{u" deniz"_s};
    QTest::newRow("i is not ı") << 0 << 2 << u"denız"_s << QStringList{};
    QTest::newRow("behind emoji and marks") << 0 << 1 << u"deniz"_s << QStringList{u" deniz"_s, u" DENİZ"_s};
    QTest::newRow("an emoji") << 0 << 1 << u"😀"_s << QStringList{u" 😀"_s, u" 😀"_s};
    QTest::newRow("neighbours share their blank") << 2 << 0 << u"bb"_s << QStringList{u" bb bb bb"_s};
    QTest::newRow("one letter") << 0 << 2 << u"a"_s << QStringList{};
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
    QVERIFY(!t->Metin().textCursor().hasSelection());
}

void TestFinding::marksLeaveTheArticleAlone()
{
    showArticle(0, 2);
    const QString önce = t->Metin().Text();
    word().Text(u"deniz"_s);
    button(u"BulButonu"_s).click();
    QCOMPARE(marked().size(), 1);
    QCOMPARE(t->Metin().Text(), önce);
    QCOMPARE(t->Metin().SelStart(), önce.indexOf(u" deniz var"_s) + 1);
    // The next article is not coloured by the marks of this one, and clearing takes them away.
    t->Makaleler().ListIndex(0);
    QVERIFY(marked().isEmpty());
    t->Makaleler().ListIndex(2);
    button(u"BulButonu"_s).click();
    button(u"TemizleButonu"_s).click();
    QVERIFY(marked().isEmpty());
    QCOMPARE(t->Metin().Text(), önce);
}

void TestFinding::findMessages()
{
    showArticle(0, 0);
    word().Text(u"yoktur"_s);
    {
        KutuYanıtlayıcı tamam(KutuYanıtlayıcı::Yanıt::Tamam);
        button(u"BulButonu"_s).click();
        QCOMPARE(tamam.Metin, u"Aradığınız sözcük metin içinde bulunamadı!"_s);
    }
    QCOMPARE(t->Form->focusWidget(), &word());
    t->Makaleler().Clear();
    t->Metin().Text({});
    word().Text(u"y"_s); // an empty pane comes before the length of the word
    KutuYanıtlayıcı tamam(KutuYanıtlayıcı::Yanıt::Tamam);
    button(u"BulButonu"_s).click();
    QCOMPARE(tamam.Metin, u"Lütfen listeden bir makale seçiniz!"_s);
    QCOMPARE(t->Form->focusWidget(), &t->Makaleler());
}

void TestFinding::findInAll_data()
{
    QTest::addColumn<QString>("sought");
    QTest::addColumn<QStringList>("titles");
    QTest::newRow("inside words too") << u"DENİZ"_s << QStringList{u"ÇAY"_s, u"ZEYTİN"_s};
    QTest::newRow("dotless") << u"ışık"_s << QStringList{u"IŞIK"_s};
    QTest::newRow("wildcard") << u"çi?ek*bal"_s << QStringList{u"ARI"_s};
    QTest::newRow("digit") << u"##0%"_s << QStringList{u"IŞIK"_s};
    QTest::newRow("list") << u"[ab]rı"_s << QStringList{u"ARI"_s};
    QTest::newRow("unclosed bracket") << u"[köşe"_s << QStringList{u"IŞIK"_s};
    QTest::newRow("emoji") << u"😀 deniz"_s << QStringList{u"ÇAY"_s};
    QTest::newRow("nothing") << u"yoktur"_s << QStringList{};
}

void TestFinding::findInAll()
{
    QFETCH(QString, sought);
    QFETCH(QStringList, titles);
    word().Text(sought);
    button(u"TümündeBulButonu"_s).click();
    QStringList bulunan;
    for (int i = 0; i < t->Makaleler().ListCount(); ++i)
        bulunan.append(t->Makaleler().Item(i));
    QCOMPARE(bulunan, titles);
    QCOMPARE(t->Etiket(u"Etiket5"_s),
             titles.isEmpty() ? u"makale bulunamadı!"_s : u"%1 makale bulundu!"_s.arg(titles.size()));
    QCOMPARE(t->Metin().Text().isEmpty(), titles.isEmpty());
    QVERIFY(titles.isEmpty() ? word().hasFocus() : t->Makaleler().hasFocus());
    QVERIFY(!t->Bul<QWidget>(u"Altlık"_s).isEnabled() && !t->Bul<QWidget>(u"Etiket0"_s).isEnabled());
    QVERIFY(button(u"ÇıkışButonu"_s).isEnabled() && button(u"TemizleButonu"_s).isEnabled());
    QVERIFY(!button(u"TümündeBulButonu"_s).isEnabled());
    QVERIFY(!QApplication::overrideCursor());
}

void TestFinding::resultViewAndBack()
{
    word().Text(u"ve"_s);
    button(u"TümündeBulButonu"_s).click();
    QCOMPARE(t->Makaleler().Text(), u"IŞIK"_s);
    QCOMPARE(marked().size(), 2);
    QCOMPARE(t->Yazarlar().Text(), u"ALİ KAYAALP"_s);

    // The author of a title is looked up by beginning: the shorter name finds itself first.
    word().Text(u"deniz"_s);
    QVERIFY(button(u"TümündeBulButonu"_s).isEnabled());
    button(u"TümündeBulButonu"_s).click();
    QCOMPARE(t->Yazarlar().Text(), u"ALİ KAYA"_s);
    QCOMPARE(t->Makaleler().ListCount(), 2); // the author click is inert here
    t->Makaleler().ListIndex(1);
    QCOMPARE(marked(), QStringList{u" deniz"_s});

    word().Text({}); // emptying by hand is the whole clear action
    QVERIFY(t->Bul<QWidget>(u"Altlık"_s).isEnabled() && t->Bul<QWidget>(u"YazarBulKutusu"_s).isEnabled());
    QCOMPARE(t->Yazarlar().ListIndex(), -1);
    QCOMPARE(t->Makaleler().ListCount(), 0);
    QVERIFY(t->Metin().Text().isEmpty());
    QCOMPARE(t->Etiket(u"ToplamMakaleSayısıEtiketi"_s), u"Toplam: 0"_s);
    QCOMPARE(t->Etiket(u"Etiket5"_s), u"Bulunacak Söz&cük"_s);
    QVERIFY(word().hasFocus());
    t->Yazarlar().ListIndex(0);
    QCOMPARE(t->Makaleler().ListCount(), 3);
}

void TestFinding::oddWords_data()
{
    QTest::addColumn<QString>("odd");
    QTest::newRow("apostrophe") << u"o'neil"_s;
    QTest::newRow("injection") << u"x' OR '1'='1"_s;
    QTest::newRow("10,000 letters") << QString(10000, u'a');
    QTest::newRow("lone wildcard") << u"**"_s;
    QTest::newRow("brackets") << u"[]"_s;
    QTest::newRow("unclosed") << u"[a-"_s;
    QTest::newRow("line breaks") << u"a\nb\r\nc"_s;
    QTest::newRow("NUL") << u"ab"_s + QChar(u'\0') + u'c';
    QTest::newRow("half an emoji") << QString(2, QChar(0xD83D));
}

void TestFinding::oddWords()
{
    QFETCH(QString, odd);
    KutuYanıtlayıcı tamam(KutuYanıtlayıcı::Yanıt::Tamam);
    word().Text(odd);
    button(u"BulButonu"_s).click();
    const int önceki = tamam.Sayı;
    button(u"TümündeBulButonu"_s).click();
    QCOMPARE(tamam.Sayı, önceki); // no box
    QVERIFY(!QApplication::overrideCursor());
    button(u"TemizleButonu"_s).click();
    QVERIFY(t->Bul<QWidget>(u"Altlık"_s).isEnabled() && button(u"ÇıkışButonu"_s).isEnabled());
    QVERIFY(word().Text().isEmpty());
    t->Yazarlar().ListIndex(0);
    QCOMPARE(t->Makaleler().ListCount(), 3);
}

void TestFinding::stateOfTheWordBox()
{
    // The three buttons; the settings can be reached exactly when they are off.
    const auto açık = [this] {
        const bool bul = button(u"BulButonu"_s).isEnabled();
        for (const QString& menu : {u"AyarlarMenüsü"_s, u"AyarlarMenüsü1"_s}) {
            if (t->Form->findChild<QAction*>(menu)->isEnabled() == bul)
                return QList<bool>();
        }
        return QList<bool>{bul, button(u"TemizleButonu"_s).isEnabled(),
                           button(u"TümündeBulButonu"_s).isEnabled()};
    };
    QCOMPARE(açık(), QList<bool>(3, false));
    Yaz(word(), u"x"_s);
    QCOMPARE(açık(), QList<bool>(3, true));
    button(u"TümündeBulButonu"_s).click(); // too short: nothing happens
    QVERIFY(t->Bul<QWidget>(u"Altlık"_s).isEnabled());
    QCOMPARE(açık(), QList<bool>(3, true));
    QTest::keyClick(&word(), Qt::Key_Backspace);
    QCOMPARE(açık(), QList<bool>(3, false));
}

void TestFinding::inputDuringSearch()
{
    Veritabanı->TekİşlemdeYap([] {
        QList<Makale> çok;
        for (int i = 0; i < 3000; ++i)
            çok.append({u"ÇOK YAZAR"_s, u"BAŞLIK %1"_s.arg(i), UzunMetin(i, 3000)});
        Ekle(*Veritabanı, çok);
    });
    word().Text(u'a' + QString(20, u'?') + u'#'); // slow on purpose: no letters to look for
    int boyama = 0;
    QTimer saat;
    QObject::connect(&saat, &QTimer::timeout, &saat, [&] {
        if (++boyama != 1)
            return;
        QVERIFY(QApplication::overrideCursor());
        QVERIFY(!button(u"ÇıkışButonu"_s).isEnabled());
        t->Form->Kapat(KapanışNedeni::GörevYöneticisi); // the system ends the program in the middle
    });
    saat.start(5);
    button(u"TümündeBulButonu"_s).click();
    QVERIFY(boyama >= 1);
    QVERIFY(!Veritabanı);
    QVERIFY(!QApplication::overrideCursor());
}

QTEST_MAIN(TestFinding)
#include "test_forms_bulma.moc"
