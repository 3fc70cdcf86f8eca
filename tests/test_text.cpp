#include "text/TürkçeHarfler.h"
#include "text/TürkçeSıralama.h"

#include <QTest>

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
    const QString metin = QStringLiteral("İSTANBUL IĞDIR i\u0307 ß 😀 ﬁ ΣΑΣ");
    const QString katlı = Katla(metin);
    QCOMPARE(katlı.size(), metin.size());
    QCOMPARE(katlı.indexOf(QStringLiteral("ığdır")), metin.indexOf(QStringLiteral("IĞDIR")));
    QVERIFY(katlı.startsWith(QStringLiteral("istanbul ")));
    QVERIFY(katlı.contains(QStringLiteral("😀")));
    QCOMPARE(Katla(katlı), katlı);
}

void TestText::letterCase_data()
{
    QTest::addColumn<QString>("small");
    QTest::addColumn<QString>("capital");
    QTest::newRow("dotted") << QStringLiteral("i") << QStringLiteral("İ");
    QTest::newRow("dotless") << QStringLiteral("ı") << QStringLiteral("I");
    QTest::newRow("word") << QStringLiteral("şişğıüöç") << QStringLiteral("ŞİŞĞIÜÖÇ");
    QTest::newRow("no single capital") << QStringLiteral("ß´7") << QStringLiteral("ß´7");
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
    const QString ali = QStringLiteral("ALİ KAYA");
    QTest::newRow("other case") << ali << QStringLiteral("ali k") << true;
    QTest::newRow("dotless is another letter") << ali << QStringLiteral("alı") << false;
    QTest::newRow("longer than the text") << ali << QStringLiteral("ali kayaalp") << false;
    QTest::newRow("empty") << ali << QString() << true;
    QTest::newRow("not at the start") << ali << QStringLiteral("kaya") << false;
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
    row("blanks around", QStringLiteral("  istanbul "), QStringLiteral("İstanbul"));
    row("capitals", QStringLiteral("IĞDIR"), QStringLiteral("Iğdır"));
    row("two words", QStringLiteral("ankara ili"), QStringLiteral("Ankara İli"));
    row("month", QStringLiteral("şubat 2003"), QStringLiteral("Şubat 2003"));
    row("two blanks", QStringLiteral("KASIM  ışık"), QStringLiteral("Kasım  Işık"));
    row("hyphen starts no word", QStringLiteral("afyon-İZMİR"), QStringLiteral("Afyon-izmir"));
    row("line break starts one", QStringLiteral("rize\nidil"), QStringLiteral("Rize\nİdil"));
    row("empty", QString(), QString());
    row("blank", QStringLiteral("   "), QString());
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
