#include "store/KitaplıkKurtarma.h"
#include "tools/Durdurma.h"
#include "tools/KomutGövdeleri.h"
#include "tools/Künye.h"
#include "tools/Uçbirim.h"

namespace {

void hesabıYaz(const KurtarmaSonucu& sonuç)
{
    Bildir(QStringLiteral("Kurtarılan   %1").arg(sonuç.Kitaplıktan + sonuç.Kopyadan));
    Bildir(QStringLiteral("  %1 kitaplıktan, %2 Makale.md_ yedeğinden (son açılıştaki haliyle)")
               .arg(sonuç.Kitaplıktan)
               .arg(sonuç.Kopyadan));
    Bildir(QStringLiteral("Kaybolan     %1").arg(sonuç.Kayıplar.size()));
    for (const MakaleKünyesi& künye : sonuç.Kayıplar)
        Bildir(QStringLiteral("  ") + KünyeMetni(künye));
}

void notlarıYaz(const KurtarmaSonucu& sonuç)
{
    if (sonuç.GeriAlındı)
        Bildir(QStringLiteral("Not: Yarım kalmış bir yazma geri alındı."));
    if (sonuç.KitaplıkHatası)
        Bildir(QStringLiteral("Not: Makale.mde dosyasından hiçbir şey okunamadı: %1")
                   .arg(VeritabanıHatası(*sonuç.KitaplıkHatası).Açıklama()));
    if (sonuç.KopyaHatası)
        Bildir(QStringLiteral("Not: Makale.md_ yedeğinden hiçbir şey okunamadı: %1")
                   .arg(VeritabanıHatası(*sonuç.KopyaHatası).Açıklama()));
    if (sonuç.BilinmeyenOlabilir)
        Bildir(QStringLiteral("Not: Adı bilinmeyen başka kayıplar da olabilir."));
    if (sonuç.Durum > YapıDurumu::Okunamıyor)
        Bildir(QStringLiteral("Not: Kurtarılanların bir bölümü eski ya da karışık olabilir."));
}

} // namespace

ÇıkışDurumu KurtarKomutu(const Değişkenler& değişkenler)
{
    const DurdurmaBekçisi bekçi;
    KurtarmaSonucu sonuç;
    {
        İlerleme ilerleme(QStringLiteral("Makaleler kurtarılıyor"));
        sonuç = KitaplığıKurtar(KlasörYolu(değişkenler.Sıralı()[0]), KlasörYolu(değişkenler.Sıralı()[1]),
                                değişkenler.Deneme() ? KurtarmaKipi::Dene : KurtarmaKipi::Kur,
                                ilerleme.Sürdüren(bekçi));
    }
    if (değişkenler.Deneme())
        Bildir(DenemeMetni);
    hesabıYaz(sonuç);
    notlarıYaz(sonuç);
    return sonuç.Kayıplar.empty() && !sonuç.BilinmeyenOlabilir ? Başarılı : Başarısız;
}
