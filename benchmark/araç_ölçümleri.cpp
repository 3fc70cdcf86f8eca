#include "Ölçümler.h"

#include "app/OrtakDeğişkenlerModülü.h"
#include "store/MakaleArama.h"
#include "store/MakaleKitaplığı.h"

#include <QDir>
#include <QFile>
#include <QProcess>

namespace {

constexpr int AmaçlıMakaleSayısı = 10'000; // below it starting a process is most of the time
// A smaller one is copied in the time that a process takes to start and to derive a key.
constexpr int BüyükMakaleSayısı = 100'000;
constexpr int Tekrar = 5;
constexpr qint64 BozulanYer = 1'000'003; // a byte in the midst of the file

// Common syllables, so that each text is looked through for all of them.
const std::vector<QStringList> Sözcükler = {
    {QStringLiteral("deniza")}, {QStringLiteral("kara")}, {QStringLiteral("ler")}};
const QString BulmaSorgusu = QStringLiteral("SELECT * FROM [Makaleler] WHERE [MakaleMetni] LIKE '*deniza*'"
                                            " ORDER BY [MakaleBasligi] ASC");

/// Runs a shell command in which $0 is the companion; the rest are its arguments.
void kabuk(const QString& komut, const QStringList& değişkenler, int beklenen = 0)
{
    QProcess p;
    p.setStandardErrorFile(QProcess::nullDevice());
    p.setStandardOutputFile(QProcess::nullDevice());
    p.start(QStringLiteral("/bin/sh"),
            QStringList{QStringLiteral("-c"), komut, QStringLiteral(COMPANION_TOOL)} + değişkenler);
    Sağla(p.waitForFinished(-1) && p.exitCode() == beklenen, qPrintable(komut));
}

/// A folder beside the library, for what the companion writes.
class ÇalışmaKlasörü
{
public:
    ÇalışmaKlasörü() { Boşalt(); }
    ~ÇalışmaKlasörü() { QDir(yol_).removeRecursively(); }
    ÇalışmaKlasörü(const ÇalışmaKlasörü&) = delete;
    ÇalışmaKlasörü& operator=(const ÇalışmaKlasörü&) = delete;

    void Boşalt() const
    {
        QDir(yol_).removeRecursively();
        QDir().mkpath(yol_);
    }
    QString operator/(const QString& ad) const { return yol_ + u'/' + ad; }

private:
    QString yol_ = QDir::cleanPath(ProgramKlasörü) + QStringLiteral("-araç");
};

QString kitaplıkYolu()
{
    return KitaplıkYolu(ProgramKlasörü, DosyaAdları::Kitaplık);
}

std::optional<Amaç> amaç(const KapalıOrtam& ortam, double oran, int enAz = AmaçlıMakaleSayısı)
{
    if (ortam.Kitaplık.MakaleSayısı() < enAz)
        return {};
    return Amaç{Amaç::Tür::Oran, oran};
}

void vermeyiÖlç(const KapalıOrtam& ortam, const ÇalışmaKlasörü& klasör)
{
    const QStringList yollar = {ProgramKlasörü, klasör / QStringLiteral("çıktı")};
    ortam.Çizelge.Satır({QStringLiteral("ver, csv"),
                         [&] { kabuk(QStringLiteral("\"$0\" ver \"$1\" \"$2\" --biçim csv"), yollar); },
                         QStringLiteral("dök"),
                         [&] { kabuk(QStringLiteral("\"$0\" dök \"$1\" >\"$2\""), yollar); }, Tekrar,
                         amaç(ortam, 1.3), [&] { klasör.Boşalt(); }, [&] { klasör.Boşalt(); }});
}

void almayıÖlç(const KapalıOrtam& ortam, const ÇalışmaKlasörü& klasör)
{
    const QString belgeler = QDir::cleanPath(ProgramKlasörü) + QStringLiteral("-belgeler");
    const QString satırlar = belgeler + QStringLiteral(".jsonl");
    kabuk(QStringLiteral("\"$0\" ver \"$1\" \"$2\" --biçim txt && \"$0\" dök \"$1\" >\"$3\""),
          {ProgramKlasörü, belgeler, satırlar});
    const auto boşKitaplık = [&klasör] {
        klasör.Boşalt();
        KitaplıkKur(klasör / QString());
    };
    // Some of the made-up articles have no place, and the program's starter has none of one word.
    ortam.Çizelge.Satır(
        {QStringLiteral("aktar, metin dosyaları"),
         [&] {
             kabuk(QStringLiteral("\"$0\" aktar \"$1\" \"$2\" --yer Yok"), {klasör / QString(), belgeler});
         },
         QStringLiteral("cat ve aktar, JSON Lines"),
         [&] {
             kabuk(QStringLiteral("cat \"$2\" | \"$0\" aktar \"$1\" -"), {klasör / QString(), satırlar});
         },
         Tekrar, amaç(ortam, 2), boşKitaplık, boşKitaplık});
    QDir(belgeler).removeRecursively();
    QFile::remove(satırlar);
}

void yedeğiÖlç(const KapalıOrtam& ortam, const ÇalışmaKlasörü& klasör)
{
    ortam.Çizelge.Satır({QStringLiteral("yedekle"),
                         [&] {
                             kabuk(QStringLiteral("\"$0\" yedekle \"$1\" \"$2\""),
                                   {ProgramKlasörü, klasör / QStringLiteral("yedek")});
                         },
                         QStringLiteral("dosyayı kopyalayıp diske yazma"),
                         [&] { DosyayıKopyala(kitaplıkYolu(), klasör / QStringLiteral("kopya")); }, Tekrar,
                         amaç(ortam, 2.5, BüyükMakaleSayısı), [&] { klasör.Boşalt(); },
                         [&] { klasör.Boşalt(); }});
}

void kurtarmayıÖlç(const KapalıOrtam& ortam, const ÇalışmaKlasörü& klasör)
{
    const auto bozukKitaplık = [&klasör] {
        klasör.Boşalt();
        QDir().mkpath(klasör / QStringLiteral("bozuk"));
        const QString kopya = klasör / QStringLiteral("bozuk/Makale.mde");
        QFile::copy(kitaplıkYolu(), kopya);
        QFile dosya(kopya);
        Sağla(dosya.open(QIODevice::ReadWrite) && dosya.seek(BozulanYer) && dosya.write("??", 2) == 2,
              "a damaged copy");
    };
    ortam.Çizelge.Satır({QStringLiteral("kurtar, bir sayfası bozuk"),
                         [&] {
                             kabuk(QStringLiteral("\"$0\" kurtar \"$1\" \"$2\"; test -s \"$2/Makale.mde\""),
                                   {klasör / QStringLiteral("bozuk"), klasör / QStringLiteral("yeni")});
                         },
                         QStringLiteral("dosyayı kopyalayıp diske yazma"),
                         [&] { DosyayıKopyala(kitaplıkYolu(), klasör / QStringLiteral("kopya")); }, Tekrar,
                         amaç(ortam, 6, BüyükMakaleSayısı), bozukKitaplık, [&] { klasör.Boşalt(); }});
}

void aramayıÖlç(const KapalıOrtam& ortam)
{
    const auto aç = [] { AçıkOturum.SahipOlarakAç(ProgramKlasörü, Oturum::Erişim::Okuma); };
    ortam.Çizelge.Satır(
        {QStringLiteral("ara, üç sözcük"), [] { MakaleAra(*AçıkOturum.Veritabanı, Sözcükler, [] {}); },
         QStringLiteral("tümünde bulma"), [] { AçıkOturum.Veritabanı->OpenRecordset(BulmaSorgusu); }, Tekrar,
         amaç(ortam, 1.5), aç, aç});
    AçıkOturum.Bırak();
}

} // namespace

void AracıÖlç(const KapalıOrtam& ortam)
{
    const ÇalışmaKlasörü klasör;
    vermeyiÖlç(ortam, klasör);
    almayıÖlç(ortam, klasör);
    yedeğiÖlç(ortam, klasör);
    kurtarmayıÖlç(ortam, klasör);
    aramayıÖlç(ortam);
}
