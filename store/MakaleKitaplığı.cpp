#include "store/MakaleKitaplığı.h"

#include "store/KitaplıkDosyası.h"
#include "store/ÇalışmaGrubu.h"

#include <QFileInfo>

#include <algorithm>

namespace {

const QString SahipAdı = QStringLiteral("Sahip");
const QString SahipParolası = QStringLiteral("Kaplumbaga");
const QString KullanıcıAdı = QStringLiteral("Kullanici");
const QString KullanıcıParolası = QStringLiteral("Hoppaaa");
const QString KullanıcıKimliği = QStringLiteral("3Cizgi3");

const QString AçmaMetni = QStringLiteral(";PWD=Pelikan");
const QString KaynakYereli = QStringLiteral(";Pwd=Pelikan");
const QString HedefYereli = QStringLiteral(";LANGID=0x041F;CP=1254;COUNTRY=0");

} // namespace

QString KitaplıkYolu(const QString& klasör, QStringView dosya)
{
    return klasör + dosya.toString();
}

void KitaplıkKur(const QString& klasör)
{
    const QString kitaplık = KitaplıkYolu(klasör, KitaplıkDosyaları::Veritabanı);
    const QString grup = KitaplıkYolu(klasör, KitaplıkDosyaları::ÇalışmaGrubu);
    for (const QString& yol : {kitaplık, grup}) {
        if (QFileInfo::exists(yol))
            throw VeritabanıHatası(HataNo::DosyaVar, yol);
    }
    const QString parola = BağlantıMetnindenParola(AçmaMetni);
    GeçiciDosya yarımKitaplık(kitaplık), yarımGrup(grup);
    KitaplıkOluştur(kitaplık, parola);
    User sahip(SahipAdı);
    sahip.Password(SahipParolası);
    ÇalışmaGrubu::Oluştur(grup, sahip, parola);
    yarımKitaplık.Kalsın();
    yarımGrup.Kalsın();
}

Workspace SahipÇalışmaAlanı(DBEngine& motor)
{
    return motor.CreateWorkspace({}, SahipAdı, SahipParolası);
}

Workspace KullanıcıÇalışmaAlanı(DBEngine& motor)
{
    return motor.CreateWorkspace({}, KullanıcıAdı, KullanıcıParolası);
}

void VeritabanınıSıkıştır(DBEngine& motor, const QString& klasör, const DBEngine::İlerlemeBildirimi& bildir)
{
    const QString kitaplık = KitaplıkYolu(klasör, KitaplıkDosyaları::Veritabanı);
    const QString kopya = KitaplıkYolu(klasör, KitaplıkDosyaları::Kopya);
    DosyayıSil(kopya);
    motor.CompactDatabase(kitaplık, kopya, HedefYereli, dbEncrypt, KaynakYereli);
    DosyayıYerineKoy(kopya, kitaplık, bildir);
}

void KullanıcıHesabınıHazırla(const Workspace& sahip)
{
    const std::vector<User> hesaplar = sahip.Users().Tümü();
    if (std::any_of(hesaplar.begin(), hesaplar.end(),
                    [](const User& hesap) { return hesap.Name() == KullanıcıAdı; }))
        return;
    User kullanıcı = sahip.CreateUser(KullanıcıAdı);
    kullanıcı.PID(KullanıcıKimliği);
    kullanıcı.Password(KullanıcıParolası);
    sahip.Users().Append(kullanıcı);
}

void KullanıcıHesabınıSil(const Workspace& sahip)
{
    sahip.Users().Delete(KullanıcıAdı);
}

Database KitaplıkAç(const Workspace& çalışmaAlanı, const QString& klasör)
{
    return çalışmaAlanı.OpenDatabase(KitaplıkYolu(klasör, KitaplıkDosyaları::Veritabanı), false, false,
                                     AçmaMetni);
}
