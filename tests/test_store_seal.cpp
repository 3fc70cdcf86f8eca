// What the seal is worth: when a start may trust it, and that it takes no damaged page for a sound one.
#include "library_fixture.h"

#include "store/Bağlantı.h"
#include "store/KitaplıkDenetimi.h"
#include "store/ÇalışmaGrubu.h"

#include <QTest>

using namespace Qt::StringLiterals;

static constexpr qsizetype SayfaBoyu = 16384;

class TestStoreSeal : public QObject
{
    Q_OBJECT
    QTemporaryDir ayarlar_;

    static QString kitaplık(const DenemeKitaplığı& deneme) { return deneme.Klasör() + u"Makale.mde"_s; }
    static QString grup(const DenemeKitaplığı& deneme) { return deneme.Klasör() + u"Makale.tps"_s; }
    static QString kopya(const DenemeKitaplığı& deneme) { return deneme.Klasör() + u"Makale.md_"_s; }
    /// Every tenth text gets letters of the same number.
    static void değiştir(const Database& kitaplık)
    {
        Recordset kayıtlar = kitaplık.OpenRecordset(u"SELECT * FROM [Makaleler]"_s);
        for (int i = 0; !kayıtlar.Eof(); kayıtlar.MoveNext(), ++i) {
            if (i % 10 != 0)
                continue;
            kayıtlar.Edit();
            const qsizetype boy = kayıtlar.Fields(u"MakaleMetni").Value().size();
            kayıtlar.Fields(u"MakaleMetni").Value(UzunMetin(1000 + i, boy));
            kayıtlar.Update();
        }
    }
    /// Leaves free pages behind.
    static void sil(const Database& kitaplık)
    {
        for (const int no : {20, 40, 41}) // two with pages of their own, and one without
            kitaplık.OpenRecordset(u"SELECT * FROM [Makaleler] WHERE [MakaleBasligi]='BAŞLIK %1'"_s.arg(no))
                .Delete();
    }
    static void düzgünKapat(Oturum& oturum) { oturum.Kapat({{}, -1, 0}); }
    static QList<Makale> açıpOku(const DenemeKitaplığı& deneme)
    {
        return Makaleler(*Açılış(deneme.Klasör()).Veritabanı);
    }
    static void mührüDeğiştir(const DenemeKitaplığı& deneme, const std::function<void(ÇalışmaGrubu&)>& iş)
    {
        ÇalışmaGrubu açık(grup(deneme));
        iş(açık);
    }
    static void değiştirVeMühürle(const DenemeKitaplığı& deneme, const QList<QByteArray>& komutlar)
    {
        const auto bağlantı = DosyaBağlantısı(deneme.Klasör());
        for (const QByteArray& sql : komutlar)
            bağlantı->Çalıştır(sql);
        DBEngine motor;
        motor.SystemDB(grup(deneme));
        mührüDeğiştir(deneme, [](ÇalışmaGrubu& açık) { açık.MührüKır(); });
        VeritabanınıMühürle(motor, deneme.Klasör());
    }

private slots:
    void initTestCase() { qputenv("XDG_CONFIG_HOME", QFile::encodeName(ayarlar_.path())); }

    void betweenStarts_data()
    {
        QTest::addColumn<QString>("olay");
        QTest::addColumn<bool>("aynı"); // whether the next start takes the bytes over as they are
        QTest::newRow("nothing") << u"hiçbiri"_s << true;
        QTest::newRow("an orderly end") << u"kapanış"_s << true;
        QTest::newRow("an addition and an orderly end") << u"ekleme, kapanış"_s << true;
        QTest::newRow("a change and an orderly end") << u"değişme, kapanış"_s << false;
        QTest::newRow("a deletion and an orderly end") << u"değişme, silme, kapanış"_s << false;
        QTest::newRow("a file with many changes") << u"kapanış, çok değişmiş"_s << false;
        QTest::newRow("an older version's file") << u"kapanış, eski düzen"_s << false;
        QTest::newRow("an older version's, as compacted") << u"kapanış, eski düzen, sıkı"_s << true;
        QTest::newRow("a change and a crash") << u"değişme"_s << false;
        QTest::newRow("a change that was taken back") << u"geri alma"_s << false;
        QTest::newRow("the owner's change") << u"sahip"_s << false;
        QTest::newRow("another order of letters") << u"sıralama"_s << false;
        QTest::newRow("the spare in its place") << u"yedek"_s << false;
        QTest::newRow("a program without seals") << u"mühürsüz"_s << false;
    }
    void betweenStarts()
    {
        QFETCH(QString, olay);
        QFETCH(bool, aynı);
        const DenemeKitaplığı deneme(ÖrnekMakaleler());
        QList<Makale> beklenen;
        {
            Açılış oturum(deneme.Klasör());
            if (olay.startsWith(u"değişme") || olay == u"yedek")
                değiştir(*oturum.Veritabanı);
            if (olay.startsWith(u"ekleme"))
                Ekle(*oturum.Veritabanı, {{u"YENİ YAZAR"_s, u"YENİ"_s, UzunMetin(7, 20'000)}});
            if (olay.contains(u"silme"))
                sil(*oturum.Veritabanı);
            if (olay == u"geri alma")
                QCOMPARE(HataNumarası([&] {
                             oturum.Veritabanı->TekİşlemdeYap([&] {
                                 değiştir(*oturum.Veritabanı);
                                 throw VeritabanıHatası(HataNo::İşlemDurduruldu);
                             });
                         }),
                         int(HataNo::İşlemDurduruldu));
            beklenen = olay == u"yedek" ? ÖrnekMakaleler() : Makaleler(*oturum.Veritabanı);
            if (olay.contains(u"kapanış") || olay == u"yedek")
                düzgünKapat(oturum);
        }
        const bool eskiDüzen = olay.contains(u"eski düzen");
        if (olay.contains(u"çok değişmiş"))
            değiştirVeMühürle(deneme, {"PRAGMA main.application_id=127"});
        if (eskiDüzen)
            değiştirVeMühürle(deneme, {"PRAGMA main.auto_vacuum=0", "VACUUM"});
        if (olay.endsWith(u"sıkı"))
            mührüDeğiştir(deneme, [](ÇalışmaGrubu& açık) {
                Mühür sıkı = *açık.KitaplıkMührü();
                sıkı.Hali = Sıkılık::Sıkı;
                açık.Mühürle(sıkı);
            });
        if (olay == u"sahip") {
            Oturum sahip;
            sahip.SahipOlarakAç(deneme.Klasör(), Oturum::Erişim::Yazma);
            değiştir(*sahip.Veritabanı);
            beklenen = Makaleler(*sahip.Veritabanı);
        }
        if (olay == u"sıralama")
            mührüDeğiştir(deneme, [](ÇalışmaGrubu& açık) {
                Mühür eski = *açık.KitaplıkMührü();
                eski.Sıralama = "of other days";
                açık.Mühürle(eski);
            });
        if (olay == u"mühürsüz")
            mührüDeğiştir(deneme, [](ÇalışmaGrubu& açık) { açık.MührüKır(); });
        if (olay == u"yedek") {
            QVERIFY(QFile::remove(kitaplık(deneme)));
            QVERIFY(QFile::rename(kopya(deneme), kitaplık(deneme)));
        }
        for (const bool buSefer : {aynı, true}) {
            const QByteArray eski = DosyaOku(kitaplık(deneme));
            double oran = 0; // how far the start says it is
            QCOMPARE(Makaleler(*Açılış(deneme.Klasör(),
                                       [&] { oran = std::max(oran, SıkıştırmaOranı(deneme.Klasör())); })
                                    .Veritabanı),
                     beklenen);
            QVERIFY(buSefer ? oran == 0.5 : oran > 0.9 && oran <= 1);
            QCOMPARE(DosyaOku(kitaplık(deneme)) == eski, buSefer);
            QVERIFY(DosyaOku(kopya(deneme)) == DosyaOku(kitaplık(deneme)));
        }
        const auto bağlantı = DosyaBağlantısı(deneme.Klasör());
        QCOMPARE(bağlantı->Sayı("PRAGMA freelist_count"), 0);
        QCOMPARE(bağlantı->Sayı("PRAGMA auto_vacuum"), eskiDüzen && aynı ? 0 : 2);
        QCOMPARE(bağlantı->Metin("PRAGMA integrity_check"), u"ok"_s);
    }

    void everyPage_data()
    {
        QTest::addColumn<bool>("değişmiş");
        QTest::newRow("as compacted") << false;
        QTest::newRow("changed and closed in order") << true;
    }
    /// Each page damaged in seven ways, once each.
    void everyPage()
    {
        QFETCH(bool, değişmiş);
        const DenemeKitaplığı deneme(ÖrnekMakaleler());
        açıpOku(deneme);
        const QByteArray eski = DosyaOku(kitaplık(deneme));
        QList<Makale> beklenen;
        {
            Açılış oturum(deneme.Klasör());
            değiştir(*oturum.Veritabanı);
            sil(*oturum.Veritabanı);
            beklenen = Makaleler(*oturum.Veritabanı);
            düzgünKapat(oturum);
        }
        if (!değişmiş)
            açıpOku(deneme);
        const QByteArray mde = DosyaOku(kitaplık(deneme)), tps = DosyaOku(grup(deneme));

        // What stands on a free page is of no matter.
        const qint64 boş = DosyaBağlantısı(deneme.Klasör())->Sayı("PRAGMA freelist_count");
        QMap<QString, int> görülen; // noticed, out of pages
        int sayfalar = 0, farklı = 0;
        for (qsizetype yer = 0; yer < mde.size(); yer += SayfaBoyu, ++sayfalar) {
            const QByteArray sayfa = mde.mid(yer, SayfaBoyu), eskisi = eski.mid(yer, SayfaBoyu);
            const auto dene = [&](const QString& ad, const QByteArray& baytlar) {
                DosyaYaz(kitaplık(deneme), baytlar);
                DosyaYaz(grup(deneme), tps);
                QFile::remove(kopya(deneme));
                try {
                    Açılış oturum(deneme.Klasör());
                    görülen[ad] += oturum.Durum != YapıDurumu::Sağlam ? 1 : 0;
                    return Makaleler(*oturum.Veritabanı) == beklenen;
                } catch (const VeritabanıHatası&) {
                    ++görülen[ad];
                    return DosyaOku(kitaplık(deneme)) == baytlar; // left for a rescue
                }
            };
            const auto yerine = [&](const QByteArray& yeni) {
                return QByteArray(mde).replace(yer, SayfaBoyu, yeni);
            };
            const auto çevir = [&](qsizetype bayt) {
                QByteArray yeni = sayfa;
                yeni[bayt] = char(yeni[bayt] ^ 1);
                return yerine(yeni);
            };
            QVERIFY2(dene(u"one bit, first byte"_s, çevir(0)), qPrintable(QString::number(yer)));
            QVERIFY2(dene(u"one bit, middle"_s, çevir(SayfaBoyu / 2)), qPrintable(QString::number(yer)));
            QVERIFY2(dene(u"one bit, code"_s, çevir(SayfaBoyu - 20)), qPrintable(QString::number(yer)));
            QVERIFY2(dene(u"zeroed"_s, yerine(QByteArray(SayfaBoyu, '\0'))),
                     qPrintable(QString::number(yer)));
            QVERIFY2(dene(u"cut"_s, mde.left(yer)), qPrintable(QString::number(yer)));
            const qsizetype komşu = yer + SayfaBoyu < mde.size() ? yer + SayfaBoyu : 0;
            QVERIFY2(dene(u"swapped"_s, yerine(mde.mid(komşu, SayfaBoyu)).replace(komşu, SayfaBoyu, sayfa)),
                     qPrintable(QString::number(yer)));
            // The first page leads to the others; where those are right, an old one does no harm.
            if (yer > 0 && eskisi.size() == SayfaBoyu && eskisi != sayfa) {
                ++farklı;
                QVERIFY2(dene(u"an older copy"_s, yerine(eskisi)), qPrintable(QString::number(yer)));
                DosyaYaz(kitaplık(deneme), yerine(eskisi));
                DosyaYaz(grup(deneme), tps);
                QVERIFY(!KitaplığıDenetle(deneme.Klasör(), [](qint64, qint64) {}).Bulgular.empty());
            }
        }
        for (auto i = görülen.cbegin(); i != görülen.cend(); ++i) {
            qInfo("%s: noticed %d of %d pages, %lld free", qPrintable(i.key()), i.value(), sayfalar, boş);
            QVERIFY2(i.value() >= (i.key() == u"an older copy" ? farklı : sayfalar - boş),
                     qPrintable(i.key()));
        }
        QVERIFY(farklı > sayfalar / 4);
    }
};

QTEST_GUILESS_MAIN(TestStoreSeal)
#include "test_store_seal.moc"
