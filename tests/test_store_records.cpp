#include "library_fixture.h"

#include "store/Bağlantı.h"
#include "store/BenzerDeseni.h"
#include "text/TürkçeHarfler.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView Yazar = u"YazarAdi", Başlık = u"MakaleBasligi", Metin = u"MakaleMetni";
const QString Tümü = u"SELECT * FROM [Makaleler]"_s, EklenişSırasıyla = Tümü + u" ORDER BY Kimlik"_s;

// clang-format off
const QList<Makale> Örnekler = {
    {u"ÖMER TAŞ"_s, u"ZEYTİN"_s, u"Ege'de zeytin"_s}, {u"ALİ KAYA"_s, u"ISPARTA GÜLÜ"_s, u"IŞIK ve gül"_s},
    {u"ALİ KAYA"_s, u"İZMİR"_s, u"ışık, %100 _ve_ [gün]"_s}, {u"IŞIL CAN"_s, u"ÇAY"_s, u"RİZE'NİN ÇAYI"_s},
    {u"İDİL ER"_s, u"CEVİZ"_s, u"ceviz"_s}, {u"ali kaya"_s, u"OCAK"_s, u""_s}, {u"OYA DAĞ"_s, u"ÖZET"_s, {}}};
// clang-format on

/// Whether the text fits the pattern, given as UTF-8 and as UTF-16; nothing when the two don't agree.
std::optional<bool> uyar(const QString& desen, const QString& metin)
{
    const BenzerDeseni benzer(desen);
    const bool uydu = benzer.Uyar(metin);
    return benzer.Uyar(metin.toUtf8().toStdString()) == uydu ? std::optional(uydu) : std::nullopt;
}

} // namespace

class TestStoreRecords : public QObject
{
    Q_OBJECT

    DenemeKitaplığı kitaplık;
    std::shared_ptr<Bağlantı> bağlantı = DosyaBağlantısı(kitaplık.Klasör());
    const Database veritabanı{bağlantı};

    Recordset aç(const QString& sql = EklenişSırasıyla) const { return veritabanı.OpenRecordset(sql); }
    static QString değerler(Recordset r, QStringView ad)
    {
        QStringList liste;
        for (; !r.Eof(); r.MoveNext())
            liste.append(r.Fields(ad).Value());
        return liste.join(u'|');
    }

    /// Steps on recordsets, each named by a letter (s a snapshot, n without rows, w by title) and opened
    /// where it first comes: a step's letter, or y, b, m for a column, which is read, or set to what follows
    /// =. Gives what was read and the errors.
    QString yürüt(const QString& adımlar) const
    {
        static const QMap<QChar, void (Recordset::*)()> işler = {
            {u'F', &Recordset::MoveFirst}, {u'N', &Recordset::MoveNext}, {u'A', &Recordset::AddNew},
            {u'E', &Recordset::Edit},      {u'U', &Recordset::Update},   {u'C', &Recordset::CancelUpdate},
            {u'D', &Recordset::Delete},    {u'K', &Recordset::Close}};
        static const QMap<QChar, QString> sorgular = {
            {u's', u"SELECT [YazarAdi], MakaleBasligi FROM Makaleler ORDER BY Kimlik"_s},
            {u'n', Tümü + u" WHERE YazarAdi='YOK'"_s},
            {u'w', u" select*\nfrom makaleler order by makalebasligi"_s}};
        std::map<QChar, Recordset> açıklar;
        QStringList sonuç;
        for (const QString& adım : adımlar.split(u' ')) {
            Recordset& r =
                açıklar.try_emplace(adım[0], aç(sorgular.value(adım[0], EklenişSırasıyla))).first->second;
            const int hata = HataNumarası([&] {
                if (const auto iş = işler.value(adım[1]))
                    return (r.*iş)();
                Field alan = r.Fields(adım[1] == u'y' ? Yazar : adım[1] == u'b' ? Başlık : Metin);
                adım.size() > 3 ? alan.Value(adım.mid(3)) : sonuç.append(alan.Value());
            });
            if (hata != 0)
                sonuç.append(QString::number(hata));
        }
        return sonuç.join(u'|');
    }

private slots:
    void init()
    {
        bağlantı->Çalıştır("DELETE FROM Makaleler");
        veritabanı.TekİşlemdeYap([&] { Ekle(veritabanı, Örnekler); });
    }

    void steps()
    {
        // clang-format off
        const std::pair<const char*, const char*> olaylar[] = {
            {"aU ay=X aE aU ay", "3020|3020|ÖMER TAŞ"}, {"aA ay ay=X ay aC ay aU", "|X|ÖMER TAŞ|3020"},
            // A move drops what is pending.
            {"aE ay=X aN ay aU zN zy zF zy", "ALİ KAYA|3020|ALİ KAYA|ÖMER TAŞ"},
            {"aN aE ay=X aF ay aU zy zN zy", "ÖMER TAŞ|3020|ÖMER TAŞ|ALİ KAYA"},
            // A new row comes last, and the current one stays.
            {"aA ab=X aU ab aN aN aN aN aN aN aN ab ay am aN aN ay aE aD", "ZEYTİN|X|||3021|3021|3021|3021"},
            {"nF nN ny nE nD", "3021|3021|3021|3021"}, {"aK aA ay", "3420|3420"},
            // What changed elsewhere is seen, in every column, once and again.
            {"by aE ay=X aU by aE ay=Y aU by bF by", "ÖMER TAŞ|X|Y|Y"},
            {"bb aE ab=X aU bb aE ab=Y aU bb bF bb", "ZEYTİN|X|Y|Y"}, {"am aE am=X aU am", "Ege'de zeytin|X"},
            {"aD ay ab am aE aD aN ab", "3167|3167|3167|3167|3167|ISPARTA GÜLÜ"},
            {"aE ay=X bD aU aC ay ab am aD aD aN ab", "3167|3167|3167|3167|3167|3167|ISPARTA GÜLÜ"},
            // The rows and their order are fixed, though what they are sorted by changes.
            {"wb wE wb=ŞX wU wN wb wE wb=ŞY wU wN wb wF wb", "CEVİZ|ÇAY|ISPARTA GÜLÜ|ŞX"},
            {"sA sE sU sD sy=X sm aD sy sN sb", "3027|3027|3027|3027|3027|3265|ÖMER TAŞ|ISPARTA GÜLÜ"}};
        // clang-format on
        for (const auto& [adımlar, sonuç] : olaylar) {
            init();
            QCOMPARE(yürüt(QString::fromUtf8(adımlar)), QString::fromUtf8(sonuç));
        }
    }

    void transaction()
    {
        const auto değiştir = [this] { yürüt(u"aN aA ab=YENİ aU aE am=değişti aU aF aD"_s); };
        const auto yarıda = [&] { değiştir(), throw std::bad_alloc(); };
        QVERIFY_THROWS_EXCEPTION(std::bad_alloc, veritabanı.TekİşlemdeYap(yarıda));
        QCOMPARE(Makaleler(veritabanı), Örnekler);
        veritabanı.TekİşlemdeYap(değiştir);
        QList<Makale> beklenen = Örnekler.mid(1) << Makale{u""_s, u"YENİ"_s, u""_s, u""_s, u""_s};
        beklenen[0].Metin = u"değişti"_s;
        QCOMPARE(Makaleler(veritabanı), beklenen);
    }

    void values()
    {
        const QString sınırda(1000, u'ş'), uzun = UzunMetin(1, 200'000).remove(u' ') + u"😀'\"[*]%\t\r"_s;
        for (const QString& metin : {uzun, u"\uFEFFBaşta_im"_s})
            QCOMPARE(yürüt(u"aE am=%1 aU am"_s.arg(metin)), metin);
        QCOMPARE(yürüt(u"aE ay=%1 ab=%1 aU ay"_s.arg(sınırda)), sınırda);
        QCOMPARE(yürüt(u"aE ab=%1 aU ab"_s.arg(u"s\u0327"_s.repeated(1000))), sınırda); // the mark apart
        QCOMPARE(yürüt(u"bE by=%1 bb=%1 by=a\0b bm=\0 bU"_s.arg(sınırda + u'a')), u"3163|3163|3421|3421"_s);
    }

    void queries()
    {
        const QString yazarlar = u"SELECT DISTINCT [YazarAdi] FROM [Makaleler] ORDER BY [YazarAdi] ASC"_s;
        QCOMPARE(Katla(değerler(aç(yazarlar), Yazar)), u"ali kaya|ışıl can|idil er|oya dağ|ömer taş"_s);
        // Another case, a letter and its mark apart; not i and ı, nor an accent, a beginning, a pattern.
        const QString olaylar =
            u"[YazarAdi]='Ali Kaya':ISPARTA GÜLÜ|İZMİR|OCAK;[YazarAdi]='ışıl can':ÇAY;"
            "[YazarAdi]='I\u0307dil er':CEVİZ;[YazarAdi]='ALI KAYA':;[YazarAdi]='OYA DAG':;"
            "[YazarAdi]='İŞİL CAN':;[YazarAdi]='ALİ':;[YazarAdi]='AL?*':;"
            "[MakaleMetni] LIKE '*Işık*':ISPARTA GÜLÜ|İZMİR;[MakaleMetni] LIKE '*c\u0327ay*':ÇAY"_s;
        for (const QString& olay : olaylar.split(u';')) {
            const QString sql = Tümü + u" WHERE %1 ORDER BY MakaleBasligi"_s.arg(olay.section(u':', 0, 0));
            QCOMPARE(değerler(aç(sql), Başlık), olay.section(u':', 1));
        }
    }

    void refusedQueries()
    {
        const QString bozuklar =
            u"|  |;|SELECT|SELECT * FROM|-- SELECT 1|SELECT 1; DELETE FROM Makaleler|SELECT 1; SELECT 2|"
            "SELECT * FROM Makaleler WHERE MakaleBasligi='Rize'nin çayı'|SELECT yok(1) FROM Makaleler|BEGIN|"
            "SELECT * FROM Makaleler WHERE MakaleBasligi=''; DELETE FROM Makaleler; --'|EXPLAIN SELECT 1|"
            "SELECT * FROM Makaleler WHERE MakaleBasligi='\0'|DELETE FROM Makaleler|PRAGMA journal_mode=OFF|"
            "WITH x AS (SELECT 1) DELETE FROM Makaleler|UPDATE Makaleler SET YazarAdi='X'|"
            "INSERT INTO Makaleler SELECT * FROM Makaleler|ATTACH DATABASE ':memory:' AS x|"
            "SELECT load_extension('x')"_s;
        const QString yokTablo = u"SELECT * FROM [Yok]|SELECT YazarAdi FROM Yok"_s;
        const QString yokSütun = u"SELECT Yok FROM Makaleler|SELECT * FROM Makaleler WHERE Yok='a'"_s;
        for (const auto& [sorgular, hata] : {std::pair(bozuklar, 3075), {yokTablo, 3078}, {yokSütun, 3061}}) {
            for (const QString& sql : sorgular.split(u'|'))
                QVERIFY2(HataNumarası([&] { aç(sql); }) == hata, qPrintable(sql));
        }
        QCOMPARE(Makaleler(veritabanı), Örnekler);
    }

    void like()
    {
        const QString uyanlar = // pattern:text
            u":|*:|**:abc|?:ğ|a?c*:abc|*b:abab|*ab*cd*:xabxcxcdx|#.#:7.0|[a-cx]*:Beril|[!a-c]:d|[*?#]:#|"
            "[a-]:-|a[]b:ab|[!]:!|a[bc:A[BC|a]b:a]b|%_:%_|iIşŞ:İıŞş|[i]:İ|*IŞIK*:bir ışık gibi|*👍*:çok 👍 "
            "iyi|?:👍|"
            "[👍]:👍|[!👍]:👎|satır*son:satır\nsatır\nson"_s;
        const QString uymayanlar =
            u":a|?:|?:ab|*ab*cd*:xcdxabx|ab:abc|#:a|#:٣|[a-cx]:d|[!a-c]:B|[!a]:|[*]:a|a[bc:ab|%_:abc|i:I|ı:İ|"
            "[i]:I|ß:ss|*IŞIK*:bir işik gibi|*👍*:çok 👎 kötü|??:👍|[👍]:👎|*[!👍]b:👍b"_s;
        for (const bool beklenen : {true, false}) {
            for (const QString& olay : (beklenen ? uyanlar : uymayanlar).split(u'|')) {
                const QString desen = olay.section(u':', 0, 0), metin = olay.section(u':', 1);
                Recordset sql = aç(u"SELECT '%1' LIKE '%2' AS Uyar FROM Makaleler"_s.arg(metin, desen));
                QVERIFY2(uyar(desen, metin) == beklenen, qPrintable(olay));
                QVERIFY2(sql.Fields(u"Uyar").Value().toInt() == beklenen, qPrintable(olay));
            }
        }
        // Trying every place for every star would take longer than anybody lives.
        const QString yıldızlı = u"*a"_s.repeated(100), aaa(100'000, u'a');
        QVERIFY(uyar(yıldızlı, aaa) == true && uyar(yıldızlı + u"*b"_s, aaa) == false);
    }

    // Against the plain way; neighbours in the list of letters are what can be mistaken for each other.
    void wordInText()
    {
        const QList<uint> harfler = u"7aiİıI kK\u212AbsSſşŞğĞ\u0306üÜ\u0308👍😀"_s.toUcs4();
        QRandomGenerator rastgele(5);
        int bulunan = 0;
        for (int i = 0; i < 20'000; ++i) {
            const int çeşit = 2 + rastgele.bounded(8),
                      ilk = rastgele.bounded(int(harfler.size()) - çeşit + 1);
            const auto üret = [&](int boy) {
                QString metin;
                while (boy-- > 0)
                    metin += QChar::fromUcs4(harfler[ilk + rastgele.bounded(çeşit)]);
                return metin;
            };
            const QString metin = üret(rastgele.bounded(81)), sözcük = üret(1 + rastgele.bounded(6));
            const bool içerir = Katla(metin).contains(Katla(sözcük));
            bulunan += içerir;
            if (SözcükBulucu(sözcük).İçerir(metin.toUtf8().toStdString()) != içerir ||
                uyar(u'*' + sözcük + u'*', metin) != içerir)
                QFAIL(qPrintable(u"pair %1: %2 in %3"_s.arg(i).arg(sözcük, metin)));
        }
        QVERIFY(bulunan > 4'000 && bulunan < 16'000);
    }
};

QTEST_GUILESS_MAIN(TestStoreRecords)
#include "test_store_records.moc"
