#include "DenemeKitaplığı.h"

#include "store/Bağlantı.h"
#include "store/BenzerDeseni.h"
#include "text/TürkçeHarfler.h"

#include <QElapsedTimer>
#include <QTest>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

const QString Tümü = u"SELECT * FROM [Makaleler]"_s;
const QString EklenişSırasıyla = Tümü + u" ORDER BY Kimlik"_s;

const QList<Makale> Örnekler = {{u"ÖMER TAŞ"_s, u"ZEYTİN"_s, u"Ege'de zeytin"_s},
                                {u"ALİ KAYA"_s, u"ISPARTA GÜLÜ"_s, u"Isparta, IŞIK ve gül"_s},
                                {u"ALİ KAYA"_s, u"İZMİR"_s, u"kordonda ışık, %100 _ve_ [gün]"_s},
                                {u"IŞIL CAN"_s, u"ÇAY"_s, u"RİZE'NİN ÇAYI"_s},
                                {u"İDİL ER"_s, u"CEVİZ"_s, u"ceviz 😀 ve çınar"_s},
                                {u"ali kaya"_s, u"OCAK"_s, u"kış, kar"_s},
                                {u"OYA DAĞ"_s, u"ÖZET"_s, u""_s}};

QStringList sıralı(QStringList değerler)
{
    değerler.sort();
    return değerler;
}

QString değer(Recordset& kayıtlar, QStringView ad)
{
    return kayıtlar.Fields(ad).Value();
}

void değiştir(Recordset& kayıtlar, QStringView ad, const QString& yeni)
{
    kayıtlar.Edit();
    kayıtlar.Fields(ad).Value(yeni);
    kayıtlar.Update();
}

} // namespace

class TestStoreRecords : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void emptyResult();
    void addEditDelete();
    void pendingRow();
    void freshAfterChangeElsewhere();
    void walkWhileSortColumnChanges();
    void deletedRow();
    void snapshotStaysAndChangesNothing();
    void transaction();
    void values_data();
    void values();
    void closedObjects();
    void windowQueries_data();
    void windowQueries();
    void equality_data();
    void equality();
    void refusedQueries_data();
    void refusedQueries();
    void like_data();
    void like();
    void likeOnLongTexts();

private:
    Recordset aç(const QString& sql = EklenişSırasıyla) const
    {
        return Database(bağlantı).OpenRecordset(sql);
    }

    DenemeKitaplığı kitaplık;
    std::shared_ptr<Bağlantı> bağlantı;
};

void TestStoreRecords::initTestCase()
{
    bağlantı = DosyaBağlantısı(kitaplık.Klasör());
}

void TestStoreRecords::init()
{
    bağlantı->Çalıştır("DELETE FROM Makaleler");
    const Database veritabanı(bağlantı);
    veritabanı.TekİşlemdeYap([&] { Ekle(veritabanı, Örnekler); });
}

void TestStoreRecords::emptyResult()
{
    Recordset boş = aç(Tümü + u" WHERE [YazarAdi]='YOK'"_s);
    QVERIFY(boş.Bof() && boş.Eof());
    QCOMPARE(boş.RecordCount(), 0);
    boş.MoveFirst();
    QCOMPARE(HataNumarası([&] { boş.MoveNext(); }), 3021);
    QCOMPARE(HataNumarası([&] { değer(boş, u"YazarAdi"); }), 3021);
    QCOMPARE(HataNumarası([&] { boş.Edit(); }), 3021);
    QCOMPARE(HataNumarası([&] { boş.Delete(); }), 3021);

    Recordset anlık = aç(u"SELECT YazarAdi FROM Makaleler WHERE YazarAdi='YOK'"_s);
    QVERIFY(anlık.Bof() && anlık.Eof());
    QCOMPARE(HataNumarası([&] { değer(anlık, u"YazarAdi"); }), 3021);
}

void TestStoreRecords::addEditDelete()
{
    Recordset kayıtlar = aç();
    QVERIFY(!kayıtlar.Bof() && !kayıtlar.Eof());
    kayıtlar.MoveNext();
    kayıtlar.AddNew();
    kayıtlar.Fields(u"MakaleBasligi").Value(u"YENİ"_s);
    kayıtlar.Update();
    QCOMPARE(değer(kayıtlar, u"MakaleBasligi"), Örnekler[1].Başlık); // still the current row
    değiştir(kayıtlar, u"MakaleMetni", u"değişti"_s);
    QCOMPARE(değer(kayıtlar, u"YazarAdi"), Örnekler[1].Yazar);
    kayıtlar.MoveFirst();
    QCOMPARE(değer(kayıtlar, u"YazarAdi"), Örnekler[0].Yazar);
    kayıtlar.Delete();

    QList<Makale> beklenen = Örnekler;
    beklenen[1].Metin = u"değişti"_s;
    beklenen.removeFirst();
    beklenen.append({u""_s, u"YENİ"_s, u""_s, u""_s, u""_s}); // what was not set is empty
    QCOMPARE(Makaleler(Database(bağlantı)), beklenen);

    while (!kayıtlar.Eof())
        kayıtlar.MoveNext();
    QVERIFY(!kayıtlar.Bof());
    QCOMPARE(HataNumarası([&] { kayıtlar.MoveNext(); }), 3021);
    QCOMPARE(HataNumarası([&] { kayıtlar.Edit(); }), 3021);
}

void TestStoreRecords::pendingRow()
{
    Recordset kayıtlar = aç();
    QCOMPARE(HataNumarası([&] { kayıtlar.Update(); }), 3020);
    QCOMPARE(HataNumarası([&] { kayıtlar.Fields(u"YazarAdi").Value(u"X"_s); }), 3020);
    QCOMPARE(HataNumarası([&] { kayıtlar.Fields(u"Kimlik"); }), 3265);
    QCOMPARE(kayıtlar.Fields(u"yazaradi").Name(), u"YazarAdi"_s);

    kayıtlar.AddNew();
    QCOMPARE(değer(kayıtlar, u"YazarAdi"), u""_s);
    kayıtlar.Fields(u"YazarAdi").Value(u"BEKLEYEN"_s);
    QCOMPARE(değer(kayıtlar, u"YazarAdi"), u"BEKLEYEN"_s);
    kayıtlar.CancelUpdate();
    QCOMPARE(değer(kayıtlar, u"YazarAdi"), Örnekler[0].Yazar);
    QCOMPARE(HataNumarası([&] { kayıtlar.Update(); }), 3020);

    // A move drops what is pending: it must never end up in another row.
    for (const bool ileri : {true, false}) {
        kayıtlar.Edit();
        kayıtlar.Fields(u"YazarAdi").Value(u"YANLIŞ"_s);
        ileri ? kayıtlar.MoveNext() : kayıtlar.MoveFirst();
        QCOMPARE(değer(kayıtlar, u"YazarAdi"), Örnekler[ileri ? 1 : 0].Yazar);
        QCOMPARE(HataNumarası([&] { kayıtlar.Update(); }), 3020);
    }
    kayıtlar.Edit();
    kayıtlar.Update(); // nothing was set: nothing changes
    QCOMPARE(Makaleler(Database(bağlantı)), Örnekler);
}

void TestStoreRecords::freshAfterChangeElsewhere()
{
    Recordset okuyan = aç();
    Recordset yazan = aç();
    QCOMPARE(değer(okuyan, u"MakaleBasligi"), Örnekler[0].Başlık);
    QCOMPARE(değer(okuyan, u"YazarAdi"), Örnekler[0].Yazar);
    for (const QString& yeni : {u"BİR"_s, u"İKİ"_s}) {
        for (const QStringView sütun : {u"MakaleBasligi", u"YazarAdi", u"YayimYeri", u"MakaleMetni"}) {
            değiştir(yazan, sütun, yeni);
            QCOMPARE(değer(okuyan, sütun), yeni);
        }
    }
    yazan.Delete();
    for (const QStringView sütun : {u"MakaleBasligi", u"YazarAdi", u"MakaleMetni"})
        QCOMPARE(HataNumarası([&] { değer(okuyan, sütun); }), 3167);
    okuyan.MoveNext();
    QCOMPARE(değer(okuyan, u"MakaleBasligi"), Örnekler[1].Başlık);
}

void TestStoreRecords::walkWhileSortColumnChanges()
{
    Recordset kayıtlar = aç(Tümü + u" ORDER BY [MakaleBasligi] ASC"_s);
    QStringList görülen;
    for (; !kayıtlar.Eof() && görülen.size() <= Örnekler.size(); kayıtlar.MoveNext()) {
        görülen.append(değer(kayıtlar, u"MakaleBasligi"));
        değiştir(kayıtlar, u"MakaleBasligi", u"ŞŞŞ"_s + görülen.last());
    }
    QCOMPARE(görülen, (QStringList{u"CEVİZ"_s, u"ÇAY"_s, u"ISPARTA GÜLÜ"_s, u"İZMİR"_s, u"OCAK"_s, u"ÖZET"_s,
                                   u"ZEYTİN"_s}));
    QCOMPARE(aç(Tümü + u" WHERE MakaleBasligi LIKE 'şşş*'"_s).RecordCount(), Örnekler.size());
}

void TestStoreRecords::deletedRow()
{
    Recordset kayıtlar = aç();
    Recordset diğer = aç();
    kayıtlar.Delete();
    diğer.Edit(); // does not know yet that the row is gone
    diğer.Fields(u"YazarAdi").Value(u"X"_s);
    QCOMPARE(HataNumarası([&] { diğer.Update(); }), 3167);
    for (const auto& iş : std::initializer_list<std::function<void()>>{
             [&] { değer(kayıtlar, u"MakaleBasligi"); }, [&] { değer(kayıtlar, u"MakaleMetni"); },
             [&] { değer(kayıtlar, u"YazarAdi"); }, [&] { kayıtlar.Edit(); }, [&] { kayıtlar.Delete(); },
             [&] { diğer.Delete(); }})
        QCOMPARE(HataNumarası(iş), 3167);
    kayıtlar.MoveNext();
    QCOMPARE(değer(kayıtlar, u"MakaleBasligi"), Örnekler[1].Başlık);
    QCOMPARE(aç().RecordCount(), Örnekler.size() - 1);
}

void TestStoreRecords::snapshotStaysAndChangesNothing()
{
    Recordset anlık = aç(u"SELECT [MakaleBasligi], YazarAdi FROM [Makaleler] ORDER BY Kimlik"_s);
    QCOMPARE(HataNumarası([&] { anlık.AddNew(); }), 3027);
    QCOMPARE(HataNumarası([&] { anlık.Edit(); }), 3027);
    QCOMPARE(HataNumarası([&] { anlık.Update(); }), 3027);
    QCOMPARE(HataNumarası([&] { anlık.Delete(); }), 3027);
    QCOMPARE(HataNumarası([&] { anlık.Fields(u"YazarAdi").Value(u"X"_s); }), 3027);
    QCOMPARE(HataNumarası([&] { anlık.Fields(u"MakaleMetni"); }), 3265);

    Recordset değişebilen = aç(u" select*\nfrom makaleler"_s); // however it is written
    QCOMPARE(HataNumarası([&] { değişebilen.Edit(); }), 0);

    bağlantı->Çalıştır("DELETE FROM Makaleler");
    QCOMPARE(anlık.RecordCount(), Örnekler.size());
    anlık.MoveNext();
    QCOMPARE(değer(anlık, u"YazarAdi"), Örnekler[1].Yazar);
    QCOMPARE(Değerler(std::move(anlık), u"MakaleBasligi").first(), Örnekler[1].Başlık);
}

void TestStoreRecords::transaction()
{
    const Database veritabanı(bağlantı);
    const Makale yeni{u"YENİ YAZAR"_s, u"YENİ"_s, u"metin"_s};
    const auto değişiklikler = [&] {
        Recordset kayıtlar = veritabanı.OpenRecordset(EklenişSırasıyla);
        kayıtlar.Delete();
        Ekle(veritabanı, {yeni});
    };
    const auto yarıdaKalan = [&] {
        değişiklikler();
        throw std::out_of_range("");
    };
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, veritabanı.TekİşlemdeYap(yarıdaKalan));
    QCOMPARE(Makaleler(veritabanı), Örnekler);
    veritabanı.TekİşlemdeYap(değişiklikler);
    QCOMPARE(Makaleler(veritabanı), Örnekler.mid(1) + QList<Makale>{yeni});
}

void TestStoreRecords::values_data()
{
    QTest::addColumn<QString>("column");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("error");
    const QString sınırda(1000, u'ş');
    for (const QString& sütun : {u"YazarAdi"_s, u"MakaleBasligi"_s, u"YayimYeri"_s, u"YayimTarihi"_s}) {
        const QByteArray ad = sütun.toUtf8();
        QTest::newRow(ad + " longest") << sütun << sınırda << sınırda << 0;
        QTest::newRow(ad + " too long") << sütun << sınırda + u'a' << QString() << 3163;
        QTest::newRow(ad + " NUL") << sütun << u"a"_s + QChar(u'\0') << QString() << 3421;
    }
    const QString uzun = UzunMetin(1, 200'000) + u"😀 '\"[*]% \t\r\n"_s;
    QTest::newRow("long text") << u"MakaleMetni"_s << uzun << uzun << 0;
    const QString imli = u"\uFEFFBaşında im olan metin"_s;
    QTest::newRow("byte order mark") << u"MakaleMetni"_s << imli << imli << 0;
    QTest::newRow("NUL in a text") << u"MakaleMetni"_s << u"a"_s + QChar(u'\0') + u'b' << QString() << 3421;
    QTest::newRow("decomposed letters")
        << u"YayimYeri"_s << u"I\u0307zmir, S\u0327is\u0327li, gu\u0308l"_s << u"İzmir, Şişli, gül"_s << 0;
    QTest::newRow("fits once it is composed") << u"YazarAdi"_s << u"s\u0327"_s.repeated(1000) << sınırda << 0;
    QTest::newRow("empty") << u"MakaleMetni"_s << QString() << u""_s << 0;
}

void TestStoreRecords::values()
{
    QFETCH(QString, column);
    QFETCH(QString, value);
    QFETCH(QString, stored);
    QFETCH(int, error);
    Recordset kayıtlar = aç();
    const QString eski = değer(kayıtlar, column);
    kayıtlar.Edit();
    QCOMPARE(HataNumarası([&] { kayıtlar.Fields(column).Value(value); }), error);
    kayıtlar.Update();
    Recordset yeniden = aç();
    QCOMPARE(değer(yeniden, column), error ? eski : stored);
}

void TestStoreRecords::closedObjects()
{
    Recordset kayıtlar = aç();
    kayıtlar.Close();
    QVERIFY(kayıtlar.Bof() && kayıtlar.Eof());
    QCOMPARE(HataNumarası([&] { kayıtlar.AddNew(); }), 3420);
    QCOMPARE(HataNumarası([&] { değer(kayıtlar, u"YazarAdi"); }), 3420);

    Database veritabanı(bağlantı);
    Recordset açıkKalan = veritabanı.OpenRecordset(EklenişSırasıyla);
    veritabanı.Close();
    QCOMPARE(HataNumarası([&] { veritabanı.OpenRecordset(Tümü); }), 3420);
    QCOMPARE(değer(açıkKalan, u"MakaleMetni"), Örnekler[0].Metin);
}

void TestStoreRecords::windowQueries_data()
{
    QTest::addColumn<QString>("sql");
    QTest::addColumn<QString>("column");
    QTest::addColumn<QStringList>("expected"); // folded: of equal values any one may stand for all
    QTest::addColumn<bool>("ordered");
    const QString yazar = u"YazarAdi"_s, başlık = u"MakaleBasligi"_s, metin = u"MakaleMetni"_s;
    const QStringList yazarlar = {u"ali kaya"_s, u"ışıl can"_s, u"idil er"_s, u"oya dağ"_s, u"ömer taş"_s};
    const QStringList başlıklar = {u"ceviz"_s, u"çay"_s,  u"ısparta gülü"_s, u"izmir"_s,
                                   u"ocak"_s,  u"özet"_s, u"zeytin"_s};
    const auto row = [](const char* ad, const QString& sql, const QString& sütun, const QStringList& beklenen,
                        bool düzenli) { QTest::newRow(ad) << sql << sütun << beklenen << düzenli; };
    row("authors sorted", u"SELECT DISTINCT [YazarAdi] FROM [Makaleler] ORDER BY [YazarAdi] ASC"_s, yazar,
        yazarlar, true);
    row("authors", u"SELECT DISTINCT [YazarAdi] FROM [Makaleler]"_s, yazar, yazarlar, false);
    row("authors to edit", u"SELECT DISTINCT YazarAdi FROM Makaleler"_s, yazar, yazarlar, false);
    row("titles of an author", u"SELECT * FROM [Makaleler] WHERE [YazarAdi]='Ali Kaya'"_s, başlık,
        {u"ısparta gülü"_s, u"izmir"_s, u"ocak"_s}, false);
    row("article", u"SELECT * FROM [Makaleler] WHERE [MakaleBasligi]='çay'"_s, metin, {u"rize'nin çayı"_s},
        true);
    row("article to edit", u"SELECT * FROM Makaleler WHERE MakaleBasligi= 'İzmir'"_s, yazar, {u"ali kaya"_s},
        true);
    row("article to cite", u"SELECT * FROM [Makaleler] WHERE [MakaleBasligi]= 'ÖZET'"_s, metin, {u""_s},
        true);
    row("word", u"SELECT * FROM [Makaleler] WHERE [MakaleMetni] LIKE '*Işık*' ORDER BY [MakaleBasligi] ASC"_s,
        başlık, {u"ısparta gülü"_s, u"izmir"_s}, true);
    row("decomposed word", u"SELECT * FROM [Makaleler] WHERE [MakaleMetni] LIKE '*c\u0327ay*'"_s, metin,
        {u"rize'nin çayı"_s}, true);
    row("titles sorted", u"SELECT [MakaleBasligi] FROM [Makaleler] ORDER BY [MakaleBasligi] ASC"_s, başlık,
        başlıklar, true);
    row("whole table", Tümü, başlık, başlıklar, false);
}

void TestStoreRecords::windowQueries()
{
    QFETCH(QString, sql);
    QFETCH(QString, column);
    QFETCH(QStringList, expected);
    QFETCH(bool, ordered);
    QStringList değerler;
    for (const QString& d : Değerler(aç(sql), column))
        değerler.append(Katla(d));
    QCOMPARE(ordered ? değerler : sıralı(değerler), ordered ? expected : sıralı(expected));
}

void TestStoreRecords::equality_data()
{
    QTest::addColumn<QString>("author");
    QTest::addColumn<int>("rows");
    const auto row = [](const char* ad, const QString& yazar, int satır) {
        QTest::newRow(ad) << yazar << satır;
    };
    row("other case", u"ali KAYA"_s, 3);
    row("dotless is another letter", u"ALI KAYA"_s, 0);
    row("dotless, small", u"ışıl can"_s, 1);
    row("dotted is another letter", u"İŞİL CAN"_s, 0);
    row("accents count", u"OYA DAG"_s, 0);
    row("beginning is not enough", u"ALİ"_s, 0);
    row("decomposed", u"I\u0307DI\u0307L ER"_s, 1);
    row("patterns are letters here", u"AL?*"_s, 0);
}

void TestStoreRecords::equality()
{
    QFETCH(QString, author);
    QTEST(int(aç(u"SELECT * FROM [Makaleler] WHERE [YazarAdi]='"_s + author + u'\'').RecordCount()), "rows");
}

void TestStoreRecords::refusedQueries_data()
{
    QTest::addColumn<QString>("sql");
    QTest::addColumn<int>("error");
    const auto row = [](const QString& sql, int hata) { QTest::newRow(qPrintable(sql)) << sql << hata; };
    const QString başlıkta = u"SELECT * FROM [Makaleler] WHERE [MakaleBasligi]='"_s;
    row(başlıkta + u"Rize'nin çayı'"_s, 3075);
    row(başlıkta + u"'; DELETE FROM Makaleler; --'"_s, 3075);
    row(başlıkta + u"'; DELETE FROM Makaleler WHERE ''='"_s, 3075);
    row(başlıkta + QChar(u'\0') + u'\'', 3075);
    for (const char16_t* sql : {u"",
                                u"  ",
                                u";",
                                u"SELECT",
                                u"SELECT * FROM",
                                u"-- SELECT 1",
                                u"SELECT [MakaleBasligi FROM Makaleler",
                                u"SELECT yok(1) FROM Makaleler",
                                u"SELECT 1; SELECT 2",
                                u"SELECT * FROM Makaleler; DELETE FROM Makaleler",
                                u"DELETE FROM Makaleler",
                                u"INSERT INTO Makaleler SELECT * FROM Makaleler",
                                u"UPDATE Makaleler SET YazarAdi='X'",
                                u"DROP TABLE Makaleler",
                                u"PRAGMA journal_mode=OFF",
                                u"ATTACH DATABASE ':memory:' AS x",
                                u"VACUUM",
                                u"BEGIN",
                                u"EXPLAIN SELECT 1",
                                u"WITH x AS (SELECT 1) DELETE FROM Makaleler",
                                u"SELECT load_extension('x')",
                                u"SELECT sqlcipher_export('main')"})
        row(QString::fromUtf16(sql), 3075);
    row(u"SELECT * FROM [Yok]"_s, 3078);
    row(u"SELECT [YazarAdi] FROM Yok"_s, 3078);
    row(u"SELECT [Yok] FROM Makaleler"_s, 3061);
    row(u"SELECT * FROM Makaleler WHERE Yok='a'"_s, 3061);
}

void TestStoreRecords::refusedQueries()
{
    QFETCH(QString, sql);
    QTEST(HataNumarası([&] { aç(sql); }), "error");
    QCOMPARE(Makaleler(Database(bağlantı)), Örnekler);
    QCOMPARE(bağlantı->Metin("PRAGMA journal_mode"), u"delete"_s);
}

void TestStoreRecords::like_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("fits");
    const auto row = [](const QString& desen, const QString& metin, bool uyar) {
        QTest::newRow(qPrintable((desen + u" : "_s + metin).simplified())) << desen << metin << uyar;
    };
    row(u""_s, u""_s, true);
    row(u""_s, u"a"_s, false);
    row(u"*"_s, u""_s, true);
    row(u"**"_s, u"abc"_s, true);
    row(u"?"_s, u""_s, false);
    row(u"?"_s, u"ğ"_s, true);
    row(u"?"_s, u"ab"_s, false);
    row(u"a?c*"_s, u"abc"_s, true);
    row(u"*b"_s, u"abab"_s, true);
    row(u"*ab*cd*"_s, u"xabxcxcdx"_s, true);
    row(u"*ab*cd*"_s, u"xcdxabx"_s, false);
    row(u"ab"_s, u"abc"_s, false);
    row(u"#.#"_s, u"7.0"_s, true);
    row(u"#"_s, u"a"_s, false);
    row(u"#"_s, u"٣"_s, false); // other scripts' digits are no digits
    row(u"[a-cx]*"_s, u"Beril"_s, true);
    row(u"[a-cx]"_s, u"d"_s, false);
    row(u"[!a-c]"_s, u"d"_s, true);
    row(u"[!a-c]"_s, u"B"_s, false);
    row(u"[!a]"_s, u""_s, false);
    row(u"[*?#]"_s, u"#"_s, true);
    row(u"[*]"_s, u"a"_s, false);
    row(u"[a-]"_s, u"-"_s, true);
    row(u"a[]b"_s, u"ab"_s, true);
    row(u"[!]"_s, u"!"_s, true);
    row(u"a[bc"_s, u"A[BC"_s, true);
    row(u"a[bc"_s, u"ab"_s, false);
    row(u"a]b"_s, u"a]b"_s, true);
    row(u"%_"_s, u"%_"_s, true);
    row(u"%_"_s, u"abc"_s, false);
    row(u"iIşŞ"_s, u"İıŞş"_s, true);
    row(u"i"_s, u"I"_s, false);
    row(u"ı"_s, u"İ"_s, false);
    row(u"[i]"_s, u"İ"_s, true);
    row(u"[i]"_s, u"I"_s, false);
    row(u"*IŞIK*"_s, u"bir ışık gibi"_s, true);
    row(u"*IŞIK*"_s, u"bir işik gibi"_s, false);
    row(u"ß"_s, u"ss"_s, false);
    row(u"*👍*"_s, u"çok 👍 iyi"_s, true);
    row(u"*👍*"_s, u"çok 👎 kötü"_s, false);
    row(u"?"_s, u"👍"_s, true);
    row(u"??"_s, u"👍"_s, false);
    row(u"[👍]"_s, u"👍"_s, true);
    row(u"[👍]"_s, u"👎"_s, false);
    row(u"*[!👍]b"_s, u"👍b"_s, false);
    row(u"[!👍]"_s, u"👎"_s, true);
    row(u"satır*son"_s, u"satır\nsatır\nson"_s, true);
}

void TestStoreRecords::like()
{
    QFETCH(QString, pattern);
    QFETCH(QString, text);
    QFETCH(bool, fits);
    QCOMPARE(BenzerDeseni(pattern).Uyar(text), fits);
    const QByteArray utf8 = text.toUtf8();
    QCOMPARE(BenzerDeseni(pattern).Uyar(std::string_view(utf8.data(), std::size_t(utf8.size()))), fits);

    Recordset kayıtlar = aç();
    değiştir(kayıtlar, u"MakaleMetni", text);
    const QStringList uyanlar =
        Değerler(aç(Tümü + u" WHERE [MakaleMetni] LIKE '"_s + pattern + u'\''), u"MakaleBasligi");
    QCOMPARE(uyanlar.contains(Örnekler[0].Başlık), fits);
}

void TestStoreRecords::likeOnLongTexts()
{
    const QString uzun = UzunMetin(2, 10'000);
    Recordset kayıtlar = aç();
    değiştir(kayıtlar, u"MakaleMetni", u"önce "_s + uzun + u" sonra"_s);
    const auto bulunan = [this](const QString& desen) {
        return aç(Tümü + u" WHERE [MakaleMetni] LIKE '"_s + desen + u'\'').RecordCount();
    };
    QCOMPARE(bulunan(u'*' + Katla(uzun) + u'*'), 1);
    QCOMPARE(bulunan(u'*' + uzun + u"x*"_s), 0);

    // Trying every place for every star would take longer than anybody lives.
    QElapsedTimer saat;
    saat.start();
    değiştir(kayıtlar, u"MakaleMetni", QString(100'000, u'a'));
    QCOMPARE(bulunan(u"*a"_s.repeated(100) + u"*b"_s), 0);
    QCOMPARE(bulunan(u"*a"_s.repeated(100)), 1);
    QVERIFY2(saat.elapsed() < 30'000, qPrintable(QString::number(saat.elapsed())));
}

QTEST_GUILESS_MAIN(TestStoreRecords)
#include "test_store_records.moc"
