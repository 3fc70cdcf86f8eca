#include "text/SözcükYerleri.h"
#include "text/TürkçeHarfler.h"
#include "text/TürkçeSıralama.h"
#include "text/TürkçeTarih.h"

#include <QDate>
#include <QTest>

using namespace Qt::StringLiterals;

class TestText : public QObject
{
    Q_OBJECT

private slots:
    void foldingKeepsPositions();
    void letterCase_data();
    void letterCase();
    void prefix();
    void properCase_data();
    void properCase();
    void order_data();
    void order();
    void dates_data();
    void dates();
    void wordPlaces_data();
    void wordPlaces();
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

void TestText::prefix()
{
    const QString text = u"ALİ KAYA"_s;
    for (const QString& beginning : {u"ali k"_s, QString(), text})
        QVERIFY2(İleBaşlar(text, beginning), qUtf8Printable(beginning));
    for (const QString& other : {u"alı"_s, u"ali kayaalp"_s, u"kaya"_s})
        QVERIFY2(!İleBaşlar(text, other), qUtf8Printable(other));
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
    row("two blanks", u"KASIM  ışık"_s, u"Kasım  Işık"_s);
    row("hyphen starts no word", u"afyon-İZMİR"_s, u"Afyon-izmir"_s);
    row("line break starts one", u"rize\nidil"_s, u"Rize\nİdil"_s);
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

void TestText::dates_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isDate");
    const auto rows = [](const char* name, bool isDate, const QStringList& texts) {
        for (const QString& text : texts)
            QTest::addRow("%s: %s", name, qUtf8Printable(text.left(40))) << text << isDate;
    };
    rows("day, name, year", true,
         {u"01 Şubat 2003"_s, u"1/şub/2003"_s, u"1-Şubat-2003"_s, u"1.ŞUBAT.2003"_s, u"1Şubat2003"_s,
          u"1 Şubat, 2003"_s, u"31 ARALIK 9999"_s, u"1 oca 100"_s});
    rows("name first", true, {u"Şubat 1, 2003"_s, u"Şub. 1 2003"_s});
    rows("day of the week", true, {u"01 Şubat 2003 Cumartesi"_s, u"2 ŞUBAT 2003, PAZAR"_s});
    rows("day of the week", false,
         {u"Cumartesi, 1 Şubat 2003"_s, u"1 Şubat 2003 Pazar"_s, u"Pazar"_s, u"1.2.2003 Cumartesi"_s,
          u"Şubat 2003 Cumartesi"_s});
    rows("numbers", true,
         {u"01.02.2003"_s, u"1/2/2003"_s, u"1-2-2003"_s, u"1 2 2003"_s, u"1.2/2003"_s, u"02.13.2003"_s,
          u"01.02.03"_s, u"32.1.03"_s});
    rows("numbers", false,
         {u"13.13.2003"_s, u"1.2.3.4"_s, u"1,2,2003"_s, u"1.2.0099"_s, u"0.1.2003"_s, u"1.0.2003"_s,
          u"001.2.2003"_s, u"1.2.12003"_s, u"01022003"_s});
    rows("year first", true, {u"2003-02-01"_s, u"2003.02.01"_s, u"2003/2/1"_s, u"2003 Şubat 1"_s});
    rows("year first", false, {u"2003-02-30"_s, u"2003-13-02"_s});
    rows("blanks", true,
         {u"  1   Şubat \t 2003 "_s, u"1 . 2 . 2003"_s, QString(100'000, u' ') + u"Mart 2003"_s});
    rows("separators", false,
         {u"1..2.2003"_s, u"1.2.2003."_s, u".1.2.2003"_s, u"1:2:2003"_s, u"Mart,, 2003"_s});
    rows("month and year", true,
         {u"Şubat 2003"_s, u"KASIM 2003"_s, u"2003 Mart"_s, u"Mart, 2003"_s, u"Mart 03"_s, u"02.2003"_s,
          u"2/2003"_s, u"2003-02"_s});
    rows("month and year", false, {u"13.2003"_s, u"0.2003"_s, u"13.13"_s, u"2003 2004"_s});
    rows("day and month", true, {u"1 Şubat"_s, u"Şubat 1"_s, u"29 Şubat"_s, u"27.8"_s, u"32 Ocak"_s});
    rows("calendar", true, {u"29.02.2004"_s, u"29 Şubat 2000"_s, u"29 Şubat 01"_s, u"29.02.1600"_s});
    rows("calendar", false,
         {u"30 Şubat 2003"_s, u"29.02.2003"_s, u"29.02.1900"_s, u"32 Ocak 2003"_s, u"31 Nisan 2003"_s,
          u"31.11.2003"_s});
    rows("letters", false, {u"KASİM 2003"_s, u"Aralik 2003"_s, u"Haz\u0131ran 2003"_s, u"Şuba 2003"_s});
    rows("no date", false,
         {QString(), u" "_s, u"2003"_s, u"Şubat"_s, u"bahar"_s, u"2003 bahar"_s, u"1 Şubat 2003 günü"_s,
          u"Şubat Mart 2003"_s, u"1 Şubat 2003 2"_s, u"\u0661.2.2003"_s, u"😀"_s, u"1 Şubat 2003 10:30"_s,
          QString(100'000, u'1'), QString(100'000, u'ş')});
    const QStringList months{u"Ocak"_s,   u"Şubat"_s,   u"Mart"_s,  u"Nisan"_s, u"Mayıs"_s, u"Haziran"_s,
                             u"Temmuz"_s, u"Ağustos"_s, u"Eylül"_s, u"Ekim"_s,  u"Kasım"_s, u"Aralık"_s};
    for (int i = 0; i < int(months.size()); ++i) {
        const int days = QDate(2003, i + 1, 1).daysInMonth();
        const QString capitals = BüyükHarfeÇevir(months[i]);
        rows("last day", true,
             {u"%1 %2 2003"_s.arg(days).arg(months[i]), u"%1 %2 2003"_s.arg(days).arg(capitals.left(3))});
        rows("day after it", false, {u"%1 %2 2003"_s.arg(days + 1).arg(capitals)});
    }
}

void TestText::dates()
{
    QFETCH(QString, text);
    QFETCH(bool, isDate);
    QCOMPARE(TürkçeTarihMi(text), isDate);
}

void TestText::wordPlaces_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("selected"); // first unit and length
    QTest::addColumn<QString>("next");     // first unit, length, its number, + where it wrapped
    QTest::addColumn<QString>("previous");
    const auto row = [](const char* name, const QString& text, const QString& word, const QString& selected,
                        const QString& next, const QString& previous) {
        QTest::newRow(name) << text << word << selected << next << previous;
    };
    const QString sea = u"Deniz, denizler\nDENİZDEN"_s;
    row("caret on the first", sea, u"deniz"_s, u"0 0"_s, u"0 5 1"_s, u"16 5 3+"_s);
    row("the first selected", sea, u"deniz"_s, u"0 5"_s, u"7 5 2"_s, u"16 5 3+"_s);
    row("caret inside a place", sea, u"deniz"_s, u"8 0"_s, u"16 5 3"_s, u"7 5 2"_s);
    row("caret behind a place", sea, u"deniz"_s, u"5 0"_s, u"7 5 2"_s, u"0 5 1"_s);
    row("something else selected", sea, u"deniz"_s, u"0 24"_s, u"0 5 1"_s, u"16 5 3+"_s);
    row("the last selected", sea, u"deniz"_s, u"16 5"_s, u"0 5 1+"_s, u"7 5 2"_s);
    row("caret at the end", sea, u"deniz"_s, u"24 0"_s, u"0 5 1+"_s, u"16 5 3"_s);
    row("only one, selected", u"bir deniz"_s, u"deniz"_s, u"4 5"_s, u"4 5 1+"_s, u"4 5 1+"_s);
    row("over a line's end", u"a\nb"_s, u"a\nb"_s, u"0 0"_s, u"0 3 1"_s, u"0 3 1+"_s);
    row("none", sea, u"kara"_s, u"0 0"_s, {}, {});
    row("dotless i is another letter", sea, u"denız"_s, u"0 0"_s, {}, {});
    row("dotted", u"IRMAK İri IĞDIR iri ırı"_s, u"İRİ"_s, u"7 0"_s, u"16 3 2"_s, u"6 3 1"_s);
    row("dotless", u"IRMAK İri IĞDIR ırma"_s, u"ırma"_s, u"0 4"_s, u"16 4 2"_s, u"16 4 2+"_s);
    row("empty text", {}, u"deniz"_s, u"0 0"_s, {}, {});
    row("no word", sea, {}, u"0 0"_s, {}, {});
    row("no overlaps", u"aaaaa"_s, u"aa"_s, u"0 2"_s, u"2 2 2"_s, u"2 2 2+"_s);
    row("behind a pair of units", u"😀 e\u0301 deniz"_s, u"deniz"_s, u"0 0"_s, u"6 5 1"_s, u"6 5 1+"_s);
    row("decomposed word", u"çay \u00e9"_s, u" e\u0301"_s, u"0 0"_s, u"3 2 1"_s, u"3 2 1+"_s);
    // Signs mean themselves as long as they stand in the text.
    row("as typed", u"ney ne? nen"_s, u"ne?"_s, u"0 0"_s, u"4 3 1"_s, u"4 3 1+"_s);
    row("one letter", u"köy kıy k"_s, u"k?y"_s, u"0 3"_s, u"4 3 2"_s, u"4 3 2+"_s);
    row("one letter of two units", u"k😀y"_s, u"k?y"_s, u"0 0"_s, u"0 4 1"_s, u"0 4 1+"_s);
    row("digits", u"yıl 1928, 19a"_s, u"19##"_s, u"0 0"_s, u"4 4 1"_s, u"4 4 1+"_s);
    row("list", u"baz kaz saz"_s, u"[ks]az"_s, u"4 3"_s, u"8 3 2"_s, u"8 3 2+"_s);
    row("not of a list", u"kaz baz"_s, u"[!k]az"_s, u"0 0"_s, u"4 3 1"_s, u"4 3 1+"_s);
    row("pieces", u"kıyı: Deniz, KIYIDA"_s, u"*deniz*kıyı*"_s, u"0 0"_s, u"0 4 1"_s, u"13 4 3+"_s);
    row("the longer piece", u"x denizci"_s, u"deniz*denizci"_s, u"0 0"_s, u"2 7 1"_s, u"2 7 1+"_s);
    row("no piece", sea, u"**"_s, u"0 0"_s, {}, {});
    row("unclosed bracket", u"a [köşe"_s, u"[kö"_s, u"0 0"_s, u"2 3 1"_s, u"2 3 1+"_s);
}

void TestText::wordPlaces()
{
    QFETCH(QString, text);
    QFETCH(QString, word);
    QFETCH(QString, selected);
    const auto told = [](const std::optional<SözcükYerleri::Adım>& step) {
        return step ? u"%1 %2 %3%4"_s.arg(step->Yer.Baş)
                          .arg(step->Yer.Uzunluk)
                          .arg(step->Sıra)
                          .arg(step->Sardı ? u"+"_s : QString())
                    : QString();
    };
    const SözcükYerleri places(text, word);
    const MetinYeri from{selected.section(u' ', 0, 0).toInt(), selected.section(u' ', 1).toInt()};
    QTEST(told(places.Sonraki(from)), "next");
    QTEST(told(places.Önceki(from)), "previous");
}

QTEST_APPLESS_MAIN(TestText)
#include "test_text.moc"
