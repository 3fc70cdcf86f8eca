#include "store/KitaplıkMührü.h"

#include "store/SayfaŞifresi.h"
#include "store/SistemHatası.h"
#include "store/VeritabanıHatası.h"
#include "text/TürkçeSıralama.h"

#include <QCryptographicHash>
#include <QFile>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

// In the first page's header, see SQLite's file format. Each copy draws the first one; each write changes the
// second one.
constexpr qsizetype DosyaNoYeri = 68, DeğişimYeri = 24, NoBoyu = 4;

constexpr qint64 Blok = 64; // pages
constexpr unsigned EnÇokİplik = 8;

/// A file that is read from any place.
class Okunan
{
public:
    explicit Okunan(const QString& yol)
        : yol_(yol), no_(open(QFile::encodeName(yol).constData(), O_RDONLY | O_CLOEXEC))
    {
        struct stat bilgi = {};
        if (no_ < 0 || fstat(no_, &bilgi) != 0)
            SistemHatasıVer(errno, Erişim::Okuma, yol);
        boy_ = bilgi.st_size;
    }
    ~Okunan() { close(no_); }
    Okunan(const Okunan&) = delete;
    Okunan& operator=(const Okunan&) = delete;

    qint64 Boy() const { return boy_; }
    /// Whether all of it could be read; errno says why not, 0 for a file that has become shorter.
    bool Oku(char* baytlar, qint64 boy, qint64 yer) const
    {
        while (boy > 0) {
            const ssize_t okunan = pread(no_, baytlar, std::size_t(boy), yer);
            if (okunan < 0 && errno == EINTR)
                continue;
            if (okunan == 0)
                errno = 0;
            if (okunan <= 0)
                return false;
            baytlar += okunan;
            boy -= okunan;
            yer += okunan;
        }
        return true;
    }
    QByteArray Oku(qint64 yer, qint64 boy) const
    {
        QByteArray baytlar(boy, Qt::Uninitialized);
        if (!Oku(baytlar.data(), boy, yer))
            SistemHatasıVer(errno != 0 ? errno : EIO, Erişim::Okuma, yol_);
        return baytlar;
    }

private:
    QString yol_;
    int no_;
    qint64 boy_ = 0;
};

QByteArray kimlik(const QByteArray& ilkSayfa, const SayfaŞifresi& şifre)
{
    if (!şifre.Doğru(ilkSayfa, 1))
        return {};
    const QByteArray düz = şifre.Çöz(ilkSayfa, 1);
    return düz.mid(DosyaNoYeri, NoBoyu) + düz.mid(DeğişimYeri, NoBoyu);
}

QByteArray kimlik(const Okunan& dosya, const SayfaŞifresi& şifre)
{
    return dosya.Boy() < SayfaBoyu ? QByteArray() : kimlik(dosya.Oku(0, SayfaBoyu), şifre);
}

Mühür mühür(const QByteArray& kimlik, const QByteArray& kodlar)
{
    return {kimlik, QCryptographicHash::hash(kodlar, QCryptographicHash::Sha256),
            QByteArray::fromStdString(SıralamaSürümü()), Sıkılık::Değişmiş};
}

/// Blocks of one file, checked by several threads.
class SayfaDenetçisi
{
public:
    SayfaDenetçisi(const Okunan& dosya, const SayfaŞifresi& şifre)
        : dosya_(dosya), şifre_(şifre), sayfalar_(dosya.Boy() / SayfaBoyu),
          kodlar_(sayfalar_ * qsizetype(SayfaKodu::Boy), Qt::Uninitialized), kodlarınYeri_(kodlar_.data())
    {
    }

    bool Denetle(const std::function<void()>& bildir)
    {
        const qint64 bloklar = (sayfalar_ + Blok - 1) / Blok;
        const unsigned işlemciler = std::clamp(std::thread::hardware_concurrency(), 1U, EnÇokİplik);
        std::vector<std::jthread> iplikler;
        try {
            for (qint64 i = std::min<qint64>(bloklar, işlemciler); i > 1; --i)
                iplikler.emplace_back([this] { yardımEt(); });
        } catch (const std::system_error&) {
            // No further thread may be had: those that there are do it all.
        }
        try {
            çalış(bildir);
        } catch (...) {
            tamam_ = false; // which has the others stop
            throw;
        }
        iplikler.clear(); // waits for them
        return tamam_;
    }
    const QByteArray& Kodlar() const { return kodlar_; }

private:
    void yardımEt()
    try {
        çalış({});
    } catch (const std::exception&) { // no memory
        tamam_ = false;
    }

    void çalış(const std::function<void()>& bildir)
    {
        SayfaKodu kod = şifre_.Kodu();
        QByteArray blok(Blok * SayfaBoyu, Qt::Uninitialized);
        while (tamam_) {
            const qint64 ilk = sıradaki_.fetch_add(Blok);
            const qint64 sayı = std::min(Blok, sayfalar_ - ilk);
            if (sayı <= 0)
                return;
            if (!dosya_.Oku(blok.data(), sayı * SayfaBoyu, ilk * SayfaBoyu))
                tamam_ = false;
            for (qint64 i = 0; i < sayı && tamam_; ++i) {
                const char* const sayfa = blok.constData() + i * SayfaBoyu;
                if (!kod.Doğru(sayfa, quint32(ilk + i + 1)))
                    tamam_ = false;
                std::copy_n(sayfa + SayfaKodu::Yer, SayfaKodu::Boy,
                            kodlarınYeri_ + (ilk + i) * qint64(SayfaKodu::Boy));
            }
            if (bildir)
                bildir();
        }
    }

    const Okunan& dosya_;
    const SayfaŞifresi& şifre_;
    qint64 sayfalar_;
    QByteArray kodlar_;
    char* kodlarınYeri_; // data() may not be called by several threads
    std::atomic<qint64> sıradaki_ = 0;
    std::atomic<bool> tamam_ = true;
};

} // namespace

Mühür MühürBas(const QString& yol, const Anahtar& anahtar)
{
    const Okunan dosya(yol);
    const QByteArray no = kimlik(dosya, SayfaŞifresi(anahtar));
    if (no.isEmpty())
        throw VeritabanıHatası(HataNo::DosyaBozuk, yol);
    QByteArray kodlar;
    for (qint64 yer = SayfaKodu::Yer; yer < dosya.Boy(); yer += SayfaBoyu)
        kodlar += dosya.Oku(yer, SayfaKodu::Boy);
    return mühür(no, kodlar);
}

QByteArray DosyaKimliği(const QString& yol, const Anahtar& anahtar)
{
    return kimlik(Okunan(yol), SayfaŞifresi(anahtar));
}

SayfaBulgusu SayfalarıDenetle(const QString& yol, const Anahtar& anahtar, const std::function<void()>& bildir)
{
    const Okunan dosya(yol);
    if (dosya.Boy() == 0 || dosya.Boy() % SayfaBoyu != 0)
        return {};
    const SayfaŞifresi şifre(anahtar);
    SayfaDenetçisi denetçi(dosya, şifre);
    if (!denetçi.Denetle(bildir))
        return {};
    return {true, mühür(kimlik(dosya, şifre), denetçi.Kodlar())};
}
