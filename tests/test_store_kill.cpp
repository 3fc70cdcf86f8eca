// Processes are killed at random moments; what they had written must be whole.
#include "DenemeKitaplığı.h"

#include "store/Bağlantı.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <array>
#include <chrono>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

constexpr int AçılışÖldürme = 200;
constexpr int YazarkenÖldürme = 100;
constexpr int DenetimSınırı = 300;  // a kill without a journal does damage about once in ten times
constexpr int EnUzunYazma = 60'000; // µs from the first change to the kill

void bekle(qint64 mikrosaniye)
{
    std::this_thread::sleep_for(std::chrono::microseconds(mikrosaniye));
}

/// Kills the process and returns the lines that it had written.
QByteArrayList öldür(QProcess& süreç)
{
    süreç.kill();
    süreç.waitForFinished();
    return süreç.readAllStandardOutput().split('\n');
}

QList<Makale> örnekMakaleler()
{
    QList<Makale> liste;
    for (int i = 0; i < 60; ++i)
        liste.append({u"YAZAR %1"_s.arg(i % 7), u"BAŞLIK %1"_s.arg(i), UzunMetin(i, i % 10 ? 500 : 200'000)});
    return liste;
}

/// How long a whole start takes, and the part of it from the first copied block on, in µs.
struct Süreler
{
    qint64 tümü = 0, son = 0;
};

Süreler açılışıÖlç(const QString& klasör)
{
    auto süreç = YardımcıSüreç({u"ac"_s, klasör});
    QElapsedTimer saat;
    saat.start();
    while (!süreç->canReadLine() && süreç->waitForReadyRead()) {
    }
    const qint64 ilkBlok = saat.nsecsElapsed() / 1000;
    süreç->waitForFinished();
    const qint64 tümü = saat.nsecsElapsed() / 1000;
    return {tümü, tümü - ilkBlok};
}

using Durum = QMap<int, QString>; // check sums by article number

/// The library's articles; throws what opening and reading throws.
/// @param bozuk becomes what is wrong with an article or the file
Durum durumuOku(const QString& klasör, QString& bozuk)
{
    Durum durum;
    const auto bağlantı = DosyaBağlantısı(klasör);
    Recordset kayıtlar(bağlantı, u"SELECT * FROM Makaleler"_s);
    for (; !kayıtlar.Eof(); kayıtlar.MoveNext()) {
        const int no = kayıtlar.Fields(u"MakaleBasligi").Value().mid(7).toInt();
        const QString damga = MetninDamgası(kayıtlar.Fields(u"MakaleMetni").Value());
        if (damga.isEmpty() || damga != kayıtlar.Fields(u"YayimTarihi").Value())
            bozuk = u"article %1 is not whole"_s.arg(no);
        if (durum.contains(no))
            bozuk = u"article %1 is there twice"_s.arg(no);
        durum.insert(no, damga);
    }
    if (const QString sonuç = bağlantı->Metin("PRAGMA integrity_check"); sonuç != u"ok"_s)
        bozuk = sonuç;
    return durum;
}

void uygula(Durum& durum, const QByteArrayList& öncesi)
{
    const int no = öncesi[1].toInt();
    if (öncesi[2] == "-")
        durum.remove(no);
    else
        durum.insert(no, QString::fromLatin1(öncesi[2]));
}

/// One killed writer: what must be there after it, and what may be there instead.
struct Beklenen
{
    Durum kesin, olası;
    int değişiklikler = 0;
    bool yarıda = false; // killed while a change was being written
};

Beklenen yazdırıpÖldür(const QString& kip, const QString& klasör, const Durum& önceki,
                       QRandomGenerator& rastgele)
{
    auto süreç = YardımcıSüreç({kip, klasör, QString::number(rastgele.generate())});
    bekle(rastgele.bounded(EnUzunYazma));
    Beklenen beklenen{önceki, önceki};
    QByteArrayList bekleyen;
    for (const QByteArray& satır : öldür(*süreç)) {
        if (satır.startsWith("önce")) {
            bekleyen = satır.split(' ');
        } else if (satır == "sonra") {
            uygula(beklenen.kesin, bekleyen);
            bekleyen.clear();
            ++beklenen.değişiklikler;
        }
    }
    beklenen.olası = beklenen.kesin;
    beklenen.yarıda = !bekleyen.isEmpty();
    if (beklenen.yarıda)
        uygula(beklenen.olası, bekleyen);
    return beklenen;
}

/// What is wrong with the library, empty when nothing is; then the state that was found.
QString sına(const QString& klasör, const Beklenen& beklenen, Durum& bulunan)
{
    QString bozuk;
    try {
        bulunan = durumuOku(klasör, bozuk);
    } catch (const VeritabanıHatası& hata) {
        return hata.Açıklama();
    }
    if (bozuk.isEmpty() && bulunan != beklenen.kesin && bulunan != beklenen.olası)
        bozuk = u"a change is lost"_s;
    return bozuk;
}

} // namespace

class TestStoreKill : public QObject
{
    Q_OBJECT

private slots:
    void killedDuringStart();
    void killedWhileWriting();
    void killedWithoutJournal();
};

void TestStoreKill::killedDuringStart()
{
    const quint32 tohum = QRandomGenerator::system()->generate();
    QRandomGenerator rastgele(tohum);
    const QList<Makale> makaleler = örnekMakaleler();
    const DenemeKitaplığı kitaplık(makaleler);
    std::array<Süreler, 3> ölçüler;
    for (Süreler& ölçü : ölçüler)
        ölçü = açılışıÖlç(kitaplık.Klasör());
    std::nth_element(ölçüler.begin(), ölçüler.begin() + 1, ölçüler.end(),
                     [](const Süreler& a, const Süreler& b) { return a.tümü < b.tümü; });
    const Süreler süre = ölçüler[1];

    int denenen = 0, isabet = 0, yarımKopya = 0, değiştirirken = 0;
    for (; isabet < AçılışÖldürme && denenen < 3 * AçılışÖldürme; ++denenen) {
        auto süreç = YardımcıSüreç({u"ac"_s, kitaplık.Klasör()});
        QVERIFY(süreç);
        // Most of a start derives keys; every other kill aims at the moments when files change.
        if (denenen % 2 == 0) {
            bekle(qint64(rastgele.bounded(double(süre.tümü))));
        } else {
            while (!süreç->canReadLine() && süreç->waitForReadyRead()) {
            }
            const double oran = rastgele.generateDouble();
            bekle(qint64(oran * oran * oran * double(süre.son))); // early ones more often
        }
        const QByteArrayList satırlar = öldür(*süreç);
        if (satırlar.contains("açık"))
            continue;
        ++isabet;
        değiştirirken += QFileInfo::exists(kitaplık.Yol(KitaplıkDosyaları::Veritabanı) + u'~');
        yarımKopya += QFileInfo::exists(kitaplık.Yol(KitaplıkDosyaları::Kopya));
        try {
            QCOMPARE(Makaleler(Açılış(kitaplık.Klasör()).Veritabanı), makaleler);
        } catch (const VeritabanıHatası& hata) {
            QFAIL(qPrintable(u"%1 (seed %2, kill %3)"_s.arg(hata.Açıklama()).arg(tohum).arg(denenen)));
        }
    }
    qInfo(
        "seed %u, start %lld ms: %d kills, %d during the start, %d with a copy, %d while it was put in place",
        tohum, süre.tümü / 1000, denenen, isabet, yarımKopya, değiştirirken);
    QVERIFY(isabet >= AçılışÖldürme);
    QVERIFY(değiştirirken > 0);
}

void TestStoreKill::killedWhileWriting()
{
    const quint32 tohum = QRandomGenerator::system()->generate();
    QRandomGenerator rastgele(tohum);
    const DenemeKitaplığı kitaplık;
    Durum durum;
    int değişiklikler = 0, yarıda = 0, günlüklü = 0;
    for (int i = 0; i < YazarkenÖldürme; ++i) {
        const Beklenen beklenen = yazdırıpÖldür(u"yaz"_s, kitaplık.Klasör(), durum, rastgele);
        değişiklikler += beklenen.değişiklikler;
        yarıda += beklenen.yarıda;
        günlüklü += QFileInfo::exists(kitaplık.Yol(KitaplıkDosyaları::Veritabanı) + u"-journal"_s);
        const QString bozuk = sına(kitaplık.Klasör(), beklenen, durum);
        QVERIFY2(bozuk.isEmpty(), qPrintable(u"%1 (seed %2, kill %3)"_s.arg(bozuk).arg(tohum).arg(i)));
    }
    qInfo("seed %u: %d kills after %d changes, %d in a change, %d of them with a journal left", tohum,
          YazarkenÖldürme, değişiklikler, yarıda, günlüklü);
    QVERIFY(değişiklikler > 0 && günlüklü > 0);
    QCOMPARE(Makaleler(Açılış(kitaplık.Klasör()).Veritabanı).size(), durum.size());
}

// The same run without what protects it: were nothing found here, the run above would prove nothing.
void TestStoreKill::killedWithoutJournal()
{
    const quint32 tohum = QRandomGenerator::system()->generate();
    QRandomGenerator rastgele(tohum);
    const DenemeKitaplığı kitaplık;
    Durum durum;
    QString bozuk;
    int denenen = 0;
    for (; bozuk.isEmpty() && denenen < DenetimSınırı; ++denenen) {
        const Beklenen beklenen = yazdırıpÖldür(u"gunluksuz-yaz"_s, kitaplık.Klasör(), durum, rastgele);
        bozuk = sına(kitaplık.Klasör(), beklenen, durum);
    }
    qInfo("seed %u: damage after %d kills: %s", tohum, denenen, qPrintable(bozuk));
    QVERIFY(!bozuk.isEmpty());
}

QTEST_GUILESS_MAIN(TestStoreKill)
#include "test_store_kill.moc"
