#include "DenemeProgramı.h"

#include "app/Ayarlar.h"
#include "app/Görünüm.h"
#include "app/HataPolitikaları.h"
#include "app/OrtakApilerModülü.h"
#include "app/PencereYeri.h"
#include "app/TekÖrnek.h"
#include "app/İletiKutusu.h"
#include "forms/AnaForm.h"

#include <QMessageBox>
#include <QSettings>
#include <QTest>

using namespace Qt::StringLiterals;

class TestApp : public QObject
{
    Q_OBJECT

private slots:
    void systemVersion_data();
    void systemVersion();
    void wordProcessorKey();
    void displayMaps();
    void numbersFromSettings_data();
    void numbersFromSettings();
    void settingsStore();
    void boxIsCentred_data();
    void boxIsCentred();
    void boxAnswers_data();
    void boxAnswers();
    void keptOnScreen_data();
    void keptOnScreen();
    void policies();
    void secondInstance();
};

void TestApp::systemVersion_data()
{
    QTest::addColumn<int>("platform");
    QTest::addColumn<int>("major");
    QTest::addColumn<QString>("servicePack");
    QTest::addColumn<bool>("fits");
    const auto row = [](const char* name, int platform, int major, const QString& pack, bool fits) {
        QTest::newRow(name) << platform << major << pack << fits;
    };
    row("not NT", 0, 3, {}, true);
    row("NT 3", 2, 3, u"Service Pack 5"_s, false);
    row("NT 4 bare", 2, 4, {}, true);
    row("NT 4 SP 1", 2, 4, u"Service Pack 1"_s, false);
    row("NT 4 SP 2 behind NUL", 2, 4, u"Service Pack 2"_s + QChar(u'\0') + u'x', false);
    row("NT 4 SP 3", 2, 4, u"Service Pack 3"_s, true);
    row("later NT", 2, 10, u"Service Pack 1"_s, true);
}

void TestApp::systemVersion()
{
    QFETCH(int, platform);
    QFETCH(int, major);
    QFETCH(QString, servicePack);
    SürümBilgisi sürüm;
    sürüm.Platform = static_cast<quint32>(platform);
    sürüm.Ana = static_cast<quint32>(major);
    sürüm.ServisPaketi = servicePack;
    QTEST(SürümUygun(sürüm), "fits");
}

void TestApp::wordProcessorKey()
{
    const QTemporaryDir folder;
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(folder.path()));
    const QString anahtar = u"Word.Document\\CurVer"_s;
    QCOMPARE(KayıtMetniOku(KayıtKökü::Sınıflar, anahtar, {}), QString());
    QFile program(folder.filePath(u"soffice"_s));
    QVERIFY(program.open(QIODevice::WriteOnly) && program.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    QVERIFY(!KayıtMetniOku(KayıtKökü::Sınıflar, anahtar, {}).isEmpty());
    QCOMPARE(KayıtMetniOku(KayıtKökü::Sınıflar, u"Başka"_s, {}), QString());
    qputenv("PATH", path);
}

void TestApp::displayMaps()
{
    QCOMPARE(YazıBoyutu(2), 11);
    QCOMPARE(YazıBoyutu(4), 14);
    QCOMPARE(ZeminRengi(1), 0xFF00FFu);
    QCOMPARE(ZeminRengi(5), 0x8000000Fu);
    for (const qint16 dışarıda : {qint16(-1), qint16(6), qint16(5000)}) {
        QCOMPARE(YazıBoyutu(dışarıda), 0);
        QCOMPARE(ZeminRengi(dışarıda), 0u);
    }
    QPalette palet;
    palet.setColor(QPalette::Button, QColor(10, 20, 30));
    QCOMPARE(EkranRengi(0xFFFF00, palet), QColor(0, 255, 255)); // blue stands in the highest byte
    QCOMPARE(EkranRengi(DüğmeYüzüRengi, palet), QColor(10, 20, 30));
    QCOMPARE(OkunurYazıRengi(Qt::black), QColor(Qt::white));
    QCOMPARE(OkunurYazıRengi(QColor(255, 0, 255)), QColor(Qt::black));
    QCOMPARE(Twip(Piksel(9720)), 9720);
}

void TestApp::numbersFromSettings_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<double>("number");
    QTest::addColumn<int>("index");
    QTest::newRow("absent") << QString() << 7.0 << 7;
    QTest::newRow("number") << u" 3 "_s << 3.0 << 3;
    QTest::newRow("word") << u"ikı"_s << 0.0 << 0;
    QTest::newRow("empty") << u""_s << 0.0 << 0;
    QTest::newRow("not finite") << u"inf"_s << 0.0 << 0;
    QTest::newRow("beyond 16 bits") << u"70000"_s << 70000.0 << -1;
    QTest::newRow("huge") << u"-1e300"_s << -1e300 << -1;
}

void TestApp::numbersFromSettings()
{
    QFETCH(QString, stored);
    QFETCH(double, number);
    const DenemeProgramı program({});
    constexpr Ayar<double> ayar{{u"Deneme Sayısı"}, 7};
    if (!stored.isNull())
        AyarMetni(ayar, stored);
    QCOMPARE(AyarOku(ayar), number);
    QTEST(int(SıraSayısı(number)), "index");
}

void TestApp::settingsStore()
{
    const DenemeProgramı program({});
    QCOMPARE(AyarOku(Ayarlar::TamEkran), 2.0);
    QCOMPARE(AyarOku(Ayarlar::YazıBoyutu), 2.0);
    QCOMPARE(AyarOku(Ayarlar::ZeminRengi), 0.0);
    QCOMPARE(AyarOku(Ayarlar::YazıTipi, u"pencerenin"_s), u"pencerenin"_s);
    QCOMPARE(AyarOku(Ayarlar::SonAçılan), QString());
    const QString tuhaf = u" Iğdır, \"ş\"; \\ = %41 \n@Font\u00a0"_s;
    AyarYaz(Ayarlar::YazıTipi, tuhaf);
    AyarYaz(Ayarlar::Sol, -1500);
    QCOMPARE(AyarOku(Ayarlar::YazıTipi, {}), tuhaf);
    QCOMPARE(AyarOku(Ayarlar::Sol, 1), -1500.0);

    // It is on the disk already, and alone there: the file was replaced as a whole.
    const QDir klasör(program.AyarKlasörü() + u"/Tepsan Yazilim"_s);
    QCOMPARE(klasör.entryList(QDir::Files | QDir::Hidden), QStringList(u"Belgenar.ini"_s));
    QFile dosya(klasör.filePath(u"Belgenar.ini"_s));
    QVERIFY(dosya.open(QIODevice::ReadOnly));
    QVERIFY(dosya.readAll().startsWith("[Ayarlar]\nSol=-1500\n"));

    // A store that can't be there, below something that is no folder.
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, dosya.fileName());
    AyarYaz(Ayarlar::YazıTipi, u"yitik"_s);
    QCOMPARE(AyarOku(Ayarlar::YazıTipi, u"pencerenin"_s), u"pencerenin"_s);
}

void TestApp::boxIsCentred_data()
{
    QTest::addColumn<QRect>("parent");
    QTest::addColumn<QSize>("box");
    QTest::addColumn<QPoint>("place");
    QTest::newRow("whole") << QRect(100, 50, 400, 300) << QSize(200, 100) << QPoint(200, 150);
    QTest::newRow("halves go to the even number") << QRect(0, 0, 101, 103) << QSize(100, 100) << QPoint(0, 2);
    QTest::newRow("wider than its parent") << QRect(10, 10, 20, 20) << QSize(40, 40) << QPoint(0, 0);
}

void TestApp::boxIsCentred()
{
    QFETCH(QRect, parent);
    QFETCH(QSize, box);
    QTEST(OrtalıYer(parent, box), "place");
}

void TestApp::boxAnswers_data()
{
    QTest::addColumn<int>("buttons");
    QTest::addColumn<int>("press");
    QTest::addColumn<int>("answer");
    using Y = KutuYanıtlayıcı::Yanıt;
    const auto row = [](const char* name, İletiDüğmeleri buttons, Y press, İletiYanıtı answer) {
        QTest::newRow(name) << int(buttons) << int(press) << int(answer);
    };
    row("ok", İletiDüğmeleri::Tamam, Y::Tamam, İletiYanıtı::Tamam);
    row("closed", İletiDüğmeleri::Tamam, Y::Kapat, İletiYanıtı::Tamam);
    row("yes", İletiDüğmeleri::EvetHayır, Y::Evet, İletiYanıtı::Evet);
    row("closed question", İletiDüğmeleri::EvetHayır, Y::Kapat, İletiYanıtı::Hayır);
}

void TestApp::boxAnswers()
{
    QFETCH(int, buttons);
    QFETCH(int, press);
    QString başlık;
    KutuYanıtlayıcı yanıt(KutuYanıtlayıcı::Yanıt(press),
                          [&başlık](QMessageBox& kutu) { başlık = kutu.windowTitle(); });
    const auto sonuç = İletiGöster(u"<b>a & b</b>"_s, İletiSimgesi::Soru, İletiDüğmeleri(buttons));
    QTEST(int(sonuç), "answer");
    QCOMPARE(yanıt.Metin, u"<b>a & b</b>"_s);
    QCOMPARE(başlık, u"Belgenar"_s);
}

void TestApp::keptOnScreen_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("vertical");
    QTest::addColumn<int>("moved");
    constexpr int kenar = 19200 - 12000; // of a screen of 19,200 twips
    QTest::newRow("inside") << 300 << 12000 << false << 300;
    QTest::newRow("left of the screen") << -1 << 12000 << false << 0;
    QTest::newRow("out by 50") << kenar + 50 << 12000 << false << kenar + 50;
    QTest::newRow("out by 150") << kenar + 150 << 12000 << false << kenar;
    QTest::newRow("wider than the screen") << 0 << 20000 << false << -800;
    QTest::newRow("taller than the screen") << 0 << 20000 << true << 0;
    QTest::newRow("above the screen") << -500 << 12000 << true << 0;
}

void TestApp::keptOnScreen()
{
    QFETCH(int, place);
    QFETCH(int, size);
    QFETCH(bool, vertical);
    QTEST(AnaForm::SınırlıKonum(place, 19200, size, vertical ? AnaForm::Eksen::Dikey : AnaForm::Eksen::Yatay),
          "moved");
}

void TestApp::policies()
{
    const auto hata = [] { throw VeritabanıHatası(HataNo::DiskDolu, u"x"_s); };
    int çalışan = 0;
    AdımAdım([&] { ++çalışan; }, hata, [&] { ++çalışan; });
    QCOMPARE(çalışan, 2);
    İlkHatadaBit([&] {
        hata();
        ++çalışan;
    });
    QCOMPARE(çalışan, 2);
    QVERIFY(!Olay("deneme", hata));
    QVERIFY(Olay("deneme", [] {}));
    QCOMPARE(HatadaBildirVeÇık([] { return 5; }), 5);
    try {
        hata();
    } catch (...) {
        QCOMPARE(ŞimdikiHata().Numara, 3026);
        QVERIFY(ŞimdikiHata().Açıklama.endsWith(u"(x)"_s));
    }
}

void TestApp::secondInstance()
{
    const QTemporaryDir klasör;
    qputenv("XDG_RUNTIME_DIR", klasör.path().toLocal8Bit());
    QFile::setPermissions(klasör.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    TekÖrnek ilk(u"Başlık"_s);
    int çağrı = 0;
    ilk.ÖneÇağrıldı = [&çağrı] { ++çağrı; };
    QVERIFY(!ilk.BaşkasıVar());
    QVERIFY(!TekÖrnek(u"Başka başlık"_s).BaşkasıVar());
    QVERIFY(TekÖrnek(u"Başlık"_s).BaşkasıVar());
    QTRY_COMPARE_WITH_TIMEOUT(çağrı, 1, BeklemeSınırı);
}

QTEST_MAIN(TestApp)
#include "test_app.moc"
