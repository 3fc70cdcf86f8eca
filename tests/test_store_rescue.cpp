// What comes out of a damaged library.
#include "library_fixture.h"

#include "store/Bağlantı.h"
#include "store/KitaplıkKurtarma.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

static constexpr qsizetype SayfaBoyu = 16384;

class TestStoreRescue : public QObject
{
    Q_OBJECT
    std::unique_ptr<QTemporaryDir> geçici_;

    /// On how many pages an article's bytes stand, by SQLite's file format: one of the table, and what
    /// doesn't fit there on pages of its own.
    static qint64 sayfaSayısı(const Makale& makale)
    {
        constexpr qint64 kullanılan = SayfaBoyu - 48; // what the cipher leaves
        constexpr qint64 enÇok = kullanılan - 35, enAz = (kullanılan - 12) * 32 / 255 - 23;
        qint64 boy = 0, baş = 2; // bytes; the header's own length and the key's NULL
        for (const SütunTanımı& sütun : MakaleSütunları) {
            const qint64 değer = (makale.*sütun.değer).toUtf8().size();
            boy += değer;
            baş += 2 * değer + 13 < 128 ? 1 : 2 * değer + 13 < 16384 ? 2 : 3;
        }
        boy += baş;
        if (boy <= enÇok)
            return 1;
        const qint64 kalan = enAz + (boy - enAz) % (kullanılan - 4);
        return 1 + (boy - (kalan <= enÇok ? kalan : enAz) + kullanılan - 5) / (kullanılan - 4);
    }
    KurtarmaSonucu kurtar(const QString& klasör, KurtarmaKipi kip = KurtarmaKipi::Kur)
    {
        geçici_ = std::make_unique<QTemporaryDir>();
        return KitaplığıKurtar(klasör, yeni(), kip, [](qint64, qint64) { return true; });
    }
    QString yeni() const { return geçici_->filePath(u"yeni/"_s); }
    QList<Makale> gelenler() const { return Makaleler(Database(DosyaBağlantısı(yeni()))); }

private slots:
    void everyPage()
    {
        const QList<Makale> makaleler = ÖrnekMakaleler();
        const DenemeKitaplığı kitaplık(makaleler);
        const QString mde = kitaplık.Klasör() + u"Makale.mde"_s;
        const QByteArray sağlam = DosyaOku(mde);
        qint64 kayıp = 0, kayıpBaytla = 0, kayıpKöksüz = 0, beklenen = 0;
        for (const Makale& makale : makaleler)
            beklenen += sayfaSayısı(makale);
        for (qsizetype yer = 0; yer < sağlam.size(); yer += SayfaBoyu) {
            DosyaYaz(mde, QByteArray(sağlam).replace(yer, SayfaBoyu, QByteArray(SayfaBoyu, '\0')));
            const auto önce = KlasörOku(kitaplık.Klasör());
            const KurtarmaSonucu sonuç = kurtar(kitaplık.Klasör());
            QCOMPARE(KlasörOku(kitaplık.Klasör()), önce);
            const QList<Makale> gelen = gelenler();
            QVERIFY2(gelen.size() + qsizetype(sonuç.Kayıplar.size()) == makaleler.size() ||
                         sonuç.BilinmeyenOlabilir,
                     qPrintable(QString::number(yer / SayfaBoyu + 1)));
            for (const Makale& makale : gelen)
                QVERIFY2(makaleler.contains(makale), qPrintable(makale.Başlık));
            kayıp += makaleler.size() - gelen.size();
            QByteArray sayfa = sağlam.mid(yer, SayfaBoyu);
            sayfa[99] = char(sayfa[99] ^ 1);
            QByteArray bozuk = QByteArray(sağlam).replace(yer, SayfaBoyu, sayfa);
            DosyaYaz(mde, bozuk);
            kayıpBaytla += makaleler.size() - kurtar(kitaplık.Klasör(), KurtarmaKipi::Dene).Kitaplıktan;
            // What cutting out pages goes by, and the table's root.
            DosyaYaz(mde, bozuk.replace(SayfaBoyu, 2 * SayfaBoyu, QByteArray(2 * SayfaBoyu, '\xff')));
            kayıpKöksüz += makaleler.size() - kurtar(kitaplık.Klasör(), KurtarmaKipi::Dene).Kitaplıktan;
        }
        qInfo(
            "%lld pages, lost %lld articles of pages that hold them, %lld by one byte, %lld without the root",
            qint64(sağlam.size() / SayfaBoyu), kayıp, kayıpBaytla, kayıpKöksüz);
        // Whoever has bytes on a page is lost with it, so equal sums mean that nobody else is.
        QCOMPARE(kayıp, beklenen);
        QCOMPARE(kayıpBaytla, beklenen);
        QCOMPARE(kayıpKöksüz, beklenen);
    }

    void otherDamage_data()
    {
        QTest::addColumn<QString>("olay");
        for (const char* olay : {"with the spare", "cut", "no accounts", "lost", "half a page",
                                 "table's root", "garbage journal"})
            QTest::newRow(olay) << QString::fromLatin1(olay);
    }
    void otherDamage()
    {
        QFETCH(const QString, olay);
        const QList<Makale> makaleler = ÖrnekMakaleler().mid(0, 60);
        const DenemeKitaplığı kitaplık(makaleler);
        const QString mde = kitaplık.Klasör() + u"Makale.mde"_s;
        QList<Makale> beklenen = makaleler;
        const bool yedekli = olay == u"with the spare" || olay == u"lost";
        if (yedekli) {
            static_cast<void>(Açılış(kitaplık.Klasör()));
            const auto bağlantı = DosyaBağlantısı(kitaplık.Klasör());
            bağlantı->Çalıştır("DELETE FROM Makaleler WHERE Kimlik=7");
            bağlantı->Çalıştır("UPDATE Makaleler SET YayimYeri='Muş' WHERE Kimlik=3");
            if (olay == u"with the spare") {
                beklenen[2].Yer = u"Muş"_s;
                beklenen.removeAt(6);
            }
        }
        QByteArray baytlar = DosyaOku(mde);
        const qsizetype sayfalar = baytlar.size() / SayfaBoyu;
        const auto sıfırla = [&](qsizetype sayfa) {
            baytlar.replace((sayfa - 1) * SayfaBoyu, SayfaBoyu, QByteArray(SayfaBoyu, '\0'));
        };
        if (olay == u"with the spare")
            sıfırla(sayfalar - 2);
        else if (olay == u"table's root" || olay == u"no accounts")
            sıfırla(3);
        else if (olay == u"cut")
            baytlar.truncate((sayfalar - 3) * SayfaBoyu);
        else if (olay == u"half a page")
            baytlar.chop(SayfaBoyu / 2);
        DosyaYaz(mde, baytlar);
        if (olay == u"lost")
            QVERIFY(QFile::remove(mde));
        if (olay == u"garbage journal")
            DosyaYaz(mde + u"-journal"_s, QByteArray(5000, 'x'));
        if (olay == u"no accounts")
            QVERIFY(QFile::remove(kitaplık.Klasör() + u"Makale.tps"_s));
        const KurtarmaSonucu sonuç = kurtar(kitaplık.Klasör());
        const QList<Makale> gelen = gelenler();
        if (olay == u"cut" || olay == u"half a page") {
            QVERIFY(gelen.size() > 40 && gelen.size() < 60);
            for (const Makale& makale : gelen)
                QVERIFY(makaleler.contains(makale));
        } else {
            QCOMPARE(gelen.size(), beklenen.size());
            for (const Makale& makale : beklenen)
                QVERIFY2(gelen.contains(makale), qPrintable(makale.Başlık));
        }
        QCOMPARE(sonuç.KitaplıkHatası.has_value(), olay == u"lost");
        QVERIFY(!sonuç.GeriAlındı);
        QCOMPARE(sonuç.Kopyadan > 0, yedekli);
        static_cast<void>(Açılış(yeni())); // the program opens it
        QCOMPARE(HataNumarası([&] { KitaplığıKurtar(kitaplık.Klasör(), yeni(), KurtarmaKipi::Kur, {}); }),
                 3204);
    }
};

QTEST_GUILESS_MAIN(TestStoreRescue)
#include "test_store_rescue.moc"
