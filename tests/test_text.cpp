#include "text/TürkçeHarfler.h"
#include "text/TürkçeSıralama.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestText : public QObject
{
    Q_OBJECT

private slots:
    void foldingKeepsPositions();
    void letterCase_data();
    void letterCase();
    void prefix_data();
    void prefix();
    void properCase_data();
    void properCase();
    void order_data();
    void order();
};

void TestText::foldingKeepsPositions()
{
    const QString metin = u"İSTANBUL IĞDIR i\u0307 ß 😀 ﬁ ΣΑΣ"_s;
    const QString katlı = Katla(metin);
    QCOMPARE(katlı.size(), metin.size());
    QCOMPARE(katlı.indexOf(u"ığdır"_s), metin.indexOf(u"IĞDIR"_s));
    QVERIFY(katlı.startsWith(u"istanbul "_s));
    QVERIFY(katlı.contains(u"😀"_s));
    QCOMPARE(Katla(katlı), katlı);
}

void TestText::letterCase_data()
{
    QTest::addColumn<QString>("small");
    QTest::addColumn<QString>("capital");
    QTest::newRow("dotted") << u"i"_s << u"İ"_s;
    QTest::newRow("dotless") << u"ı"_s << u"I"_s;
    QTest::newRow("word") << u"şişğıüöç"_s << u"ŞİŞĞIÜÖÇ"_s;
    QTest::newRow("no single capital") << u"ß´7"_s << u"ß´7"_s;
}

void TestText::letterCase()
{
    QFETCH(QString, small);
    QFETCH(QString, capital);
    QCOMPARE(BüyükHarfeÇevir(small), capital);
    QCOMPARE(BüyükHarfeÇevir(capital), capital);
    QCOMPARE(Katla(capital), Katla(small));
    for (qsizetype i = 0; i < small.size(); ++i)
        QCOMPARE(QChar(KüçükHarf(capital[i].unicode())), small[i]);
}

void TestText::prefix_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("beginning");
    QTest::addColumn<bool>("fits");
    const QString ali = u"ALİ KAYA"_s;
    QTest::newRow("other case") << ali << u"ali k"_s << true;
    QTest::newRow("dotless is another letter") << ali << u"alı"_s << false;
    QTest::newRow("longer than the text") << ali << u"ali kayaalp"_s << false;
    QTest::newRow("empty") << ali << QString() << true;
    QTest::newRow("not at the start") << ali << u"kaya"_s << false;
}

void TestText::prefix()
{
    QFETCH(QString, text);
    QFETCH(QString, beginning);
    QFETCH(bool, fits);
    QCOMPARE(İleBaşlar(text, beginning), fits);
}

void TestText::properCase_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("proper");
    const auto row = [](const char* name, const QString& typed, const QString& proper) {
        QTest::newRow(name) << typed << proper;
    };
    row("blanks around", u"  istanbul "_s, u"İstanbul"_s);
    row("capitals", u"IĞDIR"_s, u"Iğdır"_s);
    row("two words", u"ankara ili"_s, u"Ankara İli"_s);
    row("month", u"şubat 2003"_s, u"Şubat 2003"_s);
    row("two blanks", u"KASIM  ışık"_s, u"Kasım  Işık"_s);
    row("hyphen starts no word", u"afyon-İZMİR"_s, u"Afyon-izmir"_s);
    row("line break starts one", u"rize\nidil"_s, u"Rize\nİdil"_s);
    row("empty", QString(), QString());
    row("blank", u"   "_s, QString());
}

void TestText::properCase()
{
    QFETCH(QString, typed);
    QFETCH(QString, proper);
    QCOMPARE(TürkçeÖzelAd(typed), proper);
    QCOMPARE(TürkçeÖzelAd(proper), proper);
}

void TestText::order_data()
{
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("second");
    QTest::addColumn<int>("sign");
    QTest::newRow("case makes no difference") << QByteArray("ışık İL") << QByteArray("IŞIK il") << 0;
    QTest::newRow("c before ç") << QByteArray("CEZ") << QByteArray("ÇAM") << -1;
    QTest::newRow("dotless before dotted") << QByteArray("ISPARTA") << QByteArray("İDİL") << -1;
    QTest::newRow("i is not ı") << QByteArray("KIL") << QByteArray("KİL") << -1;
    QTest::newRow("o before ö before p") << QByteArray("ÖZ") << QByteArray("PA") << -1;
    QTest::newRow("beginning comes first") << QByteArray("ALİ KAYA") << QByteArray("ALİ KAYAALP") << -1;
    QTest::newRow("malformed UTF-8 is compared too") << QByteArray("a\xff") << QByteArray("a") << 1;
}

void TestText::order()
{
    QFETCH(QByteArray, first);
    QFETCH(QByteArray, second);
    QFETCH(int, sign);
    const auto işaret = [](int n) { return (n > 0) - (n < 0); };
    const auto görünüm = [](const QByteArray& b) {
        return std::string_view(b.data(), std::size_t(b.size()));
    };
    QCOMPARE(işaret(TürkçeKarşılaştır(görünüm(first), görünüm(second))), sign);
    QCOMPARE(işaret(TürkçeKarşılaştır(görünüm(second), görünüm(first))), -sign);
}

QTEST_APPLESS_MAIN(TestText)
#include "test_text.moc"
