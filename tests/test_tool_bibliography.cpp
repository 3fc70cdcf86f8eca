// Bibliographies in BibTeX and RIS: what an article is made of, what is refused, and the way there and back.
#include "library_fixture.h"

#include "tools/AraçHatası.h"
#include "tools/Durdurma.h"
#include "tools/KaynakçaOkuyucu.h"
#include "tools/KaynakçaYazıcı.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

class TestToolBibliography : public QObject
{
    Q_OBJECT
    QTemporaryDir geçici_;
    DurdurmaBekçisi bekçi_;

    QString dosya(const QString& ad, const QByteArray& içerik) const
    {
        const QString yol = geçici_.filePath(ad);
        DosyaYaz(yol, içerik);
        return yol;
    }
    QList<GelenMakale> oku(const QString& yol) const
    {
        KaynakçaOkuyucu okuyucu(yol, KaynakçaTürüBul(yol).value(), bekçi_);
        QList<GelenMakale> sonuç;
        while (const auto gelen = okuyucu.Sonraki())
            sonuç += *gelen;
        return sonuç;
    }
    static QString düz(const Makale& m)
    {
        return QStringList{m.Yazar, m.Başlık, m.Yer, m.Tarih, m.Metin}.join(u'|');
    }
    static QByteArray bib(const QByteArray& alanlar)
    {
        return "@article{k,\n author = {Ali Kaya}, title = {T},\n" + alanlar + "\n}\n";
    }
    static QByteArray ris(const QByteArray& satırlar, const QByteArray& tür = "JOUR")
    {
        return "TY  - " + tür + "\nAU  - Kaya, Ali\nTI  - T\n" + satırlar + "\nER  - \n";
    }

private slots:
    void fields_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("article"); // of the first record; behind a ! why it can't be taken
        const auto satır = [](const char* ad, const QByteArray& içerik, const char* beklenen) {
            QTest::newRow(ad) << içerik << QString::fromUtf8(beklenen);
        };
        DosyaYaz(geçici_.filePath(u"öz geçmiş.txt"_s), "Bağlı\r\nmetin.");
        DosyaYaz(geçici_.filePath(u"a.rtf"_s), "{\\rtf1 RTF}");
        DosyaYaz(geçici_.filePath(u"a.pdf"_s), "%PDF");
        satır("bib names",
              bib("").replace("Ali Kaya",
                              "Kaya, Ali and {T{\\\"u}rk Dil and Kurumu} and M. F. "
                              "K{\\\"o}pr{\\\"u}l{\\\"u} and de la Cruz, Juan and Tan,Ay\\c{s}e and "
                              "Ali {\\.I}hsan and others"),
              "Ali Kaya, Türk Dil and Kurumu, M. F. Köprülü, Juan de la Cruz, Ayşe Tan, Ali İhsan ve "
              "diğerleri|T|||");
        satır("bib letters",
              bib("journal = {\\u{g}\\^a \\i{} \\oe{} 50\\% \\textbackslash{} \\{\\} \\ldots{} a~b 5$},"
                  "subtitle = {Alt}"),
              "Ali Kaya|T: Alt|ğâ ı œ 50% \\ {} … a b 5$||");
        satır("bib abbreviations",
              "@string{mil = \"Mil\" # {liyet}}\n@comment{ @article{x, } }\n@preamble{\"x\"}\n"
              "% @article{kapalı,\nyorum a@b.c {}\n" +
                  bib("Journal = mil # { B}, year = 2004, month = may"),
              "Ali Kaya|T|Milliyet B|Mayıs 2004|");
        satır("bib parentheses", "@ARTICLE(k, author = \"Ali {\"}K\", title = {T (x)}, year=2004,)",
              "Ali \"K|T (x)||2004|");
        satır("bib place", bib("address = {Rize}, publisher = {Y}, day = 12, month = \"5\", year = {2004}"),
              "Ali Kaya|T|Rize|12 Mayıs 2004|");
        satır("bib day in month", bib("month = \"12~\" # may, year = 2004"), "Ali Kaya|T||12 Mayıs 2004|");
        satır("bib other dates", bib("month = {Güz}, year = 2004"), "Ali Kaya|T||Güz 2004|");
        satır("bib iso date", bib("date = {2004-05-02/2004-06}, journaltitle = {J}"),
              "Ali Kaya|T|J|2 Mayıs 2004|");
        satır("bib crossref",
              "@inbook{c, crossref={ust}, author={A}, title={C}}\n@book{Ust, title={Ü}, editor={E}, year=1}",
              "A|C|Ü|1|");
        satır("bib no parent", bib("crossref = {yok}"), "!Kaydın gösterdiği “yok” kaydı (crossref) yok.");
        satır("bib abstract", bib("note = {n}, abstract = {Bir\n iki.\n\n  Üç \\emph{dört}}"),
              "Ali Kaya|T|||Bir iki.\nÜç dört");
        satır("bib note", bib("note = {n}, abstract = { }"), "Ali Kaya|T|||n");
        satır("bib file", bib("abstract = {ö}, file = {Ad:öz geçmiş.txt:text/plain}"),
              "Ali Kaya|T|||Bağlı\nmetin.");
        satır("bib files", bib("file = {:a.pdf:PDF;a.rtf}"), "Ali Kaya|T|||RTF");
        satır("bib other file", bib("file = {:a.pdf:PDF}, note = {n}"), "!Bağlı dosya (a.pdf) bir metin");
        satır("bib other file, abstract", bib("file = {a.pdf}, abstract = {ö}"), "Ali Kaya|T|||ö");
        satır("bib missing file", bib("file = {b.txt}, abstract = {ö}"), "!“b.txt” okunamadı");
        satır("bib wrong bytes", bib("abstract = {şğı \xff}"), "!Kayıtta geçerli UTF-8 olmayan");
        satır("bib twice", bib("title = {U}"), "!title alanı birden çok kez yazılmış.");
        satır("ris",
              "Provider: X\n\n" +
                  ris("A1  - Türk Dil Kurumu\nT2  - Dergi\nPY  - 2004\nDA  - 2004/05/12/\nAB  - Bir\n"
                      "  iki \n\nüç\nN1  - n\nUR  - http://a.b"),
              "Ali Kaya, Türk Dil Kurumu|T|Dergi|12 Mayıs 2004|Bir\niki\n\nüç");
        satır("ris old",
              "TY  - NEWS\r\nA1  - Öz,M.\r\nT1  - 100% \\x {y}\r\nJF  - Ulus\r\nCY  - Ankara\r\nY1  - "
              "1950/3//Kış\r\n"
              "N2  - ö\r\nER  -\r\n",
              "M. Öz|100% \\x {y}|Ulus|Mart 1950|ö");
        satır("ris book", ris("T2  - Dizi\nCY  - Rize\nY1  - 1950///Kış\nN1  - n", "BOOK"),
              "Ali Kaya|T|Rize|Kış 1950|n");
        satır("ris file",
              ris("L1  - file:///x/a.pdf\nLK  - %1")
                  .replace("%1", QUrl::fromLocalFile(geçici_.filePath(u"öz geçmiş.txt"_s)).toEncoded()),
              "Ali Kaya|T|||Bağlı\nmetin.");
        satır("ris other file", ris("L1  - a.pdf"), "!Bağlı dosya (a.pdf)");
    }
    void fields()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, article);
        try {
            const GelenMakale gelen = oku(dosya(u"k.x"_s, content)).value(0);
            QCOMPARE(gelen.Ret.isEmpty() ? düz(gelen.Değer) : (u'!' + gelen.Ret).left(article.size()),
                     article);
        } catch (const Hata& hata) {
            QFAIL(hata.what());
        }
    }

    void badInputIsNamed_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("line");
        QTest::addColumn<QString>("complaint");
        const auto satır = [](const QByteArray& içerik, int no, const char* yakınma) {
            QTest::newRow(yakınma) << içerik << no << QString::fromUtf8(yakınma);
        };
        const QByteArray iyi = bib("year = 1") + "\n"; // six lines
        satır(iyi + "@misc{a, title = {x,\n year = 1}\n", 6, "Bu satırda başlayan kayıt kapanmıyor");
        satır(iyi + "@misc{a, title = {x,\n}\n" + iyi, 6,
              "Bu satırda başlayan kayıt 8. satırda yeni bir kayıt");
        satır(iyi + "@misc{a,\n title = {x}}, year = 1}\n", 7, "Burada fazladan bir }");
        satır(iyi + "@misc{a, title = \"x}\"}", 6, "Tırnak kapanmadan");
        satır(iyi + "@{a, title = {x}}", 6, "Kaydın türü yok.");
        satır(iyi + "@misc a", 6, "“@misc” sözünden sonra {");
        satır(iyi + "@misc{a,\n title {x}}", 7, "“title” adından sonra =");
        satır(iyi + "@misc{a,\n title = {x}\n year = 1}", 8, "Burada bir virgül");
        satır(iyi + "@misc{a,\n title = ,}", 7, "Burada bir değer");
        satır(iyi + "@misc{a,\n journal = tdk}", 7, "“tdk” diye bir kısaltma");
        satır(iyi + "@misc{a,\n title = {x \\foo{y}}}", 7, "“\\foo” diye bir LaTeX kodu");
        satır(iyi + "@misc{a,\n author = {A},\n abstract = {\\ldotsx}}", 8, "“\\ldotsx” diye bir LaTeX");
        satır(iyi + "@misc{a,\n title = {\\\"ı}}", 7, "“\\”ı” diye bir LaTeX");
        const QByteArray kayıt = ris("PY  - 1"); // five lines
        satır(kayıt + "TI  - x\n", 6, "Bu satırdan önce TY ile");
        satır(kayıt + "TY  - JOUR\nTI  - x\n" + kayıt, 6, "Bu satırda başlayan kayıt ER ile bitmiyor.");
        satır(kayıt + "TY  - \nER  - \n", 6, "Kaydın türü yok.");
        satır(kayıt + "TY  - JOUR\nXQ  - x\nER  - \n", 7, "“XQ” diye bir RIS kodu yok.");
        satır(kayıt + "TY  - JOUR\nmetin\nER  - \n", 7, "Burada bir RIS kodu");
        satır(kayıt + QByteArray("T\0Y\0", 4), 6, "Burada UTF-16 ya da metin olmayan");
    }
    void badInputIsNamed()
    {
        QFETCH(QByteArray, content);
        QFETCH(int, line);
        QFETCH(QString, complaint);
        const QString yol = dosya(u"k.x"_s, content);
        try {
            oku(yol);
            QFAIL("read");
        } catch (const AraçHatası& hata) {
            const QString beklenen = u"%1, %2. satır: %3"_s.arg(yol).arg(line).arg(complaint);
            QCOMPARE(hata.Açıklama().left(beklenen.size()), beklenen);
        }
    }

    void encodings()
    {
        const QString beklenen = u"Ali Kaya|T|Şişli Çığ||"_s;
        const QByteArray utf8 = bib("journal = {Şişli Çığ}"),
                         eski = bib("journal = {\xDEi\xFEli \xC7\xFD\xF0}");
        for (const QByteArray& içerik :
             {utf8, eski, "\xef\xbb\xbf" + utf8, QByteArray(utf8).replace("\n", "\r\n")})
            QCOMPARE(düz(oku(dosya(u"K.BIB"_s, içerik)).value(0).Değer), beklenen);
        for (const QByteArray& son : {"\r\n"_ba, "\r"_ba}) {
            const auto gelenler =
                oku(dosya(u"k.ris"_s, QByteArray(ris("AB  - Bir\niki") + ris("")).replace("\n", son)));
            QCOMPARE(gelenler.size(), 2);
            QCOMPARE(düz(gelenler[0].Değer), u"Ali Kaya|T|||Bir\niki"_s);
        }
        QVERIFY(oku(dosya(u"boş.bib"_s, "")).isEmpty() && oku(dosya(u"boş.ris"_s, "\n")).isEmpty());
        QVERIFY(!KaynakçaTürüBul(dosya(u"k.txt"_s, "Bir metin, TY  - ve @ ile.")));
        QVERIFY(!KaynakçaTürüBul(geçici_.path()) && !KaynakçaTürüBul(u"/yok"_s));
        QVERIFY_THROWS_EXCEPTION(Hata, oku(u"/yok.bib"_s));
        QVERIFY_THROWS_EXCEPTION(Hata, KaynakçaOkuyucu(geçici_.path(), KaynakçaTürü::Ris, bekçi_));
    }

    // What is given out and taken in again is the same letter for letter.
    void roundTrip_data()
    {
        QTest::addColumn<bool>("bibtex");
        QTest::newRow("BibTeX") << true;
        QTest::newRow("RIS") << false;
    }
    void roundTrip()
    {
        QFETCH(bool, bibtex);
        static const QStringList parçalar = {u"{"_s,
                                             u"}"_s,
                                             u"\\"_s,
                                             u"%"_s,
                                             u"\""_s,
                                             u"\n"_s,
                                             u"\r"_s,
                                             u"\t"_s,
                                             u"  "_s,
                                             u" "_s,
                                             u"\uFEFF"_s,
                                             u"😀"_s,
                                             u" and "_s,
                                             u", "_s,
                                             u"\nTY  - JOUR"_s,
                                             u"\nER  - "_s,
                                             u"\n@article{x,"_s,
                                             u"@"_s,
                                             u"\\textbackslash{}"_s,
                                             u"{@}"_s,
                                             u"$x^2_1$"_s,
                                             u"~&#"_s,
                                             u"\\%"_s,
                                             u"\r\n"_s,
                                             u"\u2028"_s,
                                             u"\u0085"_s,
                                             u"\f"_s,
                                             u"\u0001"_s,
                                             u"'"_s,
                                             u"U5  - Belgenar 1 "_s,
                                             u"\U000F0041"_s,
                                             u"\uFFFD"_s,
                                             u"ALİ"_s,
                                             u"ığüşöç"_s,
                                             u"Â»"_s,
                                             u"x"_s,
                                             u"2004"_s,
                                             u"|"_s};
        QRandomGenerator zar(bibtex ? 1 : 2);
        const auto değer = [&zar](int enÇok) {
            QString sonuç;
            for (int i = zar.bounded(enÇok + 1); i > 0; --i)
                sonuç += parçalar[zar.bounded(int(parçalar.size()))];
            return sonuç;
        };
        QList<Makale> makaleler = {
            {u"ALİ KAYA"_s, u"BAŞLIK"_s, u"Metin"_s, u"Rize"_s, u"12 Mayıs 2004"_s},
            {u"A"_s, u"B"_s, QString(), QString(), QString()},
            {u"A"_s, u"B"_s, UzunMetin(1, 1'000'000) + u"\n{"_s, u"Â»"_s, u"1.2.1999"_s}};
        for (int i = 0; i < 300; ++i)
            makaleler += {değer(6) + u'a', değer(6) + u'b', değer(40), değer(4), değer(3)};
        QByteArray içerik;
        for (const Makale& makale : makaleler)
            içerik += bibtex ? BibKaydı(makale, içerik.size()) : RisKaydı(makale);
        const auto gelenler = oku(dosya(u"k.x"_s, içerik));
        QCOMPARE(gelenler.size(), makaleler.size());
        for (qsizetype i = 0; i < makaleler.size(); ++i)
            QCOMPARE(düz(gelenler[i].Değer) + gelenler[i].Ret, düz(makaleler[i]));
        // Alone, letters that could be of Windows-1254; and after a tool that writes line ends anew.
        const Makale tek{u"A"_s, u"B"_s, u"Â»\n\n son \nTY  - x"_s, u"Ã«"_s, u"GÜZ 2004"_s};
        for (const QByteArray& son : {"\n"_ba, "\r\n"_ba}) {
            QByteArray kayıt = bibtex ? BibKaydı(tek, 1) : RisKaydı(tek);
            QCOMPARE(düz(oku(dosya(u"k.x"_s, kayıt.replace("\n", son))).value(0).Değer), düz(tek));
        }
    }

    // What somebody changed in a reference program counts; all else stays as it was.
    void changedFields()
    {
        const Makale eski{u"ALİ, KAYA"_s, u"BİR  BAŞLIK"_s, u"Bir\niki  üç"_s, u" Rize"_s, u"GÜZ 2004"_s};
        const std::pair<QByteArray, QByteArray> değişenler[] = {{"{{BİR  BAŞLIK}}", "{İki  b}"},
                                                                {"BİR  BAŞLIK", "İki  b"},
                                                                {"{2004}", "2005"},
                                                                {"PY  - 2004", "PY  - 2005"},
                                                                {"{Bir\niki  üç}", "{Bir\niki\\_}"},
                                                                {"AB  - Bir", "AB  - Bir_"}};
        const QString beklenenler[] = {u"ALİ, KAYA|İki b| Rize|GÜZ 2004|Bir\niki  üç"_s,
                                       u"ALİ, KAYA|İki b| Rize|GÜZ 2004|Bir\niki  üç"_s,
                                       u"ALİ, KAYA|BİR  BAŞLIK| Rize|2005|Bir\niki  üç"_s,
                                       u"ALİ, KAYA|BİR  BAŞLIK| Rize|2005|Bir\niki  üç"_s,
                                       u"ALİ, KAYA|BİR  BAŞLIK| Rize|GÜZ 2004|Bir\niki_"_s,
                                       u"ALİ, KAYA|BİR  BAŞLIK| Rize|GÜZ 2004|Bir_\niki  üç"_s};
        for (std::size_t i = 0; i < std::size(değişenler); ++i) {
            QByteArray kayıt = i % 2 == 0 ? BibKaydı(eski, 1) : RisKaydı(eski);
            QVERIFY(kayıt.contains(değişenler[i].first));
            kayıt.replace(değişenler[i].first, değişenler[i].second);
            QCOMPARE(düz(oku(dosya(u"k.x"_s, kayıt)).value(0).Değer), beklenenler[i]);
        }
        QCOMPARE(oku(dosya(u"k.x"_s, "\n\n" + BibKaydı(eski, 7))).value(0).Nerede,
                 geçici_.filePath(u"k.x"_s) + u", 3. satır (makale7)"_s);
    }
};

QTEST_GUILESS_MAIN(TestToolBibliography)
#include "test_tool_bibliography.moc"
