#include "store/MakaleKitaplığı.h"

#include "store/KitaplıkAnahtarı.h"
#include "store/KitaplıkDosyası.h"
#include "store/ÇalışmaGrubu.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

const QString SahipAdı = QStringLiteral("Sahip");
const QString SahipParolası = QStringLiteral("Kaplumbaga");
const QString KullanıcıAdı = QStringLiteral("Kullanici");
const QString KullanıcıParolası = QStringLiteral("Hoppaaa");
const QString KullanıcıKimliği = QStringLiteral("3Cizgi3");

const QString KitaplıkParolası = QStringLiteral("Pelikan");
const QString AçmaMetni = QStringLiteral(";PWD=") + KitaplıkParolası;
const QString KaynakYereli = QStringLiteral(";Pwd=") + KitaplıkParolası;
const QString HedefYereli = QStringLiteral(";LANGID=0x041F;CP=1254;COUNTRY=0");

// While a library is being made. The library comes into place last: beside a file with this ending, a
// workgroup file alone is what a killed making left, and belongs to no library.
const QString YeniEki = QStringLiteral(".yeni");
constexpr qint64 BoşGünlükBoyu = 4096; // of one that holds a header only, at the most

/// An empty file is half of a library too: it holds nothing that could be lost.
bool dolu(const QString& yol)
{
    return QFileInfo::exists(yol) && QFileInfo(yol).size() > 0;
}

} // namespace

QString KitaplıkYolu(const QString& klasör, QStringView dosya)
{
    return klasör + dosya.toString();
}

void KitaplıkKurulabilmeli(const QString& klasör)
{
    const QString kitaplık = KitaplıkYolu(klasör, DosyaAdları::Kitaplık);
    const QString grup = KitaplıkYolu(klasör, DosyaAdları::Grup);
    const bool yarımdı = QFileInfo::exists(kitaplık + YeniEki);
    if (dolu(kitaplık))
        throw VeritabanıHatası(HataNo::DosyaVar, kitaplık);
    if (dolu(grup) && !yarımdı)
        throw VeritabanıHatası(HataNo::DosyaVar, grup);
    // From these two a library that has lost its file can still be brought back.
    const QString kopya = KitaplıkYolu(klasör, DosyaAdları::Kopya);
    if (dolu(kopya))
        throw VeritabanıHatası(HataNo::DosyaVar, kopya);
    if (QFileInfo(GünlükYolu(kitaplık)).size() > BoşGünlükBoyu)
        throw VeritabanıHatası(HataNo::DosyaVar, GünlükYolu(kitaplık));
}

void KitaplıkKur(const QString& klasör)
{
    KitaplıkKur(klasör, [](const QString& yol) {
        QByteArray tuz = YeniTuz();
        BoşDosyaOluştur(yol, KitaplıkAnahtarı(tuz));
        return tuz;
    });
}

void KitaplıkKur(const QString& klasör, const std::function<QByteArray(const QString&)>& dosyayıYap)
{
    KitaplıkKurulabilmeli(klasör);
    const QString kitaplık = KitaplıkYolu(klasör, DosyaAdları::Kitaplık);
    const QString grup = KitaplıkYolu(klasör, DosyaAdları::Grup);
    const QString yeniKitaplık = kitaplık + YeniEki, yeniGrup = grup + YeniEki;
    // A journal that holds no page would still spoil the new library.
    for (const QString& yol : {yeniKitaplık, yeniGrup, GünlükYolu(kitaplık), GünlükYolu(grup),
                               GünlükYolu(yeniKitaplık), GünlükYolu(yeniGrup)})
        DosyayıSil(yol);
    GeçiciDosya yarımKitaplık(yeniKitaplık), yarımGrup(yeniGrup);
    const QByteArray tuz = dosyayıYap(yeniKitaplık);
    User sahip(SahipAdı);
    sahip.Password(SahipParolası);
    ÇalışmaGrubu::Oluştur(yeniGrup, sahip, KitaplıkParolası, tuz);
    DosyayıTaşı(yeniGrup, grup);
    GeçiciDosya yalnızGrup(grup);
    DosyayıTaşı(yeniKitaplık, kitaplık);
    yalnızGrup.Kalsın();
}

Anahtar KitaplıkAnahtarı(const QByteArray& tuz)
{
    return TuzluAnahtar(KitaplıkParolası.toUtf8(), tuz);
}

void KitaplığıHazırla(const QString& klasör)
{
    QFile dosya(KitaplıkYolu(klasör, DosyaAdları::Kitaplık));
    if (!QFileInfo(dosya).isFile() || !dosya.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return;
    const QByteArray tuz = dosya.read(TuzBoyu);
    if (tuz.size() == TuzBoyu)
        AnahtarıHazırla(KitaplıkParolası.toUtf8(), tuz);
}

Workspace SahipÇalışmaAlanı(DBEngine& motor)
{
    return motor.CreateWorkspace({}, SahipAdı, SahipParolası);
}

Workspace KullanıcıÇalışmaAlanı(DBEngine& motor)
{
    return motor.CreateWorkspace({}, KullanıcıAdı, KullanıcıParolası);
}

YapıDurumu VeritabanınıSıkıştır(DBEngine& motor, const QString& klasör,
                                const DBEngine::İlerlemeBildirimi& bildir)
{
    const QString kitaplık = KitaplıkYolu(klasör, DosyaAdları::Kitaplık);
    const QString kopya = KitaplıkYolu(klasör, DosyaAdları::Kopya);
    const QString yeni = kopya + u'~';
    YalnızSahibineAç(KitaplıkYolu(klasör, DosyaAdları::Grup));
    const auto sıkıştır = [&] {
        DosyayıSil(yeni);
        return motor.CompactDatabase(kitaplık, yeni, HedefYereli, dbEncrypt, KaynakYereli);
    };
    SıkıştırmaSonucu sonuç{};
    // The last start's copy goes only when a new one is whole: if the library turns out to be damaged, it
    // is the last good one. Where the disk has no room for both it must make room.
    try {
        sonuç = sıkıştır();
    } catch (const VeritabanıHatası& hata) {
        if (hata != HataNo::DiskDolu || !QFileInfo::exists(kopya))
            throw;
        DosyayıSil(kopya);
        sonuç = sıkıştır();
    }
    // Of two files with the same bytes either may be the library and the other one its copy.
    const bool değişti = sonuç.İçi == Kopyanınki::AynıBaytlar && DosyalarıDeğiştir(yeni, kitaplık);
    DosyayıTaşı(yeni, kopya);
    if (!değişti)
        DosyayıYerineKoy(kopya, kitaplık, bildir);
    return sonuç.Durum;
}

double SıkıştırmaOranı(const QString& klasör)
{
    const QString kitaplık = KitaplıkYolu(klasör, DosyaAdları::Kitaplık);
    const auto pay = [boy = double(QFileInfo(kitaplık).size())](const QString& yol) {
        const QFileInfo dosya(yol);
        return dosya.exists() && boy > 0 ? std::min(double(dosya.size()) / boy, 1.0) / 2 : 0.0;
    };
    const QString yerineGelen = QFileInfo(kitaplık).canonicalFilePath() + u'~';
    return QFileInfo::exists(yerineGelen) ? 0.5 + pay(yerineGelen)
                                          : pay(KitaplıkYolu(klasör, DosyaAdları::Kopya) + u'~');
}

void VeritabanınıMühürle(DBEngine& motor, const QString& klasör)
{
    motor.SealDatabase(KitaplıkYolu(klasör, DosyaAdları::Kitaplık), KaynakYereli);
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
    return çalışmaAlanı.OpenDatabase(KitaplıkYolu(klasör, DosyaAdları::Kitaplık), false, false, AçmaMetni);
}

Database OkunurKitaplıkAç(const Workspace& çalışmaAlanı, const QString& klasör)
{
    try {
        return KitaplıkAç(çalışmaAlanı, klasör);
    } catch (const VeritabanıHatası& hata) {
        if (hata != HataNo::SaltOkunur)
            throw;
        return çalışmaAlanı.OpenDatabase(KitaplıkYolu(klasör, DosyaAdları::Kitaplık), false, true, AçmaMetni);
    }
}

std::unique_ptr<Bağlantı> KitaplıkBağlantısı(const QString& klasör, AçmaKipi kip, ÇalışmaGrubu& grup)
{
    return KitaplıkBağlantısı(KitaplıkYolu(klasör, DosyaAdları::Kitaplık), KitaplıkParolası, kip, grup);
}

std::optional<HataNo> YabancıGrup(ÇalışmaGrubu& grup)
{
    if (!grup.HesapGeçerli(SahipAdı, SahipParolası))
        return HataNo::HesapGeçersiz;
    if (!grup.KitaplıkParolasıDoğru(KitaplıkParolası))
        return HataNo::ParolaYanlış;
    return {};
}
