#include "store/KitaplıkDosyası.h"

#include "store/DosyaTanıma.h"
#include "store/MakaleTablosu.h"
#include "store/SistemHatası.h"
#include "store/ÇalışmaGrubu.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <limits>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

constexpr std::size_t BlokBoyu = 4 << 20;
constexpr std::size_t EldenBlokBoyu = 256 << 10; // clearing a large one takes longer than what it holds

/// A file descriptor that closes itself.
class Tanıtıcı
{
public:
    Tanıtıcı(const QString& yol, int bayraklar, mode_t izin = 0)
        : yol_(yol), erişim_((bayraklar & O_ACCMODE) == O_RDONLY ? Erişim::Okuma : Erişim::Yazma),
          no_(open(QFile::encodeName(yol).constData(), bayraklar | O_CLOEXEC, izin))
    {
        if (no_ < 0)
            SistemHatasıVer(errno, erişim_, yol_);
    }
    ~Tanıtıcı() { close(no_); }
    Tanıtıcı(const Tanıtıcı&) = delete;
    Tanıtıcı& operator=(const Tanıtıcı&) = delete;

    /// Appends the next bytes of another file. @return how many; 0 at its end
    std::size_t Aktar(const Tanıtıcı& diğer, std::size_t enÇok) const
    {
        // Within the system, without a detour through this process, where it can do that.
        const ssize_t aktarılan = copy_file_range(diğer.no_, nullptr, no_, nullptr, enÇok, 0);
        if (aktarılan > 0)
            return static_cast<std::size_t>(aktarılan);
        if (aktarılan < 0 && errno != EXDEV && errno != ENOSYS && errno != EINVAL && errno != EOPNOTSUPP)
            SistemHatasıVer(errno, Erişim::Yazma, yol_);
        // Some file systems also say 0 too early, so the end is what read calls the end.
        std::vector<char> blok(std::min(enÇok, EldenBlokBoyu));
        const std::size_t boy = diğer.oku(blok.data(), blok.size());
        yaz(blok.data(), boy);
        return boy;
    }
    /// Has the system begin to write bytes to the disk, so that a later sync waits less; a file system that
    /// can't do that writes all of them then. A size of 0 is all that follow.
    void YazmayaBaşla(qint64 yer, std::size_t boy) const
    {
        static_cast<void>(sync_file_range(no_, yer, static_cast<off_t>(boy), SYNC_FILE_RANGE_WRITE));
    }
    void DiskeYaz() const
    {
        if (fsync(no_) != 0)
            SistemHatasıVer(errno, Erişim::Yazma, yol_);
    }
    /// The same for a folder; some file systems have no such call, and keep order by other means.
    void KlasörüDiskeYaz() const
    {
        if (fsync(no_) != 0 && errno != EINVAL && errno != ENOTSUP)
            SistemHatasıVer(errno, Erişim::Yazma, yol_);
    }
    /// Owner (where this process may give files away) and the owner's access rights of another file.
    void HaklarıVer(const struct stat& diğer) const
    {
        if (geteuid() == 0 && fchown(no_, diğer.st_uid, diğer.st_gid) != 0)
            SistemHatasıVer(errno, Erişim::Yazma, yol_);
        if (fchmod(no_, diğer.st_mode & S_IRWXU) != 0)
            SistemHatasıVer(errno, Erişim::Yazma, yol_);
    }

private:
    std::size_t oku(char* baytlar, std::size_t boy) const
    {
        ssize_t okunan = 0;
        do
            okunan = read(no_, baytlar, boy);
        while (okunan < 0 && errno == EINTR);
        if (okunan < 0)
            SistemHatasıVer(errno, Erişim::Okuma, yol_);
        return static_cast<std::size_t>(okunan);
    }
    void yaz(const char* baytlar, std::size_t boy) const
    {
        while (boy > 0) {
            const ssize_t yazılan = write(no_, baytlar, boy);
            if (yazılan < 0 && errno == EINTR)
                continue;
            if (yazılan < 0)
                SistemHatasıVer(errno, Erişim::Yazma, yol_);
            baytlar += yazılan;
            boy -= static_cast<std::size_t>(yazılan);
        }
    }

    QString yol_;
    Erişim erişim_;
    int no_;
};

/// Holds a file that loses its name: giving its space back takes a large one a while, and nobody waits for
/// it.
class SonraBırakılan
{
public:
    explicit SonraBırakılan(const QString& yol)
        : no_(open(QFile::encodeName(yol).constData(), O_PATH | O_NOFOLLOW | O_CLOEXEC))
    {
    }
    ~SonraBırakılan()
    {
        if (no_ < 0)
            return;
        try {
            std::thread([no = no_] { close(no); }).detach();
        } catch (const std::system_error&) { // no further thread may be had
            close(no_);
        }
    }
    SonraBırakılan(const SonraBırakılan&) = delete;
    SonraBırakılan& operator=(const SonraBırakılan&) = delete;

private:
    int no_;
};

// Moving a page costs about as much as copying some: with more of them free, copying all is cheaper.
constexpr qint64 EnÇokBoşPayı = 8;
// The library's number ends with the count of sessions.
constexpr int OturumBitleri = 6;
static_assert(EnÇokOturum == (1 << OturumBitleri) - 1);
constexpr auto BoşSayfalarSql = "PRAGMA freelist_count";

void kopyasınıYerineKoy(const QString& yeni, const QString& hedef, const struct stat& eski,
                        const std::function<void()>& bildir)
{
    const QString ara = hedef + u'~';
    DosyayıSil(ara);
    GeçiciDosya geçici(ara);
    DosyayıKopyala(yeni, ara, [&bildir](qint64) {
        if (bildir)
            bildir();
    });
    {
        const Tanıtıcı kopya(ara, O_RDONLY);
        kopya.HaklarıVer(eski);
        kopya.DiskeYaz();
    }
    DosyayıTaşı(ara, hedef);
    geçici.Kalsın();
}

} // namespace

GeçiciDosya::~GeçiciDosya()
{
    if (!yol_.isEmpty())
        QFile::remove(yol_);
}

QString GünlükYolu(const QString& dosya)
{
    return dosya + QStringLiteral("-journal");
}

bool YarımYazmaVar(const QString& dosya)
{
    const QString asıl = QFileInfo(dosya).canonicalFilePath();
    return !asıl.isEmpty() && QFileInfo(GünlükYolu(asıl)).size() > 0;
}

void GünlüğüyleKopyala(const QString& kaynak, const QString& hedef, const std::function<void(qint64)>& bildir)
{
    DosyayıKopyala(kaynak, hedef, bildir);
    if (YarımYazmaVar(kaynak))
        DosyayıKopyala(GünlükYolu(QFileInfo(kaynak).canonicalFilePath()), GünlükYolu(hedef), bildir);
}

void BoşDosyaOluştur(const QString& yol, const Anahtar& anahtar, SayfaDüzeni düzen)
{
    Bağlantı bağlantı(yol, anahtar, AçmaKipi::Oluştur);
    if (düzen == SayfaDüzeni::Budanır)
        bağlantı.Çalıştır(BudanırSql("main"));
    İşlem işlem(bağlantı);
    bağlantı.Çalıştır(TabloSql("main"));
    for (const QByteArray& sql : DizinSql("main"))
        bağlantı.Çalıştır(sql);
    bağlantı.Çalıştır("PRAGMA user_version=" + QByteArray::number(KitaplıkSürümü));
    işlem.Onayla();
}

std::unique_ptr<Bağlantı> KitaplıkBağlantısı(const QString& yol, const Anahtar& anahtar, AçmaKipi kip)
{
    auto bağlantı = std::make_unique<Bağlantı>(yol, anahtar, kip);
    if (bağlantı->Sayı("PRAGMA user_version") > KitaplıkSürümü)
        throw VeritabanıHatası(HataNo::SürümYeni, yol);
    if (bağlantı->Sayı("SELECT count(*) FROM sqlite_master WHERE type='table' AND name='Makaleler'") != 1)
        throw VeritabanıHatası(HataNo::KitaplıkDeğil, yol);
    return bağlantı;
}

std::unique_ptr<Bağlantı> KitaplıkBağlantısı(const QString& yol, const QString& parola, AçmaKipi kip,
                                             ÇalışmaGrubu& grup)
{
    try {
        return KitaplıkBağlantısı(yol, {AnahtarTürü::Parola, parola.toUtf8()}, kip);
    } catch (const VeritabanıHatası& hata) {
        if (hata == HataNo::ParolaYanlış && grup.KitaplıkParolasıDoğru(parola))
            throw VeritabanıHatası(AnahtarDoğruysaTanı(yol, hata.Tür()), yol);
        throw;
    }
}

qint64 KitaplığıKopyala(Bağlantı& kaynak, const QString& hedef, const QString& parola, DizinKaynağı dizinler)
{
    // ATTACH makes no new file for a connection that was not opened to make one.
    {
        const Tanıtıcı yeni(hedef, O_WRONLY | O_CREAT | O_TRUNC, S_IRUSR | S_IWUSR);
    }
    // A library's salt never changes: with it and the password the key can be had even where the first page
    // of the file is lost.
    kaynak.İliştir(hedef, TuzluAnahtar(parola.toUtf8(), kaynak.Tuz()), "kopya");
    // A throw-away file until it is whole: it needs no journal of its own.
    kaynak.Sayı("PRAGMA kopya.journal_mode=OFF");
    kaynak.Çalıştır("PRAGMA kopya.synchronous=OFF");
    kaynak.Çalıştır(BudanırSql("kopya"));
    const auto dizinleriKur = [&kaynak] {
        for (const QByteArray& sql : DizinSql("kopya"))
            kaynak.Çalıştır(sql);
    };
    qint64 satırlar = 0;
    {
        İşlem işlem(kaynak);
        kaynak.Çalıştır(TabloSql("kopya"));
        // With the indices there, this one statement copies their entries, too.
        if (dizinler == DizinKaynağı::Dizinler)
            dizinleriKur();
        kaynak.Çalıştır("INSERT INTO kopya.Makaleler SELECT * FROM main.Makaleler");
        satırlar = kaynak.DeğişenSatır();
        if (dizinler == DizinKaynağı::Satırlar)
            dizinleriKur();
        NoVer(kaynak, 0, "kopya");
        kaynak.Çalıştır("PRAGMA kopya.user_version=" + QByteArray::number(KitaplıkSürümü));
        işlem.Onayla();
    }
    kaynak.Çalıştır("DETACH DATABASE kopya");
    return satırlar;
}

bool Budanabilir(Bağlantı& kitaplık)
{
    return kitaplık.Sayı("PRAGMA auto_vacuum") == BudanırKipi &&
           kitaplık.Sayı(BoşSayfalarSql) * EnÇokBoşPayı <= kitaplık.Sayı("PRAGMA page_count");
}

bool KopyayıBuda(const QString& kopya, const Anahtar& anahtar)
{
    Bağlantı bağlantı(kopya, anahtar, AçmaKipi::OkuYaz);
    if (bağlantı.Sayı(BoşSayfalarSql) == 0)
        return false;
    bağlantı.Sayı("PRAGMA journal_mode=OFF");
    bağlantı.Çalıştır("PRAGMA synchronous=OFF");
    bağlantı.Çalıştır("PRAGMA incremental_vacuum");
    return true;
}

int DeğişenOturumlar(Bağlantı& kitaplık)
{
    return static_cast<int>(kitaplık.Sayı("PRAGMA application_id") & EnÇokOturum);
}

void NoVer(Bağlantı& kitaplık, int oturumlar, const QByteArray& veritabanı)
{
    constexpr int sayılar = (std::numeric_limits<qint32>::max() >> OturumBitleri);
    const qint32 no =
        (QRandomGenerator::system()->bounded(1, sayılar) << OturumBitleri) | std::min(oturumlar, EnÇokOturum);
    kitaplık.Çalıştır("PRAGMA " + veritabanı + ".application_id=" + QByteArray::number(no));
}

SatırToplamı SatırlarıOku(Bağlantı& kitaplık)
{
    constexpr int Kimlik = int(MakaleSütunları.size());
    SatırToplamı toplam;
    Deyim deyim(kitaplık, "SELECT YazarAdi, MakaleBasligi, YayimYeri, YayimTarihi, MakaleMetni, Kimlik"
                          " FROM Makaleler NOT INDEXED");
    while (deyim.Adım()) {
        for (int sütun = 0; sütun < Kimlik; ++sütun)
            SağlamDeğer(deyim, sütun);
        toplam.Ekle(deyim.Baytlar(0), deyim.Baytlar(1), deyim.Sayı(Kimlik));
    }
    return toplam;
}

SatırToplamı TümSatırlarıOku(Bağlantı& kitaplık)
{
    const SatırToplamı toplam = SatırlarıOku(kitaplık);
    if (!DizinlerinSayısıUyar(kitaplık, toplam.Satırlar))
        throw VeritabanıHatası(HataNo::DosyaBozuk, kitaplık.Yol());
    return toplam;
}

bool DizinlerinSayısıUyar(Bağlantı& kitaplık, qint64 satırlar)
{
    return std::all_of(DizinAdları.begin(), DizinAdları.end(), [&](const char* dizin) {
        return kitaplık.Sayı(QByteArray("SELECT count(*) FROM Makaleler INDEXED BY ") + dizin) == satırlar;
    });
}

void DosyayıYerineKoy(const QString& yeni, const QString& kitaplık, const std::function<void()>& bildir)
{
    const QString hedef = QFileInfo(kitaplık).canonicalFilePath();
    if (hedef.isEmpty())
        throw VeritabanıHatası(HataNo::DosyaYok, kitaplık);
    struct stat eski = {};
    if (stat(QFile::encodeName(hedef).constData(), &eski) != 0)
        SistemHatasıVer(errno, Erişim::Okuma, hedef);
    try {
        kopyasınıYerineKoy(yeni, hedef, eski, bildir);
    } catch (const VeritabanıHatası& hata) {
        if (hata != HataNo::DiskDolu || QFileInfo(yeni).canonicalPath() != QFileInfo(hedef).canonicalPath())
            throw;
        Tanıtıcı(yeni, O_RDONLY).HaklarıVer(eski);
        DosyayıTaşı(yeni, hedef);
    }
}

bool DosyalarıDeğiştir(const QString& yeni, const QString& kitaplık)
{
    struct stat eski = {};
    const QByteArray ad = QFile::encodeName(kitaplık);
    if (lstat(ad.constData(), &eski) != 0 || !S_ISREG(eski.st_mode))
        return false;
    Tanıtıcı(yeni, O_RDONLY).HaklarıVer(eski);
    return renameat2(AT_FDCWD, QFile::encodeName(yeni).constData(), AT_FDCWD, ad.constData(),
                     RENAME_EXCHANGE) == 0;
}

void YalnızSahibineAç(const QString& yol)
{
    struct stat bilgi = {};
    const QByteArray ad = QFile::encodeName(yol);
    if (stat(ad.constData(), &bilgi) == 0 && (bilgi.st_mode & (S_IRWXG | S_IRWXO)) != 0)
        static_cast<void>(chmod(ad.constData(), bilgi.st_mode & S_IRWXU));
}

void DosyayıTaşı(const QString& yol, const QString& yeniYol)
{
    const SonraBırakılan eski(yeniYol);
    if (rename(QFile::encodeName(yol).constData(), QFile::encodeName(yeniYol).constData()) != 0)
        SistemHatasıVer(errno, Erişim::Yazma, yeniYol);
    ÜstKlasörüDiskeYaz(yeniYol);
    if (QFileInfo(yol).absolutePath() != QFileInfo(yeniYol).absolutePath())
        ÜstKlasörüDiskeYaz(yol);
}

void DosyayıKopyala(const QString& kaynak, const QString& hedef, const std::function<void(qint64)>& bildir)
{
    const Tanıtıcı okunan(kaynak, O_RDONLY);
    const Tanıtıcı yazılan(hedef, O_WRONLY | O_CREAT | O_EXCL, S_IRUSR | S_IWUSR);
    qint64 yer = 0;
    while (const std::size_t boy = yazılan.Aktar(okunan, BlokBoyu)) {
        yazılan.YazmayaBaşla(yer, boy);
        yer += static_cast<qint64>(boy);
        bildir(static_cast<qint64>(boy));
    }
}

void DiskeYazmayaBaşla(const QString& yol)
{
    Tanıtıcı(yol, O_RDONLY).YazmayaBaşla(0, 0);
}

void DiskeYaz(const QString& yol)
{
    Tanıtıcı(yol, O_RDONLY).DiskeYaz();
    ÜstKlasörüDiskeYaz(yol);
}

void ÜstKlasörüDiskeYaz(const QString& yol)
{
    Tanıtıcı(QFileInfo(yol).absolutePath(), O_RDONLY | O_DIRECTORY).KlasörüDiskeYaz();
}

void DosyayıSil(const QString& yol)
{
    if (unlink(QFile::encodeName(yol).constData()) != 0 && errno != ENOENT)
        SistemHatasıVer(errno, Erişim::Yazma, yol);
}

QString BağlantıMetnindenParola(const QString& bağlantıMetni)
{
    const QStringList parçalar = bağlantıMetni.split(u';');
    for (const QString& parça : parçalar) {
        const qsizetype eşit = parça.indexOf(u'=');
        if (eşit > 0 && parça.left(eşit).compare(QLatin1String("pwd"), Qt::CaseInsensitive) == 0)
            return parça.mid(eşit + 1);
    }
    return {};
}
