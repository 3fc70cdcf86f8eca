#include "library_fixture.h"
#include "system_calls.h"

#include "store/Bağlantı.h"

#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QScopeGuard>
#include <QSet>
#include <QTest>

#include <cerrno>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QString Mde = DosyaAdları::Kitaplık.toString(), MdKopya = DosyaAdları::Kopya.toString();
const QString Tps = DosyaAdları::Grup.toString(), Parola = u";PWD=Pelikan"_s;
const QString Tümü = u"SELECT * FROM [Makaleler]"_s;
constexpr qsizetype SayfaBoyu = 16384;
constexpr int Bölümler = 6; // of a test that would take too long in one
constexpr qint64 ÇokYer = qint64(1) << 30;
using Dosyalar = QMap<QString, QByteArray>;

/// Short articles for the table's and indices' inner pages, long ones for overflow pages.
QList<Makale> karışıkMakaleler(int kısa, int uzun)
{
    QList<Makale> liste;
    for (int i = 0; i < kısa + uzun; ++i)
        liste.append({u"YAZAR %1"_s.arg(i % 31), u"BAŞLIK %1"_s.arg((i * 7919) % 10007),
                      UzunMetin(i, i < kısa ? 60 : 200'000)});
    return liste;
}

/// Mounts a small file system that only this process sees, or changes its size.
bool diskBoyu(const QString& klasör, qint64 bayt, unsigned long bayraklar = MS_REMOUNT)
{
    const QByteArray yol = QFile::encodeName(klasör), boy = "size=" + QByteArray::number(bayt);
    return mount("tmpfs", yol.constData(), "tmpfs", bayraklar, boy.constData()) == 0;
}

} // namespace

class TestStoreFiles : public QObject
{
    Q_OBJECT

    const QList<Makale> makaleler_ = karışıkMakaleler(500, 3);
    const Dosyalar dosyalar_ = KlasörOku(DenemeKitaplığı(makaleler_).Klasör());
    std::unique_ptr<QTemporaryDir> geçici_;
    QMap<int, int> görülen_; // how often dene saw each error

    /// Puts the prepared library into a fresh folder.
    QString hazırla()
    {
        geçici_ = std::make_unique<QTemporaryDir>();
        GözlenenKlasör = QFile::encodeName(geçici_->path()).toStdString();
        for (const QString& ad : {Mde, Tps})
            DosyaYaz(geçici_->filePath(ad), dosyalar_[ad]);
        return geçici_->path() + u'/';
    }

    static QList<Makale> oku(const QString& klasör) { return Makaleler(*Açılış(klasör).Veritabanı); }
    static int başlat(const QString& klasör)
    {
        return HataNumarası([&] { oku(klasör); });
    }

    /// Starts with these bytes for a file, null for none. It must fail with one of the errors and leave every
    /// file, the last start's copy among them, as it is; where 0 is one, all articles may be there instead.
    void dene(const QString& dosya, const QByteArray& baytlar, const QSet<int>& hatalar, const QString& olay)
    {
        const QString klasör = hazırla();
        DosyaYaz(klasör + MdKopya, dosyalar_[Mde]);
        baytlar.isNull() ? void(QFile::remove(klasör + dosya)) : DosyaYaz(klasör + dosya, baytlar);
        const Dosyalar önce = KlasörOku(klasör);
        QList<Makale> bulunan;
        const int hata = HataNumarası([&] { bulunan = oku(klasör); });
        ++görülen_[hata];
        const bool doğru = hata == 0 ? bulunan == makaleler_ : KlasörOku(klasör) == önce;
        QVERIFY2(doğru && hatalar.contains(hata), qPrintable(u"%1, %2: %3"_s.arg(dosya, olay).arg(hata)));
    }

private slots:
    void accountsAndPasswords()
    {
        const QString klasör = hazırla();
        {
            Açılış açılış(klasör);
            const Workspace sahip = SahipÇalışmaAlanı(*açılış.Motor);
            UserCollection hesaplar = sahip.Users(), yetkisiz = açılış.ÇalışmaAlanı->Users();
            const User hesap = hesaplar.Tümü().at(0);
            QCOMPARE(hesap.Name() + hesap.PID() + hesap.Password(), u"Kullanici3Cizgi3"_s);
            const auto gir = [&](const QString& ad, const QString& parola) {
                return HataNumarası([&] { açılış.Motor->CreateWorkspace({}, ad, parola); });
            };
            QVERIFY(gir(u"Sahip"_s, u"kaplumbaga"_s) == 3029 && gir(u"sahip"_s, u"Kaplumbaga"_s) == 3029);
            QCOMPARE(HataNumarası([&] { yetkisiz.Append(User(u"Başka"_s)); }), 3051);
            QCOMPARE(HataNumarası([&] { yetkisiz.Delete(u"Kullanici"_s); }), 3051);
            QCOMPARE(HataNumarası([&] { hesaplar.Delete(u"Sahip"_s); }), 3051);
            KullanıcıHesabınıSil(sahip);
            QCOMPARE(gir(u"Kullanici"_s, u"Hoppaaa"_s), 3029);
            QCOMPARE(Makaleler(*açılış.Veritabanı), makaleler_); // still open
            for (const QString& yanlış : {u";PWD=PELİKAN"_s, u";PWD=Pelikan "_s, u";PWD="_s, u""_s})
                QCOMPARE(HataNumarası([&] { sahip.OpenDatabase(klasör + Mde, false, false, yanlış); }), 3031);
            Recordset r = sahip.OpenDatabase(klasör + Mde, false, true, Parola).OpenRecordset(Tümü);
            QCOMPARE(HataNumarası([&] { r.Delete(); }), 3027);
            const Database tek = sahip.OpenDatabase(klasör + Mde, true, false, u";pwd=Pelikan"_s);
            QCOMPARE(HataNumarası([&] { KitaplıkAç(sahip, klasör); }), 3045);
        }
        QCOMPARE(başlat(klasör), 0); // ends without deleting the account
        const QByteArray grup = DosyaOku(klasör + Tps);
        QCOMPARE(başlat(klasör), 0);
        QCOMPARE(DosyaOku(klasör + Tps), grup);
    }

    void compaction()
    {
        const QString klasör = hazırla();
        const DenemeKitaplığı başka;
        const QString asıl = başka.Klasör() + u"asıl.mde"_s;
        {
            const auto kitaplık = DosyaBağlantısı(klasör);
            kitaplık->Çalıştır("DELETE FROM Makaleler WHERE Kimlik % 3 = 0 OR Kimlik > 500");
            kitaplık->Çalıştır("UPDATE Makaleler SET Kimlik = 1000 - Kimlik WHERE Kimlik < 100");
        }
        for (const QString& kalan : {klasör + MdKopya, klasör + MdKopya + u'~', asıl + u'~'})
            DosyaYaz(kalan, "left from the last start, or from a crash");
        QVERIFY(QFile::rename(klasör + Mde, asıl) && QFile::link(asıl, klasör + Mde) &&
                QFile::setPermissions(asıl, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup));
        const uint sahip = geteuid() == 0 ? 65534 : geteuid(); // only root can give a file away
        QCOMPARE(chown(QFile::encodeName(asıl).constData(), sahip, gid_t(-1)), 0);
        QVERIFY(QFile::setPermissions(klasör + Tps, QFile::permissions(asıl) | QFile::ReadOther));
        const QList<Makale> beklenen = oku(klasör);
        QCOMPARE(beklenen.size(), 334);
        QVERIFY(beklenen.first() == makaleler_[99] && beklenen.last() == makaleler_[0]); // keys stay
        for (const QString& yol : {asıl, klasör + Tps, klasör + MdKopya}) // readable for their owner only
            QCOMPARE(int(QFile::permissions(yol)) & 0x77, 0);
        QVERIFY(QFileInfo(klasör + Mde).isSymLink() && QFileInfo(asıl).ownerId() == sahip &&
                !QFile::exists(asıl + u'~'));
        const Dosyalar sonra = KlasörOku(klasör);
        QCOMPARE(sonra.keys(), (QStringList{MdKopya, Mde, Tps}));
        QVERIFY(sonra[MdKopya] == sonra[Mde] && sonra[Mde].size() < dosyalar_[Mde].size() / 2);
        QCOMPARE(DosyaBağlantısı(klasör)->Metin("PRAGMA integrity_check"), u"ok"_s);
        QVERIFY(QFile::remove(klasör + Mde) && QFile::rename(klasör + MdKopya, klasör + Mde));
        QCOMPARE(oku(klasör), beklenen); // recovery by hand
    }

    void creation()
    {
        const DenemeKitaplığı kitaplık;
        const QString& klasör = kitaplık.Klasör();
        const QString yeni = u".yeni"_s;
        const Dosyalar tam = KlasörOku(klasör);
        QCOMPARE(tam.keys(), (QStringList{Mde, Tps}));
        const QByteArray yarım = tam[Mde].left(5000), &mde = tam[Mde], &tps = tam[Tps];
        using Durum = Dosyalar;
        for (const Durum& kalan :
             {Durum{{Mde + yeni, yarım}}, Durum{{Mde + yeni, yarım}, {Mde + yeni + u"-journal"_s, yarım}},
              Durum{{Mde + yeni, mde}, {Tps + yeni, yarım}}, Durum{{Mde + yeni, mde}, {Tps, tps}},
              Durum{{Mde, ""}, {Mde + u"-journal"_s, "x"}}, Durum{{Mde + u"-journal"_s, yarım}},
              Durum{{MdKopya, mde}}, Durum{{Mde, tam[Mde]}}, Durum{{Tps, tps}}, tam}) {
            for (const QString& ad : KlasörOku(klasör).keys())
                QFile::remove(klasör + ad);
            for (const auto& [ad, baytlar] : kalan.asKeyValueRange())
                DosyaYaz(klasör + ad, baytlar);
            const bool korunur = kalan[Mde].size() > 0 || (kalan.size() == 1 && !kalan.contains(Mde + yeni));
            QCOMPARE(HataNumarası([&] { KitaplıkKur(klasör); }), korunur ? 3204 : 0);
            if (korunur) {
                QCOMPARE(KlasörOku(klasör), kalan);
                continue;
            }
            QCOMPARE(KlasörOku(klasör).keys(), tam.keys());
            for (const QString& ad : tam.keys())
                QCOMPARE(int(QFile::permissions(klasör + ad)) & 0x77, 0);
            QCOMPARE(oku(klasör).size(), 0);
        }
    }

    void foreignAndTruncated()
    {
        QByteArray gürültü(2 * SayfaBoyu, Qt::Uninitialized);
        QRandomGenerator rastgele(7);
        std::generate(gürültü.begin(), gürültü.end(), [&] { return char(rastgele.bounded(256)); });
        for (const QString& dosya : {Mde, Tps}) {
            dene(dosya, QByteArray(), {3024}, u"missing"_s);
            dene(dosya, "", {3902}, u"empty"_s);
            dene(dosya, u"Bugün hava güzel.\r\n"_s.toUtf8(), {3343}, u"short text"_s);
            dene(dosya, UzunMetin(1, 50'000).toUtf8(), {3343}, u"long text"_s);
            dene(dosya, "SQLite format 3" + gürültü, {3343}, u"plain database"_s);
            dene(dosya, gürültü.chopped(1), {3901}, u"noise"_s);
            dene(dosya, gürültü, {3049}, u"noise of whole pages"_s);
            dene(dosya, QByteArray(4 * SayfaBoyu, '\0'), {3049}, u"zeros"_s);
            dene(dosya, dosyalar_[dosya == Mde ? Tps : Mde], {3049}, u"the other file"_s);
            const qsizetype boy = dosyalar_[dosya].size(), orta = boy / 2 / SayfaBoyu * SayfaBoyu;
            for (const qsizetype kalan : {qsizetype(300), SayfaBoyu - 1, SayfaBoyu, SayfaBoyu + 1, orta - 100,
                                          orta, orta + 8000, boy - SayfaBoyu, boy - 500, boy - 1})
                dene(dosya, dosyalar_[dosya].left(kalan), {3901}, u"first %1 bytes"_s.arg(kalan));
        }
        const QString klasör = hazırla();
        DosyaBağlantısı(klasör)->Çalıştır("PRAGMA user_version=2");
        QCOMPARE(başlat(klasör), 3041);
        DosyaBağlantısı(klasör)->Çalıştır("PRAGMA user_version=1");
        DosyaBağlantısı(klasör)->Çalıştır("DROP TABLE Makaleler");
        QCOMPARE(başlat(klasör), 3343);
    }

    void damaged_data()
    {
        QTest::addColumn<QString>("dosya");
        QTest::addColumn<int>("bölüm");
        QTest::addRow("Makale.tps") << Tps << -1;
        for (int bölüm = 0; bölüm < Bölümler; ++bölüm)
            QTest::addRow("Makale.mde, part %d", bölüm) << Mde << bölüm;
    }
    void damaged()
    {
        QFETCH(const QString, dosya);
        QFETCH(const int, bölüm);
        const quint32 tohum = QRandomGenerator::system()->generate();
        QRandomGenerator rastgele(tohum);
        const QByteArray sağlam = dosyalar_[dosya];
        int sıra = 0;
        const auto boz = [&](qsizetype yer, const QByteArray& yeni) {
            if (bölüm < 0 || sıra++ % Bölümler == bölüm)
                dene(dosya, QByteArray(sağlam).replace(yer, yeni.size(), yeni), {0, 3049, 3901},
                     u"%1 bytes at %2, seed %3"_s.arg(yeni.size()).arg(yer).arg(tohum));
        };
        QList<qsizetype> bitler = {0, 7, 15, 16, 20, 40, 99, 101}; // and each page's content and check value
        for (qsizetype sayfa = 0; sayfa < sağlam.size(); sayfa += SayfaBoyu)
            bitler << sayfa + rastgele.bounded(16336) << sayfa + 16336 + rastgele.bounded(48);
        for (const qsizetype yer : bitler)
            boz(yer, QByteArray(1, char(sağlam[yer] ^ (1 << rastgele.bounded(8)))));
        for (qsizetype çeyrek = 0; çeyrek < 4; ++çeyrek) {
            const qsizetype sayfa = sağlam.size() / SayfaBoyu * çeyrek / 4 * SayfaBoyu;
            boz(sayfa, QByteArray(SayfaBoyu, '\0'));
            boz(sayfa, sağlam.right(SayfaBoyu));
        }
        boz(sağlam.size(), sağlam.left(2 * SayfaBoyu + 1)); // behind the end
        qInfo() << "how many files gave which error (0: all articles intact):" << görülen_;
        QVERIFY(görülen_[0] < görülen_[3049]);
    }

    // A fault that comes up after the start: what is read is right or an error, never something else.
    void damagedWhileOpen()
    {
        const QString klasör = hazırla(), son = makaleler_.last().Metin.right(30).simplified();
        const QString sql = Tümü + u" WHERE MakaleMetni LIKE '*%1*'"_s.arg(son);
        int hatalı = 0;
        for (qsizetype yer = SayfaBoyu + 5000; yer < dosyalar_[Mde].size(); yer += SayfaBoyu) {
            DosyaYaz(klasör + Mde, dosyalar_[Mde]);
            const Database veritabanı(DosyaBağlantısı(klasör, 1));
            DosyaYaz(klasör + Mde, QByteArray(dosyalar_[Mde]).replace(yer, 2, "??"));
            QList<Makale> okunan = makaleler_;
            qint64 uyan = 1;
            const int okuma = HataNumarası([&] { okunan = Makaleler(veritabanı); });
            const int arama = HataNumarası([&] { uyan = veritabanı.OpenRecordset(sql).RecordCount(); });
            QVERIFY2(okunan == makaleler_ && uyan == 1, qPrintable(QString::number(yer)));
            QCOMPARE(QSet<int>({0, 3049, okuma, arama}).size(), 2);
            hatalı += okuma == 3049;
        }
        QVERIFY(hatalı > dosyalar_[Mde].size() / SayfaBoyu / 2);
    }

    void readOnly()
    {
        geçici_.reset();
        const bool kök = geteuid() == 0 && seteuid(65534) == 0; // root may write everywhere
        for (const QString& yol : {u""_s, Mde, Tps}) {
            const QString klasör = hazırla();
            QFile::setPermissions(klasör + yol, QFile::ReadOwner | QFile::ExeOwner);
            const int hata = başlat(klasör);
            const Dosyalar sonra = KlasörOku(klasör);
            QFile::setPermissions(klasör, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
            QVERIFY2(hata == 3027 && sonra == dosyalar_, qPrintable(u"%1: %2"_s.arg(yol).arg(hata)));
        }
        QVERIFY(!kök || seteuid(0) == 0);
    }

    void fullDisk()
    {
        const QTemporaryDir disk;
        const QString klasör = disk.path() + u'/';
        if (unshare(CLONE_NEWNS) != 0 || mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            !diskBoyu(klasör, ÇokYer, 0))
            QSKIP("no file system may be mounted here");
        const auto kaldır = qScopeGuard([&] { umount2(QFile::encodeName(klasör).constData(), MNT_DETACH); });
        // In sizes of the library: with room for one more the copy itself becomes the library.
        for (const auto& [yer, eskiKopya, hata] :
             {std::tuple(1.5, false, 3026), {2.5, false, 0}, {2.5, true, 0}}) {
            QFile::remove(klasör + MdKopya);
            for (const QString& ad : {Mde, Tps, eskiKopya ? MdKopya : Mde})
                DosyaYaz(klasör + ad, dosyalar_[ad == MdKopya ? Mde : ad]);
            QVERIFY(diskBoyu(klasör, qint64(yer * double(dosyalar_[Mde].size())) + dosyalar_[Tps].size()));
            QCOMPARE(başlat(klasör), hata);
            QVERIFY(hata == 0 || KlasörOku(klasör) == dosyalar_);
            QVERIFY(diskBoyu(klasör, ÇokYer));
            QCOMPARE(oku(klasör), makaleler_);
        }
        const Açılış açılış(klasör);
        const qint64 dolu = KlasörOku(klasör).values().join().size();
        QVERIFY(diskBoyu(klasör, dolu + 5 * SayfaBoyu));
        Recordset r = açılış.Veritabanı->OpenRecordset(Tümü);
        r.AddNew();
        r.Fields(u"MakaleMetni").Value(makaleler_.last().Metin);
        QCOMPARE(HataNumarası([&] { r.Update(); }), 3026);
        QCOMPARE(Makaleler(*açılış.Veritabanı), makaleler_);
        QVERIFY(diskBoyu(klasör, ÇokYer));
        r.Update(); // was still pending
        QCOMPARE(Makaleler(*açılış.Veritabanı).last().Metin, makaleler_.last().Metin);
    }

    void faults_data()
    {
        QTest::addColumn<int>("klasör");
        QTest::addColumn<int>("okuma");
        QTest::addColumn<int>("yazma");
        QTest::addColumn<int>("başlatma"); // the number that a start gives
        QTest::addColumn<int>("saklama");  // and the saving of a further article
        QTest::newRow("no sync of folders here") << EINVAL << 0 << 0 << 0 << 0;
        QTest::newRow("folder can't be synced") << EIO << 0 << 0 << 3043 << 0;
        QTest::newRow("can't be read") << 0 << EIO << 0 << 3043 << 3043;
        QTest::newRow("can't be written") << 0 << 0 << EIO << 3043 << 3043;
        QTest::newRow("over the quota") << 0 << 0 << EDQUOT << 3026 << 3026;
        QTest::newRow("no more rights") << 0 << 0 << EACCES << 3027 << 3027;
    }

    // Nothing is lost, and what is told as failed can be tried again without a double.
    void faults()
    {
        QFETCH(int, klasör);
        QFETCH(int, okuma);
        QFETCH(int, yazma);
        const auto bozukken = [&](const std::function<void()>& iş) {
            ÇağrıGözcüsü = [&](const SistemÇağrısı& çağrı) {
                return çağrı.Tür == ÇağrıTürü::Eşitleme && çağrı.Klasör ? klasör
                       : çağrı.Tür == ÇağrıTürü::Okuma                  ? okuma
                       : çağrı.Tür == ÇağrıTürü::Yazma                  ? yazma
                                                                        : 0;
            };
            const auto düzelt = qScopeGuard([] { ÇağrıGözcüsü = nullptr; });
            return HataNumarası(iş);
        };
        const QString yol = hazırla();
        QTEST(bozukken([&] { Açılış{yol}; }), "başlatma");
        QCOMPARE(oku(yol), makaleler_);
        {
            const Database dar(DosyaBağlantısı(yol, 1)); // each page is read anew
            QCOMPARE(bozukken([&] { Makaleler(dar); }), okuma ? 3043 : 0);
        }
        const Açılış açılış(yol);
        Recordset r = açılış.Veritabanı->OpenRecordset(Tümü + u" WHERE 1=0"_s);
        r.AddNew();
        r.Fields(u"MakaleMetni").Value(makaleler_.last().Metin);
        const int saklama = bozukken([&] { r.Update(); });
        QTEST(saklama, "saklama");
        QCOMPARE(Makaleler(*açılış.Veritabanı).size(), makaleler_.size() + (saklama == 0));
        if (saklama != 0)
            r.Update(); // is still pending
        QCOMPARE(HataNumarası([&] { r.Update(); }), 3020);
        const auto sil = bozukken([&] { r.MoveFirst(), r.Delete(); });
        QTEST(sil, "saklama");
        QCOMPARE(Makaleler(*açılış.Veritabanı).size(), makaleler_.size() + (sil != 0));
    }

    // Neither the folder nor a file is "not found" where the system has no handle left for it.
    void noHandles()
    {
        const QString klasör = hazırla();
        rlimit sınır = {};
        QCOMPARE(getrlimit(RLIMIT_NOFILE, &sınır), 0);
        const auto geri = qScopeGuard([&] { setrlimit(RLIMIT_NOFILE, &sınır); });
        const int boş = dup(0);
        close(boş);
        for (int fazla = 0; fazla < 4; ++fazla) {
            const rlimit dar = {rlim_t(boş + fazla), sınır.rlim_max};
            QCOMPARE(setrlimit(RLIMIT_NOFILE, &dar), 0);
            QCOMPARE(başlat(klasör), 3048);
        }
        setrlimit(RLIMIT_NOFILE, &sınır);
        QCOMPARE(KlasörOku(klasör), dosyalar_);
    }

    // Two processes are tried with the companion tool; SQLite tells its own connections apart as well.
    void locked()
    {
        const QString klasör = hazırla();
        for (const char* sql : {"BEGIN IMMEDIATE", "BEGIN EXCLUSIVE"}) {
            const auto diğer = DosyaBağlantısı(klasör);
            diğer->Çalıştır(sql);
            QCOMPARE(başlat(klasör), 3045);
        }
        // By whatever way it is reached: through a linked folder, or with one of its files linked.
        const QTemporaryDir başka;
        const QString bağ = başka.filePath(u"bağ/"_s);
        for (const QStringList& bağlılar : {QStringList{}, {Mde, Tps}, {Mde}, {Tps}}) {
            QFile::remove(bağ.chopped(1));
            QDir(bağ).removeRecursively();
            if (bağlılar.isEmpty())
                QVERIFY(QFile::link(klasör.chopped(1), bağ.chopped(1)));
            else
                QVERIFY(QDir().mkpath(bağ));
            for (const QString& ad : bağlılar.isEmpty() ? QStringList() : QStringList{Mde, Tps}) {
                const QString yol = klasör + ad;
                QVERIFY(bağlılar.contains(ad) ? QFile::link(yol, bağ + ad) : QFile::copy(yol, bağ + ad));
            }
            const Açılış açılış(klasör);
            QCOMPARE(başlat(bağ), 3045);
            QCOMPARE(başlat(klasör), 3045);
        }
        QCOMPARE(başlat(klasör), 0);
    }

    void nothingInTheClearOrHalf()
    {
        const DenemeKitaplığı kitaplık(karışıkMakaleler(100, 30));
        const QString& klasör = kitaplık.Klasör();
        QByteArrayList gizliler; // in every title, and in one text; as UTF-8 and as UTF-16
        for (const QString& m : {u"BAŞLIK"_s, UzunMetin(120, 200'000).mid(100'000, 20)})
            gizliler << m.toUtf8() << QByteArray(reinterpret_cast<const char*>(m.utf16()), m.size() * 2);
        QSet<QStringList> kümeler; // the sets of files that were looked through
        // Whether the folder's files, or deleted files that are still open, hold one of them.
        const auto açıkta = [&] {
            const Dosyalar dosyalar = KlasörOku(klasör);
            kümeler.insert(dosyalar.keys());
            QByteArray içerik = dosyalar.values().join();
            for (const QString& no : QDir(u"/proc/self/fd"_s).entryList(QDir::Files | QDir::System)) {
                if (QFile::symLinkTarget(u"/proc/self/fd/"_s + no).endsWith(u"(deleted)"_s))
                    içerik += DosyaOku(u"/proc/self/fd/"_s + no);
            }
            const auto var = [&](const QByteArray& gizli) { return içerik.contains(gizli); };
            return std::any_of(gizliler.begin(), gizliler.end(), var);
        };
        for (const QByteArray& gizli : gizliler) { // the search itself works
            DosyaYaz(klasör + u"açık"_s, "x" + gizli);
            QVERIFY(açıkta());
        }
        QVERIFY(QFile::remove(klasör + u"açık"_s));
        const QByteArray eski = DosyaOku(klasör + Mde);
        static_cast<void>(Açılış(klasör, [&] {
            const QByteArray şimdiki = DosyaOku(klasör + Mde); // is never half a file
            QVERIFY(!açıkta() && (şimdiki == eski || şimdiki == DosyaOku(klasör + MdKopya)));
        }));
        const auto bağlantı = DosyaBağlantısı(klasör, 4);
        const İşlem işlem(*bağlantı);
        bağlantı->Çalıştır("UPDATE Makaleler SET YayimYeri='X', MakaleMetni=MakaleMetni||'.'");
        Deyim sıralama(*bağlantı, "SELECT * FROM Makaleler ORDER BY MakaleMetni DESC");
        QVERIFY(sıralama.Adım() && !açıkta());
        for (const QString& ek : {u"~"_s, u"-journal"_s})
            QVERIFY(kümeler.contains(QStringList{MdKopya, Mde, Mde + ek, Tps}));
    }
};

QTEST_GUILESS_MAIN(TestStoreFiles)
#include "test_store_files.moc"
