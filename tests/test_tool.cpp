// Runs the built companion as a user would: arguments, standard streams, exit status.
#include "store/Bağlantı.h"
#include "store/KlasörKilidi.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <csignal>
#include <memory>

namespace {

const QString Araç = QStringLiteral(COMPANION_TOOL);
const QString Başlangıç = QStringLiteral(STARTER_LIBRARY);
constexpr int Süre = 60'000; // ms

struct Sonuç
{
    int durum = -1; // -1 also for a process that was killed
    QByteArray çıktı, hata;
};

Sonuç bitir(QProcess& süreç)
{
    süreç.closeWriteChannel();
    if (!süreç.waitForFinished(Süre) || süreç.exitStatus() != QProcess::NormalExit)
        return {-1, süreç.readAllStandardOutput(), süreç.readAllStandardError()};
    return {süreç.exitCode(), süreç.readAllStandardOutput(), süreç.readAllStandardError()};
}

void başlat(QProcess& süreç, const QStringList& değişkenler, const QString& yerel = QStringLiteral("C"))
{
    QProcessEnvironment ortam = QProcessEnvironment::systemEnvironment();
    ortam.insert(QStringLiteral("LC_ALL"), yerel);
    süreç.setProcessEnvironment(ortam);
    süreç.start(Araç, değişkenler);
}

Sonuç çalıştır(const QStringList& değişkenler, const QByteArray& girdi = {},
               const QString& yerel = QStringLiteral("C"))
{
    QProcess süreç;
    başlat(süreç, değişkenler, yerel);
    süreç.write(girdi);
    return bitir(süreç);
}

QByteArray oku(const QString& yol)
{
    QFile dosya(yol);
    return dosya.open(QIODevice::ReadOnly) ? dosya.readAll() : QByteArray();
}

void yaz(const QString& yol, const QByteArray& baytlar)
{
    QFile dosya(yol);
    QVERIFY(dosya.open(QIODevice::WriteOnly));
    QCOMPARE(dosya.write(baytlar), baytlar.size());
}

/// Every file of the folder with its bytes.
QMap<QString, QByteArray> içindekiler(const QString& klasör)
{
    QMap<QString, QByteArray> dosyalar;
    for (const QString& ad : QDir(klasör).entryList(QDir::Files))
        dosyalar[ad] = oku(klasör + u'/' + ad);
    return dosyalar;
}

/// The lines' objects in one order and one style.
QByteArrayList nesneler(const QByteArray& satırlar)
{
    QByteArrayList liste;
    for (const QByteArray& satır : satırlar.trimmed().split('\n'))
        liste.append(QJsonDocument::fromJson(satır).toJson());
    std::sort(liste.begin(), liste.end());
    return liste;
}

QByteArray satır(const QByteArray& başlık, const QByteArray& metin = "Metin.")
{
    return R"({"YazarAdi": "ALİ KAYA", "MakaleBasligi": ")" + başlık +
           R"(", "YayimYeri": "Rize", "YayimTarihi": "", "MakaleMetni": ")" + metin + "\"}\n";
}

/// Does to a library what no part of the program would.
void kurcala(const QString& klasör, const QByteArrayList& deyimler)
{
    for (const QByteArray& sql : deyimler) { // the schema is read anew for each
        Bağlantı bağlantı(klasör + QStringLiteral("/Makale.mde"), {AnahtarTürü::Parola, "Pelikan"},
                          AçmaKipi::OkuYaz);
        bağlantı.Çalıştır("PRAGMA writable_schema=ON");
        bağlantı.Çalıştır(sql);
    }
}

} // namespace

class TestTool : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { geçici_.reset(); }

    void usage_data();
    void usage();
    void roundTrip_data();
    void roundTrip();
    void createNeverOverwrites_data();
    void createNeverOverwrites();
    void badLineIsNamed_data();
    void badLineIsNamed();
    void tolerantImport();
    void unreadableFile();
    void refusedWhileLocked_data();
    void refusedWhileLocked();
    void interruptedImport();
    void killedImport();
    void dumpToFullDevice();
    void check_data();
    void check();
    void checkRows_data();
    void checkRows();
    void checkIndex();
    void checkNotes();

private:
    QString yol(const QString& ad) const { return geçici_->filePath(ad); }

    std::unique_ptr<QTemporaryDir> geçici_;
    QString klasör_; // of a library with two articles
};

void TestTool::init()
{
    geçici_ = std::make_unique<QTemporaryDir>();
    klasör_ = yol(QStringLiteral("Çöğür Işık"));
    QCOMPARE(çalıştır({QStringLiteral("oluştur"), klasör_}).durum, 0);
    QCOMPARE(
        çalıştır({QStringLiteral("aktar"), klasör_, QStringLiteral("-")}, satır("BİR") + satır("İKİ")).çıktı,
        QByteArray("2 makale aktarıldı.\n"));
}

void TestTool::usage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    const QString klasör = QStringLiteral("/yok");
    QTest::newRow("nothing") << QStringList() << 2;
    QTest::newRow("help") << QStringList{QStringLiteral("--yardım")} << 0;
    QTest::newRow("help in ASCII") << QStringList{QStringLiteral("--yardim")} << 0;
    QTest::newRow("help in English") << QStringList{QStringLiteral("--help")} << 0;
    QTest::newRow("unknown command") << QStringList{QStringLiteral("sil"), klasör} << 2;
    QTest::newRow("argument missing") << QStringList{QStringLiteral("aktar"), klasör} << 2;
    QTest::newRow("argument too many") << QStringList{QStringLiteral("dök"), klasör, klasör} << 2;
    QTest::newRow("empty folder name") << QStringList{QStringLiteral("dök"), QString()} << 2;
    QTest::newRow("no such folder") << QStringList{QStringLiteral("denetle"), klasör} << 1;
    QTest::newRow("no library to dump") << QStringList{QStringLiteral("dok"), klasör} << 1;
}

void TestTool::usage()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    const Sonuç sonuç = çalıştır(arguments);
    QCOMPARE(sonuç.durum, status);
    QCOMPARE(sonuç.çıktı.isEmpty(), status != 0);
    QCOMPARE(sonuç.hata.isEmpty(), status == 0);
    if (status == 0 || arguments.isEmpty())
        QVERIFY((status == 0 ? sonuç.çıktı : sonuç.hata).contains("oluştur KLASÖR"));
    else
        QVERIFY2(sonuç.hata.startsWith("belgenar-kitaplik: "), sonuç.hata);
}

void TestTool::roundTrip_data()
{
    QTest::addColumn<QString>("locale");
    for (const char* locale : {"C", "C.UTF-8", "tr_TR.UTF-8"})
        QTest::newRow(locale) << QString::fromLatin1(locale);
}

void TestTool::roundTrip()
{
    QFETCH(QString, locale);
    QByteArray kaynak = oku(Başlangıç), ilkDöküm;
    QVERIFY(!kaynak.isEmpty());
    const QByteArray makaleler = QByteArray::number(kaynak.trimmed().count('\n') + 1);
    for (const QString& klasör : {yol(QStringLiteral("öykü/ığdır")), yol(QStringLiteral("İkinci"))}) {
        const QString dosya = klasör + QStringLiteral(".jsonl");
        QCOMPARE(çalıştır({QStringLiteral("oluştur"), klasör}, {}, locale).durum, 0);
        yaz(dosya, kaynak);
        QCOMPARE(çalıştır({QStringLiteral("aktar"), klasör, dosya}, {}, locale).çıktı,
                 QByteArray(makaleler + " makale aktarıldı.\n"));
        const auto önce = içindekiler(klasör);
        const Sonuç döküm = çalıştır({QStringLiteral("dök"), klasör}, {}, locale);
        QCOMPARE(döküm.durum, 0);
        QCOMPARE(döküm.hata, QByteArray());
        QCOMPARE(içindekiler(klasör), önce);
        if (!ilkDöküm.isEmpty())
            QCOMPARE(döküm.çıktı, ilkDöküm);
        kaynak = ilkDöküm = döküm.çıktı;
        QCOMPARE(çalıştır({QStringLiteral("denetle"), klasör}, {}, locale).çıktı,
                 QByteArray("Kitaplık sağlam; " + makaleler + " makale var.\n"));
    }
    QCOMPARE(nesneler(ilkDöküm), nesneler(oku(Başlangıç)));
}

void TestTool::createNeverOverwrites_data()
{
    QTest::addColumn<QString>("left");
    QTest::newRow("library") << QStringLiteral("Makale.mde");
    QTest::newRow("workgroup file") << QStringLiteral("Makale.tps");
}

void TestTool::createNeverOverwrites()
{
    QFETCH(QString, left);
    const QString klasör = yol(QStringLiteral("yarım"));
    QVERIFY(QDir().mkpath(klasör));
    yaz(klasör + u'/' + left, "eski");
    const Sonuç sonuç = çalıştır({QStringLiteral("oluştur"), klasör});
    QCOMPARE(sonuç.durum, 1);
    QVERIFY2(sonuç.hata.startsWith("belgenar-kitaplik: 3204: Dosya zaten var."), sonuç.hata);
    QCOMPARE(içindekiler(klasör), (QMap<QString, QByteArray>{{left, "eski"}}));
}

void TestTool::badLineIsNamed_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("complaint");
    const auto üye = [](const QByteArray& yeni) { return satır("ÜÇ").replace("\"Rize\"", yeni); };
    QTest::newRow("UTF-8") << satır("\xff") << QByteArray("UTF-8");
    QTest::newRow("no JSON") << QByteArray("YazarAdi=ALİ\n")
                             << QByteArray("Geçerli bir JSON değil; 1. karakterde");
    QTest::newRow("cut off") << satır("ÜÇ").left(20) + "\n" << QByteArray("metin kapanmadan satır bitiyor");
    QTest::newRow("comma at the end") << satır("ÜÇ").replace("\"}", "\",}") << QByteArray("çift tırnak");
    QTest::newRow("two objects") << satır("ÜÇ").trimmed() + satır("ÜÇ") << QByteArray("fazlalık");
    QTest::newRow("bare tab") << satır("Ü\tÇ") << QByteArray("denetim karakteri");
    QTest::newRow("bad escape") << satır("Ü\\q") << QByteArray("kaçış dizisi");
    QTest::newRow("bad hexadecimal") << satır("\\u12+4") << QByteArray("onaltılık");
    QTest::newRow("array") << QByteArray("[1]\n") << QByteArray("nesnesi değil");
    QTest::newRow("empty object") << QByteArray("{}\n") << QByteArray("YazarAdi alanı eksik");
    QTest::newRow("missing") << üye("\"Rize\"").replace("\"YayimYeri\": \"Rize\", ", "")
                             << QByteArray("YayimYeri alanı eksik");
    QTest::newRow("unknown") << üye("\"\", \"Yayın\": \"\"") << QByteArray("“Yayın” diye bir alan yok");
    QTest::newRow("twice") << üye("\"\", \"YayimYeri\": \"\"") << QByteArray("YayimYeri alanı birden çok");
    QTest::newRow("number") << üye("1999") << QByteArray("YayimYeri alanının değeri bir metin değil");
    QTest::newRow("null") << üye("null") << QByteArray("YayimYeri alanının değeri bir metin değil");
    QTest::newRow("NUL") << satır("ÜÇ", "a\\u0000b") << QByteArray("MakaleMetni alanında kullanılamayan");
    QTest::newRow("lone surrogate") << satır("\\ud83d") << QByteArray("MakaleBasligi alanında yarım");
    QTest::newRow("too long") << satır(QByteArray("Ç").repeated(1001)) << QByteArray("1001 karakter");
    QTest::newRow("blank title") << satır(" \\t") << QByteArray("MakaleBasligi alanı boş");
    QTest::newRow("blank author") << satır("ÜÇ").replace("ALİ KAYA", "") << QByteArray("YazarAdi alanı boş");
}

void TestTool::badLineIsNamed()
{
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, complaint);
    const QByteArray girdi = satır("ÜÇ") + "\n" + line + satır("BEŞ") + "bu da bozuk\n";
    const QString dosya = yol(QStringLiteral("bozuk.jsonl"));
    yaz(dosya, girdi);
    const auto önce = içindekiler(klasör_);
    for (const QString& kaynak : {dosya, QStringLiteral("-")}) {
        const Sonuç sonuç = çalıştır({QStringLiteral("aktar"), klasör_, kaynak}, girdi);
        QCOMPARE(sonuç.durum, 1);
        QVERIFY2(sonuç.hata.contains(", 3. satır: "), sonuç.hata);
        QVERIFY2(sonuç.hata.contains(complaint), sonuç.hata);
        QCOMPARE(sonuç.çıktı, QByteArray());
        QCOMPARE(içindekiler(klasör_), önce);
    }
}

void TestTool::tolerantImport()
{
    const QString dosya = yol(QStringLiteral("liste.jsonl"));
    // A byte order mark, blank lines, Windows line ends, no line end at last; a letter and its mark
    // apart, an apostrophe, escapes, a letter beyond the BMP.
    yaz(dosya, "\xef\xbb\xbf\n" + satır("O'NUN C\xcc\xa7I\xc4\x9eI").trimmed() + "\r\n \r\n" +
                   satır("ÜÇ", "\\u0041\\/\\\\\\\"\\n\\t\\u0001\\ud83d\\ude00 \xef\xbb\xbf.").trimmed());
    QCOMPARE(çalıştır({QStringLiteral("aktar"), klasör_, dosya}).çıktı, QByteArray("2 makale aktarıldı.\n"));
    const QByteArray beklenen = satır("BİR") + satır("İKİ") + satır("O'NUN \xc3\x87I\xc4\x9eI") +
                                satır("ÜÇ", "A/\\\\\\\"\\n\\t\\u0001😀 \xef\xbb\xbf.");
    QCOMPARE(çalıştır({QStringLiteral("dök"), klasör_}).çıktı, beklenen);
}

void TestTool::unreadableFile()
{
    const Sonuç yok = çalıştır({QStringLiteral("aktar"), klasör_, yol(QStringLiteral("yok.jsonl"))});
    QCOMPARE(yok.durum, 1);
    QVERIFY2(yok.hata.startsWith("belgenar-kitaplik: 3024: "), yok.hata);
    QCOMPARE(çalıştır({QStringLiteral("aktar"), klasör_, geçici_->path()}).durum, 1);
}

void TestTool::refusedWhileLocked_data()
{
    QTest::addColumn<QString>("command");
    for (const char* komut : {"oluştur", "aktar", "dök", "denetle"})
        QTest::newRow(komut) << QString::fromUtf8(komut);
}

void TestTool::refusedWhileLocked()
{
    QFETCH(QString, command);
    const KlasörKilidi kilit(klasör_);
    QStringList değişkenler{command, klasör_};
    if (command == u"aktar")
        değişkenler.append(Başlangıç);
    const Sonuç sonuç = çalıştır(değişkenler);
    QCOMPARE(sonuç.durum, 1);
    QCOMPARE(sonuç.çıktı, QByteArray());
    QVERIFY2(sonuç.hata.startsWith("belgenar-kitaplik: 3045: Dosya kullanımda;"), sonuç.hata);
}

// More than the page cache holds, so that the library file itself is being written when it ends.
static void yarımAktar(QProcess& süreç, const QString& klasör)
{
    başlat(süreç, {QStringLiteral("aktar"), klasör, QStringLiteral("-")});
    const QByteArray uzun = satır("UZUN", QByteArray("öykü ").repeated(20'000));
    for (int i = 0; i < 80; ++i)
        süreç.write(uzun);
    while (süreç.bytesToWrite() > 0)
        QVERIFY(süreç.waitForBytesWritten(Süre));
    QTRY_VERIFY_WITH_TIMEOUT(QFile(klasör + QStringLiteral("/Makale.mde")).size() > 1'000'000, Süre);
}

void TestTool::interruptedImport()
{
    const QByteArray önce = çalıştır({QStringLiteral("dök"), klasör_}).çıktı;
    const QStringList dosyalar = içindekiler(klasör_).keys();
    QProcess süreç;
    yarımAktar(süreç, klasör_);
    ::kill(pid_t(süreç.processId()), SIGINT);
    const Sonuç sonuç = bitir(süreç);
    QCOMPARE(sonuç.durum, 1);
    QVERIFY2(sonuç.hata.contains("durduruldu"), sonuç.hata);
    // Rolling back enciphers the pages anew, so it is the articles that are compared.
    QCOMPARE(içindekiler(klasör_).keys(), dosyalar);
    QCOMPARE(çalıştır({QStringLiteral("dök"), klasör_}).çıktı, önce);
}

void TestTool::killedImport()
{
    const QByteArray önce = çalıştır({QStringLiteral("dök"), klasör_}).çıktı;
    QProcess süreç;
    yarımAktar(süreç, klasör_);
    süreç.kill();
    QVERIFY(süreç.waitForFinished(Süre));

    const auto yarım = içindekiler(klasör_);
    QVERIFY(yarım.contains(QStringLiteral("Makale.mde-journal")));
    const Sonuç denetim = çalıştır({QStringLiteral("denetle"), klasör_});
    QCOMPARE(denetim.durum, 0);
    QVERIFY2(denetim.çıktı.contains("Yarım kalmış") && denetim.çıktı.contains("2 makale var"), denetim.çıktı);
    QCOMPARE(içindekiler(klasör_), yarım);
    QCOMPARE(çalıştır({QStringLiteral("dök"), klasör_}).çıktı, önce);
}

void TestTool::dumpToFullDevice()
{
    QProcess süreç;
    süreç.setStandardOutputFile(QStringLiteral("/dev/full"));
    başlat(süreç, {QStringLiteral("dök"), klasör_});
    const Sonuç sonuç = bitir(süreç);
    QCOMPARE(sonuç.durum, 1);
    QVERIFY2(sonuç.hata.startsWith("belgenar-kitaplik: 3026: "), sonuç.hata);
}

void TestTool::check_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("size");  // to cut to; -1 leaves it, -2 deletes
    QTest::addColumn<int>("place"); // of a byte to spoil; -1 for none
    QTest::addColumn<QByteArray>("complaint");
    for (const QString& dosya : {QStringLiteral("Makale.mde"), QStringLiteral("Makale.tps")}) {
        const auto ekle = [&dosya](const char* ad, int boy, int yer, const QByteArray& yakınma) {
            QTest::addRow("%s %s", qPrintable(dosya), ad) << dosya << boy << yer << yakınma;
        };
        ekle("missing", -2, -1, "3024");
        ekle("empty", 0, -1, "3902");
        ekle("half a page", 5000, -1, "3901");
        ekle("a page less", 3 * 16384, -1, "3901");
        ekle("first page spoilt", -1, 100, "3049");
        ekle("third page spoilt", -1, 2 * 16384 + 9000, "3049");
        ekle("last page spoilt", -1, 4 * 16384 - 100, "3049");
    }
    QTest::newRow("bytes behind the end")
        << QStringLiteral("Makale.mde") << 5 * 16384 << -1 << QByteArray("sonunda");
    QTest::newRow("foreign") << QStringLiteral("Makale.mde") << -3 << -1 << QByteArray("3343");
}

void TestTool::check()
{
    QFETCH(QString, file);
    QFETCH(int, size);
    QFETCH(int, place);
    QFETCH(QByteArray, complaint);
    QFile dosya(klasör_ + u'/' + file);
    if (size == -2)
        QVERIFY(dosya.remove());
    else if (size == -3)
        yaz(dosya.fileName(), QByteArray("Bu bir kitaplık değil.\n").repeated(3000));
    else if (size >= 0)
        QVERIFY(dosya.resize(size));
    if (place >= 0) {
        QVERIFY(dosya.open(QIODevice::ReadWrite));
        QVERIFY(dosya.seek(place));
        const char eski = dosya.peek(1).at(0);
        QVERIFY(dosya.putChar(char(eski ^ 0x41)));
        dosya.close();
    }
    const auto önce = içindekiler(klasör_);
    const Sonuç sonuç = çalıştır({QStringLiteral("denetle"), klasör_});
    QCOMPARE(sonuç.durum, 1);
    QVERIFY2(sonuç.çıktı.startsWith(file.toUtf8() + ": ") && sonuç.çıktı.contains(complaint), sonuç.çıktı);
    const QByteArray öteki = file == u"Makale.mde" ? "Makale.tps: " : "Makale.mde: ";
    QVERIFY2(!sonuç.çıktı.contains(öteki), sonuç.çıktı);
    QCOMPARE(içindekiler(klasör_), önce);
}

void TestTool::checkRows_data()
{
    QTest::addColumn<QByteArray>("author");
    QTest::addColumn<QByteArray>("complaint");
    QTest::newRow("blank") << QByteArray("' '") << QByteArray("YazarAdi alanı boş.");
    QTest::newRow("NUL") << QByteArray("CAST(x'410042' AS TEXT)") << QByteArray("3049 Dosya bozuk;");
    QTest::newRow("UTF-8") << QByteArray("CAST(x'41ff' AS TEXT)")
                           << QByteArray("YazarAdi alanı geçerli bir UTF-8");
    QTest::newRow("long") << QByteArray("hex(zeroblob(501))") << QByteArray("YazarAdi alanı çok uzun.");
}

void TestTool::checkRows()
{
    QFETCH(QByteArray, author);
    QFETCH(QByteArray, complaint);
    kurcala(klasör_, {"INSERT INTO Makaleler VALUES(NULL, " + author + ", 'ÜÇ', '', '', '')"});
    const Sonuç sonuç = çalıştır({QStringLiteral("denetle"), klasör_});
    QCOMPARE(sonuç.durum, 1);
    QVERIFY2(sonuç.çıktı.startsWith("Makale.mde: “ÜÇ” başlıklı makale: " + complaint), sonuç.çıktı);
}

void TestTool::checkIndex()
{
    // The row enters while the index is hidden.
    kurcala(klasör_, {"UPDATE sqlite_master SET sql=NULL WHERE name='BaslikDizini'",
                      "INSERT INTO Makaleler VALUES(NULL, 'ALİ KAYA', 'ÜÇ', '', '', '')",
                      "UPDATE sqlite_master SET sql='CREATE INDEX BaslikDizini ON Makaleler(MakaleBasligi)'"
                      " WHERE name='BaslikDizini'"});
    const Sonuç sonuç = çalıştır({QStringLiteral("denetle"), klasör_});
    QCOMPARE(sonuç.durum, 1);
    QVERIFY2(sonuç.çıktı.startsWith("Makale.mde: Bir dizin tabloyla uyuşmuyor;"), sonuç.çıktı);
}

void TestTool::checkNotes()
{
    const QByteArray garip = satır("O'NUN") + satır("BİR").replace("ALİ KAYA", "HOMEROS");
    QCOMPARE(çalıştır({QStringLiteral("aktar"), klasör_, QStringLiteral("-")}, garip).durum, 0);
    const Sonuç sonuç = çalıştır({QStringLiteral("denetle"), klasör_});
    QCOMPARE(sonuç.durum, 0);
    QVERIFY2(sonuç.çıktı.contains("Not: 1 yazar adında ya da başlıkta kesme işareti"), sonuç.çıktı);
    QVERIFY2(sonuç.çıktı.contains("Not: 1 makalenin yazar adı tek sözcük."), sonuç.çıktı);
    QVERIFY2(sonuç.çıktı.contains("Not: 1 başlık birden çok"), sonuç.çıktı);
}

QTEST_GUILESS_MAIN(TestTool)
#include "test_tool.moc"
