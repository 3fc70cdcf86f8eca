// Runs the built companion as a user would: arguments, standard streams, exit status.
#include "store/KitaplıkDosyası.h"
#include "store/KlasörKilidi.h"
#include "store/Workspace.h"
#include "store/ÇalışmaGrubu.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <linux/capability.h>
#include <memory>
#include <sys/prctl.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QString Başlangıç = QStringLiteral(STARTER_LIBRARY);
constexpr int Süre = 60'000; // ms

struct Sonuç
{
    int durum; // -1 also for a process that was killed
    QByteArray çıktı, hata;
};

Sonuç bitir(QProcess& süreç)
{
    süreç.closeWriteChannel();
    const bool bitti = süreç.waitForFinished(Süre) && süreç.exitStatus() == QProcess::NormalExit;
    return {bitti ? süreç.exitCode() : -1, süreç.readAllStandardOutput(), süreç.readAllStandardError()};
}

// Root loses the right to write what permissions forbid.
void başlat(QProcess& süreç, const QStringList& değişkenler)
{
    süreç.setChildProcessModifier([] { prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE); });
    süreç.start(QStringLiteral(COMPANION_TOOL), değişkenler);
}

Sonuç çalıştır(const QStringList& değişkenler, const QByteArray& girdi = {})
{
    QProcess süreç;
    başlat(süreç, değişkenler);
    süreç.write(girdi);
    return bitir(süreç);
}

void başarmalı(const Sonuç& sonuç, const QByteArray& çıktı)
{
    QCOMPARE(sonuç.hata, QByteArray());
    QCOMPARE(sonuç.çıktı, çıktı);
    QCOMPARE(sonuç.durum, 0);
}

void reddetmeli(const Sonuç& sonuç, const QByteArray& neden)
{
    QVERIFY2(sonuç.hata.startsWith("belgenar-kitaplik: ") && sonuç.hata.contains(neden), sonuç.hata);
    QCOMPARE(sonuç.çıktı, QByteArray());
    QCOMPARE(sonuç.durum, 1);
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

QByteArray satır(const QByteArray& başlık, const QByteArray& metin = "Metin.")
{
    return R"({"YazarAdi": "ALİ KAYA", "MakaleBasligi": ")" + başlık +
           R"(", "YayimYeri": "Rize", "YayimTarihi": "", "MakaleMetni": ")" + metin + "\"}\n";
}

} // namespace

class TestTool : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void usage();
    void roundTrip();
    void badLineIsNamed();
    void tolerantImport();
    void refusals();
    void readOnlyLibrary();
    void unfinishedImport();
    void checkFiles();
    void checkForeignFiles();
    void checkContents();

private:
    QString yol(const QString& ad) const { return geçici_->filePath(ad); }
    Sonuç komut(const QString& ad) const { return çalıştır({ad, klasör_}); }
    Sonuç aktar(const QString& dosya, const QByteArray& girdi = {}) const
    {
        return çalıştır({u"aktar"_s, klasör_, dosya}, girdi);
    }

    std::unique_ptr<QTemporaryDir> geçici_;
    QString klasör_, kitaplık_, grup_; // a library with two articles
    const QByteArray makaleler_ = satır("BİR") + satır("İKİ");
};

void TestTool::init()
{
    qputenv("LC_ALL", "C");
    geçici_ = std::make_unique<QTemporaryDir>();
    klasör_ = yol(u"Çöğür Işık"_s);
    kitaplık_ = yol(u"Çöğür Işık/Makale.mde"_s);
    grup_ = yol(u"Çöğür Işık/Makale.tps"_s);
    QCOMPARE(komut(u"oluştur"_s).durum, 0);
    başarmalı(aktar(u"-"_s, makaleler_), "2 makale aktarıldı.\n");
}

void TestTool::usage()
{
    for (const QString& istek : {u"--yardım"_s, u"--yardim"_s, u"--help"_s}) {
        const Sonuç sonuç = komut(istek);
        QVERIFY(sonuç.durum == 0 && sonuç.çıktı.contains("oluştur KLASÖR") && sonuç.hata.isEmpty());
    }
    for (const Sonuç& sonuç : {çalıştır({}), komut(u"sil"_s), komut(u"aktar"_s), çalıştır({u"dök"_s, u""_s}),
                               çalıştır({u"dök"_s, klasör_, klasör_})})
        QVERIFY(sonuç.durum == 2 && sonuç.çıktı.isEmpty() && sonuç.hata.contains("belgenar-kitaplik "));
}

void TestTool::roundTrip()
{
    const QByteArray ilk = oku(Başlangıç), makaleSayısı = QByteArray::number(ilk.count('\n'));
    const auto satırları = [](const QByteArray& metin) {
        const QByteArrayList liste = metin.split('\n');
        return QSet<QByteArray>(liste.begin(), liste.end());
    };
    QString dosya = Başlangıç;
    for (const char* yerel : {"C", "C.UTF-8", "tr_TR.UTF-8"}) {
        qputenv("LC_ALL", yerel);
        const QString klasör = yol(u"öykü/ığdır "_s + QString::fromLatin1(yerel));
        QCOMPARE(çalıştır({u"olustur"_s, klasör}).durum, 0);
        başarmalı(çalıştır({u"aktar"_s, klasör, dosya}), makaleSayısı + " makale aktarıldı.\n");
        const auto önce = içindekiler(klasör);
        const Sonuç döküm = çalıştır({u"dok"_s, klasör});
        başarmalı(çalıştır({u"denetle"_s, klasör}), "Kitaplık sağlam; " + makaleSayısı + " makale var.\n");
        QCOMPARE(içindekiler(klasör), önce);
        // The order is the library's own, and stays when a library is made from it.
        if (dosya == Başlangıç)
            QCOMPARE(satırları(döküm.çıktı), satırları(ilk));
        else
            QCOMPARE(döküm.çıktı, oku(dosya));
        dosya = klasör + u".jsonl"_s;
        yaz(dosya, döküm.çıktı);
    }
}

void TestTool::badLineIsNamed()
{
    const auto yer = [](const QByteArray& yeni) { return satır("ÜÇ").replace("\"Rize\"", yeni); };
    const QByteArray jsonDeğil = "Geçerli bir JSON değil; sorun ";
    const std::vector<std::pair<QByteArray, QByteArray>> bozuklar = {
        {satır("\xff"), "Satır geçerli bir UTF-8"},
        {"YazarAdi=ALİ\n", jsonDeğil},
        {satır("ÜÇ").left(20) + "\n", jsonDeğil + "20. karakter"},
        {satır("ÜÇ").trimmed() + satır("ÜÇ"), jsonDeğil},
        {satır("Ü\tÇ"), jsonDeğil + "45. karakter"},
        {satır("Ü\\\\\\q"), jsonDeğil},
        {satır("\\u12+4"), jsonDeğil},
        {"[1]\n", "Satır bir JSON nesnesi"},
        {satır("ÜÇ").replace("\"YayimYeri\": \"Rize\", ", ""), "YayimYeri alanı eksik"},
        {yer("\"\", \"Yayın\": \"\""), "\"Yayın\" diye bir alan yok"},
        {yer("1999"), "YayimYeri alanının değeri bir metin değil"},
        {satır("ÜÇ", "a\\u0000b"), "MakaleMetni alanında kullanılamayan"},
        {satır("\\ud83d"), "MakaleBasligi alanında yarım"},
        {satır(QByteArray("Ç").repeated(1001)), "MakaleBasligi alanı çok uzun: 1001 karakter"},
        {satır(" \\t"), "MakaleBasligi alanı boş"},
        {satır("ÜÇ").replace("ALİ KAYA", ""), "YazarAdi alanı boş"},
    };
    const QString dosya = yol(u"bozuk %1.jsonl"_s);
    const auto önce = içindekiler(klasör_);
    for (const auto& [bozuk, yakınma] : bozuklar) {
        const QByteArray girdi = satır("ÜÇ") + "\n" + bozuk + satır("BEŞ") + "bu da bozuk\n";
        yaz(dosya, girdi);
        reddetmeli(aktar(dosya), "bozuk %1.jsonl, 3. satır: " + yakınma);
        reddetmeli(aktar(u"-"_s, girdi), "standart girdi, 3. satır: " + yakınma);
        QCOMPARE(içindekiler(klasör_), önce);
    }
}

void TestTool::tolerantImport()
{
    // A byte order mark, blank lines, Windows line ends, no line end at last; a letter and its mark
    // apart, an apostrophe, a mark at a text's beginning, escapes, a letter beyond the BMP.
    const QByteArray im = "\xef\xbb\xbf";
    yaz(yol(u"liste.jsonl"_s),
        im + "\n" + satır("O'NUN C\xcc\xa7I\xc4\x9eI", im + "A").trimmed() + "\r\n \r\n" +
            satır("ÜÇ", "\\u0041\\/\\\\\\\"\\n\\t\\u0001\\ud83d\\ude00 " + im + ".").trimmed());
    başarmalı(aktar(yol(u"liste.jsonl"_s)), "2 makale aktarıldı.\n");
    başarmalı(komut(u"dök"_s), makaleler_ + satır("O'NUN \xc3\x87I\xc4\x9eI", im + "A") +
                                   satır("ÜÇ", "A/\\\\\\\"\\n\\t\\u0001😀 " + im + "."));
}

void TestTool::refusals()
{
    reddetmeli(çalıştır({u"denetle"_s, u"/yok"_s}), "3024: ");
    reddetmeli(çalıştır({u"dök"_s, u"/yok"_s}), "3024: ");
    reddetmeli(aktar(yol(u"yok.jsonl"_s)), "3024: ");
    reddetmeli(aktar(klasör_), "30");

    for (const QString& dosya : {u"Makale.mde"_s, u"Makale.tps"_s}) { // creating overwrites neither
        const QString klasör = yol(dosya);
        QVERIFY(QDir().mkpath(klasör));
        yaz(klasör + u'/' + dosya, "eski");
        reddetmeli(çalıştır({u"oluştur"_s, klasör}), "3204: Dosya zaten var.");
        QCOMPARE(içindekiler(klasör), (QMap<QString, QByteArray>{{dosya, "eski"}}));
    }
    QProcess süreç;
    süreç.setStandardOutputFile(u"/dev/full"_s);
    başlat(süreç, {u"dök"_s, klasör_});
    reddetmeli(bitir(süreç), "3026: ");

    const KlasörKilidi kilit(klasör_);
    reddetmeli(aktar(Başlangıç), "3045: ");
    for (const QString& ad : {u"oluştur"_s, u"dök"_s, u"denetle"_s})
        reddetmeli(komut(ad), "3045: Dosya kullanımda;");
}

void TestTool::readOnlyLibrary()
{
    QVERIFY(QFile::setPermissions(kitaplık_, QFile::ReadOwner));
    QVERIFY(QFile::setPermissions(grup_, QFile::ReadOwner));
    QVERIFY(QFile::setPermissions(klasör_, QFile::ReadOwner | QFile::ExeOwner));
    başarmalı(komut(u"dök"_s), makaleler_);
    başarmalı(komut(u"denetle"_s), "Kitaplık sağlam; 2 makale var.\n");
    reddetmeli(aktar(Başlangıç), "3027: ");
    QVERIFY(QFile::setPermissions(klasör_, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

void TestTool::unfinishedImport()
{
    for (const int işaret : {SIGINT, SIGKILL}) {
        QProcess süreç;
        başlat(süreç, {u"aktar"_s, klasör_, u"-"_s});
        // More than the page cache holds, so that the library file itself is being written when it ends.
        for (int i = 0; i < 80; ++i)
            süreç.write(satır("UZUN", QByteArray("öykü ").repeated(20'000)));
        while (süreç.bytesToWrite() > 0)
            QVERIFY(süreç.waitForBytesWritten(Süre));
        QTRY_VERIFY_WITH_TIMEOUT(QFile(kitaplık_).size() > 1'000'000, Süre);
        ::kill(pid_t(süreç.processId()), işaret);
        const Sonuç sonuç = bitir(süreç);
        if (işaret == SIGINT)
            reddetmeli(sonuç, "durduruldu");

        const auto dosyalar = içindekiler(klasör_);
        QCOMPARE(dosyalar.contains(u"Makale.mde-journal"_s), işaret == SIGKILL);
        const Sonuç denetim = komut(u"denetle"_s);
        QVERIFY2(denetim.durum == 0 && denetim.çıktı.contains("2 makale var"), denetim.çıktı);
        QCOMPARE(denetim.çıktı.contains("yarım kalmış"), işaret == SIGKILL);
        QCOMPARE(içindekiler(klasör_), dosyalar);
        başarmalı(komut(u"dök"_s), makaleler_);
    }
}

void TestTool::checkFiles()
{
    const auto yakınmalı = [this](const QString& dosya, const QByteArray& yakınma) {
        const QByteArray ad = QFileInfo(dosya).fileName().toUtf8();
        const auto önce = içindekiler(klasör_);
        const Sonuç sonuç = komut(u"denetle"_s);
        QCOMPARE(sonuç.durum, 1);
        QVERIFY2(sonuç.çıktı.startsWith(ad + ": " + yakınma), ad + ' ' + yakınma + '\n' + sonuç.çıktı);
        QVERIFY2(!sonuç.çıktı.contains(dosya == grup_ ? "Makale.mde: " : "Makale.tps: "), sonuç.çıktı);
        QCOMPARE(içindekiler(klasör_), önce);
    };
    for (const QString& dosya : {kitaplık_, grup_}) {
        const QByteArray asıl = oku(dosya);
        for (const auto& [boy, no] : {std::pair(0, "3902: "), {5000, "3901: "}, {3 * 16384, "3901: "}}) {
            yaz(dosya, asıl.left(boy));
            yakınmalı(dosya, no);
        }
        for (const int yer : {100, 2 * 16384 + 9000, 4 * 16384 - 100}) {
            yaz(dosya, QByteArray(asıl).replace(yer, 1, QByteArray(1, char(asıl[yer] ^ 0x41))));
            yakınmalı(dosya, "3049: ");
        }
        QVERIFY(QFile::remove(dosya));
        yakınmalı(dosya, "3024: ");
        yaz(dosya, asıl);
    }
    yaz(kitaplık_, oku(kitaplık_) + QByteArray(16384, 'x'));
    yakınmalı(kitaplık_, "3049: Dosyanın sonunda");
}

void TestTool::checkForeignFiles()
{
    yaz(kitaplık_, oku(Başlangıç));
    yaz(grup_, oku(Başlangıç));
    const QByteArray metin = komut(u"denetle"_s).çıktı;
    QVERIFY2(metin.contains("Makale.mde: 3343: ") && metin.contains("Makale.tps: 3343: "), metin);

    QVERIFY(QFile::remove(kitaplık_) && QFile::remove(grup_));
    KitaplıkOluştur(kitaplık_, u"başka"_s);
    ÇalışmaGrubu::Oluştur(grup_, User(u"Başkası"_s), u"başka"_s);
    const QByteArray parola = komut(u"denetle"_s).çıktı;
    QVERIFY2(parola.contains("Makale.mde: 3031: ") && parola.contains("Makale.tps: 3029: "), parola);
}

void TestTool::checkContents()
{
    const QByteArray boz = "UPDATE Makaleler SET YazarAdi=";
    const QByteArray geçersiz = "Makale.mde: 3421: “BİR” başlıklı makale: YazarAdi alanı ";
    const QByteArray bozuk = "Makale.mde: 3049: “BİR” başlıklı makale: Dosya bozuk;";
    const std::vector<std::pair<QByteArrayList, QByteArray>> olaylar = {
        {{boz + "' '"}, geçersiz + "boş."},
        {{boz + "CAST(x'410042' AS TEXT)"}, bozuk},
        {{boz + "CAST(x'41ff' AS TEXT)"}, bozuk},
        {{boz + "hex(zeroblob(501))"}, geçersiz + "çok uzun"},
        {{boz + "'O''NUN'"}, "Not: 2 makalenin yazar adında ya da başlığında kesme işareti"},
        // A row enters while the index is hidden.
        {{"UPDATE sqlite_master SET sql=NULL WHERE name='BaslikDizini'",
          "INSERT INTO Makaleler VALUES(NULL, 'ALİ', 'ÜÇ', '', '', '')",
          "UPDATE sqlite_master SET sql='CREATE INDEX BaslikDizini ON Makaleler(MakaleBasligi)'"
          " WHERE name='BaslikDizini'"},
         "Makale.mde: 3049: Bir dizin tabloyla uyuşmuyor;"},
    };
    for (const auto& [deyimler, yakınma] : olaylar) {
        for (const QByteArray& sql : deyimler) { // the schema is read anew for each
            Bağlantı bağlantı(kitaplık_, {AnahtarTürü::Parola, "Pelikan"}, AçmaKipi::OkuYaz);
            bağlantı.Çalıştır("PRAGMA writable_schema=ON");
            bağlantı.Çalıştır(sql);
        }
        const Sonuç sonuç = komut(u"denetle"_s);
        QCOMPARE(sonuç.durum, yakınma.startsWith("Not: ") ? 0 : 1);
        QVERIFY2(sonuç.çıktı.startsWith(yakınma), sonuç.çıktı);
    }
}

QTEST_GUILESS_MAIN(TestTool)
#include "test_tool.moc"
