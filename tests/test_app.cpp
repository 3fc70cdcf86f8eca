#include "program_fixture.h"

#include "app/Görünüm.h"
#include "app/HataPolitikaları.h"
#include "forms/AnaForm.h"
#include "system/OrtakApilerModülü.h"

#include <QSettings>
#include <QTest>

using namespace Qt::StringLiterals;

class TestApp : public QObject
{
    Q_OBJECT

private slots:
    void systemVersion()
    {
        const auto state = [](quint32 platform, quint32 major, const QString& pack = {}) {
            return SürümüDeğerlendir(SürümBilgisi{major, 0, platform, pack});
        };
        QCOMPARE(SürümüDeğerlendir({}), SürümDurumu::YanıtYok);
        QCOMPARE(state(0, 3), SürümDurumu::Uygun); // not NT
        QCOMPARE(state(2, 3, u"Service Pack 5"_s), SürümDurumu::Eski);
        QCOMPARE(state(2, 4), SürümDurumu::Uygun);
        QCOMPARE(state(2, 4, u"Service Pack 1"_s), SürümDurumu::Eski);
        QCOMPARE(state(2, 4, u"Service Pack 2"_s + QChar(u'\0') + u'x'), SürümDurumu::Eski);
        QCOMPARE(state(2, 4, u"Service Pack 3"_s), SürümDurumu::Uygun);
        QCOMPARE(state(2, 10, u"Service Pack 1"_s), SürümDurumu::Uygun);
        QCOMPARE(SürümüDeğerlendir(SürümBilgisiAl()), SürümDurumu::Uygun);
    }
    void displayMaps()
    {
        QList<int> sizes;
        QList<Renk> colours;
        for (const int i : {-1, 0, 1, 2, 3, 4, 5, 6, 5000}) {
            sizes.append(YazıBoyutu(qint16(i)));
            colours.append(ZeminRengi(qint16(i)));
        }
        QCOMPARE(sizes, QList({0, 8, 10, 11, 12, 14, 0, 0, 0}));
        QCOMPARE(colours, QList<Renk>({0, 0xFFFFFF, 0xFF00FF, 0xFFFF00, 0xFF00, 0xFFFF, 0x8000000F, 0, 0}));
        QCOMPARE(EkranRengi(0xFFFF00, {}), QColor(0, 255, 255)); // blue stands in the highest byte
    }
    void settings()
    {
        const DenemeProgramı program({});
        AyarMetni(Ayarlar::SonYazar, u"inf"_s);
        QCOMPARE(AyarOku(Ayarlar::SonYazar), 0.0);
        AyarMetni(Ayarlar::SonYazar, u" 3 "_s);
        QCOMPARE(AyarOku(Ayarlar::SonYazar), 3.0);
        QCOMPARE(SıraSayısı(-70000), qint16(-1)); // beyond 16 bits

        const QString odd = u" Iğdır, \"ş\"; \\ = %41 \n@Font\u00a0"_s;
        AyarYaz(Ayarlar::YazıTipi, odd);
        AyarYaz(Ayarlar::Sol, -1500);
        QCOMPARE(AyarOku(Ayarlar::YazıTipi, {}), odd);

        // It is on the disk already, and alone there: the file was replaced as a whole.
        const QDir folder(program.AyarKlasörü() + u"/Tepsan Yazilim"_s);
        QCOMPARE(folder.entryList(QDir::Files | QDir::Hidden), QStringList(u"Belgenar.ini"_s));
        const QString file = folder.filePath(u"Belgenar.ini"_s);
        QVERIFY(DosyaOku(file).startsWith("[Ayarlar]\n") && DosyaOku(file).contains("\nSol=-1500\n"));

        // A store that can't be there, below something that is no folder.
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, file);
        AyarYaz(Ayarlar::YazıTipi, u"yitik"_s);
        QCOMPARE(AyarOku(Ayarlar::YazıTipi, u"pencerenin"_s), u"pencerenin"_s);
    }
    void keptOnScreen()
    {
        const auto moved = [](int place, int size, AnaForm::Eksen axis = AnaForm::Eksen::Yatay) {
            return AnaForm::SınırlıKonum(place, 19200, size, axis);
        };
        QCOMPARE(moved(300, 12000), 300);
        QCOMPARE(moved(-1, 12000), 0);
        QCOMPARE(moved(7300, 12000), 7300); // out by 100
        QCOMPARE(moved(7301, 12000), 7200);
        QCOMPARE(moved(0, 20000), -800);
        QCOMPARE(moved(0, 20000, AnaForm::Eksen::Dikey), 0);
        QCOMPARE(moved(-500, 12000, AnaForm::Eksen::Dikey), 0);
    }
    void policies()
    {
        const auto error = [] { throw VeritabanıHatası(HataNo::DiskDolu, u"x"_s); };
        int ran = 0;
        const auto counted = [&ran] { ++ran; };
        AdımAdım(counted, error, counted);
        İlkHatadaBit([&] { (error(), counted()); });
        QCOMPARE(ran, 2);
        QVERIFY(!İlkHatadaBit(error) && İlkHatadaBit([] {}));
        try {
            error();
        } catch (...) {
            QCOMPARE(ŞimdikiHata().Numara(), 3026);
            QVERIFY(ŞimdikiHata().Açıklama().endsWith(u"(x)"_s));
        }
    }
};

QTEST_MAIN(TestApp)
#include "test_app.moc"
