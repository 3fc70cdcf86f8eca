#include "store/KitaplıkDenetimi.h"

#include "store/KitaplıkDosyası.h"
#include "store/KitaplıkYapısı.h"
#include "store/MakaleKitaplığı.h"
#include "store/MakaleKuralları.h"
#include "store/MakaleOkuyucu.h"
#include "store/ÇalışmaGrubu.h"
#include "text/TürkçeHarfler.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QTemporaryDir>

#include <algorithm>
#include <array>

namespace {

constexpr qint64 EnÇokMakale = 20; // bad articles that are named one by one
constexpr qsizetype EnUzunAd = 80; // characters of a title that names one

const QString FazlaBaytMetni = QStringLiteral("Dosyanın sonunda kitaplığa ait olmayan baytlar var.");
const QString EskiSayfaMetni =
    QStringLiteral("Dosyanın bir bölümü, son kapanıştan önceki eski haline dönmüş; bir makale eski metniyle "
                   "görünüyor olabilir.");
const QString YarımMetni = QStringLiteral(
    "%1 dosyasında yarım kalmış bir yazma var; dosya bir sonraki açılışta ondan önceki durumuna döner.");
/// In the order of MakaleKusuru; %1 is a number of articles.
const std::array<QString, MakaleKusuruSayısı> KusurMetinleri = {
    QStringLiteral("%1 makalenin yazar adında ya da başlığında kesme işareti (') var; program bunları bulup "
                   "gösteremez."),
    QStringLiteral("%1 makalenin künyesi pencerede yazılacağı gibi değil (küçük harf, kenarda boşluk)."),
    QStringLiteral("%1 makalenin yazar adı tek sözcük; değiştirilince iki sözcük istenir."),
    QStringLiteral("%1 makalenin yayım yeri ya da metni boş; değiştirilince istenir."),
    QStringLiteral("%1 makalenin bir alanı pencerede yazılabilenden uzun; değiştirilince kısalır."),
    QStringLiteral("%1 makalenin başlığı kendisinden önceki bir makaleninkiyle aynı; program yalnızca ilkini "
                   "gösterir."),
};

DenetimBulgusu bulgu(QStringView dosya, HataNo numara, const QString& metin)
{
    return {dosya.toString(), numara, metin};
}

// The error's own sentence may name a copy, so only its number is used.
DenetimBulgusu bulgu(QStringView dosya, const VeritabanıHatası& hata)
{
    return bulgu(dosya, hata.Tür(), VeritabanıHatası(hata.Tür()).Açıklama());
}

/// Checks one library; whoever makes one takes the result when both files are done.
class Denetçi
{
public:
    Denetçi(const QString& klasör, const DenetimBildirimi& bildir)
        : kilit_(klasör), klasör_(klasör), bildir_(bildir)
    {
    }

    void ÇalışmaGrubunuDenetle();
    void VeritabanınıDenetle(); ///< after the workgroup file
    DenetimSonucu Sonuç() { return std::move(sonuç_); }

private:
    struct Kaynak
    {
        QString klasör;
        AçmaKipi kip;
    };

    void dene(QStringView dosya, const std::function<void()>& iş);
    void ekle(const DenetimBulgusu& yeni);
    QString geçiciKlasör() const;
    Kaynak kaynak(QStringView dosya);

    YapıDurumu yapı(Bağlantı& kitaplık);
    bool eskiSayfaVar(const Bağlantı& kitaplık);
    void satırlar(Bağlantı& kitaplık, YapıDurumu durum);
    std::optional<DenetimBulgusu> kusur(const std::optional<Makale>& makale);

    KlasörKilidi kilit_;
    QString klasör_;
    const DenetimBildirimi& bildir_;
    QTemporaryDir geçici_; // holds encrypted files only
    std::unique_ptr<ÇalışmaGrubu> grup_;
    DenetimSonucu sonuç_;
    std::array<qint64, MakaleKusuruSayısı> kusurlular_ = {}; // articles
    QSet<QString> başlıklar_;                                // folded
};

void Denetçi::ekle(const DenetimBulgusu& yeni)
{
    if (std::find(sonuç_.Bulgular.begin(), sonuç_.Bulgular.end(), yeni) == sonuç_.Bulgular.end())
        sonuç_.Bulgular.push_back(yeni);
}

void Denetçi::dene(QStringView dosya, const std::function<void()>& iş)
{
    try {
        iş();
    } catch (const VeritabanıHatası& hata) {
        ekle(bulgu(dosya, hata));
    }
}

QString Denetçi::geçiciKlasör() const
{
    if (!geçici_.isValid())
        throw VeritabanıHatası(HataNo::DiskHatası, QDir::tempPath());
    return geçici_.path() + u'/';
}

/// The folder in which the file can be opened without being changed.
Denetçi::Kaynak Denetçi::kaynak(QStringView dosya)
{
    const QString asıl = QFileInfo(KitaplıkYolu(klasör_, dosya)).canonicalFilePath();
    if (asıl.isEmpty() || !YarımYazmaVar(asıl))
        return {klasör_, AçmaKipi::Oku};
    sonuç_.Notlar.append(YarımMetni.arg(dosya));
    const QString kopya = KitaplıkYolu(geçiciKlasör(), dosya);
    GünlüğüyleKopyala(asıl, kopya, [](qint64) {});
    return {geçiciKlasör(), AçmaKipi::OkuYaz};
}

void Denetçi::ÇalışmaGrubunuDenetle()
{
    const QStringView dosya = DosyaAdları::Grup;
    const Kaynak yer = kaynak(dosya);
    dene(dosya, [&] {
        auto grup = std::make_unique<ÇalışmaGrubu>(KitaplıkYolu(yer.klasör, dosya), yer.kip);
        grup->Hesaplar();
        const std::optional<HataNo> yabancı = YabancıGrup(*grup);
        grup_ = std::move(grup);
        if (yabancı)
            throw VeritabanıHatası(*yabancı);
    });
    if (grup_)
        return;
    // With any sound workgroup file the library can be looked at.
    const QString yedek = geçiciKlasör() + QStringLiteral("yedek/");
    QDir().mkpath(yedek);
    KitaplıkKur(yedek);
    grup_ = std::make_unique<ÇalışmaGrubu>(KitaplıkYolu(yedek, dosya));
}

void Denetçi::VeritabanınıDenetle()
{
    const QStringView dosya = DosyaAdları::Kitaplık;
    const Kaynak yer = kaynak(dosya);
    dene(dosya, [&] {
        const auto kitaplık = KitaplıkBağlantısı(yer.klasör, yer.kip, *grup_);
        satırlar(*kitaplık, yapı(*kitaplık));
        if (yer.kip == AçmaKipi::Oku && eskiSayfaVar(*kitaplık))
            ekle(bulgu(dosya, HataNo::DosyaBozuk, EskiSayfaMetni));
    });
    for (std::size_t i = 0; i < kusurlular_.size(); ++i) {
        if (kusurlular_[i] > 0)
            sonuç_.Notlar.append(KusurMetinleri[i].arg(kusurlular_[i]));
    }
}

YapıDurumu Denetçi::yapı(Bağlantı& kitaplık)
{
    const QStringView dosya = DosyaAdları::Kitaplık;
    kitaplık.İlerlemeAta([this] { bildir_(0, 0); });
    const YapıDurumu durum = GenelDurum(kitaplık, DenetimDerinliği::Dizinler);
    kitaplık.İlerlemeAta({});
    if (durum == YapıDurumu::DizinBozuk)
        ekle(bulgu(dosya, HataNo::DosyaBozuk, DizinBozukMetni.toString()));
    else if (durum == YapıDurumu::FazlaBayt)
        ekle(bulgu(dosya, HataNo::DosyaBozuk, FazlaBaytMetni));
    else if (durum != YapıDurumu::Sağlam)
        ekle(bulgu(dosya, VeritabanıHatası(HataNo::DosyaBozuk)));
    return durum;
}

/// Of pages that are whole; others were found before.
bool Denetçi::eskiSayfaVar(const Bağlantı& kitaplık)
{
    const std::optional<Mühür> mühür = grup_->KitaplıkMührü();
    if (!mühür)
        return false;
    const SayfaBulgusu sayfalar =
        SayfalarıDenetle(kitaplık.Yol(), KitaplıkAnahtarı(kitaplık.Tuz()), [this] { bildir_(0, 0); });
    return sayfalar.Doğru && sayfalar.Bulunan.Kimlik == mühür->Kimlik && sayfalar.Bulunan.Özet != mühür->Özet;
}

void Denetçi::satırlar(Bağlantı& kitaplık, YapıDurumu durum)
{
    MakaleOkuyucu okuyucu(kitaplık, durum);
    sonuç_.MakaleSayısı = qint64(okuyucu.Künyeler().size());

    const QStringView dosya = DosyaAdları::Kitaplık;
    qint64 okunan = 0, kusurlu = 0;
    for (const MakaleKünyesi& künye : okuyucu.Künyeler()) {
        std::optional<DenetimBulgusu> bulunan = kusur(okuyucu.Oku(künye));
        if (bulunan && ++kusurlu <= EnÇokMakale) {
            bulunan->Metin = QStringLiteral("“%1” başlıklı makale: %2")
                                 .arg(künye.MakaleBasligi.left(EnUzunAd), bulunan->Metin);
            ekle(*bulunan);
        }
        bildir_(++okunan, sonuç_.MakaleSayısı);
    }
    if (kusurlu > EnÇokMakale)
        ekle(bulgu(dosya, HataNo::DosyaBozuk, QStringLiteral("Toplam %1 makale kusurlu.").arg(kusurlu)));
}

/// @param makale nothing where it can't be read whole
std::optional<DenetimBulgusu> Denetçi::kusur(const std::optional<Makale>& makale)
{
    const QStringView dosya = DosyaAdları::Kitaplık;
    if (!makale)
        return bulgu(dosya, VeritabanıHatası(HataNo::DosyaBozuk));
    if (const QString sorun = DeğerSorunu(*makale); !sorun.isEmpty())
        return bulgu(dosya, HataNo::DeğerGeçersiz, sorun);
    auto kusurlar = Kusurları(*makale);
    const QString başlık = Katla(makale->Başlık);
    kusurlar[static_cast<std::size_t>(MakaleKusuru::AynıBaşlık)] = başlıklar_.contains(başlık);
    başlıklar_.insert(başlık);
    for (std::size_t i = 0; i < kusurlular_.size(); ++i)
        kusurlular_[i] += kusurlar[i] ? 1 : 0;
    return {};
}

} // namespace

DenetimSonucu KitaplığıDenetle(const QString& klasör, const DenetimBildirimi& bildir)
{
    Denetçi denetçi(klasör, bildir);
    denetçi.ÇalışmaGrubunuDenetle();
    denetçi.VeritabanınıDenetle();
    return denetçi.Sonuç();
}
