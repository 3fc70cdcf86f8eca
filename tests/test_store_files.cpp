#include "DenemeKitaplığı.h"

#include "store/Bağlantı.h"

#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSet>
#include <QTest>

#include <algorithm>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QString Mde = KitaplıkDosyaları::Veritabanı.toString();
const QString Tps = KitaplıkDosyaları::ÇalışmaGrubu.toString();
const QString MdKopya = KitaplıkDosyaları::Kopya.toString();
constexpr qsizetype SayfaBoyu = 16384;
constexpr uid_t Kimse = 65534;

const QString Tümü = u"SELECT * FROM [Makaleler]"_s;

/// Short articles for the table's and indices' inner pages, long ones for overflow pages.
QList<Makale> karışıkMakaleler(int kısa, int uzun)
{
    QList<Makale> liste;
    for (int i = 0; i < kısa + uzun; ++i)
        liste.append({u"YAZAR %1"_s.arg(i % 31), u"BAŞLIK %1"_s.arg((i * 7919) % 10007),
                      UzunMetin(i, i < kısa ? 60 : 200'000)});
    return liste;
}

int başlat(const QString& klasör)
{
    return HataNumarası([&] { Açılış{klasör}; });
}

void dosyalarıKoy(const QString& klasör, const QMap<QString, QByteArray>& dosyalar)
{
    const QStringList eskiler = QDir(klasör).entryList(QDir::Files | QDir::Hidden);
    for (const QString& ad : eskiler)
        QFile::remove(klasör + ad);
    for (auto dosya = dosyalar.begin(); dosya != dosyalar.end(); ++dosya)
        DosyaYaz(klasör + dosya.key(), dosya.value());
}

/// Acts as an ordinary account while it lives, where the tests run as root: root may write everywhere.
class SıradanKullanıcı
{
public:
    SıradanKullanıcı() : değişti_(geteuid() == 0 && seteuid(Kimse) == 0) {}
    ~SıradanKullanıcı()
    {
        if (değişti_ && seteuid(0) != 0)
            qFatal("cannot go back to root");
    }
    SıradanKullanıcı(const SıradanKullanıcı&) = delete;
    SıradanKullanıcı& operator=(const SıradanKullanıcı&) = delete;

private:
    bool değişti_;
};

/// A small file system of its own, which only this process sees.
class KüçükDisk
{
public:
    bool Kur()
    {
        return unshare(CLONE_NEWNS) == 0 && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
               bağla(0, qint64(1) << 30);
    }
    ~KüçükDisk() { umount2(QFile::encodeName(klasör_.path()).constData(), MNT_DETACH); }
    QString Klasör() const { return klasör_.path() + u'/'; }
    bool Boyutlandır(qint64 bayt) { return bağla(MS_REMOUNT, bayt); }

private:
    bool bağla(unsigned long bayraklar, qint64 bayt)
    {
        return mount("tmpfs", QFile::encodeName(klasör_.path()).constData(), "tmpfs", bayraklar,
                     QByteArray("size=" + QByteArray::number(bayt)).constData()) == 0;
    }
    QTemporaryDir klasör_;
};

} // namespace

class TestStoreFiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void accounts();
    void userAccountLivesForOneRun();
    void compaction();
    void compactionFollowsLinkAndKeepsMode();
    void compactionArguments();
    void passwords();
    void missingFiles();
    void refusedFiles_data();
    void refusedFiles();
    void otherEncryptedDatabases();
    void truncated_data();
    void truncated();
    void damaged_data();
    void damaged();
    void damagedWhileOpen();
    void noPermission_data();
    void noPermission();
    void fullDisk_data();
    void fullDisk();
    void fullDiskWhileWriting();
    void locked_data();
    void locked();
    void oneEngineAFolder();
    void exclusiveOpening();
    void nothingInTheClear();

private:
    /// Puts the prepared library into a fresh folder.
    QString klasörHazırla();

    QList<Makale> makaleler_;
    QMap<QString, QByteArray> dosyalar_;
    std::unique_ptr<QTemporaryDir> geçici_;
};

void TestStoreFiles::initTestCase()
{
    makaleler_ = karışıkMakaleler(500, 3);
    const DenemeKitaplığı kitaplık(makaleler_);
    dosyalar_ = KlasörOku(kitaplık.Klasör());
    QCOMPARE(dosyalar_.keys(), (QStringList{Mde, Tps}));
}

QString TestStoreFiles::klasörHazırla()
{
    geçici_ = std::make_unique<QTemporaryDir>();
    dosyalarıKoy(geçici_->path() + u'/', dosyalar_);
    return geçici_->path() + u'/';
}

void TestStoreFiles::accounts()
{
    DBEngine motor;
    motor.SystemDB(klasörHazırla() + Tps);
    for (const auto& [ad, parola] : {std::pair{u"Sahip"_s, u"kaplumbaga"_s},
                                     {u"Sahip"_s, u""_s},
                                     {u"sahip"_s, u"Kaplumbaga"_s},
                                     {u"Kullanici"_s, u"Hoppaaa"_s},
                                     {u""_s, u""_s}})
        QCOMPARE(HataNumarası([&] { motor.CreateWorkspace(u""_s, ad, parola); }), 3029);

    Workspace sahip = motor.CreateWorkspace(u"alan"_s, u"Sahip"_s, u"Kaplumbaga"_s);
    QCOMPARE(sahip.Name(), u"alan"_s);
    QCOMPARE(sahip.UserName(), u"Sahip"_s);
    User konuk = sahip.CreateUser(u"Konuk"_s);
    konuk.PID(u"Kimlik"_s);
    konuk.Password(u"Şifre"_s);
    sahip.Users().Append(konuk);
    QCOMPARE(HataNumarası([&] { sahip.Users().Append(konuk); }), 3390);
    QCOMPARE(HataNumarası([&] { sahip.Users().Delete(u"Yok"_s); }), 3265);
    QCOMPARE(HataNumarası([&] { sahip.Users().Delete(u"Sahip"_s); }), 3051);

    const Workspace alan = motor.CreateWorkspace({}, u"Konuk"_s, u"Şifre"_s);
    QCOMPARE(HataNumarası([&] { alan.Users().Append(User(u"Başka"_s)); }), 3051);
    QCOMPARE(HataNumarası([&] { alan.Users().Delete(u"Konuk"_s); }), 3051);
    const std::vector<User> hesaplar = alan.Users().Tümü();
    QCOMPARE(hesaplar.size(), 2U);
    QCOMPARE(hesaplar[0].Name(), u"Konuk"_s);
    QCOMPARE(hesaplar[0].PID(), u"Kimlik"_s);
    QCOMPARE(hesaplar[0].Password(), QString());

    sahip.Users().Delete(u"Konuk"_s);
    QCOMPARE(HataNumarası([&] { motor.CreateWorkspace({}, u"Konuk"_s, u"Şifre"_s); }), 3029);
    sahip.Close();
    QCOMPARE(HataNumarası([&] { sahip.Users(); }), 3420);
}

void TestStoreFiles::userAccountLivesForOneRun()
{
    const QString klasör = klasörHazırla();
    {
        Açılış açılış(klasör);
        const Workspace sahip = SahipÇalışmaAlanı(açılış.Motor);
        const std::vector<User> hesaplar = sahip.Users().Tümü();
        QCOMPARE(hesaplar.size(), 2U);
        QCOMPARE(hesaplar[0].Name(), u"Kullanici"_s);
        QCOMPARE(hesaplar[0].PID(), u"3Cizgi3"_s);
        KullanıcıHesabınıSil(sahip);
        QCOMPARE(sahip.Users().Tümü().size(), 1U);
        QCOMPARE(açılış.Veritabanı.OpenRecordset(Tümü).RecordCount(), makaleler_.size()); // still open
    }
    QCOMPARE(başlat(klasör), 0); // ends without deleting the account
    const QByteArray grup = DosyaOku(klasör + Tps);
    QCOMPARE(başlat(klasör), 0);
    QCOMPARE(DosyaOku(klasör + Tps), grup);
}

void TestStoreFiles::compaction()
{
    const QString klasör = klasörHazırla();
    DosyaYaz(klasör + MdKopya, "left from the last start");
    DosyaYaz(klasör + Mde + u'~', "left from a crash");
    {
        const auto kitaplık = DosyaBağlantısı(klasör);
        kitaplık->Çalıştır("DELETE FROM Makaleler WHERE Kimlik % 3 = 0 OR Kimlik > 500");
        kitaplık->Çalıştır("UPDATE Makaleler SET Kimlik = 1000 - Kimlik WHERE Kimlik < 100");
    }
    QList<Makale> beklenen;
    {
        const Açılış açılış(klasör);
        beklenen = Makaleler(açılış.Veritabanı);
        QCOMPARE(beklenen.size(), 334);
        QCOMPARE(beklenen.first(), makaleler_[99]);
        QCOMPARE(beklenen.last(), makaleler_[0]); // keys, and with them the order, stay
        QCOMPARE(
            açılış.Veritabanı.OpenRecordset(u"SELECT Kimlik FROM Makaleler WHERE Kimlik=999"_s).RecordCount(),
            1);
    }
    const QMap<QString, QByteArray> sonra = KlasörOku(klasör);
    QCOMPARE(sonra.keys(), (QStringList{MdKopya, Mde, Tps}));
    QCOMPARE(sonra[MdKopya], sonra[Mde]);
    QVERIFY(sonra[Mde].size() < dosyalar_[Mde].size() / 2);
    QVERIFY(!sonra[Mde].startsWith("SQLite"));
    const auto kitaplık = DosyaBağlantısı(klasör);
    QCOMPARE(kitaplık->Metin("PRAGMA integrity_check"), u"ok"_s);

    QFile::remove(klasör + Mde); // recovery by hand
    QVERIFY(QFile::rename(klasör + MdKopya, klasör + Mde));
    QCOMPARE(Makaleler(Açılış(klasör).Veritabanı), beklenen);
}

void TestStoreFiles::compactionFollowsLinkAndKeepsMode()
{
    const QString klasör = klasörHazırla();
    const QTemporaryDir başkaKlasör;
    const QString asıl = başkaKlasör.filePath(u"asıl.mde"_s);
    QVERIFY(QFile::rename(klasör + Mde, asıl) && QFile::link(asıl, klasör + Mde));
    QCOMPARE(chmod(QFile::encodeName(asıl).constData(), 0640), 0);
    const QByteArray önce = DosyaOku(asıl);
    QCOMPARE(Makaleler(Açılış(klasör).Veritabanı), makaleler_);
    QVERIFY(QFileInfo(klasör + Mde).isSymLink());
    QVERIFY(DosyaOku(asıl) != önce);
    struct stat bilgi = {};
    QCOMPARE(stat(QFile::encodeName(asıl).constData(), &bilgi), 0);
    QCOMPARE(int(bilgi.st_mode & 07777), 0640);
    QCOMPARE(KlasörOku(başkaKlasör.path() + u'/').size(), 1);
}

void TestStoreFiles::compactionArguments()
{
    const QString klasör = klasörHazırla();
    DBEngine motor;
    motor.SystemDB(klasör + Tps);
    const QString yerel = u";LANGID=0x041F;CP=1254;COUNTRY=0"_s;
    const auto sıkıştır = [&](const QString& kaynak, const QString& hedefYereli, int seçenek,
                              const QString& parola) {
        return HataNumarası(
            [&] { motor.CompactDatabase(klasör + kaynak, klasör + MdKopya, hedefYereli, seçenek, parola); });
    };
    QCOMPARE(sıkıştır(Mde, u";LANGID=0x0409;CP=1252;COUNTRY=0"_s, dbEncrypt, u";Pwd=Pelikan"_s), 3343);
    QCOMPARE(sıkıştır(Mde, yerel, 4, u";Pwd=Pelikan"_s), 3051);
    QCOMPARE(sıkıştır(Mde, yerel, dbEncrypt, u";Pwd=pelikan"_s), 3031);
    QCOMPARE(sıkıştır(Mde, yerel, dbEncrypt, u""_s), 3031);
    QCOMPARE(sıkıştır(u"yok.mde"_s, yerel, dbEncrypt, u";Pwd=Pelikan"_s), 3024);
    QCOMPARE(KlasörOku(klasör), dosyalar_);
    QCOMPARE(sıkıştır(Mde, yerel, dbEncrypt, u";Pwd=Pelikan"_s), 0);
    QCOMPARE(sıkıştır(Mde, yerel, dbEncrypt, u";Pwd=Pelikan"_s), 3204);
    QCOMPARE(DosyaOku(klasör + Mde), dosyalar_[Mde]);
}

void TestStoreFiles::passwords()
{
    const QString klasör = klasörHazırla();
    Açılış açılış(klasör);
    const auto aç = [&](const QString& metin) {
        return HataNumarası([&] { açılış.Alan->OpenDatabase(klasör + Mde, false, false, metin); });
    };
    QCOMPARE(aç(u";PWD=Pelikan"_s), 0);
    QCOMPARE(aç(u";pwd=Pelikan"_s), 0);
    for (const QString& yanlış : {u";PWD=PELİKAN"_s, u";PWD=Pelikan "_s, u";PWD="_s, u""_s, u"Pelikan"_s})
        QCOMPARE(aç(yanlış), 3031);

    const Database okunan = açılış.Alan->OpenDatabase(klasör + Mde, false, true, u";PWD=Pelikan"_s);
    Recordset kayıtlar = okunan.OpenRecordset(Tümü);
    QCOMPARE(HataNumarası([&] { kayıtlar.Delete(); }), 3027);
    açılış.Alan->Close();
    QCOMPARE(aç(u";PWD=Pelikan"_s), 3420);
}

void TestStoreFiles::missingFiles()
{
    for (const QString& dosya : {Mde, Tps}) {
        const QString klasör = klasörHazırla();
        QFile::remove(klasör + dosya);
        const QMap<QString, QByteArray> önce = KlasörOku(klasör);
        QCOMPARE(başlat(klasör), 3024);
        QCOMPARE(KlasörOku(klasör), önce); // no empty file is made in its place
        QCOMPARE(HataNumarası([&] { KitaplıkKur(klasör); }), 3204);
        QCOMPARE(KlasörOku(klasör), önce);
    }
    QCOMPARE(başlat(klasörHazırla() + u"yok/"_s), 3024);
}

void TestStoreFiles::refusedFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QList<int>>("errors");
    QRandomGenerator rastgele(7);
    const auto gürültü = [&rastgele](qsizetype boy) {
        QByteArray baytlar(boy, Qt::Uninitialized);
        for (char& bayt : baytlar)
            bayt = char(rastgele.bounded(256));
        return baytlar;
    };
    QTest::newRow("empty") << QByteArray() << QList<int>{3902};
    QTest::newRow("one byte") << QByteArray("a") << QList<int>{3343};
    QTest::newRow("short text") << u"Bugün hava güzel.\r\n"_s.toUtf8() << QList<int>{3343};
    QTest::newRow("long text") << UzunMetin(1, 50'000).toUtf8() << QList<int>{3343};
    QTest::newRow("rich text") << "{\\rtf1 " + gürültü(300) << QList<int>{3343};
    QTest::newRow("archive") << "PK\x03\x04" + gürültü(40'000) << QList<int>{3343};
    QTest::newRow("drawing") << "\x89PNG\r\n\x1a\n" + gürültü(40'000) << QList<int>{3343};
    QTest::newRow("photograph") << "\xff\xd8\xff\xe0" + gürültü(2 * SayfaBoyu) << QList<int>{3343};
    QTest::newRow("plain database") << QByteArray("SQLite format 3\0", 16) + gürültü(3 * SayfaBoyu - 16)
                                    << QList<int>{3343};
    QTest::newRow("noise") << gürültü(50'000) << QList<int>{3343, 3049, 3901};
    QTest::newRow("noise of whole pages") << gürültü(2 * SayfaBoyu) << QList<int>{3343, 3049, 3901};
    QTest::newRow("zeros") << QByteArray(4 * SayfaBoyu, '\0') << QList<int>{3049};
    QTest::newRow("the other file") << QByteArray("?") << QList<int>{3049};
}

void TestStoreFiles::refusedFiles()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QList<int>, errors);
    for (const QString& dosya : {Mde, Tps}) {
        const QString klasör = klasörHazırla();
        const QString& diğeri = dosya == Mde ? Tps : Mde;
        DosyaYaz(klasör + dosya, bytes == "?" ? dosyalar_[diğeri] : bytes);
        const QMap<QString, QByteArray> önce = KlasörOku(klasör);
        const int hata = başlat(klasör);
        QVERIFY2(errors.contains(hata), qPrintable(u"%1: %2"_s.arg(dosya).arg(hata)));
        QCOMPARE(KlasörOku(klasör), önce);
    }
}

void TestStoreFiles::otherEncryptedDatabases()
{
    const QString klasör = klasörHazırla();
    const Anahtar anahtar{AnahtarTürü::Parola, "Pelikan"};
    const QString yol = klasör + Mde;
    DosyaBağlantısı(klasör)->Çalıştır("PRAGMA user_version=2");
    QCOMPARE(başlat(klasör), 3041);
    QFile::remove(yol);
    QVERIFY(QDir().mkdir(yol));
    QCOMPARE(başlat(klasör), 3343);
    QVERIFY(QDir().rmdir(yol));
    Bağlantı(yol, anahtar, AçmaKipi::Oluştur).Çalıştır("CREATE TABLE Kitaplar(Ad TEXT)");
    const QByteArray önce = DosyaOku(yol);
    QCOMPARE(başlat(klasör), 3343);
    QCOMPARE(DosyaOku(yol), önce);
    QCOMPARE(HataNumarası([&] { Bağlantı(yol, anahtar, AçmaKipi::Oluştur); }), 3204);
}

void TestStoreFiles::truncated_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<qsizetype>("length");
    for (const QString& dosya : {Mde, Tps}) {
        const qsizetype boy = dosyalar_[dosya].size();
        const qsizetype orta = boy / 2 / SayfaBoyu * SayfaBoyu;
        for (const qsizetype kalan :
             {qsizetype(300), qsizetype(1500), SayfaBoyu - 1, SayfaBoyu, SayfaBoyu + 1, orta - 100, orta,
              orta + 8000, boy - SayfaBoyu - 1, boy - SayfaBoyu, boy - 500, boy - 1})
            QTest::addRow("%s %lld", qPrintable(dosya), qlonglong(kalan)) << dosya << kalan;
    }
}

void TestStoreFiles::truncated()
{
    QFETCH(QString, file);
    QFETCH(qsizetype, length);
    const QString klasör = klasörHazırla();
    DosyaYaz(klasör + file, dosyalar_[file].left(length));
    const QMap<QString, QByteArray> önce = KlasörOku(klasör);
    QCOMPARE(başlat(klasör), 3901);
    QCOMPARE(KlasörOku(klasör), önce);
}

void TestStoreFiles::damaged_data()
{
    QTest::addColumn<QString>("file");
    for (const QString& dosya : {Mde, Tps})
        QTest::newRow(qPrintable(dosya)) << dosya;
}

namespace {

/// The file with one fault each: bits flipped in every page's content and in its check value, in the salt
/// and in the header, pages zeroed and swapped, bytes behind the end.
QMap<QString, QByteArray> bozulmuşlar(const QByteArray& sağlam, quint32 tohum)
{
    constexpr qsizetype Tuz = 16, Denetim = 48; // bytes before the first page's content, behind each one's
    QRandomGenerator rastgele(tohum);
    QMap<QString, QByteArray> sonuç;
    const auto çevir = [&](qsizetype yer) {
        QByteArray baytlar = sağlam;
        baytlar[yer] = char(baytlar[yer] ^ (1 << rastgele.bounded(8)));
        sonuç.insert(u"bit at %1"_s.arg(yer), baytlar);
    };
    for (const qsizetype yer : {0, 7, 15, 16, 20, 40, 99, 101})
        çevir(yer);
    for (qsizetype sayfa = 0; sayfa < sağlam.size(); sayfa += SayfaBoyu) {
        const qsizetype ilk = sayfa == 0 ? Tuz : 0;
        çevir(sayfa + ilk + rastgele.bounded(int(SayfaBoyu - Denetim - ilk)));
        çevir(sayfa + SayfaBoyu - Denetim + rastgele.bounded(int(Denetim)));
    }
    const QByteArray sıfırlar(SayfaBoyu, '\0');
    for (qsizetype sayfa = 0; sayfa < sağlam.size(); sayfa += sağlam.size() / 4 / SayfaBoyu * SayfaBoyu) {
        sonuç.insert(u"zeros from %1"_s.arg(sayfa), QByteArray(sağlam).replace(sayfa, SayfaBoyu, sıfırlar));
        const QByteArray son = sağlam.right(SayfaBoyu);
        sonuç.insert(u"last page at %1"_s.arg(sayfa), QByteArray(sağlam).replace(sayfa, SayfaBoyu, son));
    }
    sonuç.insert(u"something behind the end"_s, sağlam + sağlam.left(2 * SayfaBoyu + 1));
    return sonuç;
}

} // namespace

void TestStoreFiles::damaged()
{
    QFETCH(QString, file);
    const quint32 tohum = QRandomGenerator::system()->generate();
    const QMap<QString, QByteArray> zararlar = bozulmuşlar(dosyalar_[file], tohum);
    const QString klasör = klasörHazırla();
    QMap<int, int> görülen;
    for (auto zarar = zararlar.begin(); zarar != zararlar.end(); ++zarar) {
        dosyalarıKoy(klasör, dosyalar_);
        DosyaYaz(klasör + file, zarar.value());
        const QMap<QString, QByteArray> önce = KlasörOku(klasör);
        QList<Makale> bulunan;
        const int hata = HataNumarası([&] { bulunan = Makaleler(Açılış(klasör).Veritabanı); });
        ++görülen[hata];
        const QString yer = u"%1, seed %2, error %3"_s.arg(zarar.key()).arg(tohum).arg(hata);
        QVERIFY2((QList<int>{0, 3049, 3901}).contains(hata), qPrintable(yer));
        if (hata == 0)
            QVERIFY2(bulunan == makaleler_, qPrintable(yer));
        else
            QVERIFY2(KlasörOku(klasör) == önce, qPrintable(yer));
    }
    qInfo() << zararlar.size() << "faults; how many gave which error (0: all articles intact):" << görülen;
    QVERIFY(görülen[0] < görülen[3049]);
}

// A fault that comes up after the start: what is read is right or an error, never something else.
void TestStoreFiles::damagedWhileOpen()
{
    const QString klasör = klasörHazırla();
    const QByteArray sağlam = dosyalar_[Mde];
    const QString herSütun = u"SELECT YazarAdi, MakaleBasligi, MakaleMetni FROM Makaleler ORDER BY Kimlik"_s;
    const QString sonHarfler = UzunMetin(int(makaleler_.size()) - 1, 200'000).right(30).simplified();
    int hatalı = 0;
    for (qsizetype sayfa = SayfaBoyu; sayfa < sağlam.size(); sayfa += SayfaBoyu) {
        dosyalarıKoy(klasör, dosyalar_);
        const Database veritabanı(DosyaBağlantısı(klasör, 1));
        QByteArray bozuk = sağlam;
        bozuk[sayfa + 5000] = char(bozuk[sayfa + 5000] ^ 1);
        DosyaYaz(klasör + Mde, bozuk);

        QList<Makale> makaleler;
        QStringList metinler;
        qint64 uyan = 0;
        const QList<int> hatalar = {
            HataNumarası([&] { makaleler = Makaleler(veritabanı); }),
            HataNumarası([&] { metinler = Değerler(veritabanı.OpenRecordset(herSütun), u"MakaleMetni"); }),
            HataNumarası([&] {
                uyan = veritabanı.OpenRecordset(Tümü + u" WHERE MakaleMetni LIKE '*"_s + sonHarfler + u"*'"_s)
                           .RecordCount();
            })};
        QStringList doğrular;
        for (const Makale& makale : makaleler_)
            doğrular.append(makale.Metin);
        const QByteArray yer = "page " + QByteArray::number(sayfa / SayfaBoyu);
        QVERIFY2(hatalar[0] == 3049 || makaleler == makaleler_, yer);
        QVERIFY2(hatalar[1] == 3049 || metinler == doğrular, yer);
        QVERIFY2(hatalar[2] == 3049 || uyan == 1, yer);
        hatalı += hatalar[0] == 3049;
    }
    QVERIFY(hatalı > sağlam.size() / SayfaBoyu / 2);
}

void TestStoreFiles::noPermission_data()
{
    QTest::addColumn<mode_t>("folder");
    QTest::addColumn<mode_t>("library");
    QTest::addColumn<mode_t>("group");
    QTest::addColumn<int>("error");
    const auto row = [](const char* ad, mode_t klasör, mode_t kitaplık, mode_t grup, int hata) {
        QTest::newRow(ad) << klasör << kitaplık << grup << hata;
    };
    row("folder", 0555, 0666, 0666, 3027);
    row("library", 0777, 0444, 0666, 3027);
    row("accounts", 0777, 0666, 0444, 3027);
    row("library can't be read", 0777, 0, 0666, 3051);
    row("accounts can't be read", 0777, 0666, 0, 3051);
}

void TestStoreFiles::noPermission()
{
    QFETCH(mode_t, folder);
    QFETCH(mode_t, library);
    QFETCH(mode_t, group);
    const QString klasör = klasörHazırla();
    const auto izinVer = [&klasör](mode_t k, mode_t mde, mode_t tps) {
        return chmod(QFile::encodeName(klasör + Mde).constData(), mde) == 0 &&
               chmod(QFile::encodeName(klasör + Tps).constData(), tps) == 0 &&
               chmod(QFile::encodeName(klasör).constData(), k) == 0;
    };
    QVERIFY(izinVer(folder, library, group));
    int hata = 0;
    {
        const SıradanKullanıcı kullanıcı;
        hata = başlat(klasör);
    }
    QVERIFY(izinVer(0777, 0666, 0666));
    QTEST(hata, "error");
    QCOMPARE(KlasörOku(klasör), dosyalar_);
    const SıradanKullanıcı kullanıcı;
    QCOMPARE(başlat(klasör), 0);
}

void TestStoreFiles::fullDisk_data()
{
    QTest::addColumn<double>("room"); // in sizes of the library
    QTest::addColumn<bool>("copied");
    QTest::newRow("no room for the copy") << 0.5 << false;
    QTest::newRow("no room to put the copy in place") << 1.5 << true;
}

void TestStoreFiles::fullDisk()
{
    QFETCH(double, room);
    QFETCH(bool, copied);
    KüçükDisk disk;
    if (!disk.Kur())
        QSKIP("no file system may be mounted here");
    dosyalarıKoy(disk.Klasör(), dosyalar_);
    const qsizetype mde = dosyalar_[Mde].size(), tps = dosyalar_[Tps].size();
    QVERIFY(disk.Boyutlandır(mde + tps + qint64(room * double(mde))));
    QCOMPARE(başlat(disk.Klasör()), 3026);

    QMap<QString, QByteArray> sonra = KlasörOku(disk.Klasör());
    QCOMPARE(sonra.contains(MdKopya), copied);
    QMap<QString, QByteArray> kopyadan = dosyalar_;
    kopyadan[Mde] = sonra.take(MdKopya);
    QCOMPARE(sonra, dosyalar_);
    if (copied) { // what is left is a whole library
        const QString klasör = klasörHazırla();
        dosyalarıKoy(klasör, kopyadan);
        QCOMPARE(Makaleler(Database(DosyaBağlantısı(klasör))), makaleler_);
    }
    QVERIFY(disk.Boyutlandır(qint64(1) << 30));
    QCOMPARE(Makaleler(Açılış(disk.Klasör()).Veritabanı), makaleler_);
}

void TestStoreFiles::fullDiskWhileWriting()
{
    KüçükDisk disk;
    if (!disk.Kur())
        QSKIP("no file system may be mounted here");
    const DenemeKitaplığı kitaplık(disk.Klasör(), makaleler_.mid(0, 50));
    const Açılış açılış(disk.Klasör());
    qint64 dolu = 0;
    for (const QByteArray& dosya : KlasörOku(disk.Klasör()))
        dolu += dosya.size();
    QVERIFY(disk.Boyutlandır(dolu + 5 * SayfaBoyu));
    Recordset kayıtlar = açılış.Veritabanı.OpenRecordset(Tümü);
    kayıtlar.AddNew();
    kayıtlar.Fields(u"MakaleMetni").Value(makaleler_.last().Metin);
    QCOMPARE(HataNumarası([&] { kayıtlar.Update(); }), 3026);
    QCOMPARE(Makaleler(açılış.Veritabanı), makaleler_.mid(0, 50));
    QVERIFY(disk.Boyutlandır(qint64(1) << 30));
    kayıtlar.Update(); // was still pending
    QCOMPARE(Makaleler(açılış.Veritabanı).last().Metin, makaleler_.last().Metin);
}

void TestStoreFiles::locked_data()
{
    QTest::addColumn<QStringList>("lock");
    const auto baytlar = [](qint64 yer, qint64 boy) {
        return QStringList{u"dosya-kilidi"_s, QString::number(yer), QString::number(boy)};
    };
    constexpr qint64 Bekleyen = 0x40000000; // where SQLite locks: pending, reserved, 510 shared bytes
    QTest::newRow("folder") << QStringList{u"klasor-kilidi"_s};
    QTest::newRow("pending") << baytlar(Bekleyen, 1);
    QTest::newRow("reserved") << baytlar(Bekleyen + 1, 1);
    QTest::newRow("exclusive") << baytlar(Bekleyen + 2, 510);
}

void TestStoreFiles::locked()
{
    QFETCH(QStringList, lock);
    const QString klasör = klasörHazırla();
    lock.insert(1, klasör);
    const auto süreç = YardımcıSüreç(lock);
    QVERIFY(süreç);
    QCOMPARE(başlat(klasör), 3045);
    QCOMPARE(KlasörOku(klasör), dosyalar_);
    süreç->closeWriteChannel();
    süreç->waitForFinished();
    QCOMPARE(süreç->exitCode(), 0);
    QCOMPARE(başlat(klasör), 0);
}

void TestStoreFiles::oneEngineAFolder()
{
    const QString klasör = klasörHazırla();
    {
        const Açılış açılış(klasör);
        const auto süreç = YardımcıSüreç({u"klasor-kilidi"_s, klasör});
        QVERIFY(!süreç); // the engine holds the lock all the time
        QCOMPARE(başlat(klasör), 3045);
        QCOMPARE(Makaleler(açılış.Veritabanı), makaleler_);
    }
    QCOMPARE(başlat(klasör), 0);
}

void TestStoreFiles::exclusiveOpening()
{
    const QString klasör = klasörHazırla();
    const Açılış açılış(klasör);
    const auto aç = [&](bool tekBaşına) {
        return açılış.Alan->OpenDatabase(klasör + Mde, tekBaşına, false, u";PWD=Pelikan"_s);
    };
    {
        const Database tek = aç(true);
        QCOMPARE(tek.OpenRecordset(Tümü).RecordCount(), makaleler_.size());
        QCOMPARE(HataNumarası([&] { aç(false); }), 3045);
    }
    QCOMPARE(HataNumarası([&] { aç(true); }), 0);
}

namespace {

const QString GizliYazar = u"SAKLIOĞLU"_s, GizliSözcük = u"Gizlisözcük"_s;

/// The names of the folder's files, and of deleted files that are still open, that hold a secret word.
QStringList açıktaOlanlar(const QString& klasör)
{
    QMap<QString, QByteArray> dosyalar = KlasörOku(klasör);
    const QStringList tanıtıcılar = QDir(u"/proc/self/fd"_s).entryList(QDir::Files | QDir::System);
    for (const QString& no : tanıtıcılar) {
        const QString yol = u"/proc/self/fd/"_s + no;
        const QString hedef = QFile::symLinkTarget(yol);
        if (hedef.endsWith(u"(deleted)"_s) && !hedef.contains(u"memfd"_s))
            dosyalar.insert(hedef, DosyaOku(yol));
    }
    QStringList bulunan;
    for (auto dosya = dosyalar.begin(); dosya != dosyalar.end(); ++dosya) {
        for (const QString& gizli : {GizliYazar, GizliSözcük}) {
            const auto* utf16 = reinterpret_cast<const char*>(gizli.utf16());
            if (dosya.value().contains(gizli.toUtf8()) ||
                dosya.value().contains(QByteArray::fromRawData(utf16, gizli.size() * 2)))
                bulunan.append(dosya.key());
        }
    }
    return bulunan;
}

} // namespace

void TestStoreFiles::nothingInTheClear()
{
    QList<Makale> makaleler = karışıkMakaleler(100, 10);
    for (Makale& makale : makaleler) {
        makale.Yazar += u' ' + GizliYazar;
        for (qsizetype yer = makale.Metin.size(); yer >= 0; yer -= 5000)
            makale.Metin.insert(yer, GizliSözcük);
    }
    const DenemeKitaplığı kitaplık(makaleler);
    const QString& klasör = kitaplık.Klasör();
    DosyaYaz(klasör + u"açık.txt"_s, GizliSözcük.toUtf8());
    DosyaYaz(klasör + u"açık16.txt"_s,
             QByteArray(reinterpret_cast<const char*>(GizliYazar.utf16()), GizliYazar.size() * 2));
    QCOMPARE(açıktaOlanlar(klasör).size(), 2); // the search itself works
    QVERIFY(QFile::remove(klasör + u"açık.txt"_s) && QFile::remove(klasör + u"açık16.txt"_s));

    QSet<QStringList> kümeler; // the sets of files that were looked through
    const auto bak = [&] {
        kümeler.insert(KlasörOku(klasör).keys());
        QCOMPARE(açıktaOlanlar(klasör), QStringList());
    };
    {
        Açılış açılış(klasör, bak);
    }
    bak();
    {
        const auto bağlantı = DosyaBağlantısı(klasör, 4);
        const İşlem işlem(*bağlantı);
        bağlantı->Çalıştır("UPDATE Makaleler SET YayimYeri='X', MakaleMetni=MakaleMetni||'.'");
        Ekle(Database(bağlantı), makaleler);
        bak();
        Deyim sıralama(*bağlantı, "SELECT * FROM Makaleler ORDER BY MakaleMetni DESC");
        QVERIFY(sıralama.Adım());
        bak();
    }
    for (const QStringList& küme :
         {QStringList{MdKopya, Mde, Tps}, QStringList{MdKopya, Mde, Mde + u'~', Tps},
          QStringList{MdKopya, Mde, Mde + u"-journal"_s, Tps}})
        QVERIFY2(kümeler.contains(küme), qPrintable(küme.join(u' ')));
}

QTEST_GUILESS_MAIN(TestStoreFiles)
#include "test_store_files.moc"
