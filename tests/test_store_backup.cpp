// Backups: generations that are made, listed, thinned out and put back, and what a kill at any step leaves.
#include "library_fixture.h"

#include "store/Bağlantı.h"
#include "store/GeriYükleme.h"
#include "store/KlasörKilidi.h"
#include "store/Utf8Metni.h"

#include <QDirIterator>
#include <QScopeGuard>
#include <QTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QString Mde = DosyaAdları::Kitaplık.toString(), Tps = DosyaAdları::Grup.toString();
const QDateTime An(QDate(2026, 11, 25), QTime(15, 44, 45));
constexpr int Sağ = -1;
#ifdef __SANITIZE_ADDRESS__ // forking takes long there, and faults of memory show in every run
constexpr int KaçtaBir = 7;
#else
constexpr int KaçtaBir = 1;
#endif

/// Before how many more changes to a folder this process kills itself; below 0 it doesn't.
int kalanAdım = Sağ;

template<class... Değer> int adım(long çağrı, Değer... değerler)
{
    if (kalanAdım-- == 0)
        raise(SIGKILL);
    return int(syscall(çağrı, değerler...));
}

} // namespace

// In front of the C library's own for this whole program, SQLite included. A killed process needs no sync.
extern "C" {
int fsync(int)
{
    return 0;
}
int fdatasync(int)
{
    return 0;
}
int rename(const char* eski, const char* yeni) noexcept
{
    return adım(SYS_rename, eski, yeni);
}
int mkdir(const char* yol, mode_t izin) noexcept
{
    return adım(SYS_mkdir, yol, izin);
}
int rmdir(const char* yol) noexcept
{
    return adım(SYS_rmdir, yol);
}
int unlink(const char* yol) noexcept
{
    return adım(SYS_unlink, yol);
}
}

namespace {

/// Every file below the folder with its bytes, and every folder.
QMap<QString, QByteArray> ağaç(const QString& klasör)
{
    QMap<QString, QByteArray> bulunan;
    QDirIterator yer(klasör, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                     QDirIterator::Subdirectories);
    while (yer.hasNext()) {
        const QString yol = yer.next();
        bulunan.insert(yol.mid(klasör.size()), DosyaOku(yol));
    }
    return bulunan;
}

void yaz(const QString& klasör, const QMap<QString, QByteArray>& dosyalar)
{
    QDir().mkpath(klasör);
    for (const auto& [ad, baytlar] : dosyalar.asKeyValueRange())
        DosyaYaz(klasör + ad, baytlar);
}

QStringList adlar(const QString& hedef)
{
    QStringList liste;
    for (const YedekNesli& nesil : Yedekler(hedef))
        liste.append(nesil.Sorun ? u"%1!%2"_s.arg(nesil.Ad).arg(nesil.Sorun->Numara()) : nesil.Ad);
    return liste;
}

QList<Makale> oku(const QString& klasör)
{
    return Makaleler(Database(DosyaBağlantısı(klasör)));
}

void değiştir(const QString& klasör, const char* sql)
{
    DosyaBağlantısı(klasör)->Çalıştır(sql);
}

/// The library as a process that died while writing leaves it.
void yarımBırak(const QString& klasör)
{
    QMap<QString, QByteArray> dosyalar;
    {
        const auto bağlantı = DosyaBağlantısı(klasör, 8);
        bağlantı->Çalıştır("BEGIN");
        bağlantı->Çalıştır("UPDATE Makaleler SET MakaleMetni=MakaleMetni||'yarım', YayimYeri='X'");
        dosyalar = KlasörOku(klasör);
    }
    yaz(klasör, dosyalar);
}

} // namespace

class TestStoreBackup : public QObject
{
    Q_OBJECT
    QList<Makale> makaleler_;
    QMap<QString, QByteArray> dosyalar_; // of a library with them
    std::unique_ptr<QTemporaryDir> kitaplık_, geçici_;
    QString klasör_, hedef_; // the first with a separator at its end

    YedekSonucu yedekle(int sakla = 10, int saniye = 0, YedekKipi kip = YedekKipi::Yap,
                        const SürdürmeBildirimi& bildir = {}) const
    {
        return Yedekle(klasör_, hedef_, sakla, kip, bildir, An.addSecs(saniye));
    }
    /// A generation that is there already.
    void nesilYaz(const QString& saat) const
    {
        yaz(hedef_ + u"/Belgenar-2026-11-25-%1/"_s.arg(saat), dosyalar_);
    }
    /// Runs the work in processes that are killed before the first, second... change, until one gets through.
    /// @param başla sets up before each
    /// @return how many changes there are at least
    static int öldür(const std::function<void()>& başla, const std::function<void()>& iş,
                     const std::function<void(int)>& denetle)
    {
        for (int n = 0;; n += KaçtaBir) {
            başla();
            const pid_t no = fork();
            if (no == 0) {
                kalanAdım = n;
                _exit(HataNumarası(iş) != 0);
            }
            int durum = 0;
            waitpid(no, &durum, 0);
            if (!WIFSIGNALED(durum))
                return durum == 0 ? n : -1;
            denetle(n);
            if (QTest::currentTestFailed())
                return -1;
        }
    }

private slots:
    void initTestCase()
    {
        for (int i = 0; i < 12; ++i)
            makaleler_.append({u"YAZAR %1"_s.arg(i % 5), u"BAŞLIK %1"_s.arg(i), UzunMetin(i, 9'000)});
        dosyalar_ = KlasörOku(DenemeKitaplığı(makaleler_).Klasör());
    }

    void init()
    {
        kitaplık_ = std::make_unique<QTemporaryDir>();
        geçici_ = std::make_unique<QTemporaryDir>();
        klasör_ = kitaplık_->path() + u'/';
        hedef_ = geçici_->path() + u"/yeni/yedekler"_s;
        yaz(klasör_, dosyalar_);
    }

    void utf8()
    {
        const QByteArray baytlar = QByteArray::fromHex("00417f808f909fa0bfc0c1c2dfe0e1ecedeeeff0f1f3f4f5ff");
        for (const char a : baytlar)
            for (const char b : baytlar)
                for (const char c : baytlar)
                    for (const char d : baytlar) {
                        const std::array<char, 6> metin = {a, b, c, d, '\x80', 'a'};
                        for (const std::size_t boy : {4U, 6U})
                            QVERIFY(Utf8Geçerli({metin.data(), boy}) ==
                                    QUtf8StringView(metin.data(), qsizetype(boy)).isValidUtf8());
                    }
        QVERIFY(Utf8Geçerli({}) && !Utf8Geçerli("a\xc5") && !Utf8Geçerli("\xe2\x82"));
    }

    void generations()
    {
        const auto önce = ağaç(klasör_);
        const QString ad = u"Belgenar-2026-11-25-154445"_s;
        QCOMPARE(yedekle(1, 0, YedekKipi::Dene).Yol, hedef_ + u'/' + ad);
        QVERIFY(!QFile::exists(geçici_->filePath(u"yeni"_s)));
        const YedekSonucu ilk = yedekle();
        QCOMPARE(ilk.Yol, hedef_ + u'/' + ad);
        QVERIFY(ilk.MakaleSayısı == 12 && ilk.Notlar.isEmpty() && ağaç(klasör_) == önce);
        QVERIFY(ağaç(ilk.Yol + u'/') == önce && oku(ilk.Yol + u'/') == makaleler_);
        for (const QString& yol : {ilk.Yol, ilk.Yol + u'/' + Mde, ilk.Yol + u'/' + Tps}) {
            struct stat bilgi = {};
            QVERIFY(stat(QFile::encodeName(yol), &bilgi) == 0 && (bilgi.st_mode & (S_IRWXG | S_IRWXO)) == 0);
        }
        for (int i = 2; i < 10; ++i)
            QDir(hedef_).mkdir(ad + u"-%1"_s.arg(i));
        yedekle(20);
        QCOMPARE(adlar(hedef_).mid(0, 2), QStringList({ad + u"-10"_s, ad + u"-9!3024"_s}));
        yedekle(1, 1);
        QCOMPARE(adlar(hedef_), QStringList(u"Belgenar-2026-11-25-154446"_s));
    }

    void thinningOut()
    {
        const auto ad = [](int saniye) { return u"Belgenar-2026-11-25-1544%1"_s.arg(45 + saniye); };
        const auto nesil = [&](int saniye) { return hedef_ + u'/' + ad(saniye); };
        for (int saniye : {0, 1, 2, 3, 14}) // the last one is later than now
            nesilYaz(u"1544%1"_s.arg(45 + saniye));
        DosyaYaz(nesil(0) + u"/not.txt"_s, "x");
        DosyaYaz(nesil(1) + u'/' + Tps, "x"); // damaged, but ours
        const DenemeKitaplığı başka;
        Yedekle(başka.Klasör(), hedef_, 10, YedekKipi::Yap, {}, An.addSecs(5));
        QDir(hedef_).mkdir(u"Belgenar-eski"_s);
        QDir(hedef_).mkdir(u"Belgenar-2026-02-30-000000"_s);
        DosyaYaz(hedef_ + u"/Belgenar-2025-01-01-000000"_s, "x");
        QVERIFY(QFile::link(nesil(3), hedef_ + u"/Belgenar-2025-01-01-000001"_s));

        const auto önce = ağaç(hedef_);
        const YedekSonucu deneme = yedekle(2, 6, YedekKipi::Dene);
        QVERIFY(ağaç(hedef_) == önce);
        const YedekSonucu sonuç = yedekle(2, 6);
        QCOMPARE(sonuç.Silinenler, QStringList({ad(1), ad(2)}));
        QVERIFY(deneme.Silinenler == sonuç.Silinenler && deneme.Notlar == sonuç.Notlar);
        QCOMPARE(sonuç.Notlar.size(), 2);
        QVERIFY(sonuç.Notlar.join(u' ').contains(ad(0)) && sonuç.Notlar.join(u' ').contains(ad(14)));
        QCOMPARE(adlar(hedef_), QStringList({ad(14), ad(6), ad(5), ad(3), ad(0)}));
        DosyaYaz(nesil(3) + u'/' + Mde, DosyaOku(nesil(3) + u'/' + Mde).chopped(16384));
        QFile::remove(nesil(5) + u'/' + Mde);
        QCOMPARE(adlar(hedef_), QStringList({ad(14), ad(6), ad(5) + u"!3024"_s, ad(3) + u"!3901"_s, ad(0)}));
    }

    void refusals_data()
    {
        QTest::addColumn<QString>("hedef"); // of the backup; nothing for the usual one
        QTest::addColumn<QString>("dosya"); // of the library, that is changed
        QTest::addColumn<int>("boy");       // to which it is cut, or behind which a byte is changed (below 0)
        QTest::addColumn<int>("hata");
        QTest::newRow("the library's folder") << u"K"_s << u""_s << 0 << 3903;
        QTest::newRow("in it") << u"K/a/b"_s << u""_s << 0 << 3903;
        QTest::newRow("in it by a link") << u"L/a"_s << u""_s << 0 << 3903;
        QTest::newRow("a file") << u"K/../dosya"_s << u""_s << 0 << 3204;
        QTest::newRow("in a file") << u"K/../dosya/a"_s << u""_s << 0 << 3204;
        QTest::newRow("cut") << u""_s << Mde << 40'000 << 3901;
        QTest::newRow("empty") << u""_s << Mde << 0 << 3902;
        QTest::newRow("damaged first page") << u""_s << Mde << -1'000 << 3049;
        QTest::newRow("damaged row") << u""_s << Mde << -150'000 << 3049;
        QTest::newRow("damaged accounts") << u""_s << Tps << -1'000 << 3049;
        QTest::newRow("in use") << u""_s << u""_s << 1 << 3045;
        QTest::newRow("stopped") << u""_s << u""_s << 2 << 3059;
        QTest::newRow("disk full") << u""_s << u""_s << 3 << 3026;
    }

    void refusals()
    {
        QFETCH(QString, hedef);
        QFETCH(const QString, dosya);
        QFETCH(const int, boy);
        QFETCH(const int, hata);
        nesilYaz(u"154445"_s);
        DosyaYaz(klasör_ + u"../dosya"_s, "x");
        const auto sil = qScopeGuard([&] { QFile::remove(klasör_ + u"../dosya"_s); });
        QVERIFY(QFile::link(klasör_, geçici_->filePath(u"L"_s)));
        if (!dosya.isEmpty()) {
            QByteArray baytlar = DosyaOku(klasör_ + dosya);
            boy < 0 ? void(baytlar[-boy] = char(baytlar[-boy] ^ 1)) : baytlar.truncate(boy);
            DosyaYaz(klasör_ + dosya, baytlar);
        }
        const auto önce = ağaç(geçici_->path()), klasörÖnce = ağaç(klasör_);
        if (hedef.startsWith(u'K'))
            hedef.replace(0, 1, klasör_);
        else
            hedef = hedef.isEmpty() ? hedef_ : geçici_->filePath(hedef);
        const std::optional<KlasörKilidi> kilit =
            hata == 3045 ? std::optional<KlasörKilidi>(klasör_) : std::nullopt;
        rlimit sınır = {};
        getrlimit(RLIMIT_FSIZE, &sınır);
        const auto eski = sınır;
        const auto geri = qScopeGuard([&eski] { setrlimit(RLIMIT_FSIZE, &eski); });
        std::signal(SIGXFSZ, SIG_IGN);
        sınır.rlim_cur = hata == 3026 ? 100'000 : sınır.rlim_cur;
        setrlimit(RLIMIT_FSIZE, &sınır);
        int bildirilen = 0;
        const auto bildir = [&](qint64, qint64) { return hata != 3059 || ++bildirilen < 3; };
        QString açıklama;
        try {
            Yedekle(klasör_, hedef, 1, YedekKipi::Yap, bildir, An.addSecs(9));
        } catch (const VeritabanıHatası& verilen) {
            açıklama = verilen.Açıklama();
            QCOMPARE(verilen.Numara(), hata);
        }
        QVERIFY(!açıklama.isEmpty() && (dosya.isEmpty() || açıklama.contains(klasör_ + dosya)));
        QVERIFY(ağaç(geçici_->path()) == önce && ağaç(klasör_) == klasörÖnce);
    }

    void damagedIndex()
    {
        değiştir(klasör_, "DROP INDEX BaslikDizini");
        const YedekSonucu sonuç = yedekle();
        QVERIFY(sonuç.MakaleSayısı == 12 && sonuç.Notlar.size() == 1);
        QVERIFY(Yedekler(hedef_)[0].Not == sonuç.Notlar[0] && !Yedekler(hedef_)[0].Sorun);
        QCOMPARE(GeriYükle(hedef_, Yedekler(hedef_)[0].Ad, klasör_, YedekKipi::Yap).Notlar, sonuç.Notlar);
        QCOMPARE(Makaleler(*Açılış(klasör_).Veritabanı), makaleler_);
    }

    void unfinishedWrite()
    {
        yarımBırak(klasör_);
        const auto önce = ağaç(klasör_);
        QCOMPARE(önce.size(), 3);
        const QString yol = yedekle().Yol;
        QVERIFY(ağaç(klasör_) == önce && oku(yol + u'/') == makaleler_);
        QCOMPARE(ağaç(yol).size(), 2);
    }

    void puttingBack()
    {
        const QString ad = QFileInfo(yedekle().Yol).fileName();
        const QString yeni = geçici_->path() + u"/başka/program/"_s;
        QCOMPARE(GeriYükle(hedef_, ad, yeni, YedekKipi::Dene).MakaleSayısı, 12);
        QVERIFY(!QFile::exists(geçici_->filePath(u"başka"_s)));
        QCOMPARE(GeriYükle(hedef_, ad, yeni, YedekKipi::Yap).ÖncekiYol, QString());
        QVERIFY(oku(yeni) == makaleler_ && ağaç(yeni).size() == 2);

        // As a kill between the last two steps leaves an empty folder.
        QDir().mkpath(yeni + u"Onceki-2026-11-25-154445~/yeni"_s);
        QVERIFY(QFile::rename(yeni + Mde, yeni + u"Onceki-2026-11-25-154445~/yeni/"_s + Mde));
        QCOMPARE(GeriYükle(hedef_, ad, yeni, YedekKipi::Yap).ÖncekiYol, QString());
        QVERIFY(oku(yeni) == makaleler_ && ağaç(yeni).size() == 2);

        // Over a library that is a link: the file stays where it is.
        const QString asıl = geçici_->filePath(u"asıl.mde"_s);
        değiştir(yeni, "DELETE FROM Makaleler WHERE Kimlik>3");
        QVERIFY(QFile::rename(yeni + Mde, asıl) && QFile::link(u"../../asıl.mde"_s, yeni + Mde));
        const auto önce = ağaç(yeni);
        const QString deneme = GeriYükle(hedef_, ad, yeni, YedekKipi::Dene, {}, An).ÖncekiYol;
        QVERIFY(ağaç(yeni) == önce);
        QCOMPARE(HataNumarası([&] {
                     int n = 0;
                     GeriYükle(hedef_, ad, yeni, YedekKipi::Yap, [&n](qint64, qint64) { return ++n < 3; });
                 }),
                 3059);
        QVERIFY(ağaç(yeni) == önce);
        const GeriYüklemeSonucu sonuç = GeriYükle(hedef_, ad, yeni, YedekKipi::Yap, {}, An);
        QVERIFY(sonuç.ÖncekiYol == deneme && deneme == yeni + u"Onceki-2026-11-25-154445"_s);
        QVERIFY(oku(yeni) == makaleler_ && oku(deneme + u'/').size() == 3 && QFile::exists(asıl));
        QCOMPARE(sonuç.Notlar.size(), 1);

        for (const QString& yanlış : {u"Belgenar-2020-01-01-000000"_s, u".."_s, u""_s})
            QCOMPARE(HataNumarası([&] { GeriYükle(hedef_, yanlış, yeni, YedekKipi::Yap); }), 3265);
        const QString nesil = hedef_ + u'/' + ad + u'/';
        QCOMPARE(HataNumarası([&] { GeriYükle(hedef_, ad, nesil, YedekKipi::Yap); }), 3903);
        DosyaYaz(nesil + Mde, DosyaOku(nesil + Mde).left(150'000));
        const auto sonra = ağaç(yeni);
        QCOMPARE(HataNumarası([&] { GeriYükle(hedef_, ad, yeni, YedekKipi::Yap); }), 3901);
        QVERIFY(ağaç(yeni) == sonra);
    }

    void killedBackup()
    {
        const auto hazırla = [&] {
            QDir(hedef_).removeRecursively();
            nesilYaz(u"154445"_s);
            nesilYaz(u"154446"_s);
        };
        const int öldürülen = öldür(
            hazırla, [&] { yedekle(1, 2); },
            [&](int n) {
                const QStringList bulunan = adlar(hedef_);
                QVERIFY2(!bulunan.isEmpty() && !bulunan.join(u' ').contains(u'!'),
                         qPrintable(bulunan.join(u' ')));
                QVERIFY2(bulunan[0].endsWith(u"47"_s) || bulunan.size() == 2, qPrintable(QString::number(n)));
                yedekle(1, 3);
                QCOMPARE(ağaç(hedef_).size(), 3);
            });
        QVERIFY(öldürülen > 8);
    }

    void killedRestoring()
    {
        nesilYaz(u"154445"_s);
        const QString ad = u"Belgenar-2026-11-25-154445"_s, nesil = hedef_ + u'/' + ad + u'/';
        // What stands there is another library, as a crash left it, with its spare copy.
        const QList<Makale> eskiler = {{u"ESKİ"_s, u"ESKİ 1"_s, UzunMetin(1, 900'000)},
                                       {u"ESKİ"_s, u"ESKİ 2"_s, u"m"_s}};
        const DenemeKitaplığı eski(eskiler);
        yarımBırak(eski.Klasör());
        const auto dosyalar = KlasörOku(eski.Klasör());
        QCOMPARE(dosyalar.size(), 3);
        const QString yer = geçici_->path() + u"/program/"_s;
        const auto hazırla = [&] {
            QDir(yer).removeRecursively();
            yaz(yer, dosyalar);
            DosyaYaz(yer + u"Makale.md_"_s, "md_");
        };
        int kitaplıksız = 0;
        const int öldürülen = öldür(
            hazırla, [&] { GeriYükle(hedef_, ad, yer, YedekKipi::Yap); },
            [&](int n) {
                const auto şimdi = KlasörOku(yer);
                const bool yeniÇift = şimdi.value(Mde) == DosyaOku(nesil + Mde) &&
                                      şimdi.value(Tps) == DosyaOku(nesil + Tps) && şimdi.size() == 2;
                const bool eskiÇift = şimdi.value(Mde) == dosyalar[Mde] && şimdi.size() == 4;
                kitaplıksız += !şimdi.contains(Mde);
                QVERIFY2(yeniÇift || eskiÇift || (!şimdi.contains(Mde) && şimdi.contains(Tps)),
                         qPrintable(u"kill %1: %2"_s.arg(n).arg(şimdi.keys().join(u' '))));
                GeriYükle(hedef_, ad, yer, YedekKipi::Yap);
                QVERIFY2(oku(yer) == makaleler_ && KlasörOku(yer).size() == 2,
                         qPrintable(QString::number(n)));
                const QStringList öncekiler =
                    QDir(yer).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot);
                QVERIFY(!öncekiler.join(u' ').contains(u'~'));
                QVERIFY(öncekiler.size() == (yeniÇift ? 2 : 1));
                const QString önceki = yer + öncekiler[0] + u'/';
                QVERIFY(KlasörOku(önceki).value(u"Makale.md_"_s) == "md_" &&
                        KlasörOku(önceki).value(Tps) == dosyalar[Tps] && oku(önceki) == eskiler);
            });
        QVERIFY(öldürülen > 10 && kitaplıksız > 0);
    }
};

QTEST_GUILESS_MAIN(TestStoreBackup)
#include "test_store_backup.moc"
