// The companion's first commands: making, filling, dumping and checking a library.
#include "tool_fixture.h"

#include "store/Bağlantı.h"
#include "store/KitaplıkDenetimi.h"

#include <QFile>

#include <array>
#include <csignal>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

static constexpr qsizetype SayfaBoyu = 16384;

static QByteArray satır(const QByteArray& başlık, const QByteArray& metin = "Metin.")
{
    return R"({"YazarAdi": "ALİ KAYA", "MakaleBasligi": ")" + başlık +
           R"(", "YayimYeri": "Rize", "YayimTarihi": "", "MakaleMetni": ")" + metin + "\"}\n";
}

class TestTool : public QObject
{
    Q_OBJECT
    using Sonuç = AraçSonucu;
    std::unique_ptr<QTemporaryDir> geçici_;
    QString klasör_; // with a library of two articles
    const QByteArray makaleler_ = satır("BİR") + satır("İKİ");

    Sonuç komut(const QString& ad, const QString& yol = {}, const QByteArray& girdi = {},
                const QString& çıktı = {}, const std::function<void(int pid)>& sürerken = {}) const
    {
        return AraçÇalıştır(QStringList{ad, klasör_, yol}.mid(0, yol.isEmpty() ? 2 : 3),
                            {girdi, çıktı, sürerken});
    }
    static bool yakalar(int pid, int işaret) // once it is the tool; before that it catches what we do
    {
        const QByteArray d = DosyaOku(u"/proc/%1/status"_s.arg(pid)),
                         maske = d.mid(d.indexOf("SigCgt:") + 8, 16);
        return d.startsWith("Name:\tbelgenar") && maske.toULongLong(nullptr, 16) >> (işaret - 1) & 1;
    }
    void denetim(int durum, const QByteArray& baş) const // changes nothing
    {
        const auto önce = KlasörOku(klasör_);
        Olmalı(komut(u"denetle"_s), durum, baş);
        QCOMPARE(KlasörOku(klasör_), önce);
    }

private slots:
    void init()
    {
        qputenv("LC_ALL", "C");
        geçici_ = std::make_unique<QTemporaryDir>();
        klasör_ = geçici_->filePath(u"Çöğür Işık/"_s);
        Olmalı(komut(u"oluştur"_s), 0, "Boş bir kitaplık oluşturuldu: ");
        Olmalı(komut(u"aktar"_s, u"-"_s, makaleler_), 0, "Aktarılan   2\n");
    }

    void roundTrip()
    {
        QByteArray döküm = DosyaOku(QStringLiteral(STARTER_LIBRARY)),
                   n = QByteArray::number(döküm.count('\n'));
        for (const char* yerel : {"C", "C.UTF-8", "tr_TR.UTF-8"}) {
            qputenv("LC_ALL", yerel);
            klasör_ = geçici_->filePath(u"öykü/ığdır %1/"_s.arg(QString::fromLatin1(yerel)));
            Olmalı(komut(u"olustur"_s), 0, "Boş bir");
            Olmalı(komut(u"aktar"_s, u"-"_s, döküm), 0, "Aktarılan   " + n + "\n");
            denetim(0, "Kitaplık sağlam; " + n + " makale var.\n");
            const QByteArray yeni = komut(u"dok"_s).second;
            for (const QByteArray& satır : yeni.split('\n'))
                QVERIFY2(döküm.contains(satır) && yeni.size() == döküm.size(), satır);
            QVERIFY(*yerel == 'C' || yeni == döküm); // the order is the library's own, and stays
            döküm = yeni;
        }
    }

    void badLineIsNamed()
    {
        const QByteArray json = "Geçerli bir JSON değil; sorun ", yer = "\"YayimYeri\": \"Rize\"";
        const auto yerine = [](const auto& eski, const auto& yeni) { return satır("Ü").replace(eski, yeni); };
        // clang-format off
        const QByteArray utf8 = "Satır geçerli bir UTF-8";
        const std::pair<QByteArray, QByteArray> bozuklar[] = {
            {satır("\xff"), utf8}, {satır("\xc3"), utf8}, {satır("\xe0\x80\x80"), utf8}, {satır("\xed\xa0\x80"), utf8},
            {satır("\xf4\x90\x80\x80"), utf8}, {satır("\xc1\x81"), utf8}, {"\xe2\x82", utf8},
            {satır("ÜÇ").left(20) + "\n", json + "20. karakter"}, {satır("Ü\tÇ"), json + "45. karakter"},
            {satır("\\\\\\q"), json}, {satır("\\u12+4"), json}, {satır("ÜÇ").trimmed() + satır("ÜÇ"), json},
            {yerine(": \"Rize", " \"Rize"), json}, {yerine(yer, ""), json}, {yerine("}", ",}"), json},
            {"[1]\n", "Satır bir JSON nesnesi"}, {yerine("\"Rize\"", "[1]"), "YayimYeri alanının"},
            {yerine(yer, yer + ", \"Y\": \"\""), "\"Y\" diye"}, {yerine(yer + ", ", ""), "YayimYeri alanı eksik"},
            {yerine(yer, yer + "," + yer), "YayimYeri alanı birden çok"}, {"{}\n", "YazarAdi alanı eksik"},
            {satır("Ü", "\\u0000"), "MakaleMetni alanında"}, {satır("\\ud83d"), "MakaleBasligi alanında yarım"},
            {satır(" \\t"), "MakaleBasligi alanı boş"},
            {satır(QByteArray("Ç").repeated(1001)), "MakaleBasligi alanı çok uzun: 1001 karakter"}};
        // clang-format on
        const QString dosya = geçici_->filePath(u"%1.jsonl"_s);
        const auto önce = KlasörOku(klasör_);
        for (const auto& [bozuk, yakınma] : bozuklar) {
            DosyaYaz(dosya, satır("ÜÇ") + "\n" + bozuk + satır("BEŞ") + "bu da bozuk\n");
            Olmalı(komut(u"aktar"_s, dosya), 1, dosya.toUtf8() + ", 3. satır: " + yakınma);
            Olmalı(komut(u"aktar"_s, u"-"_s, DosyaOku(dosya)), 1, "standart girdi, 3. satır: " + yakınma);
            QCOMPARE(KlasörOku(klasör_), önce);
        }
        // A byte order mark, no line end at last; a letter and its mark apart, an apostrophe, escapes.
        const QByteArray im = "\xef\xbb\xbf", uç = "€😀\xed\x9f\xbf\xee\x80\x80\xf4\x8f\xbf\xbd",
                         üç = satır("ÜÇ", im + uç + "\\u0041\\\\\\\"\\n\\ud83d\\ude00");
        DosyaYaz(dosya, im + satır("O'NUN C\xcc\xa7") + " \r\n" + üç.trimmed());
        Olmalı(komut(u"aktar"_s, dosya), 0, "Aktarılan   2\n");
        const QByteArray yeni = satır("O´NUN \xc3\x87") + satır("ÜÇ", im + uç + "A\\\\\\\"\\n😀");
        QCOMPARE(komut(u"dök"_s), Sonuç(0, makaleler_ + yeni));
    }

    void refusals()
    {
        QVERIFY(komut(u"--yardim"_s).second.contains("oluştur KLASÖR") && komut(u"aktar"_s).first == 2);
        Olmalı(komut(u"aktar"_s, u"/yok.jsonl"_s), 1, "3024: ");
        Olmalı(komut(u"oluştur"_s), 1, "3204: Dosya zaten var.");
        Olmalı(komut(u"dök"_s, {}, {}, u"/dev/full"_s), 1, "3026: ");
        const auto kapalıBoru = [] {
            std::array<int, 2> boru{};
            if (pipe(boru.data()) != 0 || dup2(boru[1], STDOUT_FILENO) < 0 || close(boru[0]) != 0)
                _exit(9);
        };
        Olmalı(AraçÇalıştır({u"dök"_s, klasör_}, {.Önce = kapalıBoru}), 1, "Standart çıktıya yazılamıyor.");
        const auto başkası = DosyaBağlantısı(klasör_);
        başkası->Çalıştır("BEGIN EXCLUSIVE");
        Olmalı(komut(u"dök"_s), 1, "3045: ");
        başkası->Çalıştır("ROLLBACK");
        for (const QString& yol : {u"Makale.mde"_s, u"Makale.tps"_s, u""_s})
            QVERIFY(QFile::setPermissions(klasör_ + yol, QFile::ReadOwner | QFile::ExeOwner));
        QCOMPARE(komut(u"dök"_s), Sonuç(0, makaleler_));
        denetim(0, "Kitaplık sağlam; 2 makale var.\n");
        Olmalı(komut(u"aktar"_s, u"-"_s), 1, "3027: ");
        QVERIFY(QFile::setPermissions(klasör_, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        const KlasörKilidi kilit(klasör_);
        Olmalı(komut(u"aktar"_s, u"-"_s), 1, "3045: Dosya kullanımda;");
    }

    void unfinishedImport()
    {
        QByteArray uzun; // more than the cache takes
        for (int i = 0; i < 240; ++i)
            uzun += satır("UZUN " + QByteArray::number(i), QByteArray("öykü ").repeated(20'000));
        const QString boru = geçici_->filePath(u"boru"_s);
        QCOMPARE(mkfifo(QFile::encodeName(boru).constData(), S_IRUSR | S_IWUSR), 0);
        const QByteArray yarım = uzun.left(90'000);
        for (const auto& [işaret, yol, girdi] : {std::tuple(SIGINT, u"-"_s, uzun),
                                                 {SIGKILL, u"-"_s, uzun},
                                                 {SIGTERM, u"-"_s, yarım},
                                                 {SIGINT, boru, yarım}}) {
            const auto kes = [&, no = işaret, yazar = girdi == uzun](int pid) {
                const QFile mde(klasör_ + u"Makale.mde"_s);
                QTRY_VERIFY_WITH_TIMEOUT(yazar ? mde.size() > 1'000'000 : yakalar(pid, no), 60'000);
                kill(pid, no);
            };
            const Sonuç sonuç = komut(u"aktar"_s, yol, girdi, {}, kes);
            Olmalı(sonuç, işaret == SIGKILL ? -1 : 1, işaret == SIGKILL ? "" : "İşlem durduruldu");
            denetim(0, işaret == SIGKILL ? "Not: Makale.mde dosyasında yarım" : "Kitaplık sağlam; 2 makale");
            QCOMPARE(komut(u"dök"_s), Sonuç(0, makaleler_));
        }
    }

    void check()
    {
        const QByteArray boz = "UPDATE Makaleler SET YazarAdi=", bir = ": “BİR” başlıklı makale: ";
        const std::pair<QByteArray, QByteArray> olaylar[] = {
            {boz + "' '", "Makale.mde: 3421" + bir + "YazarAdi alanı boş."},
            {boz + "CAST(x'410042' AS TEXT)", "Makale.mde: 3049" + bir},
            {boz + "CAST(x'4142434445464748494a4b4c4d4e4fc5' AS TEXT)", "Makale.mde: 3049" + bir},
            {boz + "'O''NUN'", "Not: 2 makalenin yazar adında ya da başlığında kesme işareti"},
            {"UPDATE sqlite_master SET sql=replace(sql, 'Basligi)', 'Metni)') WHERE name='BaslikDizini'",
             "Makale.mde: 3049: Bir dizin tabloyla uyuşmuyor;"}};
        for (const auto& [sql, yakınma] : olaylar) {
            const auto bağlantı = DosyaBağlantısı(klasör_);
            bağlantı->Çalıştır("PRAGMA writable_schema=ON");
            bağlantı->Çalıştır(sql);
            denetim(yakınma.startsWith("Not: ") ? 0 : 1, yakınma);
        }
        init();
        const QString mde = klasör_ + u"Makale.mde"_s, tps = klasör_ + u"Makale.tps"_s;
        const QByteArray kitaplık = DosyaOku(mde), grup = DosyaOku(tps);
        DosyaYaz(tps, QByteArray(grup).replace(2 * SayfaBoyu + 9000, 2, "??"));
        denetim(1, "Makale.tps: 3049: ");
        DosyaYaz(tps, grup);
        DosyaYaz(mde, kitaplık.left(3 * SayfaBoyu));
        denetim(1, "Makale.mde: 3901: ");
        DosyaYaz(mde, kitaplık + "x");
        denetim(1, "Makale.mde: 3049: Dosyanın sonunda");
        QCOMPARE(HataNumarası([&] { Açılış{klasör_}; }), 3049);
    }

    void damagedPages_data()
    {
        QTest::addColumn<int>("kusur");
        QTest::newRow("a wrong byte") << 1;
#ifdef __SANITIZE_ADDRESS__ // each row takes a minute then
        return;
#endif
        QTest::newRow("zeros") << 0;
        QTest::newRow("as before the last changes") << 2;
    }
    // Each page in turn: the articles that come out, and a start that is as strict as the check.
    void damagedPages()
    {
        QFETCH(const int, kusur);
        QList<Makale> makaleler;
        for (int i = 0; i < 60; ++i)
            makaleler.append({u"A B"_s, QString::number(i), UzunMetin(i, i % 20 ? 1500 : 40'000), u"Y"_s});
        Ekle(Database(DosyaBağlantısı(klasör_)), makaleler);
        Açılış{klasör_};
        const QString mde = klasör_ + u"Makale.mde"_s;
        const QByteArray eski = DosyaOku(mde);
        // Of the last row's page nothing but what a text has grown by tells that it is an old one.
        for (const char* sql :
             {"DELETE FROM Makaleler WHERE Kimlik IN (4, 13)",
              "UPDATE Makaleler SET MakaleBasligi='Y' || Kimlik WHERE Kimlik < 30 AND Kimlik % 5 = 2",
              "UPDATE Makaleler SET MakaleMetni=hex(zeroblob(17330)) WHERE Kimlik = 62"})
            DosyaBağlantısı(klasör_)->Çalıştır(sql);
        makaleler = Makaleler(Database(DosyaBağlantısı(klasör_)));
        const QByteArray yeni = DosyaOku(mde);
        const QByteArrayList satırlar = komut(u"dök"_s).second.trimmed().split('\n');
        int bozuk = 0, onarılan = 0;
        for (qsizetype yer = 0; yer < eski.size(); yer += SayfaBoyu) {
            QByteArray sayfa = (kusur == 2 ? eski : yeni).mid(yer, SayfaBoyu);
            kusur == 0 ? void(sayfa.fill(0)) : void(sayfa[99] = char(sayfa[99] ^ (kusur == 1)));
            DosyaYaz(mde, QByteArray(yeni).replace(yer, SayfaBoyu, sayfa));
            const auto önce = KlasörOku(klasör_);
            const auto bulgular = KitaplığıDenetle(klasör_, [](qint64, qint64) {}).Bulgular;
            const bool dizin = bulgular.size() == 1 && bulgular[0].Metin.startsWith(u"Bir dizin");
            const bool tam = bulgular.empty() || dizin;
            const auto [durum, döküm] = komut(u"dök"_s);
            QByteArray çıkan; // in the order of the whole library
            for (const QByteArray& satır : satırlar)
                çıkan += döküm.contains(satır) ? satır + '\n' : QByteArray();
            const auto beklenen = makaleler.size() - döküm.count("Eksik makale: “");
            const QByteArray olay = "page at " + QByteArray::number(yer) + ": " + döküm.right(300);
            QVERIFY2(durum == !tam && döküm.contains("Not: ") == dizin, olay);
            QVERIFY2(kusur == 2 || yer == 0 ||
                         (çıkan.count('\n') == beklenen && beklenen > 42 && döküm.startsWith(çıkan)),
                     olay);
            std::optional<Açılış> açılış;
            const int hata = HataNumarası([&] { açılış.emplace(klasör_); });
            QVERIFY2(tam ? hata == 0 : hata == 3049 && KlasörOku(klasör_) == önce, olay);
            QVERIFY2(!tam || (açılış->Durum == YapıDurumu::DizinBozuk) == dizin, olay);
            QVERIFY2(!tam || Makaleler(*açılış->Veritabanı) == makaleler, olay);
            açılış.reset();
            if (tam)
                denetim(0, "Kitaplık sağlam; ");
            bozuk += !tam;
            onarılan += dizin;
        }
        QVERIFY(bozuk > 4 && onarılan > 0);
    }
};

QTEST_GUILESS_MAIN(TestTool)
#include "test_tool.moc"
