#include "Ölçümler.h"

#include "app/OrtakDeğişkenlerModülü.h"
#include "controls/ListeKutusu.h"
#include "controls/MetinKutusu.h"
#include "controls/ZenginMetinKutusu.h"
#include "forms/AnaForm.h"
#include "store/KitaplıkDosyası.h"
#include "store/MakaleKitaplığı.h"
#include "store/ÇalışmaGrubu.h"
#include "text/TürkçeArama.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>

namespace {

constexpr double BulmaAmacı = 1.25;
constexpr double TuşAmacı = 5;       // ms
constexpr double İşaretAmacı = 1000; // ms
constexpr int AzMakale = 10'000;     // smaller libraries are searched in no time
constexpr int Tekrar = 7;
constexpr int GrepTekrarı = 3;
constexpr int İşaretAralığı = 200; // UTF-16 units from one occurrence to the next

// In no text, so that every one is searched to its end; its letters are common ones.
const QString Aranan = QStringLiteral("deniza");
const QString BulmaSql =
    QStringLiteral("SELECT * FROM [Makaleler] WHERE [MakaleMetni] LIKE '*%1*' ORDER BY [MakaleBasligi] ASC");

/// The library file read row by row with nothing but the cipher at work.
class ÇıplakOkuma
{
public:
    explicit ÇıplakOkuma(const QString& klasör)
        : grup_(KitaplıkYolu(klasör, DosyaAdları::Grup), AçmaKipi::Oku), klasör_(klasör)
    {
    }
    /// Nothing of the file is in memory any more.
    void Tazele() { bağlantı_ = KitaplıkBağlantısı(klasör_, AçmaKipi::Oku, grup_); }
    /// @return bytes of all texts
    qsizetype Oku()
    {
        qsizetype baytlar = 0;
        Deyim deyim(*bağlantı_, "SELECT MakaleMetni FROM Makaleler NOT INDEXED");
        while (deyim.Adım())
            baytlar += static_cast<qsizetype>(deyim.Baytlar(0).size());
        return baytlar;
    }

private:
    ÇalışmaGrubu grup_;
    QString klasör_;
    std::unique_ptr<Bağlantı> bağlantı_;
};

void kitaplığıTazele()
{
    Veritabanı = KitaplıkAç(*ÇalışmaAlanı, ProgramKlasörü);
}

void ara()
{
    Sağla(Veritabanı->OpenRecordset(BulmaSql.arg(Aranan)).Eof(), "a word that no text holds");
}

/// Writes each article's text into a file of its own.
void metinleriYaz(const QString& klasör)
{
    Sağla(QDir().mkpath(klasör), "a folder for the texts");
    Recordset kayıtlar = Veritabanı->OpenRecordset(QStringLiteral("SELECT * FROM [Makaleler]"));
    for (int i = 0; !kayıtlar.Eof(); kayıtlar.MoveNext(), ++i) {
        QFile dosya(klasör + QString::number(i));
        Sağla(dosya.open(QIODevice::WriteOnly), "a file for a text");
        dosya.write(kayıtlar.Fields(u"MakaleMetni").Value().toUtf8());
    }
}

void grepÇalıştır(const QString& klasör)
{
    QProcess grep;
    QProcessEnvironment çevre = QProcessEnvironment::systemEnvironment();
    çevre.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    grep.setProcessEnvironment(çevre);
    grep.start(QStringLiteral("grep"), {QStringLiteral("-rilF"), Aranan, klasör});
    Sağla(grep.waitForFinished(-1) && grep.exitCode() == 1, "grep finding nothing");
}

/// A text in which the word stands so often between blanks.
QString işaretlenecekMetin(const QString& sözcük, int sayı)
{
    MetinÜreteci üreteç(7);
    const QString ara =
        üreteç.Metin(İşaretAralığı).left(İşaretAralığı - sözcük.size() - 3).replace(u'\n', u' ');
    QString metin;
    metin.reserve(qsizetype(sayı) * (İşaretAralığı + 1));
    for (int i = 0; i < sayı; ++i)
        metin += ara + u' ' + sözcük + QStringLiteral(" \n");
    return metin;
}

} // namespace

void TümündeBulmayıÖlç(const PencereOrtamı& ortam)
{
    if (ortam.Kitaplık.MakaleSayısı() < AzMakale)
        return;
    ÇıplakOkuma çıplak(ProgramKlasörü);
    Ölçüm okumayla{QStringLiteral("Tümünde bulma"),
                   &ara,
                   QStringLiteral("metinleri yalnız okuma"),
                   [&çıplak] { Sağla(çıplak.Oku() > 0, "texts"); },
                   Tekrar,
                   Amaç{Amaç::Tür::Oran, BulmaAmacı}};
    okumayla.İşHazırlığı = &kitaplığıTazele;
    okumayla.TabanHazırlığı = [&çıplak] { çıplak.Tazele(); };
    ortam.Çizelge.Satır(okumayla);

    const QString klasör = ProgramKlasörü + QStringLiteral("metinler/");
    metinleriYaz(klasör);
    Ölçüm grep{QStringLiteral("Tümünde bulma, grep yanında"), &ara, QStringLiteral("düz dosyalarda grep -i"),
               [&klasör] { grepÇalıştır(klasör); }, GrepTekrarı};
    grep.İşHazırlığı = &kitaplığıTazele;
    ortam.Çizelge.Satır(grep);
    QDir(klasör).removeRecursively();
}

void İşaretlemeyiÖlç(const PencereOrtamı& ortam)
{
    const QString sözcük = QStringLiteral("deniz");
    ZenginMetinKutusu kutu;
    kutu.resize(ortam.Pencere.size());
    kutu.show();
    for (const int sayı : {1'000, 10'000, 100'000}) {
        const QString metin = işaretlenecekMetin(sözcük, sayı);
        const auto göster = [&] {
            kutu.Text(metin);
            QCoreApplication::processEvents();
        };
        Ölçüm ölçüm{QStringLiteral("%L1 yeri işaretleme").arg(sayı),
                    [&] {
                        const MetinArayıcı arayıcı(kutu.Text(), u' ' + sözcük + u' ');
                        QList<qsizetype> yerler;
                        for (qint32 konum = 0; (konum = arayıcı.Sonraki(konum)) != 0;)
                            yerler.append(konum - 1);
                        Sağla(yerler.size() == sayı, "every occurrence");
                        kutu.İşaretle(yerler, sözcük.size() + 1);
                        QCoreApplication::processEvents();
                    },
                    QStringLiteral("aynı metni gösterme"),
                    göster,
                    Tekrar,
                    Amaç{Amaç::Tür::Süre, İşaretAmacı}};
        ölçüm.İşHazırlığı = göster;
        ölçüm.TabanHazırlığı = [&kutu] { kutu.Text({}); };
        ortam.Çizelge.Satır(ölçüm);
    }
}

void ÖnekBulmayıÖlç(const PencereOrtamı& ortam)
{
    QStringList başlıklar;
    Recordset kayıtlar = Veritabanı->OpenRecordset(
        QStringLiteral("SELECT [MakaleBasligi] FROM [Makaleler] ORDER BY [MakaleBasligi] ASC"));
    for (; !kayıtlar.Eof(); kayıtlar.MoveNext())
        başlıklar.append(kayıtlar.Fields(u"MakaleBasligi").Value());
    ListeKutusu liste;
    liste.AddItems(başlıklar);
    const QString sonuncu = başlıklar.last();
    ortam.Çizelge.Satır({QStringLiteral("%L1 başlıkta bir tuş").arg(başlıklar.size()),
                         [&] {
                             liste.ListIndex(-1);
                             liste.ListIndex(liste.ÖnekleBul(sonuncu));
                             Sağla(liste.Text() == sonuncu, "the last title");
                         },
                         QStringLiteral("harf katlamadan aynı tarama"),
                         [&] {
                             const auto yer =
                                 std::find_if(başlıklar.cbegin(), başlıklar.cend(),
                                              [&](const QString& b) { return b.startsWith(sonuncu); });
                             Sağla(yer != başlıklar.cend(), "the last title");
                         },
                         Tekrar * 3, Amaç{Amaç::Tür::Süre, TuşAmacı}});
}
