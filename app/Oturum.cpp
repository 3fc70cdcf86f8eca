#include "app/Oturum.h"

#include "app/Ayarlar.h"
#include "app/HataPolitikaları.h"
#include "store/KitaplıkYapısı.h"
#include "store/MakaleKitaplığı.h"

#include <cstdio>

namespace {

const QString DizinOnarıldıMetni =
    QStringLiteral("Bir dizin bozuktu; tablodan yeniden yapıldı. Makaleler tamam.");

} // namespace

void Oturum::sahipAlanınıAç(const QString& klasör, const DBEngine::İlerlemeBildirimi& bildir)
{
    klasör_ = klasör;
    Motor.emplace(bildir);
    Motor->SystemDB(KitaplıkYolu(klasör, DosyaAdları::Grup));
    ÇalışmaAlanı = SahipÇalışmaAlanı(*Motor);
}

YapıDurumu Oturum::Aç(const QString& klasör, const DBEngine::İlerlemeBildirimi& bildir)
{
    sahipAlanınıAç(klasör, bildir);
    const YapıDurumu durum = VeritabanınıSıkıştır(*Motor, klasör, bildir);
    if (durum != YapıDurumu::Sağlam)
        std::fprintf(stderr, "belgenar: Makale.mde: %s\n", qUtf8Printable(DizinOnarıldıMetni));
    KullanıcıHesabınıHazırla(*ÇalışmaAlanı);
    ÇalışmaAlanı->Close();
    ÇalışmaAlanı = KullanıcıÇalışmaAlanı(*Motor);
    Veritabanı = KitaplıkAç(*ÇalışmaAlanı, klasör);
    return durum;
}

void Oturum::SahipOlarakAç(const QString& klasör, Erişim erişim)
{
    sahipAlanınıAç(klasör, {});
    Veritabanı =
        erişim == Erişim::Yazma ? KitaplıkAç(*ÇalışmaAlanı, klasör) : OkunurKitaplıkAç(*ÇalışmaAlanı, klasör);
}

YapıDurumu Oturum::SıkıştırıpSahipOlarakAç(const QString& klasör)
{
    sahipAlanınıAç(klasör, {});
    const YapıDurumu durum = VeritabanınıSıkıştır(*Motor, klasör, {});
    Veritabanı = KitaplıkAç(*ÇalışmaAlanı, klasör);
    return durum;
}

void Oturum::Kapat(const PencereSonu& son)
{
    AdımAdım(
        [this] {
            Veritabanı.reset();
            ÇalışmaAlanı.reset();
        },
        [this] { VeritabanınıMühürle(Motor.value(), klasör_); },
        [this] {
            Workspace sahip = SahipÇalışmaAlanı(Motor.value());
            KullanıcıHesabınıSil(sahip);
            sahip.Close();
        },
        [&] {
            if (son.Yer) {
                AyarYaz(Ayarlar::Sol, son.Yer->x());
                AyarYaz(Ayarlar::Üst, son.Yer->y());
            }
        },
        [&] {
            // The first author is where a start without this setting begins, too.
            if (son.YazarSırası > 0)
                AyarYaz(Ayarlar::SonYazar, son.YazarSırası);
        },
        [&] { AyarYaz(Ayarlar::TamEkran, son.Durum); });
}

void Oturum::Bırak()
{
    Veritabanı.reset();
    ÇalışmaAlanı.reset();
    Motor.reset();
}
