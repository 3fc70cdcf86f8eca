#include "store/KitaplıkSıkıştırma.h"

#include "store/DosyaTanıma.h"
#include "store/KitaplıkDosyası.h"
#include "store/KitaplıkMührü.h"
#include "store/ÇalışmaGrubu.h"
#include "text/TürkçeSıralama.h"

#include <optional>

namespace {

/// Made for one copy.
class Sıkıştırıcı
{
public:
    Sıkıştırıcı(const QString& kaynak, const QString& hedef, const QString& parola, ÇalışmaGrubu& grup,
                const std::function<void()>& bildir)
        : kaynak_(kaynak), hedef_(hedef), parola_(parola), grup_(grup), bildir_(bildir)
    {
    }

    SıkıştırmaSonucu Sıkıştır();

private:
    std::unique_ptr<Bağlantı> aç(const QString& yol, AçmaKipi kip) const;
    void kaynağıAç();
    SıkıştırmaSonucu kopyala();
    bool sayfalarıAlınır(const Mühür& mühür) const;
    bool sayfalarıKopyala(const Mühür& mühür);
    bool kopyayıBuda();
    bool satırlarıKopyala(const Mühür& mühür);
    YapıDurumu denetleyerekKopyala();
    YapıDurumu kopyalaVeDoğrula(DizinKaynağı dizinler);

    QString kaynak_, hedef_, parola_;
    ÇalışmaGrubu& grup_;
    const std::function<void()>& bildir_;
    std::unique_ptr<Bağlantı> asıl_;
    Anahtar anahtar_;
    std::optional<Mühür> yeniMühür_; // of the copy, where it is known
    Kopyanınki kopyanınki_ = Kopyanınki::YeniBaytlar;
    bool sayfaEski_ = false; // some page is whole, but not the one that was sealed
};

SıkıştırmaSonucu Sıkıştırıcı::Sıkıştır()
{
    GeçiciDosya kopya(hedef_);
    if (YarımYazmaVar(kaynak_)) // of a program that knows no seals: it is rolled back now
        grup_.MührüKır();
    kaynağıAç();
    const SıkıştırmaSonucu sonuç = kopyala();
    DiskeYaz(hedef_);
    grup_.KitaplıkTuzu(asıl_->Tuz());
    if (!yeniMühür_)
        yeniMühür_ = MühürBas(hedef_, anahtar_);
    yeniMühür_->Hali = Sıkılık::Sıkı;
    grup_.Mühürle(*yeniMühür_);
    kopya.Kalsın();
    return sonuç;
}

std::unique_ptr<Bağlantı> Sıkıştırıcı::aç(const QString& yol, AçmaKipi kip) const
{
    auto bağlantı = KitaplıkBağlantısı(yol, parola_, kip, grup_);
    bağlantı->İlerlemeAta(bildir_);
    return bağlantı;
}

void Sıkıştırıcı::kaynağıAç()
{
    asıl_.reset(); // holds on to the copy where making it failed
    asıl_ = aç(kaynak_, AçmaKipi::OkuYaz);
    anahtar_ = TuzluAnahtar(parola_.toUtf8(), asıl_->Tuz());
}

SıkıştırmaSonucu Sıkıştırıcı::kopyala()
{
    const std::optional<Mühür> mühür = grup_.KitaplıkMührü();
    if (mühür && mühür->Kimlik == DosyaKimliği(kaynak_, anahtar_)) {
        if (sayfalarıAlınır(*mühür) ? sayfalarıKopyala(*mühür) : satırlarıKopyala(*mühür))
            return {YapıDurumu::Sağlam, kopyanınki_};
        yeniMühür_.reset();
        kaynağıAç();
        DosyayıSil(hedef_);
    }
    const YapıDurumu durum = denetleyerekKopyala();
    // Unless the old page was an index's, it is the table's, where nothing contradicts it.
    if (sayfaEski_ && durum == YapıDurumu::Sağlam)
        throw VeritabanıHatası(HataNo::DosyaBozuk, kaynak_);
    return {durum, Kopyanınki::YeniBaytlar};
}

/// Whether the pages are to be taken over, but for those that nothing stands on. Now and then all rows are
/// copied once again, so that what belongs together lies together.
bool Sıkıştırıcı::sayfalarıAlınır(const Mühür& mühür) const
{
    return mühür.Sıralama == QByteArray::fromStdString(SıralamaSürümü()) &&
           (mühür.Hali == Sıkılık::Sıkı || (DeğişenOturumlar(*asıl_) < EnÇokOturum && Budanabilir(*asıl_)));
}

/// @return false where it is not what was sealed after all, and has to be looked through; as the next one
bool Sıkıştırıcı::sayfalarıKopyala(const Mühür& mühür)
try {
    DosyayıKopyala(kaynak_, hedef_, [this](qint64) {
        if (bildir_)
            bildir_();
    });
    const SayfaBulgusu kopyadaki = SayfalarıDenetle(hedef_, anahtar_, bildir_);
    sayfaEski_ = kopyadaki.Doğru && !kopyadaki.Bulunan.AynıSayfalar(mühür);
    if (!kopyadaki.Doğru || sayfaEski_)
        return false;
    yeniMühür_ = kopyadaki.Bulunan;
    kopyanınki_ = Kopyanınki::AynıBaytlar;
    return mühür.Hali == Sıkılık::Sıkı || kopyayıBuda();
} catch (const VeritabanıHatası& hata) {
    if (hata != HataNo::DosyaBozuk)
        throw;
    return false;
}

bool Sıkıştırıcı::kopyayıBuda()
{
    if (!KopyayıBuda(hedef_, anahtar_))
        return true;
    kopyanınki_ = Kopyanınki::YeniBaytlar;
    const SayfaBulgusu budanan = SayfalarıDenetle(hedef_, anahtar_, bildir_);
    yeniMühür_ = budanan.Bulunan;
    return budanan.Doğru;
}

/// The pages are as SQLite wrote them last, so what it reads is what it meant.
bool Sıkıştırıcı::satırlarıKopyala(const Mühür& mühür)
try {
    const SayfaBulgusu kaynaktaki = SayfalarıDenetle(kaynak_, anahtar_, bildir_);
    sayfaEski_ = kaynaktaki.Doğru && !kaynaktaki.Bulunan.AynıSayfalar(mühür);
    if (!kaynaktaki.Doğru || sayfaEski_)
        return false;
    const qint64 satırlar = KitaplığıKopyala(*asıl_, hedef_, parola_, DizinKaynağı::Dizinler);
    DiskeYazmayaBaşla(hedef_);
    const SayfaBulgusu kopyadaki = SayfalarıDenetle(hedef_, anahtar_, bildir_);
    if (DüzMetinVeritabanı(hedef_) || !kopyadaki.Doğru ||
        !DizinlerinSayısıUyar(*aç(hedef_, AçmaKipi::Oku), satırlar))
        return false;
    yeniMühür_ = kopyadaki.Bulunan;
    return true;
} catch (const VeritabanıHatası& hata) {
    if (hata != HataNo::DosyaBozuk)
        throw;
    return false;
}

YapıDurumu Sıkıştırıcı::denetleyerekKopyala()
{
    YapıDurumu durum = YapıyıDenetle(*asıl_, DenetimDerinliği::Sayfalar);
    if (durum > YapıDurumu::Okunamıyor)
        throw VeritabanıHatası(HataNo::DosyaBozuk, kaynak_);
    if (durum == YapıDurumu::Sağlam) {
        try {
            durum = kopyalaVeDoğrula(DizinKaynağı::Dizinler);
        } catch (const VeritabanıHatası& hata) {
            if (hata != HataNo::DosyaBozuk)
                throw;
            durum = YapıDurumu::Okunamıyor;
        }
    }
    if (durum != YapıDurumu::Sağlam) { // if only an index is damaged, no article is lost
        kaynağıAç();
        kopyalaVeDoğrula(DizinKaynağı::Satırlar);
        durum = YapıDurumu::DizinBozuk;
    }
    return durum;
}

/// Returns what the source's indices are worth; throws DosyaBozuk, in the source's name, where its rows are
/// not to be trusted.
YapıDurumu Sıkıştırıcı::kopyalaVeDoğrula(DizinKaynağı dizinler)
try {
    const qint64 satırlar = KitaplığıKopyala(*asıl_, hedef_, parola_, dizinler);
    DiskeYazmayaBaşla(hedef_);
    if (DüzMetinVeritabanı(hedef_))
        throw VeritabanıHatası(HataNo::İzinYok, hedef_);
    const SatırToplamı okunan = TümSatırlarıOku(*aç(hedef_, AçmaKipi::Oku));
    const YapıDurumu durum = DizinleriDenetle(*asıl_, okunan);
    if (okunan.Satırlar != satırlar || durum == YapıDurumu::Bozuk)
        throw VeritabanıHatası(HataNo::DosyaBozuk);
    return durum;
} catch (const VeritabanıHatası& hata) {
    if (hata != HataNo::DosyaBozuk)
        throw;
    throw VeritabanıHatası(HataNo::DosyaBozuk, kaynak_);
}

} // namespace

SıkıştırmaSonucu KitaplığıSıkıştır(const QString& kaynak, const QString& hedef, const QString& parola,
                                   ÇalışmaGrubu& grup, const std::function<void()>& bildir)
{
    return Sıkıştırıcı(kaynak, hedef, parola, grup, bildir).Sıkıştır();
}

void KitaplığıMühürle(const QString& yol, const QString& parola, ÇalışmaGrubu& grup)
{
    if (grup.KitaplıkMührü())
        return;
    QByteArray tuz;
    {
        const auto bağlantı = KitaplıkBağlantısı(yol, parola, AçmaKipi::OkuYaz, grup);
        NoVer(*bağlantı, DeğişenOturumlar(*bağlantı) + 1);
        tuz = bağlantı->Tuz();
    }
    grup.Mühürle(MühürBas(yol, TuzluAnahtar(parola.toUtf8(), tuz)));
}
