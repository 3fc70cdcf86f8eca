#include "system_calls.h"

#include <array>
#include <cerrno>
#include <cstdarg>
#include <fcntl.h>
#include <optional>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

std::function<int(SistemÇağrısı&)> ÇağrıGözcüsü;
std::string GözlenenKlasör;

namespace {

constexpr int EnÇokTanıtıcı = 256;

/// What of the folder is open. Never destroyed: libraries close files to the last.
std::optional<std::string>& açık(int tanıtıcı)
{
    static auto& açıklar = *new std::array<std::optional<std::string>, EnÇokTanıtıcı>();
    static std::optional<std::string> hiçbiri;
    return tanıtıcı >= 0 && tanıtıcı < EnÇokTanıtıcı ? açıklar[std::size_t(tanıtıcı)] : hiçbiri;
}

/// The path below the folder, nothing for one elsewhere.
std::optional<std::string> yolu(const char* yol)
{
    const std::string tam = yol ? yol : "";
    if (GözlenenKlasör.empty() || tam.compare(0, GözlenenKlasör.size(), GözlenenKlasör) != 0)
        return {};
    const std::string kalan = tam.substr(GözlenenKlasör.size());
    if (kalan.empty() || kalan == "/")
        return std::string();
    return kalan[0] == '/' ? std::optional(kalan.substr(1)) : std::nullopt;
}

std::optional<std::string> yolu(int tanıtıcı)
{
    return açık(tanıtıcı);
}

/// Asks the watcher; does the call unless that has another wish.
template<class Dosya, class İş> long geçir(const Dosya& dosya, SistemÇağrısı çağrı, İş&& iş)
{
    const auto yol = ÇağrıGözcüsü ? yolu(dosya) : std::nullopt;
    if (yol) {
        çağrı.Yol = *yol;
        if (const int hata = ÇağrıGözcüsü(çağrı); hata > 0) {
            errno = hata;
            return -1;
        }
    }
    return iş(çağrı);
}

template<class Dosya, class... Değerler>
int basit(ÇağrıTürü tür, const Dosya& dosya, long çağrı, Değerler... değerler)
{
    return int(geçir(dosya, {.Tür = tür}, [&](const SistemÇağrısı&) { return syscall(çağrı, değerler...); }));
}

int adlandır(ÇağrıTürü tür, const char* yol, const char* yeni, unsigned bayraklar)
{
    return int(geçir(yol, {.Tür = tür, .YeniYol = yolu(yeni).value_or("")}, [&](const SistemÇağrısı&) {
        return syscall(SYS_renameat2, AT_FDCWD, yol, AT_FDCWD, yeni, bayraklar);
    }));
}

int eşitle(int no, long çağrı)
{
    struct stat bilgi = {};
    const bool klasör = syscall(SYS_fstat, no, &bilgi) == 0 && S_ISDIR(bilgi.st_mode);
    return int(geçir(no, {.Tür = ÇağrıTürü::Eşitleme, .Klasör = klasör},
                     [&](const SistemÇağrısı&) { return syscall(çağrı, no); }));
}

ssize_t oku(int no, void* baytlar, std::size_t boy, const off_t* yer)
{
    return geçir(no, {.Tür = ÇağrıTürü::Okuma, .Boy = boy}, [&](const SistemÇağrısı& çağrı) {
        return yer ? syscall(SYS_pread64, no, baytlar, çağrı.Boy, *yer)
                   : syscall(SYS_read, no, baytlar, çağrı.Boy);
    });
}

ssize_t yaz(int no, const void* baytlar, std::size_t boy, const off_t* yer)
{
    const off_t buradan = yer ? *yer : off_t(syscall(SYS_lseek, no, 0, SEEK_CUR));
    return geçir(no, {.Tür = ÇağrıTürü::Yazma, .Baytlar = baytlar, .Boy = boy, .Yer = buradan},
                 [&](const SistemÇağrısı& çağrı) {
                     return yer ? syscall(SYS_pwrite64, no, baytlar, çağrı.Boy, *yer)
                                : syscall(SYS_write, no, baytlar, çağrı.Boy);
                 });
}

} // namespace

// In front of the C library's own, for this whole program and the libraries that it uses.
extern "C" {
int open(const char* yol, int bayraklar, ...)
{
    va_list kalan;
    va_start(kalan, bayraklar);
    const mode_t izin = (bayraklar & (O_CREAT | O_TMPFILE)) ? va_arg(kalan, mode_t) : 0;
    va_end(kalan);
    const int no =
        int(geçir(yol, {.Tür = ÇağrıTürü::Açma, .Bayraklar = bayraklar},
                  [&](const SistemÇağrısı&) { return syscall(SYS_openat, AT_FDCWD, yol, bayraklar, izin); }));
    if (no >= 0 && no < EnÇokTanıtıcı)
        açık(no) = yolu(yol);
    return no;
}
int close(int no)
{
    açık(no).reset();
    return int(syscall(SYS_close, no));
}
ssize_t read(int no, void* baytlar, size_t boy)
{
    return oku(no, baytlar, boy, nullptr);
}
ssize_t pread(int no, void* baytlar, size_t boy, off_t yer)
{
    return oku(no, baytlar, boy, &yer);
}
ssize_t write(int no, const void* baytlar, size_t boy)
{
    return yaz(no, baytlar, boy, nullptr);
}
ssize_t pwrite(int no, const void* baytlar, size_t boy, off_t yer)
{
    return yaz(no, baytlar, boy, &yer);
}
ssize_t copy_file_range(int no, off64_t* yer, int yeni, off64_t* yeniYer, size_t boy, unsigned bayraklar)
{
    return geçir(yeni, {.Tür = ÇağrıTürü::Kopyalama, .Boy = boy}, [&](const SistemÇağrısı& çağrı) {
        return syscall(SYS_copy_file_range, no, yer, yeni, yeniYer, çağrı.Boy, bayraklar);
    });
}
int ftruncate(int no, off_t boy) noexcept
{
    return int(geçir(no, {.Tür = ÇağrıTürü::Kesme, .Yer = boy},
                     [&](const SistemÇağrısı&) { return syscall(SYS_ftruncate, no, boy); }));
}
int fsync(int no)
{
    return eşitle(no, SYS_fsync);
}
int fdatasync(int no)
{
    return eşitle(no, SYS_fdatasync);
}
int rename(const char* yol, const char* yeni) noexcept
{
    return adlandır(ÇağrıTürü::Adlandırma, yol, yeni, 0);
}
int renameat2(int, const char* yol, int, const char* yeni, unsigned bayraklar) noexcept
{
    return adlandır(bayraklar & RENAME_EXCHANGE ? ÇağrıTürü::Değişme : ÇağrıTürü::Adlandırma, yol, yeni,
                    bayraklar);
}
int unlink(const char* yol) noexcept
{
    return basit(ÇağrıTürü::Silme, yol, SYS_unlink, yol);
}
int statx(int klasör, const char* yol, int bayraklar, unsigned ne, struct statx* bilgi) noexcept
{
    return bayraklar & AT_EMPTY_PATH
               ? basit(ÇağrıTürü::Bakma, klasör, SYS_statx, klasör, yol, bayraklar, ne, bilgi)
               : basit(ÇağrıTürü::Bakma, yol, SYS_statx, klasör, yol, bayraklar, ne, bilgi);
}
int chmod(const char* yol, mode_t izin) noexcept
{
    return basit(ÇağrıTürü::Hak, yol, SYS_chmod, yol, izin);
}
int fchmod(int no, mode_t izin) noexcept
{
    return basit(ÇağrıTürü::Hak, no, SYS_fchmod, no, izin);
}
int fchown(int no, uid_t sahip, gid_t grup) noexcept
{
    return basit(ÇağrıTürü::Hak, no, SYS_fchown, no, sahip, grup);
}
int flock(int no, int ne) noexcept
{
    return basit(ÇağrıTürü::Hak, no, SYS_flock, no, ne);
}
// The same under the names that other parts of the program know.
int open64(const char*, int, ...) __attribute__((alias("open")));
ssize_t pread64(int, void*, size_t, off64_t) __attribute__((alias("pread")));
ssize_t pwrite64(int, const void*, size_t, off64_t) __attribute__((alias("pwrite")));
int ftruncate64(int, off64_t) noexcept __attribute__((alias("ftruncate")));
#define BAKMA(ad, nereye, ne, çağrı)                                                                         \
    int ad(nereye yer, struct ne* bilgi) noexcept                                                            \
    {                                                                                                        \
        return basit(ÇağrıTürü::Bakma, yer, çağrı, yer, bilgi);                                              \
    }
BAKMA(stat, const char*, stat, SYS_stat)
BAKMA(stat64, const char*, stat64, SYS_stat)
BAKMA(lstat, const char*, stat, SYS_lstat)
BAKMA(lstat64, const char*, stat64, SYS_lstat)
BAKMA(fstat, int, stat, SYS_fstat)
BAKMA(fstat64, int, stat64, SYS_fstat)
}
