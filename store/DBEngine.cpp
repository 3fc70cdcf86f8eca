#include "store/DBEngine.h"

#include "store/DosyaTanıma.h"
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

void DBEngine::CompactDatabase(const QString& kaynak, const QString& hedef, const QString& hedefYereli,
                               int seçenekler, const QString& kaynakYereli)
{
    if (hedefYereli != TürkçeYerel)
        throw VeritabanıHatası(HataNo::KitaplıkDeğil, hedefYereli);
    if (seçenekler != dbEncrypt)
        throw VeritabanıHatası(HataNo::İzinYok, hedef);
    if (QFileInfo::exists(hedef))
        throw VeritabanıHatası(HataNo::DosyaVar, hedef);

    const QString parola = BağlantıMetnindenParola(kaynakYereli);
    // For writing, though nothing is: where the accounts can't be changed, the start stops before the
    // library is replaced.
    ÇalışmaGrubu grup(grupYolu_, AçmaKipi::OkuYaz);
    GeçiciDosya kopya(hedef);
    const auto dene = [&](DizinKaynağı dizinler) { kopyalaVeDoğrula(kaynak, hedef, parola, grup, dizinler); };
    try {
        dene(DizinKaynağı::Dizinler);
    } catch (const VeritabanıHatası& hata) {
        if (hata.Numara() != HataNo::DosyaBozuk)
            throw;
        dene(DizinKaynağı::Satırlar); // if only an index is damaged, no article is lost
    }
    DiskeYaz(hedef);
    kopya.Kalsın();
}

void DBEngine::kopyalaVeDoğrula(const QString& kaynak, const QString& hedef, const QString& parola,
                                ÇalışmaGrubu& grup, DizinKaynağı dizinler) const
{
    qint64 satırlar = 0;
    {
        const auto bağlantı = KitaplıkBağlantısı(kaynak, parola, AçmaKipi::OkuYaz, grup);
        bağlantı->İlerlemeAta(bildir_);
        satırlar = KitaplığıKopyala(*bağlantı, hedef, parola, dizinler);
    }
    if (DüzMetinVeritabanı(hedef))
        throw VeritabanıHatası(HataNo::İzinYok, hedef);
    const auto bağlantı = KitaplıkBağlantısı(hedef, parola, AçmaKipi::Oku, grup);
    bağlantı->İlerlemeAta(bildir_);
    if (TümSatırlarıOku(*bağlantı) != satırlar)
        throw VeritabanıHatası(HataNo::DosyaBozuk, kaynak);
}
