// Processes are killed at random moments; what they had written must be whole.
#include "library_fixture.h"

#include "store/Bağlantı.h"
#include "store/ÇalışmaGrubu.h"

#include <QElapsedTimer>
#include <QFile>
#include <QRandomGenerator>
#include <QTest>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

// Each function is called with so many parts, of so many kills each: all in one would run for too long.
constexpr int AçılışBölümü = 8, AçılışÖldürme = 25, YazmaBölümü = 5, YazarkenÖldürme = 25;
constexpr int DenetimBölümü = 10;   // a kill without a journal does damage about once in ten times
constexpr int EnUzunYazma = 60'000; // µs from the first change to the kill
constexpr int MakaleSayısı = 24, UzunBoy = 200'000, KısaBoy = 2'000;
constexpr int AzSayfa = 8; // so little memory that most changes write pages before they are committed

/// Writes a line, which outlives the process.
void bildir(const QByteArray& satır)
{
    if (write(STDOUT_FILENO, (satır + '\n').constData(), size_t(satır.size()) + 1) != satır.size() + 1)
        _exit(1);
}

/// A process of its own, forked for the work. Its first line says that it is ready.
class Süreç
{
public:
    explicit Süreç(const std::function<void()>& iş)
    {
        int boru[2] = {};
        if (pipe(boru) != 0 || (no_ = fork()) < 0)
            qFatal("cannot start a process");
        if (no_ == 0) {
            close(boru[0]);
            dup2(boru[1], STDOUT_FILENO);
            [&iş]() noexcept { iş(); }();
            _exit(0);
        }
        close(boru[1]);
        çıktı_.open(boru[0], QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
        SatırBekle();
    }
    void SatırBekle() { çıktı_.readLine(); }
    /// Kills it after that many µs; returns the further lines that it had written.
    QByteArrayList Öldür(double bekleme)
    {
        usleep(useconds_t(bekleme));
        kill(no_, SIGKILL);
        waitpid(no_, nullptr, 0);
        return çıktı_.readAll().split('\n');
    }

private:
    pid_t no_ = 0;
    QFile çıktı_;
};

/// The start sequence: "kopya" for each block that is copied beside the library to replace it, "açık".
void aç(const DenemeKitaplığı& kitaplık)
{
    bildir("hazır");
    const QString ara = kitaplık.Klasör() + u"Makale.mde~"_s;
    const Açılış açılış(kitaplık.Klasör(), [&ara] { QFile::exists(ara) ? bildir("kopya") : void(); });
    bildir("açık");
}

/// Adds, changes and deletes: "önce NO TEXT" before each change (TEXT is - for a deletion), "sonra" after it.
[[noreturn]] void yaz(const QString& klasör, quint32 tohum, const QByteArray& günlükKipi)
{
    QRandomGenerator rastgele(tohum);
    const auto bağlantı = DosyaBağlantısı(klasör, AzSayfa);
    bağlantı->Metin("PRAGMA journal_mode=" + günlükKipi);
    bildir("hazır");
    for (;;) {
        const QString no = QString::number(rastgele.bounded(MakaleSayısı));
        Recordset kayıt(bağlantı, u"SELECT * FROM Makaleler WHERE MakaleBasligi='%1'"_s.arg(no));
        const int t = rastgele.bounded(1000), boy = rastgele.bounded(rastgele.bounded(4) ? UzunBoy : KısaBoy);
        const bool sil = !kayıt.Eof() && rastgele.bounded(3) == 0;
        const QString metin = sil ? u"-"_s : u"%1/%2"_s.arg(t).arg(boy);
        bildir("önce " + no.toLatin1() + ' ' + metin.toLatin1());
        if (sil) {
            kayıt.Delete();
        } else {
            kayıt.Eof() ? kayıt.AddNew() : kayıt.Edit();
            Makale{metin.left(1), no, UzunMetin(t, boy), {}, metin}.Yaz(kayıt);
            kayıt.Update();
        }
        bildir("sonra");
    }
}

/// Each article's "SEED/LENGTH", from which UzunMetin makes its text.
using Durum = QMap<QString, QString>;

/// Reads the library; returns what is wrong with it.
QString oku(const QString& klasör, Durum& durum)
try {
    durum.clear();
    const auto bağlantı = DosyaBağlantısı(klasör);
    for (const Makale& makale : Makaleler(Database(bağlantı))) {
        const int t = makale.Tarih.section(u'/', 0, 0).toInt(), boy = int(makale.Metin.size());
        if (makale.Metin != UzunMetin(t, boy) || makale.Tarih != u"%1/%2"_s.arg(t).arg(boy))
            return u"an article is not whole"_s;
        durum.insert(makale.Başlık, makale.Tarih);
    }
    return bağlantı->Metin("PRAGMA integrity_check").replace(u"ok"_s, QString());
} catch (const VeritabanıHatası& hata) {
    return hata.Açıklama();
}

/// Kills writing processes, at most so many, until the library is damaged or a finished change lost.
QString yazarkenÖldür(const QByteArray& günlükKipi, int enÇok)
{
    const quint32 tohum = QRandomGenerator::system()->generate();
    QRandomGenerator rastgele(tohum);
    const DenemeKitaplığı kitaplık;
    Durum bulunan;
    QString bozuk;
    int öldürülen = 0;
    for (; bozuk.isEmpty() && öldürülen < enÇok; ++öldürülen) {
        Süreç süreç([&, t = rastgele.generate()] { yaz(kitaplık.Klasör(), t, günlükKipi); });
        Durum kesin = bulunan, sonraki = bulunan;
        for (const QByteArray& satır : süreç.Öldür(rastgele.bounded(EnUzunYazma))) {
            const QStringList sözler = QString::fromUtf8(satır).split(u' ');
            if (satır == "sonra")
                kesin = sonraki;
            else if (sözler.size() == 3 && sözler[2] == u"-")
                sonraki.remove(sözler[1]);
            else if (sözler.size() == 3)
                sonraki.insert(sözler[1], sözler[2]);
        }
        bozuk = oku(kitaplık.Klasör(), bulunan);
        if (bozuk.isEmpty() && bulunan != kesin && bulunan != sonraki)
            bozuk = u"a change is lost"_s;
    }
    qInfo("seed %u: %d kills, %lld articles; %s", tohum, öldürülen, qlonglong(bulunan.size()),
          qPrintable(bozuk));
    return bozuk;
}

} // namespace

class TestStoreKill : public QObject
{
    Q_OBJECT
    int değiştirirken_ = 0; // kills while the new library was put in place
    QString kusur_;         // of a library without a journal

    static void bölümler(int sayı)
    {
        QTest::addColumn<int>("kalan"); // parts after this one
        for (int i = 1; i <= sayı; ++i)
            QTest::addRow("part %d", i) << sayı - i;
    }

private slots:
    void duringStart_data() { bölümler(AçılışBölümü); }
    void duringStart()
    {
        const quint32 tohum = QRandomGenerator::system()->generate();
        QRandomGenerator rastgele(tohum);
        QList<Makale> makaleler;
        for (int i = 0; i < 60; ++i)
            makaleler.append({u"YAZAR"_s, QString::number(i), UzunMetin(i, i % 6 ? 500 : 200'000)});
        const DenemeKitaplığı kitaplık(makaleler);
        const auto sağlam = [&] { return Makaleler(*Açılış(kitaplık.Klasör()).Veritabanı) == makaleler; };
        QElapsedTimer saat;
        saat.start();
        QVERIFY(sağlam());
        const double süre = double(saat.nsecsElapsed()) / 1000;

        int isabet = 0;
        for (int denenen = 0; isabet < AçılışÖldürme && denenen < 4 * AçılışÖldürme; ++denenen) {
            if (denenen % 4 < 2) // else it takes the shorter way of a sealed library
                ÇalışmaGrubu(kitaplık.Klasör() + u"Makale.tps"_s).MührüKır();
            Süreç süreç([&] { aç(kitaplık); });
            // Most of a start derives keys; every other kill aims at the moments when files change.
            const bool değişimde = denenen % 2 == 0;
            if (değişimde)
                süreç.SatırBekle();
            const double oran = rastgele.generateDouble();
            if (süreç.Öldür(değişimde ? oran * oran * oran * süre / 4 : oran * süre).contains("açık"))
                continue;
            ++isabet;
            değiştirirken_ += QFile::exists(kitaplık.Klasör() + u"Makale.mde~"_s);
            bool iyi = false;
            const int hata = HataNumarası([&] { iyi = sağlam(); });
            QVERIFY2(iyi, qPrintable(u"error %1 (seed %2, kill %3)"_s.arg(hata).arg(tohum).arg(denenen)));
        }
        QFETCH(const int, kalan);
        QVERIFY(isabet >= AçılışÖldürme && (kalan > 0 || değiştirirken_ > 0));
    }

    void whileWriting_data() { bölümler(YazmaBölümü); }
    void whileWriting() { QCOMPARE(yazarkenÖldür("DELETE", YazarkenÖldürme), QString()); }

    // Without what protects it: were nothing found here, the run above would prove nothing.
    void withoutJournal_data() { bölümler(DenetimBölümü); }
    void withoutJournal()
    {
        QFETCH(const int, kalan);
        if (kusur_.isEmpty())
            kusur_ = yazarkenÖldür("OFF", YazarkenÖldürme);
        QVERIFY(kalan > 0 || !kusur_.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestStoreKill)
#include "test_store_kill.moc"
