#include "store/DBEngine.h"

#include "store/KitaplıkDosyası.h"
#include "store/SistemHatası.h"
#include "store/ÇalışmaGrubu.h"

#include <QFileInfo>

#include <cerrno>

namespace {

// The only collation that libraries have, as the connect string names it.
constexpr QStringView TürkçeYerel = u";LANGID=0x041F;CP=1254;COUNTRY=0";

} // namespace

DBEngine::DBEngine(İlerlemeBildirimi bildir) : bildir_(std::move(bildir)) {}

void DBEngine::SystemDB(const QString& yol)
{
    if (!QFileInfo::exists(yol))
        SistemHatasıVer(ENOENT, Erişim::Okuma, yol);
    if (yol == grupYolu_)
        return;
    kilit_ = KlasörKilidi(QFileInfo(yol).absolutePath()); // the old one is let go of after it
    grupYolu_ = yol;
}

Workspace DBEngine::CreateWorkspace(const QString& ad, const QString& kullanıcı, const QString& parola)
{
    auto grup = std::make_unique<ÇalışmaGrubu>(grupYolu_, AçmaKipi::YazılabilirseYaz);
    if (!grup->HesapGeçerli(kullanıcı, parola))
        throw VeritabanıHatası(HataNo::HesapGeçersiz, kullanıcı);
    return Workspace(std::move(grup), ad, kullanıcı);
}

SıkıştırmaSonucu DBEngine::CompactDatabase(const QString& kaynak, const QString& hedef,
                                           const QString& hedefYereli, int seçenekler,
                                           const QString& kaynakYereli)
{
    if (hedefYereli != TürkçeYerel)
        throw VeritabanıHatası(HataNo::KitaplıkDeğil, hedefYereli);
    if (seçenekler != dbEncrypt)
        throw VeritabanıHatası(HataNo::İzinYok, hedef);
    if (QFileInfo::exists(hedef))
        throw VeritabanıHatası(HataNo::DosyaVar, hedef);

    // For writing, though nothing may be: where the accounts can't be changed, the start stops before the
    // library is replaced.
    ÇalışmaGrubu grup(grupYolu_, AçmaKipi::OkuYaz);
    return KitaplığıSıkıştır(kaynak, hedef, BağlantıMetnindenParola(kaynakYereli), grup, bildir_);
}

void DBEngine::SealDatabase(const QString& yol, const QString& yerel)
{
    ÇalışmaGrubu grup(grupYolu_, AçmaKipi::OkuYaz);
    KitaplığıMühürle(yol, BağlantıMetnindenParola(yerel), grup);
}
