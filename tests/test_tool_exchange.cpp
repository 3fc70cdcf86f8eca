// The companion's larger traffic: taking articles in from other forms, giving them out, searching, mending.
#include "tool_fixture.h"

#include "store/Bağlantı.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QXmlStreamReader>

#include <csignal>
#include <sys/resource.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

#ifdef __SANITIZE_ADDRESS__
static constexpr bool Sanitized = true; // kills, which find nothing more then, take their time
#else
static constexpr bool Sanitized = false;
#endif

class TestToolExchange : public QObject
{
    Q_OBJECT
    std::unique_ptr<QTemporaryDir> geçici_;
    QString klasör_; // with an empty library
    int no_ = 0;     // of libraries

    QString yol(const QString& ad) const { return geçici_->filePath(ad); }
    QString yaz(const QString& ad, const QByteArray& baytlar) const
    {
        QDir().mkpath(QFileInfo(yol(ad)).absolutePath());
        DosyaYaz(yol(ad), baytlar);
        return yol(ad);
    }
    void yeniKitaplık(const QList<Makale>& makaleler = {})
    {
        klasör_ = yol(u"kitaplık %1/"_s.arg(++no_));
        QDir().mkpath(klasör_);
        KitaplıkKur(klasör_);
        const Database kitaplık(DosyaBağlantısı(klasör_));
        kitaplık.TekİşlemdeYap([&] { Ekle(kitaplık, makaleler); });
    }
    QList<Makale> içindekiler() const { return Makaleler(Database(DosyaBağlantısı(klasör_))); }
    AraçSonucu komut(const QString& ad, const QStringList& kalan = {}) const
    {
        return AraçÇalıştır(QStringList{ad, klasör_} + kalan);
    }
    static QByteArray tablo(int alınan, int atlanan, int reddedilen)
    {
        const auto satır = [](const char* ad, int sayı) { return ad + QByteArray::number(sayı); };
        return satır("Aktarılan   ", alınan) + '\n' + satır("Atlanan     ", atlanan) +
               (atlanan ? " (kitaplıkta var)\n" : "\n") + satır("Reddedilen  ", reddedilen) + '\n';
    }

private slots:
    void init()
    {
        geçici_ = std::make_unique<QTemporaryDir>();
        yeniKitaplık();
    }

    void folder()
    {
        yaz(u"belge/Ayşe Işık/Deniz'de.txt"_s, "  \xddzmir'de k\xfd\xfd.\r\n"); // Windows-1254
        yaz(u"belge/Ali Kaya/Dağ - Rize (5 Mayıs 1999).rtf"_s,
            R"({\rtf1\ansi{\info{\title Da\u287?lar}{\creatim\yr2004\mo5\dy12}}{\*\userprops{\propname Yer}\proptype30{\staticval Artvin}}Zirve.})");
        yaz(u"belge/Tek/Başlık.txt"_s, "Metin");
        yaz(u"belge/Ali Kaya/boş.txt"_s, " \n");
        yaz(u"belge/Ali Kaya/resim.txt"_s, QByteArray("\x89PNG\0\1\2\3", 8));
        yaz(u"belge/Ali Kaya/.gizli.txt"_s, "Metin");
        yaz(u"belge/Ali Kaya/kayıt.csv"_s, "yazar,başlık,metin\n");
        QVERIFY(QFile::link(yol(u"belge"_s), yol(u"belge/döngü"_s)));
        QVERIFY(QFile::link(yol(u"yok"_s), yol(u"belge/Ali Kaya/kopuk.txt"_s)));
        DosyaYaz(yol(u"belge/Ali Kaya/yasak.txt"_s), "Metin");
        QVERIFY(QFile::setPermissions(yol(u"belge/Ali Kaya/yasak.txt"_s), {}));
        const QByteArray kötüAd = QFile::encodeName(yol(u"belge/"_s)) + "k\xf6t\xfc.txt";
        QCOMPARE(fclose(fopen(kötüAd.constData(), "w")), 0);
        const QStringList kalan = {yol(u"belge"_s), u"--kalıp"_s, u"{yazar}/{başlık}"_s, u"--yer=Bursa"_s};

        const auto önce = KlasörOku(klasör_);
        Olmalı(komut(u"aktar"_s, kalan + QStringList(u"--dene"_s)), 1, "Deneme; hiçbir şey değiştirilmedi.");
        QCOMPARE(KlasörOku(klasör_), önce);
        const AraçSonucu sonuç = komut(u"aktar"_s, kalan + QStringList{u"--rapor"_s, yol(u"r.csv"_s)});
        Olmalı(sonuç, 1, tablo(2, 0, 7));
        QCOMPARE(içindekiler(),
                 (QList<Makale>{{u"ALİ KAYA"_s, u"DAĞLAR"_s, u"Zirve."_s, u"Artvin"_s, u"12.05.2004"_s},
                                {u"AYŞE IŞIK"_s, u"DENİZ´DE"_s, u"İzmir'de kıı."_s, u"Bursa"_s}}));
        const QByteArray rapor = DosyaOku(yol(u"r.csv"_s));
        for (const auto& [ad, neden] : {std::pair("Tek/Başlık.txt", "Yazar adı tek sözcük."),
                                        {"boş.txt", "Metin yok."},
                                        {"resim.txt", "Bu bir metin dosyası değil."},
                                        {"kayıt.csv", "Bu bir kayıt dosyası;"},
                                        {"kopuk.txt", "Dosya bulunamadı."},
                                        {"yasak.txt", "okuma izniniz yok."},
                                        {"t\xef\xbf\xbd.txt", "Adında UTF-8 olmayan baytlar var."}}) {
            const auto uyar = [&, ad = ad, neden = neden](const QByteArray& satır) {
                return satır.contains(ad) && satır.contains(neden);
            };
            const QByteArrayList satırlar = rapor.split('\n');
            QVERIFY2(std::any_of(satırlar.begin(), satırlar.end(), uyar), rapor + ad);
        }
        QCOMPARE(rapor.count('\n'), 10);
        QCOMPARE(unlink(kötüAd.constData()), 0); // Qt can't
        // The path's date comes before the one on which the document was made.
        yeniKitaplık();
        Olmalı(komut(u"aktar"_s, {yol(u"belge/Ali Kaya/Dağ - Rize (5 Mayıs 1999).rtf"_s), u"--kalip"_s,
                                  u"{yazar}/{baslik} - {yer} ({tarih})"_s}),
               0, tablo(1, 0, 0));
        QCOMPARE(içindekiler().first().Tarih, u"5 Mayıs 1999"_s);
        for (const QString& kalıp : {u"{yazar}{yazar}"_s, u"{ad}"_s, u"yazar"_s})
            Olmalı(komut(u"aktar"_s, {yol(u"belge"_s), u"--kalıp"_s, kalıp}), 2, "Kalıpta ");
    }

    void csv_data()
    {
        QTest::addColumn<QByteArray>("dosya");
        QTest::addColumn<QString>("sütunlar");
        QTest::addColumn<QByteArray>("yakınma"); // empty where two articles come in
        const auto satır = [](const char* ad, const QByteArray& dosya, const QByteArray& yakınma = {},
                              const QString& sütunlar = {}) {
            QTest::newRow(ad) << dosya << sütunlar << yakınma;
        };
        satır("commas",
              "YAZAR,Title,Yayım Yeri,MakaleMetni,Not\nAli Kaya,\"Bir, \"\"iki\"\"\",Rize,\"a\r\n b\",x\n"
              "\nAli Kaya,Üç,Rize,d,\n");
        satır("semicolons, Windows-1254",
              "yazar;ba\xfel\xfdk;yer;metin\r\nAli Kaya;\"Bir, \"\"iki\"\"\";Rize;\"a\r\n"
              " b\"\r\nAli Kaya;\xdc\xe7;Rize;d");
        satır("without names", "x,Ali Kaya,\"Bir, \"\"iki\"\"\",Rize,\"a\r\n b\"\nx,Ali Kaya,Üç,Rize,d\n", {},
              u"-,yazar,baslik,yer,metin"_s);
        satır("without names, the other sign in the text",
              "Ali Kaya;\"Bir, \"\"iki\"\"\";Rize;\"a\r\n b\"\nAli Kaya;Üç;Rize;d\n", {},
              u"yazar,baslik,yer,metin"_s);
        satır("the other sign in quotes", "yazar,başlık,\"yer;;;;\",yer,metin\nAli Kaya,\"Bir, "
                                          "\"\"iki\"\"\",,Rize,\"a\r\n b\"\nAli Kaya,Üç,,Rize,d\n");
        satır("either sign would do", "Ali Kaya;Bir;Uzun, bir, metin\n", ", 1. satır: Alanları virgül mü",
              u"yazar,baslik,metin"_s);
        satır("open quote", "yazar,başlık,metin\nA B,C,d\nA B,C,\"d\n\ne\n", ", 3. satır: Açılan tırnak");
        satır("quote amid", "yazar,başlık,metin\nA B,C \"d\" e,f\n", ", 2. satır: Tırnak");
        satır("missing column", "yazar,başlık\nA B,C\n", ", 1. satır: MakaleMetni sütunu yok.");
        satır("doubled column", "yazar,başlık,metin,yazar\n", ", 1. satır: “yazar” ikinci kez");
        satır("missing field", "yazar,başlık,metin\n\nA B,C,d\nA B,C\n",
              ", 4. satır: Satırda 2 alan var; 3 sütun");
        satır("wrong UTF-8", "yazar,başlık,metin\nöçğ,C,öçşğü\nA B,C,\xff\n",
              ", 3. satır: Satır geçerli bir UTF-8");
        satır("UTF-16", QByteArray("\xff\xfey\0a\0", 6), ", 1. satır: Burada UTF-16");
        satır("empty", "", ", 1. satır: Dosya boş");
    }
    void csv()
    {
        QFETCH(const QByteArray, dosya);
        QFETCH(const QString, sütunlar);
        QFETCH(const QByteArray, yakınma);
        const QString csv = yaz(u"ç.csv"_s, dosya);
        QStringList kalan = {csv};
        if (!sütunlar.isEmpty())
            kalan.append({u"--sütunlar"_s, sütunlar});
        Olmalı(komut(u"aktar"_s, kalan), yakınma.isEmpty() ? 0 : 1,
               yakınma.isEmpty() ? tablo(2, 0, 0) : csv.toUtf8() + yakınma);
        const QList<Makale> iki = {{u"ALİ KAYA"_s, u"BİR, \"İKİ\""_s, u"a\r\n b"_s, u"Rize"_s},
                                   {u"ALİ KAYA"_s, u"ÜÇ"_s, u"d"_s, u"Rize"_s}};
        QCOMPARE(içindekiler(), yakınma.isEmpty() ? iki : QList<Makale>());
    }

    /// What a command writes lands nowhere else than on a file that is there for it.
    void targets()
    {
        const QString csv = yaz(u"a.csv"_s, "yazar,başlık,yer,metin\nAli Kaya,Bir,Rize,m\n");
        QVERIFY(QDir().mkdir(yol(u"boş"_s)) && QFile::link(csv, yol(u"bağ.csv"_s)));
        const auto önce = KlasörOku(klasör_);
        const QByteArray kaynak = DosyaOku(csv);
        for (const QString& seçenek : {u"--dene"_s, u"--olduğu-gibi"_s}) {
            for (const QString& dosya :
                 {u"Makale.mde"_s, u"Makale.tps"_s, u"Makale.md_"_s, u"Makale.mde-journal"_s})
                Olmalı(komut(u"aktar"_s, {csv, seçenek, u"--rapor"_s, klasör_ + dosya}), 1,
                       (klasör_ + dosya).toUtf8());
            Olmalı(komut(u"aktar"_s, {csv, seçenek, u"--rapor"_s, u"/dev/null"_s}), 1,
                   "/dev/null bir dosya değil");
            Olmalı(komut(u"aktar"_s, {csv, seçenek, u"--rapor"_s, csv}), 2, "Rapor, kaynağın üstüne");
            Olmalı(komut(u"aktar"_s, {csv, seçenek, u"--rapor"_s, yol(u"bağ.csv"_s)}), 2,
                   "Rapor, kaynağın üstüne");
        }
        for (const QString& hedef :
             {klasör_ + u"Makale.mde-journal"_s, yol(u"boş"_s), yol(u"yok/a.csv"_s), csv}) {
            QVERIFY(komut(u"ver"_s, {hedef, u"--biçim"_s, u"csv"_s}).first == 1);
            QVERIFY(komut(u"ver"_s, {hedef, u"--biçim"_s, u"csv"_s, u"--dene"_s}).first == 1);
        }
        for (const QStringList& sözler : {QStringList{u"oluştur"_s, csv + u"/x"_s},
                                          {u"yedekle"_s, klasör_, csv},
                                          {u"kurtar"_s, klasör_, csv + u"/x"_s}}) {
            QCOMPARE(AraçÇalıştır(sözler).first, 1);
            QCOMPARE(AraçÇalıştır(sözler + QStringList(u"--dene"_s)).first, 1);
        }
        QCOMPARE(KlasörOku(klasör_), önce);
        QCOMPARE(DosyaOku(csv), kaynak);
    }

    void doubles()
    {
        const QString dosya =
            yaz(u"a.csv"_s, "yazar,başlık,yer,metin\nAli Kaya,Bir,Rize,m\nALİ KAYA,BİR,Muş,m\n"
                            "Ali Kaya,bir,Rize,başka\nVeli Can,Bir,Rize,m\nTek,İki,Rize,m\n");
        const AraçSonucu ilk = komut(u"aktar"_s, {dosya});
        Olmalı(ilk, 1,
               tablo(3, 1, 1) +
                   "Başlığı başka bir makaleyle aynı olan (program yalnızca ilkini "
                   "gösterir): 2\n  " +
                   dosya.toUtf8() + ", 4. satır: BİR\n");
        QVERIFY2(ilk.second.contains("Reddedilenler: 1\n  " + dosya.toUtf8() + ", 6. satır: Yazar adı tek"),
                 ilk.second);
        Olmalı(komut(u"aktar"_s, {dosya, dosya, u"--olduğu-gibi"_s}), 0, tablo(1, 9, 0));
        QCOMPARE(içindekiler().last().Başlık, u"İki"_s);
    }

    void roundTrip_data()
    {
        QTest::addColumn<QString>("biçim");
        for (const char* biçim : {"json", "csv", "bib", "ris", "txt"})
            QTest::newRow(biçim) << QString::fromLatin1(biçim);
    }
    void roundTrip()
    {
        QFETCH(const QString, biçim);
        constexpr QStringView parçalar[] = {
            u"a",      u"İ",        u"ı", u" ",  u"  ", u"\n",  u"\r\n",   u"\t",     u"\\", u"{",
            u"}",      u"\"",       u"'", u";",  u",",  u"%",   u"$&#_^~", u"\ufeff", u"😀",  u" and ",
            u"TY  - ", u"\nER  - ", u"@", u"\f", u"–",  u"\\n", u"=",      u"\u2028"};
        QRandomGenerator rastgele(7);
        const auto metin = [&](int enAz, int enÇok) {
            QString sonuç;
            for (int i = rastgele.bounded(enAz, enÇok); i > 0; --i)
                sonuç += parçalar[rastgele.bounded(int(std::size(parçalar)))];
            return sonuç.normalized(QString::NormalizationForm_C);
        };
        QList<Makale> makaleler = {{u"ALİ KAYA"_s, u"BOŞ"_s, u""_s},
                                   {u"ALİ KAYA"_s, u"UZUN"_s, UzunMetin(1, 300'000)}};
        for (int i = 0; i < 60; ++i)
            makaleler.append({u"Y%1"_s.arg(i, 3) + metin(0, 9), u"B"_s + metin(0, 9), metin(0, 60),
                              metin(0, 5), metin(0, 5)});
        yeniKitaplık(makaleler);
        const QByteArray önce = komut(u"dök"_s).second;
        const QString hedef = yol(u"çıkan."_s + biçim);
        Olmalı(komut(u"ver"_s, {hedef, u"--biçim"_s, biçim}), 0, "Verilen  62\n");
        Olmalı(komut(u"ver"_s, {hedef, u"--bicim"_s, biçim}), 1, "3204: ");
        yeniKitaplık();
        Olmalı(komut(u"aktar"_s, {hedef, u"--olduğu-gibi"_s}), 0, tablo(62, 0, 0));
        const QByteArrayList sonra = komut(u"dök"_s).second.split('\n'), eski = önce.split('\n');
        for (qsizetype i = 0; i < eski.size(); ++i)
            QVERIFY2(sonra.value(i) == eski[i], sonra.value(i) + "\n" + eski[i]);
    }

    void documents()
    {
        yeniKitaplık({{u"ALİ KAYA"_s, u"A/B: \"C\"?"_s, u"<deniz> &\x01 kıyı\n\nson"_s, u"Rize"_s},
                      {u"ALİ KAYA"_s, u"a/b: c"_s, u"Deniz"_s},
                      {u"VELİ CAN"_s, u"ÇOK UZUN "_s + QString(300, u'Ğ'), u"dağ"_s}});
        const auto ver = [this](const QString& biçim, const QStringList& seçenek, const QByteArray& sayı) {
            Olmalı(komut(u"ver"_s, QStringList{yol(biçim), u"--biçim"_s, biçim} + seçenek), 0,
                   "Verilen  " + sayı + '\n');
            return yol(biçim);
        };
        const QStringList adlar = QDir(ver(u"rtf"_s, {}, "3")).entryList(QDir::Files, QDir::Name);
        QCOMPARE(adlar.mid(0, 2), (QStringList{u"ALİ KAYA - A B C.rtf"_s, u"ALİ KAYA - a b c (2).rtf"_s}));
        QVERIFY(adlar.size() == 3 && adlar[2].toUtf8().size() < 130);
        yeniKitaplık();
        Olmalı(komut(u"aktar"_s, {yol(u"rtf"_s), u"--yer"_s, u"Muş"_s, u"--olduğu-gibi"_s}), 0,
               tablo(3, 0, 0));
        QCOMPARE(içindekiler()[0],
                 (Makale{u"ALİ KAYA"_s, u"A/B: \"C\"?"_s, u"<deniz> & kıyı\n\nson"_s, u"Rize"_s}));

        QXmlStreamReader html(DosyaOku(ver(u"html"_s, {u"--sözcük"_s, u"d?N*z"_s}, "2")));
        QStringList bağlar, çapalar;
        while (!html.atEnd()) {
            if (html.readNext() == QXmlStreamReader::StartElement) {
                bağlar += html.attributes().value(u"href"_s).mid(1).toString();
                çapalar += html.attributes().value(u"id"_s).toString();
            }
        }
        bağlar.removeAll(QString());
        çapalar.removeAll(QString());
        QVERIFY2(!html.hasError() && bağlar.size() == 2 && bağlar == çapalar, qPrintable(html.errorString()));

        const QString pdf = ver(u"pdf"_s, {u"--yazar"_s, u"veli can"_s}, "1");
        QProcess p;
        p.start(u"pdftotext"_s, {u"-layout"_s, pdf, u"-"_s});
        QVERIFY(p.waitForFinished());
        const QList<QByteArray> sayfalar = p.readAllStandardOutput().split('\f');
        QVERIFY2(sayfalar.size() == 3 && sayfalar[0].contains("İçindekiler") &&
                     sayfalar[0].contains(" 2\n") && sayfalar[1].contains("VELİ CAN") &&
                     sayfalar[1].contains("dağ"),
                 sayfalar.join("|"));
        Olmalı(komut(u"ver"_s, {yol(u"x"_s), u"--biçim"_s, u"doc"_s}), 2, "--biçim csv, json");
    }

    void finding()
    {
        yeniKitaplık(
            {{u"ALİ KAYA"_s, u"KİTABI OKUMAK"_s, u"Hiç."_s},
             {u"ALİ KAYA"_s, u"AĞAÇ"_s, u"Uzun bir yazı; kitapçı\nDÜKKÂNI ve ağacın rengi, kanadı."_s},
             {u"KİTAP SEVEN"_s, u"RENK"_s, u"Ağaçta ışık."_s},
             {u"VELİ CAN"_s, u"DAĞ"_s, u"IŞIK dağda"_s}});
        const auto bulunan = [this](const QStringList& sözcükler) {
            QStringList başlıklar;
            for (const QByteArray& satır :
                 komut(u"ara"_s, sözcükler + QStringList(u"--json"_s)).second.split('\n'))
                başlıklar += QJsonDocument::fromJson(satır).object().value(u"MakaleBasligi"_s).toString();
            başlıklar.removeLast();
            return başlıklar.join(u'|');
        };
        QCOMPARE(bulunan({u"kitap"_s}), u"RENK|AĞAÇ"_s); // in the author, inside a word of the text
        QCOMPARE(bulunan({u"kitap"_s, u"--kök"_s}), u"KİTABI OKUMAK|RENK|AĞAÇ"_s);
        QCOMPARE(bulunan({u"RENK"_s, u"ağaç"_s, u"--kok"_s}), u"AĞAÇ|RENK"_s);
        QCOMPARE(bulunan({u"kanat"_s, u"--kök"_s}), u"AĞAÇ"_s);
        QCOMPARE(bulunan({u"ışık"_s, u"dağ"_s}), u"DAĞ"_s);
        QCOMPARE(bulunan({u"isik"_s}), u""_s);
        const QByteArray satırlar = komut(u"ara"_s, {u"dükkânı ve"_s, u"ali"_s}).second;
        QCOMPARE(satırlar, "ALİ KAYA: AĞAÇ\n    Uzun bir yazı; kitapçı DÜKKÂNI ve ağacın rengi, kanadı.\n"
                           "1 makale bulundu.\n"_ba);
        Olmalı(komut(u"ara"_s, {u" "_s}), 2, "Aranacak sözcük boş.");
    }

    void mending()
    {
        yeniKitaplık({{u"ALİ KAYA"_s, u"DENİZ"_s, u"m1"_s, u"Rize"_s},
                      {u"Ali Kaya"_s, u"Deniz'de"_s, u"m2"_s, u"Rize"_s},
                      {u"VELİ CAN"_s, u" deniz"_s, u"m3"_s, u"Rize"_s},
                      {u"VELİ CAN"_s, u"DENİZ (2)"_s, u"m4"_s, u"Rize"_s},
                      {u"HOMEROS"_s, u"İLYADA"_s, u""_s, u"Rize"_s},
                      {u"VELİ CAN"_s, QString(256, u'A'), u"m5"_s, u"Rize"_s}});
        Olmalı(komut(u"denetle"_s), 0,
               "Not: 1 makalenin yazar adında ya da başlığında kesme işareti (') var; program bunları bulup "
               "gösteremez.\nNot: 1 makalenin künyesi pencerede yazılacağı gibi değil (küçük harf, kenarda "
               "boşluk).\n"
               "Not: 1 makalenin yazar adı tek sözcük; değiştirilince iki sözcük istenir.\n"
               "Not: 1 makalenin yayım yeri ya da metni boş; değiştirilince istenir.\n"
               "Not: 1 makalenin bir alanı pencerede yazılabilenden uzun; değiştirilince kısalır.\n"
               "Kitaplık sağlam; 6 makale var.\n");
        const auto önce = KlasörOku(klasör_);
        const QByteArray değişenler =
            "YazarAdi: “Ali Kaya” → “ALİ KAYA”; MakaleBasligi: “Deniz'de” → “DENİZ´DE”\n"
            "MakaleBasligi: “ deniz” → “DENİZ (3)”\nDeğişen makale  2\n";
        const AraçSonucu deneme = komut(u"onar"_s, {u"--dene"_s});
        Olmalı(deneme, 1, "Deneme; hiçbir şey değiştirilmedi. Yapılacak olan:\n" + değişenler);
        QCOMPARE(KlasörOku(klasör_), önce);
        const AraçSonucu sonuç = komut(u"onar"_s, {u"--yedek"_s, yol(u"yedek"_s)});
        QVERIFY2(sonuç.first == 1 && sonuç.second.startsWith("Yedek: " + yol(u"yedek"_s).toUtf8()) &&
                     sonuç.second.contains("\n" + değişenler) &&
                     sonuç.second.contains("1 makalenin yazar adı tek"),
                 sonuç.second);
        QStringList başlıklar;
        for (const Makale& makale : içindekiler())
            başlıklar += makale.Yazar.left(3) + makale.Başlık.left(9);
        QCOMPARE(başlıklar, (QStringList{u"ALİDENİZ"_s, u"ALİDENİZ´DE"_s, u"VELDENİZ (3)"_s,
                                         u"VELDENİZ (2)"_s, u"HOMİLYADA"_s, u"VELAAAAAAAAA"_s}));
        Olmalı(komut(u"onar"_s, {u"--dene"_s}), 1,
               "Deneme; hiçbir şey değiştirilmedi. Yapılacak olan:\nDeğişen makale  0");
    }

    void safekeeping()
    {
        const QList<Makale> makaleler = {{u"ALİ KAYA"_s, u"BİR"_s, u"m"_s, u"Rize"_s}};
        yeniKitaplık(makaleler);
        const QString yedek = yol(u"yedek"_s);
        Olmalı(komut(u"yedekle"_s, {yedek, u"--dene"_s}), 0, "Deneme; hiçbir şey");
        QVERIFY(!QFile::exists(yedek));
        Olmalı(komut(u"yedekle"_s, {yedek}), 0, "Yedek: " + yedek.toUtf8() + "/Belgenar-");
        Olmalı(komut(u"aktar"_s, {yaz(u"a.csv"_s, "yazar,başlık,yer,metin\nVeli Can,İki,Muş,m\n")}), 0,
               tablo(1, 0, 0));
        const AraçSonucu ikinci = komut(u"yedekle"_s, {yedek, u"--sakla"_s, u"1"_s});
        QVERIFY2(ikinci.first == 0 && ikinci.second.contains("(2 makale)\nSilinen eski yedek: Belgenar-"),
                 ikinci.second);
        Olmalı(komut(u"yedekle"_s, {klasör_ + u"yedek"_s}), 1, "");
        Olmalı(komut(u"yedekle"_s, {yedek, u"--sakla"_s, u"0"_s}), 2, "--sakla");
        const QByteArray dolu = komut(u"dök"_s).second;
        yeniKitaplık(makaleler);
        Olmalı(AraçÇalıştır({u"geri-yükle"_s, yedek}), 0, "Belgenar-");
        const AraçSonucu geri = AraçÇalıştır({u"geri-yukle"_s, yedek, klasör_, u"--yedek"_s, u"son"_s});
        QVERIFY2(geri.first == 0 &&
                     geri.second.contains("(2 makale)\nÖnceki dosyaların yeri: " + klasör_.toUtf8()),
                 geri.second);
        QCOMPARE(komut(u"dök"_s).second, dolu);
        // Damaged: no backup of it, but most of it comes out.
        yeniKitaplık({{u"ALİ KAYA"_s, u"BİR"_s, UzunMetin(1, 40'000), u"Rize"_s}, makaleler[0]});
        QByteArray baytlar = DosyaOku(klasör_ + u"Makale.mde"_s);
        DosyaYaz(klasör_ + u"Makale.mde"_s, baytlar.replace(baytlar.size() - 9000, 2, "??"));
        Olmalı(komut(u"yedekle"_s, {yedek}), 1, "3049: ");
        Olmalı(AraçÇalıştır({u"geri-yükle"_s, yedek}), 0, "Belgenar-");
        // A generation of which nobody knows whose it is stays, and is told.
        const QString nesil = yedek + u'/' + QDir(yedek).entryList(QDir::Dirs | QDir::NoDotAndDotDot).first();
        DosyaYaz(nesil + u"/Makale.tps"_s, "x");
        Olmalı(AraçÇalıştır({u"geri-yükle"_s, yedek}), 1, "Belgenar-");
        const QString bozuk = std::exchange(klasör_, {});
        yeniKitaplık(makaleler);
        const AraçSonucu başkası = komut(u"yedekle"_s, {yedek, u"--sakla"_s, u"1"_s});
        QVERIFY2(başkası.first == 0 && başkası.second.contains("okunamayan yedek var"), başkası.second);
        QVERIFY(QFile::exists(nesil + u"/Makale.mde"_s));
        klasör_ = bozuk;
        const auto önce = KlasörOku(klasör_);
        const QString yeni = yol(u"yeni"_s);
        const AraçSonucu kurtarma = komut(u"kurtar"_s, {yeni});
        QVERIFY2(kurtarma.first == 1 && kurtarma.second.contains("“BİR”, ALİ KAYA"), kurtarma.second);
        QCOMPARE(KlasörOku(klasör_), önce);
        klasör_ = yeni + u'/';
        QCOMPARE(içindekiler(), makaleler);
    }

    void fullDisk_data()
    {
        QTest::addColumn<QStringList>("kalan"); // %1 is a path that isn't there yet
        QTest::newRow("aktar") << QStringList{u"aktar"_s, u"KİTAPLIK"_s, u"%1.csv"_s};
        for (const char* biçim : {"csv", "txt", "pdf"})
            QTest::addRow("ver %s", biçim)
                << QStringList{u"ver"_s, u"KİTAPLIK"_s, u"%1"_s, u"--biçim"_s, QString::fromLatin1(biçim)};
        QTest::newRow("yedekle") << QStringList{u"yedekle"_s, u"KİTAPLIK"_s, u"%1"_s};
        QTest::newRow("geri-yükle") << QStringList{u"geri-yükle"_s, u"%1.yedek"_s, u"KİTAPLIK"_s,
                                                   u"--yedek"_s, u"son"_s};
        QTest::newRow("kurtar") << QStringList{u"kurtar"_s, u"KİTAPLIK"_s, u"%1"_s};
        QTest::newRow("onar") << QStringList{u"onar"_s, u"KİTAPLIK"_s, u"--yedek"_s, u"%1"_s};
    }
    // And killed at any moment: the library is what it was, or what the command makes of it, and so is the
    // target.
    void fullDisk()
    {
        QFETCH(QStringList, kalan);
        const QString uzun = UzunMetin(3, 400'000);
        yeniKitaplık(
            {{u"Ali Kaya"_s, u"UZUN"_s, uzun, u"Rize"_s}, {u"ALİ KAYA"_s, u"KISA"_s, u"m"_s, u"Rize"_s}});
        yaz(u"hedef.csv"_s,
            "yazar,başlık,yer,metin\nVeli Can,İki,Muş," + UzunMetin(4, 400'000).remove(u'\n').toUtf8());
        QCOMPARE(komut(u"yedekle"_s, {yol(u"hedef.yedek"_s)}).first, 0);
        for (QString& değişken : kalan)
            değişken = değişken.replace(u"KİTAPLIK"_s, klasör_).replace(u"%1"_s, yol(u"hedef"_s));
        const QString hedef = yol(u"hedef"_s);
        const auto bak = [&](bool dolu) {
            const QByteArray döküm = komut(u"dök"_s).second;
            const bool değişmiş =
                döküm.contains("VELİ CAN") || döküm.contains("\"ALİ KAYA\", \"MakaleBasligi\": \"UZUN");
            QVERIFY2(döküm.count('\n') == 2 + döküm.contains("VELİ CAN") && !(dolu && değişmiş),
                     döküm.left(300));
            const QStringList yanındakiler =
                QDir(geçici_->path()).entryList({u"hedef*"_s}, QDir::AllEntries | QDir::Hidden);
            QVERIFY2(!dolu || yanındakiler == (QStringList{u"hedef.csv"_s, u"hedef.yedek"_s}),
                     qPrintable(yanındakiler.join(u' ')));
        };
        const auto sınırla = [] {
            signal(SIGXFSZ, SIG_IGN);
            const rlimit sınır = {100'000, 100'000};
            setrlimit(RLIMIT_FSIZE, &sınır);
        };
        Olmalı(AraçÇalıştır(kalan, {.Önce = sınırla}), 1, "3026: ");
        bak(true);
        for (const int süre : kalan[0] == u"ver" || Sanitized ? QList<int>{} : QList<int>{5, 40, 100}) {
            const auto öldür = [süre](int pid) {
                QTest::qWait(süre);
                kill(pid, SIGKILL);
            };
            AraçÇalıştır(kalan, {.Sürerken = öldür});
            bak(false);
            if (QFile::exists(hedef + u"/Makale.mde"_s))
                Olmalı(AraçÇalıştır({u"dök"_s, hedef}), 0, "{");
        }
        Olmalı(AraçÇalıştır({u"denetle"_s, klasör_}), 0, "");
    }
};

QTEST_GUILESS_MAIN(TestToolExchange)
#include "test_tool_exchange.moc"
