#include "store/KitaplıkKurtarma.h"

#include "store/DosyaTanıma.h"
#include "store/KitaplıkDosyası.h"
#include "store/KitaplıkKlasörü.h"
#include "store/KitaplıkMührü.h"
#include "store/KlasörKilidi.h"
#include "store/KurtarmaKaynağı.h"
#include "store/MakaleKitaplığı.h"
#include "store/MakaleToplayıcı.h"
#include "store/SistemHatası.h"
#include "store/Utf8Metni.h"
#include "store/ÇalışmaGrubu.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <cerrno>

namespace {

const QString GeçiciAd = QStringLiteral("Makale.kurtarma-");
constexpr auto EkleSql = "INSERT INTO Makaleler(Kimlik, YazarAdi, MakaleBasligi, YayimYeri, YayimTarihi,"
                         " MakaleMetni) VALUES(?1, ?2, ?3, ?4, ?5, ?6)";
constexpr int KimlikSırası = 1, İlkDeğerSırası = 2;
// The indices' pages, into which entries go in no order, should stay in memory.
constexpr auto ÖnbellekSql = "PRAGMA cache_size=-65536";

/// The new library while it is being filled: without journal and syncs, since half of it is worth nothing.
/// Whoever gave the name deletes the file where it doesn't become whole.
class YeniKitaplık
{
public:
    YeniKitaplık(const QString& yol, const Anahtar& anahtar) : yol_(yol), anahtar_(anahtar)
    {
        BoşDosyaOluştur(yol, anahtar);
        bağlantı_ = KitaplıkBağlantısı(yol, anahtar, AçmaKipi::OkuYaz);
        bağlantı_->Sayı("PRAGMA journal_mode=OFF");
        bağlantı_->Çalıştır("PRAGMA synchronous=OFF");
        bağlantı_->Çalıştır(ÖnbellekSql);
        bağlantı_->Çalıştır("BEGIN");
        ekleme_.emplace(*bağlantı_, EkleSql);
    }

    void Ekle(qint64 kimlik, const MakaleDeğerleri& değerler);
    /// Reads all of it back and writes it to the disk.
    void Bitir(const KurtarmaKaynağı::Sürdürme& sürsünMü);

private:
    QString yol_;
    Anahtar anahtar_;
    std::unique_ptr<Bağlantı> bağlantı_;
    std::optional<Deyim> ekleme_;
    SatırToplamı toplam_;
};

void YeniKitaplık::Ekle(qint64 kimlik, const MakaleDeğerleri& değerler)
try {
    ekleme_->Bağla(KimlikSırası, kimlik);
    for (std::size_t i = 0; i < değerler.size(); ++i)
        ekleme_->BağlaYazı(İlkDeğerSırası + int(i), değerler[i]);
    ekleme_->Çalıştır();
    toplam_.Ekle(değerler[0], değerler[1], kimlik);
} catch (const VeritabanıHatası& hata) {
    if (hata != HataNo::DosyaBozuk)
        throw;
    throw VeritabanıHatası(HataNo::DiskHatası, yol_); // else it would count as the source's damage
}

void YeniKitaplık::Bitir(const KurtarmaKaynağı::Sürdürme& sürsünMü)
{
    ekleme_.reset();
    bağlantı_->Onayla();
    bağlantı_.reset();
    if (DüzMetinVeritabanı(yol_))
        throw VeritabanıHatası(HataNo::İzinYok, yol_);
    const SayfaBulgusu sayfalar = SayfalarıDenetle(yol_, anahtar_, [&sürsünMü] {
        if (!sürsünMü())
            throw VeritabanıHatası(HataNo::İşlemDurduruldu);
    });
    // What SQLite wrote stands there; the sums tell whether that is what it was given.
    const auto okunan = KitaplıkBağlantısı(yol_, anahtar_, AçmaKipi::Oku);
    okunan->SürdürmeAta(sürsünMü);
    if (!sayfalar.Doğru || DizinleriDenetle(*okunan, toplam_) != YapıDurumu::Sağlam)
        throw VeritabanıHatası(HataNo::DosyaBozuk, yol_);
    DiskeYaz(yol_);
}

/// The folder for the new library, locked; deleted with this object where it was made for nothing.
class KurtarmaKlasörü
{
public:
    explicit KurtarmaKlasörü(const QString& klasör) : klasör_(klasör), kilit_(klasör)
    {
        for (const QString& kalan : QDir(klasör).entryList({GeçiciAd + u'*'}, QDir::Dirs | QDir::Hidden))
            QDir(klasör + kalan).removeRecursively();
    }

private:
    YeniKlasör klasör_;
    KlasörKilidi kilit_;
};

/// Made for one rescue; holds the old folder's lock.
class Kurtarıcı
{
public:
    Kurtarıcı(const QString& klasör, const KurtarmaBildirimi& bildir)
        : kilit_(klasör), klasör_(klasör), tuzlar_(tuzlar()), bildir_(bildir)
    {
    }

    /// @param geçici a folder for copies, with a separator at its end
    /// @param yeniYol the new library's file, null for none
    /// @return the new library's salt
    QByteArray Kurtar(const QString& geçici, const QString& yeniYol);
    KurtarmaSonucu Sonuç() { return std::move(sonuç_); }

private:
    using Kaynak = std::unique_ptr<KurtarmaKaynağı>;

    std::vector<QByteArray> tuzlar() const;
    QString yol(QStringView dosya) const;
    Kaynak aç(QStringView dosya, const QString& geçici, std::optional<HataNo>& neden) const;
    [[noreturn]] void hiçbiriOkunmuyor() const;
    bool sürsünMü() const { return bildir_(sonuç_.Kitaplıktan + sonuç_.Kopyadan, toplam_); }
    void ekle(qint64 kimlik, const MakaleDeğerleri& değerler, qint64& sayaç);
    void kitaplıktanTopla(KurtarmaKaynağı& kaynak);
    void kopyadanTopla(KurtarmaKaynağı& kaynak);
    void sonucuYaz();

    KlasörKilidi kilit_;
    QString klasör_;
    std::vector<QByteArray>
        tuzlar_; // looked for before a file is open: closing it again would drop SQLite's locks
    const KurtarmaBildirimi& bildir_;
    std::optional<YeniKitaplık> yeni_;
    std::unordered_set<qint64> gelenler_;
    std::map<qint64, MakaleKünyesi> kayıplar_;
    qint64 toplam_ = 0;
    KurtarmaSonucu sonuç_;
};

QString Kurtarıcı::yol(QStringView dosya) const
{
    return QFileInfo(KitaplıkYolu(klasör_, dosya)).canonicalFilePath();
}

/// What may be the library's salt, wherever it is written.
std::vector<QByteArray> Kurtarıcı::tuzlar() const
{
    const QString kitaplık = yol(DosyaAdları::Kitaplık);
    std::vector<QByteArray> tuzlar;
    if (!kitaplık.isEmpty())
        tuzlar = GünlüktekiTuzlar(GünlükYolu(kitaplık));
    for (const QString& dosya : {kitaplık, yol(DosyaAdları::Kopya)}) {
        QFile baş(dosya);
        if (!dosya.isEmpty() && baş.open(QIODevice::ReadOnly))
            tuzlar.push_back(baş.read(TuzBoyu));
    }
    try {
        tuzlar.push_back(ÇalışmaGrubu(yol(DosyaAdları::Grup), AçmaKipi::Oku).KitaplıkTuzu());
    } catch (const VeritabanıHatası&) {
        // The workgroup file may be damaged or missing as well; it is only asked in case.
    }
    return tuzlar;
}

/// Nothing where nothing can be read.
Kurtarıcı::Kaynak Kurtarıcı::aç(QStringView dosya, const QString& geçici, std::optional<HataNo>& neden) const
{
    const QString gerçek = yol(dosya);
    if (gerçek.isEmpty()) {
        neden = HataNo::DosyaYok;
        return {};
    }
    try {
        return KurtarmaKaynağı::Aç(gerçek, KitaplıkYolu(geçici, dosya), tuzlar_,
                                   [this] { return sürsünMü(); });
    } catch (const VeritabanıHatası& hata) {
        if (!OkunacakBirŞeyYok(hata.Tür()))
            throw;
        neden = hata.Tür();
        return {};
    }
}

void Kurtarıcı::hiçbiriOkunmuyor() const
{
    const bool yalnızKopya =
        sonuç_.KitaplıkHatası == HataNo::DosyaYok && sonuç_.KopyaHatası != HataNo::DosyaYok;
    throw VeritabanıHatası(yalnızKopya ? *sonuç_.KopyaHatası : *sonuç_.KitaplıkHatası,
                           KitaplıkYolu(klasör_, yalnızKopya ? DosyaAdları::Kopya : DosyaAdları::Kitaplık));
}

QByteArray Kurtarıcı::Kurtar(const QString& geçici, const QString& yeniYol)
{
    const Kaynak kitaplık = aç(DosyaAdları::Kitaplık, geçici, sonuç_.KitaplıkHatası);
    Kaynak kopya = kitaplık ? Kaynak() : aç(DosyaAdları::Kopya, geçici, sonuç_.KopyaHatası);
    if (!kitaplık && !kopya)
        hiçbiriOkunmuyor();
    const Anahtar anahtar = (kitaplık ? kitaplık : kopya)->Anahtarı();
    if (!yeniYol.isEmpty())
        yeni_.emplace(yeniYol, anahtar);
    sonuç_.BilinmeyenOlabilir = !kitaplık;
    if (kitaplık)
        kitaplıktanTopla(*kitaplık);
    if (!kopya && (sonuç_.BilinmeyenOlabilir || !kayıplar_.empty()))
        kopya = aç(DosyaAdları::Kopya, geçici, sonuç_.KopyaHatası);
    if (kopya)
        kopyadanTopla(*kopya);
    if (yeni_)
        yeni_->Bitir([this] { return sürsünMü(); });
    sonucuYaz();
    return anahtar.değer.right(TuzBoyu);
}

void Kurtarıcı::ekle(qint64 kimlik, const MakaleDeğerleri& değerler, qint64& sayaç)
{
    if (yeni_)
        yeni_->Ekle(kimlik, değerler);
    ++sayaç;
    if (!sürsünMü())
        throw VeritabanıHatası(HataNo::İşlemDurduruldu);
}

void Kurtarıcı::kitaplıktanTopla(KurtarmaKaynağı& kaynak)
{
    OkunduğuKadar([&] { toplam_ = kaynak.Dosya().Sayı("SELECT count(*) FROM Makaleler"); });
    kaynak.Dosya().SürdürmeAta([this] { return sürsünMü(); });
    MakaleToplayıcı toplayıcı(kaynak, gelenler_, [this](qint64 kimlik, const MakaleDeğerleri& değerler) {
        ekle(kimlik, değerler, sonuç_.Kitaplıktan);
    });
    toplayıcı.TümünüTopla();
    kayıplar_ = std::move(toplayıcı.Eksikler);
    sonuç_.BilinmeyenOlabilir = toplayıcı.BilinmeyenOlabilir();
    sonuç_.Durum = toplayıcı.Durum();
    sonuç_.GeriAlındı = kaynak.GeriAlındı();
}

void Kurtarıcı::kopyadanTopla(KurtarmaKaynağı& kaynak)
{
    kaynak.Dosya().SürdürmeAta([this] { return sürsünMü(); });
    MakaleToplayıcı toplayıcı(kaynak, gelenler_, [this](qint64 kimlik, const MakaleDeğerleri& değerler) {
        ekle(kimlik, değerler, sonuç_.Kopyadan);
        // With other names it may be an older version, or one that had that key before: the library's is
        // lost.
        const auto kayıp = kayıplar_.find(kimlik);
        if (kayıp != kayıplar_.end() &&
            kayıp->second.AdlarıUyar(Utf8Metni(değerler[0]), Utf8Metni(değerler[1])))
            kayıplar_.erase(kayıp);
    });
    if (!sonuç_.BilinmeyenOlabilir) {
        // What the library doesn't know was deleted.
        for (const auto& [kimlik, künye] : kayıplar_)
            toplayıcı.Eksikler.emplace(kimlik, MakaleKünyesi{kimlik, {}, {}});
        return toplayıcı.EksikleriTopla();
    }
    toplayıcı.TümünüTopla();
    kayıplar_.merge(toplayıcı.Eksikler);
}

void Kurtarıcı::sonucuYaz()
{
    for (auto& [kimlik, künye] : kayıplar_)
        sonuç_.Kayıplar.push_back(std::move(künye));
    std::sort(sonuç_.Kayıplar.begin(), sonuç_.Kayıplar.end(),
              [](const MakaleKünyesi& bir, const MakaleKünyesi& öteki) { return bir.Önce(öteki); });
}

} // namespace

KurtarmaSonucu KitaplığıKurtar(const QString& klasör, const QString& yeniKlasör, KurtarmaKipi kip,
                               const KurtarmaBildirimi& bildir)
{
    Kurtarıcı kurtarıcı(klasör, bildir);
    if (QFileInfo(yeniKlasör).exists() && QFileInfo(yeniKlasör) == QFileInfo(klasör))
        throw VeritabanıHatası(HataNo::DosyaVar, yeniKlasör);
    KitaplıkKurulabilmeli(yeniKlasör);
    KlasörYapılabilmeli(yeniKlasör);
    std::optional<KurtarmaKlasörü> yeni;
    if (kip == KurtarmaKipi::Kur)
        yeni.emplace(yeniKlasör);
    errno = 0;
    const QTemporaryDir geçici((yeni ? yeniKlasör : QDir::tempPath() + u'/') + GeçiciAd +
                               QStringLiteral("XXXXXX"));
    if (!geçici.isValid())
        SistemHatasıVer(errno, Erişim::Yazma, geçici.path());
    const QString kopyalar = geçici.path() + u'/';
    if (yeni)
        KitaplıkKur(yeniKlasör, [&](const QString& yol) { return kurtarıcı.Kurtar(kopyalar, yol); });
    else
        kurtarıcı.Kurtar(kopyalar, {});
    return kurtarıcı.Sonuç();
}
