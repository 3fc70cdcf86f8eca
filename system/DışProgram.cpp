#include "system/DışProgram.h"

#include "system/ÇekirdekDökümü.h"

#include <QFile>
#include <QStandardPaths>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <utility>
#include <vector>

namespace {

constexpr int Bakış = 50;          // ms
constexpr int ArdılBeklemesi = 50; // tenths of a second, for what has left the group
constexpr int BirOkuma = 1 << 16;
constexpr int EnÇokOkuma = 16; // at a time, so that the caller can see to the amount
constexpr rlim_t EnBüyükDosya = rlim_t(1) << 30;
constexpr int Çalışmadı = 127;

// From here to bekçiOl: in a forked process of a program that may have threads, where only calls that are
// safe in signal handlers are allowed.

// Reaps all children. Keeps the program's status.
// @return whether any child is left
bool topla(pid_t program, int& durum, bool& bitti)
{
    for (;;) {
        int sonuç = 0;
        const pid_t biten = waitpid(-1, &sonuç, WNOHANG);
        if (biten == program) {
            bitti = true;
            durum = WIFEXITED(sonuç) ? WEXITSTATUS(sonuç) : Çalışmadı;
        }
        if (biten <= 0)
            return biten == 0 || errno == EINTR;
    }
}

// @param uç stays open until the end
[[noreturn]] void bekle(pid_t program, const sigset_t& işaretler, unsigned uç)
{
    if (uç > 0)
        close_range(0, uç - 1, 0); // else the pipes would stay open
    close_range(uç + 1, ~0U, 0);
    int durum = Çalışmadı;
    bool bitti = false;
    while (!bitti && sigwaitinfo(&işaretler, nullptr) != SIGTERM)
        topla(program, durum, bitti);
    kill(-program, SIGKILL);
    const timespec birAn = {0, 100'000'000};
    for (int i = 0; i < ArdılBeklemesi && topla(program, durum, bitti); ++i)
        sigtimedwait(&işaretler, nullptr, &birAn);
    _exit(durum);
}

// Makes this process the watcher, and goes on in a child. The program's own children come to the watcher when
// their parent ends, so none is left when it has ended.
void bekçiOl(pid_t üst, int uç)
{
    sigset_t hepsi, işaretler;
    sigfillset(&hepsi);
    sigprocmask(SIG_SETMASK, &hepsi, nullptr);
    sigemptyset(&işaretler);
    sigaddset(&işaretler, SIGTERM);
    sigaddset(&işaretler, SIGCHLD);
    signal(SIGCHLD, SIG_DFL); // ignored children leave no status
    setpgid(0, 0);            // away from the terminal's signals
    prctl(PR_SET_CHILD_SUBREAPER, 1);
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (getppid() != üst)
        _exit(Çalışmadı);
    const pid_t program = fork();
    if (program < 0)
        _exit(Çalışmadı);
    if (program > 0) {
        setpgid(program, program);
        bekle(program, işaretler, static_cast<unsigned>(uç));
    }
    setpgid(0, 0);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    const rlimit dosya = {EnBüyükDosya, EnBüyükDosya};
    setrlimit(RLIMIT_FSIZE, &dosya);
    ÇekirdekDökümünüKapat();
    sigemptyset(&işaretler);
    sigprocmask(SIG_SETMASK, &işaretler, nullptr);
}

// The strings' addresses, and a null behind them.
std::vector<char*> adresler(QByteArrayList& diziler)
{
    std::vector<char*> sonuç;
    for (QByteArray& dizi : diziler)
        sonuç.push_back(dizi.data());
    sonuç.push_back(nullptr);
    return sonuç;
}

void kapat(int& uç)
{
    if (uç >= 0)
        close(std::exchange(uç, -1));
}

/// Reads what is there, up to an amount, and closes the end where nothing can come any more.
/// @param sonu whether nothing comes but what is there
void oku(int& uç, QByteArray& hedef, bool sonu)
{
    for (int i = 0; uç >= 0 && i < EnÇokOkuma; ++i) {
        const qsizetype dolu = hedef.size();
        hedef.resize(dolu + BirOkuma);
        const ssize_t gelen = read(uç, hedef.data() + dolu, BirOkuma);
        hedef.truncate(dolu + std::max<ssize_t>(gelen, 0));
        if (gelen < 0 && errno == EAGAIN && !sonu)
            return;
        if (gelen == 0 || (gelen < 0 && errno != EINTR))
            kapat(uç);
    }
}

} // namespace

QString DışProgram::Bul(const QStringList& adlar)
{
    for (const QString& ad : adlar) {
        QString yol = QStandardPaths::findExecutable(ad);
        if (!yol.isEmpty())
            return yol;
    }
    return {};
}

DışProgram::DışProgram(const QString& yol, const QStringList& argümanlar, const QProcessEnvironment& ortam,
                       Çıktılar çıktılar)
{
    std::array<std::array<int, 2>, 3> borular{{{-1, -1}, {-1, -1}, {-1, -1}}};
    bool açıldı = true;
    for (auto& boru : borular)
        açıldı = açıldı && pipe2(boru.data(), O_CLOEXEC) == 0 && fcntl(boru[0], F_SETFL, O_NONBLOCK) == 0;
    uçlar_ = {borular[0][0], borular[1][0], borular[2][0]};
    const bool birlikte = çıktılar == Çıktılar::Birlikte;
    if (açıldı)
        başlat(yol, argümanlar, ortam, {borular[0][1], borular[birlikte ? 0 : 1][1], borular[2][1]});
    for (auto& boru : borular)
        kapat(boru[1]);
}

// The parent's ends and all else are closed by exec.
void DışProgram::başlat(const QString& yol, const QStringList& argümanlar, const QProcessEnvironment& ortam,
                        const std::array<int, 3>& yazılanlar)
{
    QByteArrayList argümanBaytları = {QFile::encodeName(yol)}, ortamBaytları;
    for (const QString& argüman : argümanlar)
        argümanBaytları += QFile::encodeName(argüman);
    for (const QString& değişken : ortam.toStringList())
        ortamBaytları += değişken.toLocal8Bit();
    const std::vector<char*> argv = adresler(argümanBaytları), envp = adresler(ortamBaytları);
    const pid_t üst = getpid();
    bekçi_ = fork();
    if (bekçi_ != 0)
        return;
    bekçiOl(üst, yazılanlar[2]);
    const int boş = open("/dev/null", O_RDONLY);
    if (boş >= 0 && dup2(boş, STDIN_FILENO) >= 0 && dup2(yazılanlar[0], STDOUT_FILENO) >= 0 &&
        dup2(yazılanlar[1], STDERR_FILENO) >= 0)
        execve(argv[0], argv.data(), envp.data());
    _exit(Çalışmadı);
}

DışProgram::~DışProgram()
{
    Öldür();
    for (int& uç : uçlar_)
        kapat(uç);
}

bool DışProgram::Bekle()
{
    std::array<pollfd, 3> beklenenler{};
    for (std::size_t i = 0; i < uçlar_.size(); ++i)
        beklenenler[i] = {uçlar_[i], POLLIN, 0}; // one below 0 is passed over
    poll(beklenenler.data(), beklenenler.size(), Bakış);
    if (uçlar_[2] >= 0 && beklenenler[2].revents != 0) {
        kapat(uçlar_[2]);
        topla();
    }
    oku(uçlar_[0], çıktı_, bekçi_ < 0);
    oku(uçlar_[1], yakınma_, bekçi_ < 0);
    return bekçi_ < 0 && uçlar_[0] < 0 && uçlar_[1] < 0;
}

void DışProgram::topla()
{
    if (bekçi_ < 0)
        return;
    int sonuç = 0;
    pid_t biten = -1;
    do
        biten = waitpid(bekçi_, &sonuç, 0);
    while (biten < 0 && errno == EINTR);
    if (biten == bekçi_ && WIFEXITED(sonuç))
        durum_ = WEXITSTATUS(sonuç);
    bekçi_ = -1;
}

void DışProgram::Öldür()
{
    if (bekçi_ > 0)
        kill(bekçi_, SIGTERM); // the watcher ends the others first
    topla();
}
