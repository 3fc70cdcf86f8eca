#include "fuzz/text_check.h"

#include "document/EpubKitabı.h"
#include "document/MetinDosyası.h"
#include "document/RtfBelgesi.h"
#include "document/RtfBilgisi.h"
#include "document/RtfOkuyucu.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QScopeGuard>
#include <QStringEncoder>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

#include <random>

using namespace Qt::StringLiterals;

class TestDocument : public QObject
{
    Q_OBJECT

private slots:
    void texts_data();
    void texts();
    void properties_data();
    void properties();
    void propertiesWritten();
    void book();
    void fileErrors_data();
    void fileErrors();
    void mutations();
    void floods_data();
    void floods();
};

void TestDocument::texts_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text"); // and behind a bar "place+length format" of each stretch
    const auto plain = [](const char* name, const QByteArray& bytes, const QString& text) {
        QTest::newRow(name) << bytes << text;
    };
    const auto row = [&plain](const char* name, const char* body, const QString& text) {
        plain(name, "{\\rtf1" + QByteArray(body) + '}', text);
    };
    row("document's pages", R"(\ansi \'fd\mac\'8a\pca\'84\ansicpg1254 \'dd\'fe\'d0)", u"ýääİşĞ"_s);
    row("Western font, Turkish page", R"(\ansicpg1254{\fonttbl{\f0\fcharset0 A;}}\f0 \'fd)", u"ı|0+1 A"_s);
    row("pages of fonts",
        R"(\deff2{\fonttbl\f2\fcharset204;\f1\fcharset161;\f3\cpg857;}\'cf{\f1 \'e1}\'f0\f3\'a7)", u"Пαрğ"_s);
    row("Japanese", "{\\fonttbl{\\f1\\fcharset128 A;}}\\f1 \\'93\xfa\x93\r\n\\'fa\\'83\\\\\\'83!",
        u"日日ソ\uFFFD!|0+5 A"_s);
    row("Chinese, Korean",
        R"({\fonttbl\f1\fcharset134;\f2\fcharset136;\f3\fcharset129;\f4\fcharset130;}\f1\'c4\'e3\f2\'a7A\f3\'b0\'a1\f4\'88\'61)",
        u"你你가가"_s);
    row("letter over runs",
        R"({\fonttbl{\f1\fcharset134 A;}}{\f1\'c4}{\f1\'e3\'ba\f1\'c3\'ba}{\f1\'c3\'ba\par}\'fe{\f1\'ba}\'fe)",
        u"你好好\uFFFD\nþ\uFFFDþ|0+5 A"_s);
    row("UTF-8 unsaid", R"({\fonttbl\f0\fcharset134;\f1 Symbol;}{\f1ş}\f0日\u351ş\b0ğ\'c4\'e3)",
        u"ş日şğ你"_s);
    row("UTF-8 unsaid, escaped", R"({\fonttbl{\f0\fcharset162 A;}}\f0\'c5\'9f\'e2\'82\'ac.)", u"ş€.|0+3 A"_s);
    row("looks like UTF-8", "\\ansicpg936 \xc4\xa3\\'c4\\'a3", u"模模"_s);
    row("looks like UTF-8, Turkish", R"(\ansicpg1254 \'c4\'b1\'fd)", u"Ä±ı"_s);
    row("UTF-8", "\\ansicpg65001 \xe2\x82\xac\xe2(\xe2\xc5\x9f\xe2\x82", u"€\uFFFD(\uFFFDş\uFFFD"_s);
    row("Unicode", R"(\u351?\u-3937\'3f\u128512?\u-10179?\u-8704?\u-10179?a\u-8704?\u0?)",
        u"ş\xF09F😀😀\uFFFDa\uFFFD"_s);
    row("stand-ins", R"(\u305\par{\uc2\u305\'93\'fa\u305 {x}}\uc0\u305y\uc3\u305\bin2 }{\-zt)",
        u"ı\nııxıyıt"_s);
    row("stand-ins forgotten", R"(\u305\b\u305{\u305\bullet\u305}b\u305\par\'fd)", u"ııııbı\ný|1+7 b"_s);
    row("both forms", R"({\upr{eski{x}}{\*\ud{yeni}}}z)", u"yeniz"_s);
    row("signs", R"(a\~b\-c\_\emdash\endash\bullet\lquote\rdblquote\tab\{\}\\)",
        u"a\u00A0bc\u2011—–•‘”\t{}\\"_s);
    row("breaks", "a\\par b\\line\\page\\sect\\column c\\\r\nd\r\ne\nf", u"a\nb\n\n\n\nc\ndef"_s);
    row("dropped",
        R"({\info{\title\pard t}}{\header h}{\*\n x}{\pict 0}{\v v}{\deleted d}{\revised r}{\xe x})", u"r"_s);
    row("fields",
        R"(a{\field{\*\fldinst{HYPERLINK "x" \\* MERGEFORMAT \* x}}{\b\fldrslt {\b b{\field{\fldinst PAGE}{\*\fldrslt{c}}}}}}d)",
        u"abcd|1+2 b"_s);
    row("object", R"(a{\object{\*\objdata 01}{\result b}}{\shp{\*\shpinst{\sn n}{\shptxt c}}{\shprslt c}}d)",
        u"ab\nc\nd"_s);
    row("list", R"({\listtext\u8226?\tab}{\pntext 1}a\par{\pntext 2.\tab}b)", u"•\ta\n2.\tb"_s);
    row("list text of blanks or without its font",
        R"({\b x\par{\listtext\pard\i \tab}y\par{\listtext\u61589\'3f\tab}z})", u"x\ny\n•\tz|0+7 b"_s);
    row("list in a cell", R"(\intbl{\listtext 1.}a\par{\listtext 2.}b\cell\row)", u"1.a 2.b\n"_s);
    row("items without list text",
        R"({\fonttbl{\f1\fcharset2 Symbol;}}a{\*\pn\pnlvlbody\pndec\pnstart9{\pntxtb (}{\pntxta )}}\par b{\footnote x\par y}l\par{\pntext .}c{\shp{\*\shpinst{\shptxt z\par}}}d\par e\line k\par\pard f\par{\*\pn\pnlvlblt}g\par{\pntxta h}\pard{\*\pn\pnlvlblt\pnf1{\pntxtb\'ae}}i)",
        u"a\n(9)\tb [x y]l\n.c\nz\nd\n(11)\te\nk\nf\n•\tg\n→\ti"_s);
    row("levels of items",
        R"({\*\pn\pnlvl1\pnucrm{\pntxta.}}a\par\pard{\*\pn\pnlvl2\pnlcltr\pnstart26}b\par c\par\pard{\*\pn\pnlvl1\pnucrm{\pntxta.}}d\par\pard{\*\pn\pnlvl2\pnlcltr\pnstart26}e\par\pard{\*\pn\pnlcrm\pnstart1999}f\par\pard{\*\pn\pnucltr}g\par\pard{\*\pn\pnlvlcont}h\par\pard i\par{\*\pn\pnucltr}j)",
        u"I.\ta\nz\tb\naa\tc\nII.\td\nz\te\nmcmxcix\tf\nA\tg\nh\ni\nA\tj"_s);
    row("symbol fonts",
        R"({\fonttbl{\f1\fcharset2 Symbol;}{\f2 Zapf Dingbats;}{\f3\fcharset2 WINGDINGS;}}{\f1 ab\'a5\u-3999?}{\f2 4\'f1}{\f3\'fc\'02})",
        u"αβ∞α✔➱✓"_s);
    row("unknown symbol font", R"({\fonttbl{\f3\fcharset2 X;}}\f3\'b7\u-3929?a\'fd)", u"•▪aý|0+4 X"_s);
    row("symbol fields",
        R"({\field{\*\fldinst SYMBOL 97 \\f "Symbol" \\s 10}{\fldrslt}}{\field{\fldinst{\b SYMBOL 0xF061 \\f Symbol}}}{\field{\*\fldinst SYMBOL 8364 \\u}{\fldrslt{}}}{\field{\*\fldinst SYMBOL 65}{\fldrslt B}}{\field{\*\fldinst PAGE 65}})",
        u"αα€B"_s);
    row("table", R"(\intbl a\cell b\par c\cell\row\intbl\cell\cell\cell\row\pard d)", u"a\tb c\n\t\t\nd"_s);
    row("inner table",
        R"(\intbl a\cell\itap2 b\nestcell c\nestcell{\*\nesttableprops\nestrow}{\nonesttables\par}\itap1\cell\row\pard d)",
        u"a\tb\tc\nd"_s);
    row("merged cells",
        R"(\trowd\clmgf\cellx1\clmrg\cellx2\clvmgf\cellx3\intbl a\cell b{\*\nesttableprops\trowd}\cell c\cell\row\cell\cell d\cell\row\trowd\cellx1\clmrg\cellx2\clvmrg\cellx3 e\cell\cell\cell\row)",
        u"a b\tc\n\td\ne\t\n"_s);
    row("table in a footnote",
        R"(a{\footnote\intbl\cell\row b\cell c\cell\row d\cell\cell e\cell\row\pard}.\intbl{\footnote\intbl f\cell g\cell\row h\cell\row}\cell i\cell\row)",
        u"a [b\tc\nd\t\te]. [f g h]\ti\n"_s);
    row("footnotes", R"(a{\footnote\chftn  b\par c}.{\footnote})", u"a [b c]."_s);
    row("binary", R"(a{\pict\bin3 }{}}b\bin-1 c{\pict\bin9 x}d e f g h i j{\pict\bin99999999999 y}k)",
        u"abcd e f g h i jk"_s);
    row("surplus brace", R"(a}b}c)", u"abc"_s);
    row("surplus brace before a word", R"({\b a}}\par b{\b c)", u"a\nbc|0+1 b,3+1 b"_s);
    plain("behind the last brace", "{\\rtf a}}b{c}"_ba, u"a"_s);
    plain("NUL behind the last brace", "{\\rtf a}\0\\par b}"_ba, u"a"_s);
    row("open head", R"({\fonttbl{\f0 A;}\pard a\par}{\header\pard x}{\pict\pard b{\info\title x\par\pard c)",
        u"a\nbc"_s);
    plain("deep groups", "{\\rtf" + QByteArray(12000, '{') + 'b' + QByteArray(12000, '}') + "c}", u"bc"_s);
    row("destination amid the document", R"(a\footer b)", u"ab"_s);
    row("numbers", R"(\fs99999999999\f-9999999999\uc9999999999 a\u99999999999999 b)", u"a\uFFFD|0+2 3276"_s);
    row("none", R"(\deff0{\fonttbl{\f0 A;}}a\b\b0 b\cf0 c)", u"abc"_s);
    row("groups", R"(a{\b b{\i c}}{\b d}e{\*\ne\b x}f{\b}\b\pard g)", u"abcdefg|1+1 b,2+1 bi,3+1 b,6+1 b"_s);
    row("lines", R"(\ul a\ulnone\strike b\strike0\uldb c\ul0 d\ulw\striked1 e\plain f)",
        u"abcdef|0+1 u,1+1 s,2+1 u,4+1 us"_s);
    row("colours", R"({\colortbl;\red255\green128;\blue999;}\cf1 a\cf2 b\cf3 c\cf0 d)",
        u"abcd|0+1 #80ff,1+1 #ff0000"_s);
    row("size", R"(\fs20 a{\fs0\fs48 b}\fs-1 c\fs9999 d)", u"abcd|0+1 20,1+1 48,2+1 20,3+1 3276"_s);
    row("fonts", R"({\fonttbl\f0 Serif;{\f7\fcharset162{\*\falt x}Sans\'fe Tur;}}\f7 a\f0 b\f9 c)",
        u"abc|0+1 Sansş,1+1 Serif"_s);
    plain("empty", "", u""_s);
    plain("UTF-8", "ığ€😀", u"ığ€😀"_s);
    plain("UTF-8 with mark and a wrong byte", "\xef\xbb\xbfığ\xff", u"ığ\uFFFD"_s);
    plain("UTF-8, wrong bytes",
          "\x80\xc4\xb1\xe2\x82.\xf0\x9f\x98\xed\xa0\xc5\x9f\xc3\xb6\xc3\xbc\xc3\xa7\xc3\xa7\xff",
          u"\uFFFDı\uFFFD.\uFFFD\uFFFD\uFFFDşöüçç\uFFFD"_s);
    plain("UTF-8 cut short", "\xc4\xb1\xc4", u"ı\uFFFD"_s);
    plain("UTF-8, Greek", "c\xc2\xb4 \xce\x91\xce\x92\xff\xff\xff", u"c´ ΑΒ\uFFFD\uFFFD\uFFFD"_s);
    plain("Windows-1254", "abc\xfe\x85", u"abcş…"_s);
    plain("Windows-1254, letters with marks", "AL\xdd\x92N\xddN, K\xd6Y\x85, AL\xdd\xb4N\xddN,i\xe7\x92\x94",
          u"ALİ’NİN, KÖY…, ALİ´NİN,iç’”"_s);
    plain("Windows-1254, nothing but such", "AL\xdd\x92", u"ALİ’"_s);
    for (const QString& text : {u"a"_s, u"ışığı"_s, u"Ali’nin 5 €, ₺"_s, u"Жуков γ 中"_s}) {
        plain(qUtf8Printable(text + u" LE"_s), QStringEncoder(QStringEncoder::Utf16LE)(text), text);
        plain(qUtf8Printable(text + u" BE"_s), QStringEncoder(QStringEncoder::Utf16BE)(text), text);
    }
    plain("UTF-16, low byte first", QByteArray("\xff\xfe\x31\x01\r\0\n\0\x3d\xd8", 10), u"ı\n\uFFFD"_s);
    plain("UTF-16, high byte first", QByteArray("\xfe\xff\x01\x31\x20\x28\xdc\0", 8), u"ı\n\uFFFD"_s);
    plain("line ends", "a\rb\nc\r\nd\n\re\ff\u2028g\u2029h", u"a\nb\nc\nd\n\ne\nf\ng\nh"_s);
    plain("end mark of DOS", "abc\r\n\x1a\x1a", u"abc\n"_s);
    plain("no RTF", "x{\\rtf1 a}", u"x{\\rtf1 a}"_s);
}

void TestDocument::texts()
{
    QFETCH(QByteArray, bytes);
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"şiir.txt"_s));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush());
    const BiçimliMetin okunan = MetinDosyasıOku(file.fileName());
    QStringList stretches;
    for (const BiçimliParça& p : okunan.Parçalar) {
        const KarakterBiçimi& b = p.Biçim;
        const QString format = b.YazıTipi + u"b"_s.repeated(b.Kalın) + u"i"_s.repeated(b.İtalik) +
                               u"u"_s.repeated(b.AltıÇizili) + u"s"_s.repeated(b.ÜstüÇizili) +
                               (b.YarımNokta ? QString::number(b.YarımNokta) : QString()) +
                               (b.Renk != b.Renksiz ? u'#' + QString::number(b.Renk, 16) : QString());
        stretches += u"%1+%2 %3"_s.arg(p.Yer).arg(p.Uzunluk).arg(format);
    }
    QTEST(okunan.Metin + (stretches.isEmpty() ? QString() : u'|' + stretches.join(u',')), "text");
}

void TestDocument::properties_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("properties"); // author, title, place, date, date of creation
    const auto row = [](const char* name, const char* body, const QString& properties) {
        QTest::newRow(name) << "{\\rtf1" + QByteArray(body) + '}' << properties;
    };
    row("none", R"(\title a{\propname Yer}{\staticval b}{\author c})", u"||||"_s);
    row("all",
        R"(\ansi\ansicpg1254{\info{\title \'dd\u351?{\b \'fe}\emdash}{\author A. \~B\_C}{\creatim\yr2004\mo5\dy12\hr10}{\revtim\yr2009\mo1\dy1}}{\*\userprops{\propname YAYIM YER\'dd}\proptype30{\staticval R\u105?ze}{\propname x}\proptype30{\staticval y}{\propname Yayim tarihi}\proptype30{\staticval May\'fds 2004}}\pard t)",
        u"A. \u00A0B\u2011C|İşş—|Rize|Mayıs 2004|12.05.2004"_s);
    row("other names",
        R"({\*\userprops{\propname tarih}{\staticval}{\propname LOCATION}{\staticval a}{\propname Place}{\staticval b}{\propname Date}{\staticval c}})",
        u"||a|c|"_s);
    row("first author, twice the title",
        R"({\info{\upr{\title I\'3f}{\*\ud{\title I\u351\'3f\uc2\u305\'41\'42c}}}{\author a}{\author b}{\operator o}})",
        u"a|Işıc|||"_s);
    row("fonts",
        R"(\deff1{\fonttbl{\f1\fcharset162{\*\falt x}A;}{\f2\fcharset161 B;}}{\info{\title\'fe\f2 \'e1}{\author{\*\x y}\par\'fe\tab\line}})",
        u"ş|şα|||"_s);
    row("UTF-8 unsaid", "{\\fonttbl{\\f0\\fcharset0 A;}}{\\info{\\title ış\\u351ş!}}", u"|ışş!|||"_s);
    row("no day", R"({\info{\creatim\yr0\mo0\dy0}{\creatim\yr1601\mo1\dy1}{\creatim\yr2003\mo2\dy29}})",
        u"||||"_s);
    row("open groups", R"({\info{\author a{\b b}{\title t\pard c{\title d)", u"ab|t|||"_s);
    row("raw bytes", R"({\pict\bin14 {\info{\title}x}{\info{\title\u0?\u55357?\bin2 }}{b}})",
        u"|\uFFFDb|||"_s);
    QTest::newRow("no RTF") << "{\\info{\\title a}}"_ba << u"||||"_s;
}

void TestDocument::properties()
{
    QFETCH(QByteArray, bytes);
    const BelgeBilgisi b = RtfBilgisiOku(bytes);
    QTEST(QStringList({b.Yazar, b.Başlık, b.Yer, b.Tarih, b.OluşturmaTarihi}).join(u'|'), "properties");
}

void TestDocument::propertiesWritten()
{
    const BelgeBilgisi b = {
        u"Ağaoğlu, Ş. {\\}"_s, u"“Iğdır” \u00A0😀—中; {\\pard"_s, u"İÇEL"_s, u"1\\2"_s, {}};
    const QByteArray document = RtfBelgesi(u"Işık\n"_s, u"Serif"_s, 12, b);
    QVERIFY(RtfBilgisiOku(document) == b);
    QCOMPARE(RtfOku(document).Metin, RtfOku(RtfBelgesi(u"Işık\n"_s)).Metin);
    QCOMPARE(RtfBelgesi({}, {}, 0, {u"\n"_s, {}, {}, {}, {}}).count("author"), 1);
}

void TestDocument::book()
{
    const QByteArray container = "<container><rootfile full-path='o.opf'/></container>";
    QByteArray package = R"(<p xmlns:dc="http://purl.org/dc/elements/1.1/" xmlns:opf="o"><dc:title> A
 b</dc:title><dc:creator>Ş. <b>C</b></dc:creator><dc:creator>D</dc:creator><dc:date opf:event="modification">2009</dc:date>
<dc:date>2004-05-12</dc:date><item id="1" href="ba%C5%9F.xhtml#x" media-type="application/xhtml+xml"/>
<item id="n" href="nav.html" properties="a nav"/><item id="s" href="a.svg" media-type="image/svg"/>
<item id="2" href="./x/../2.html"/><itemref idref="2"/><itemref idref="n"/><itemref idref="s"/><itemref idref="1"/>)";
    QByteArray chapter = "<html><body a='1'>\xfe&nbsp;</body></html>";
    const auto read = [&](const QString& name) -> QByteArray {
        return name == u"META-INF/container.xml" ? container
               : name == u"o.opf"                ? package
               : name == u"baş.xhtml"            ? "<html><title/><body>ilk</body>"_ba
               : name == u"2.html"               ? chapter
                                                 : QByteArray();
    };
    const EpubKitabı kitap = EpubOku(read);
    QVERIFY(kitap.Bilgi == BelgeBilgisi({u"Ş. C, D"_s, u"A  b"_s, {}, u"12.05.2004"_s, {}}));
    QVERIFY(kitap.Html.contains("<body>\n<div>ş&nbsp;</div>\n<div>ilk</div></body>"));
    const auto refusal = [&read] {
        try {
            return QString::fromUtf8(EpubOku(read).Html);
        } catch (const MetinOkumaHatası& hata) {
            return hata.Açıklama();
        }
    };
    chapter = "\1\2\3\4";
    QVERIFY(refusal().contains(u"korunuyor"));
    chapter.clear();
    QVERIFY(refusal().contains(u"eksik"));
    package.clear();
    QVERIFY(refusal().contains(u"kitabı değil"));
}

void TestDocument::fileErrors_data()
{
    QTest::addColumn<QByteArray>("bytes"); // of a regular file; else the row's name says what there is
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const QByteArray& bytes, const QString& reason) {
        QTest::newRow(name) << bytes << reason;
    };
    row("missing", {}, u"bulunamadı"_s);
    row("folder", {}, u"klasör"_s);
    row("pipe", {}, u"olağan bir dosya değil"_s);
    row("2 GB", {}, u"çok büyük"_s);
    row("no permission", {}, u"izniniz yok"_s);
    row("NUL", QByteArray("abc\0d", 5), u"metin dosyası değil"_s);
    row("even NUL", QByteArray("ab\0c", 4), u"metin dosyası değil"_s);
    row("numbers of 16 bits", QByteArray("a\0b\0\0\0c\0d\0", 10), u"metin dosyası değil"_s);
    row("control characters", "a\x01\x02", u"metin dosyası değil"_s);
    row("cut in a table", "\xef\xbb\xbf \r\n{\\rtf1{\\fonttbl{\\f0 Ari", u"bozuk"_s);
}

void TestDocument::fileErrors()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, reason);
    const QByteArray row = QTest::currentDataTag();
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"ağıt.rtf"_s));
    if (row == "folder")
        QVERIFY(QDir().mkdir(file.fileName()));
    else if (row == "pipe")
        QCOMPARE(mkfifo(QFile::encodeName(file.fileName()).constData(), 0600), 0);
    else if (row != "missing")
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush());
    if (row == "2 GB")
        QVERIFY(file.resize(qint64(2) << 30));
    const uid_t user = geteuid();
    if (row == "no permission" && !(user == 0 ? seteuid(65534) == 0 : file.setPermissions({})))
        QFAIL("can't do without the permission");
    const auto back = qScopeGuard([user] { QVERIFY(user != 0 || seteuid(user) == 0); });
    try {
        MetinDosyasıOku(file.fileName());
        QFAIL("was read");
    } catch (const MetinOkumaHatası& hata) {
        QVERIFY2(hata.Açıklama().contains(reason) && hata.Açıklama().contains(u"“ağıt.rtf”"_s), hata.what());
    }
}

void TestDocument::mutations()
{
    const QDir corpus(QStringLiteral(CORPUS_FOLDER));
    QByteArrayList seeds;
    for (const QString& name : corpus.entryList(QDir::Files, QDir::Name)) {
        QFile file(corpus.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        seeds += file.readAll();
    }
    QVERIFY(seeds.size() > 15);
    std::mt19937 random(20030); // NOLINT: the same numbers each time
    const auto below = [&random](qsizetype n) { return n > 0 ? qsizetype(random() % quint32(n)) : 0; };
    int readable = 0;
    for (int i = 0; i < 6000; ++i) {
        QByteArray bytes = seeds[i % seeds.size()];
        const QByteArray other = seeds[below(seeds.size())];
        for (qsizetype n = i < seeds.size() ? 0 : 1 + below(6); n > 0 && !bytes.isEmpty(); --n) {
            if (below(2) == 0)
                bytes[below(bytes.size())] ^= char(1 << below(8));
            else if (below(3) == 0)
                bytes.truncate(bytes.size() - below(bytes.size()) / 4);
            else
                bytes.insert(below(bytes.size()), other.mid(below(other.size()), below(40)));
        }
        try {
            const char* fault = MetinKusuru(MetinÇöz(bytes));
            fault = fault ? fault : BilgiKusuru(RtfBilgisiOku(bytes));
            QVERIFY2(!fault, fault + (": " + bytes.toPercentEncoding()));
            ++readable;
        } catch (const MetinOkumaHatası&) {
        }
    }
    QVERIFY(readable > 3000);
}

void TestDocument::floods_data()
{
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<QByteArray>("unit");
    const auto row = [](const char* name, const char* head, const char* unit) {
        QTest::newRow(name) << QByteArray(head) << QByteArray(unit);
    };
    row("formats", "", "{\\b a}{\\i b}");
    row("sizes", "", "\\fs1a\\fs2b");
    row("half letters", "{\\fonttbl\\f0\\fcharset128 A;}", "\x93{}");
    row("fonts", "{\\fonttbl", "\\f12345;\\f");
    row("colours", "{\\colortbl", ";");
    row("groups", "\\fs9", "{}");
    row("footnotes", "", "{\\footnote a}");
    row("long word", "\\", "abcdefgh");
    row("digits", "\\fs", "99999999");
    row("Unicode", "", "\\u1\\uc9\\'e9 x");
    row("items", "", "{\\pn\\pndec\\pnstart{\\pntxta )}}a\\par");
    row("surplus braces", "}", "a}");
}

// Nothing grows faster than the input.
void TestDocument::floods()
{
    QFETCH(QByteArray, head);
    QFETCH(QByteArray, unit);
    const QByteArray body = head + unit.repeated((1 << 20) / unit.size());
    QElapsedTimer time;
    time.start();
    const BiçimliMetin text = RtfOku("{\\rtf1" + body + "}}");
    RtfBilgisiOku("{\\rtf1{\\info{\\title " + body);
    QVERIFY(time.elapsed() < 60'000); // a thousand times what it takes without sanitizers
    QVERIFY(!MetinKusuru(text));
    QVERIFY(text.Metin.capacity() * 2 + text.Parçalar.capacity() * qsizetype(sizeof(BiçimliParça)) <
            20 * body.size());
}

QTEST_APPLESS_MAIN(TestDocument)
#include "test_document.moc"
