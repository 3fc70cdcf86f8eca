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

YapıDurumu DBEngine::CompactDatabase(const QString& kaynak, const QString& hedef, const QString& hedefYereli,
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
    auto asıl = kitaplıkAç(kaynak, parola, AçmaKipi::OkuYaz, grup);
    YapıDurumu durum = YapıyıDenetle(*asıl, DenetimDerinliği::Sayfalar);
    if (durum > YapıDurumu::Okunamıyor)
        throw VeritabanıHatası(HataNo::DosyaBozuk, kaynak);
    if (durum == YapıDurumu::Sağlam) {
        try {
            durum = kopyalaVeDoğrula(*asıl, hedef, parola, grup, DizinKaynağı::Dizinler);
        } catch (const VeritabanıHatası& hata) {
            if (hata != HataNo::DosyaBozuk)
                throw;
            durum = YapıDurumu::Okunamıyor;
        }
    }
    if (durum != YapıDurumu::Sağlam) { // if only an index is damaged, no article is lost
        asıl.reset();                  // holds on to the copy where that failed
        asıl = kitaplıkAç(kaynak, parola, AçmaKipi::OkuYaz, grup);
        kopyalaVeDoğrula(*asıl, hedef, parola, grup, DizinKaynağı::Satırlar);
        durum = YapıDurumu::DizinBozuk;
    }
    DiskeYaz(hedef);
    grup.KitaplıkTuzu(asıl->Tuz());
    kopya.Kalsın();
    return durum;
}

std::unique_ptr<Bağlantı> DBEngine::kitaplıkAç(const QString& yol, const QString& parola, AçmaKipi kip,
                                               ÇalışmaGrubu& grup) const
{
    auto bağlantı = KitaplıkBağlantısı(yol, parola, kip, grup);
    bağlantı->İlerlemeAta(bildir_);
    return bağlantı;
}

/// Returns what the source's indices are worth; throws DosyaBozuk, in the source's name, where its rows are
/// not to be trusted.
YapıDurumu DBEngine::kopyalaVeDoğrula(Bağlantı& kaynak, const QString& hedef, const QString& parola,
                                      ÇalışmaGrubu& grup, DizinKaynağı dizinler) const
try {
    const qint64 satırlar = KitaplığıKopyala(kaynak, hedef, parola, dizinler);
    if (DüzMetinVeritabanı(hedef))
        throw VeritabanıHatası(HataNo::İzinYok, hedef);
    const SatırToplamı okunan = TümSatırlarıOku(*kitaplıkAç(hedef, parola, AçmaKipi::Oku, grup));
    const YapıDurumu durum = DizinleriDenetle(kaynak, okunan);
    if (okunan.Satırlar != satırlar || durum == YapıDurumu::Bozuk)
        throw VeritabanıHatası(HataNo::DosyaBozuk);
    return durum;
} catch (const VeritabanıHatası& hata) {
    if (hata != HataNo::DosyaBozuk)
        throw;
    throw VeritabanıHatası(HataNo::DosyaBozuk, kaynak.Yol());
}
