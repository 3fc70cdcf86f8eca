#include "Ölçümler.h"

#include "app/OrtakDeğişkenlerModülü.h"
#include "store/Makale.h"
#include "store/MakaleKitaplığı.h"
#include "system/OrtakApilerModülü.h"

#include <QFile>

#include <fcntl.h>
#include <stdexcept>
#include <unistd.h>
#include <vector>

namespace {

constexpr std::size_t BlokBoyu = 1 << 20;
constexpr double DeğişmemişinAmacı = 2.2, DeğişmişinAmacı = 4.5;
// Below this size the fixed work of deriving keys is most of an opening, whatever the copying costs.
constexpr int AmaçlıMakaleSayısı = 10'000;

/// Changes one article, adds one, and deletes the one that the last call added; both are longer than a page.
void değiştir(const Database& kitaplık)
{
    constexpr qsizetype boy = 50'000;
    const QString başlık = QStringLiteral("SONRADAN EKLENEN");
    Recordset eski = kitaplık.OpenRecordset(
        QStringLiteral("SELECT * FROM [Makaleler] WHERE [MakaleBasligi]='%1'").arg(başlık));
    Recordset kayıtlar = kitaplık.OpenRecordset(QStringLiteral("SELECT * FROM [Makaleler]"));
    kayıtlar.Edit();
    kayıtlar.Fields(u"YayimTarihi").Value(QStringLiteral("Ocak 1970"));
    kayıtlar.Update();
    kayıtlar.AddNew();
    Makale{QStringLiteral("YENİ YAZAR"), başlık, QString(boy, u'a'), {}, {}}.Yaz(kayıtlar);
    kayıtlar.Update();
    if (!eski.Eof()) // last, so that its pages stay free
        eski.Delete();
}

} // namespace

void DosyayıKopyala(const QString& kaynak, const QString& hedef)
{
    const int okunan = open(QFile::encodeName(kaynak).constData(), O_RDONLY | O_CLOEXEC);
    const int yazılan = open(QFile::encodeName(hedef).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC,
                             S_IRUSR | S_IWUSR);
    std::vector<char> blok(BlokBoyu);
    ssize_t boy = -1;
    bool tamam = okunan >= 0 && yazılan >= 0;
    while (tamam && (boy = read(okunan, blok.data(), blok.size())) > 0)
        tamam = write(yazılan, blok.data(), static_cast<std::size_t>(boy)) == boy;
    tamam = tamam && boy == 0 && fsync(yazılan) == 0;
    close(okunan);
    close(yazılan);
    Sağla(tamam, "a whole copy of the library file");
}

void Sağla(bool doğru, const char* beklenen)
{
    if (!doğru)
        throw std::runtime_error(std::string("expected ") + beklenen);
}

void AçılışıÖlç(const KapalıOrtam& ortam)
{
    const QString kopya = ProgramKlasörü + QStringLiteral("karşılaştırma");
    const auto ölç = [&](const QString& ad, std::optional<double> oran,
                         const std::function<void()>& hazırla) {
        Ölçüm ölçüm{
            ad, [] { AçıkOturum.Aç(ProgramKlasörü); }, QStringLiteral("dosyayı kopyalayıp diske yazma"),
            [&kopya] { DosyayıKopyala(KitaplıkYolu(ProgramKlasörü, DosyaAdları::Kitaplık), kopya); }, 5};
        if (oran && ortam.Kitaplık.MakaleSayısı() >= AmaçlıMakaleSayısı)
            ölçüm.Hedef = Amaç{Amaç::Tür::Oran, *oran};
        ölçüm.İşHazırlığı = hazırla;
        ölçüm.TabanHazırlığı = [&kopya] { QFile::remove(kopya); };
        ortam.Çizelge.Satır(ölçüm);
        AçıkOturum.Bırak();
    };
    ölç(QStringLiteral("Değişmemişi açma"), DeğişmemişinAmacı, [] { AçıkOturum.Bırak(); });
    ölç(QStringLiteral("Değişmişi açma"), DeğişmişinAmacı, [] {
        if (!AçıkOturum.Veritabanı)
            return;
        değiştir(*AçıkOturum.Veritabanı);
        AçıkOturum.Veritabanı.reset();
        AçıkOturum.ÇalışmaAlanı.reset();
        VeritabanınıMühürle(*AçıkOturum.Motor, ProgramKlasörü);
        AçıkOturum.Bırak();
    });
    ölç(QStringLiteral("Çökmüşü açma"), {}, [] {
        if (AçıkOturum.Veritabanı)
            değiştir(*AçıkOturum.Veritabanı);
        AçıkOturum.Bırak();
    });
    QFile::remove(kopya);
}
