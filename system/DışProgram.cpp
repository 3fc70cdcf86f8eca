#include "system/DışProgram.h"

#include "system/ÇekirdekDökümü.h"

#include <QStandardPaths>

#include <cerrno>
#include <csignal>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int Bakış = 50;             // ms
constexpr int ÖlümBeklemesi = 10'000; // ms; what is killed ends at once unless a disk keeps it
constexpr int ArdılBeklemesi = 50;    // tenths of a second, for what has left the group
constexpr rlim_t EnBüyükDosya = rlim_t(1) << 30;
constexpr int Çalışmadı = 127;

// From here to bekçiOl: in a forked process, where only calls that are safe in signal handlers are allowed.

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

[[noreturn]] void bekle(pid_t program, const sigset_t& işaretler)
{
    close_range(0, ~0U, 0); // else the pipes would stay open
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
void bekçiOl(pid_t üst)
{
    sigset_t hepsi, işaretler, eski;
    sigfillset(&hepsi);
    sigprocmask(SIG_SETMASK, &hepsi, &eski);
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
        bekle(program, işaretler);
    }
    setpgid(0, 0);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    const rlimit dosya = {EnBüyükDosya, EnBüyükDosya};
    setrlimit(RLIMIT_FSIZE, &dosya);
    ÇekirdekDökümünüKapat();
    signal(SIGTERM, SIG_DFL);
    sigemptyset(&eski);
    sigprocmask(SIG_SETMASK, &eski, nullptr);
}

} // namespace

QString DışProgram::Bul(const QStringList& adlar)
{
    for (const QString& ad : adlar) {
        const QString yol = QStandardPaths::findExecutable(ad);
        if (!yol.isEmpty())
            return yol;
    }
    return {};
}

DışProgram::DışProgram(const QString& yol, const QStringList& argümanlar, const QProcessEnvironment& ortam,
                       Çıktılar çıktılar)
{
    if (çıktılar == Çıktılar::Birlikte)
        süreç_.setProcessChannelMode(QProcess::MergedChannels);
    süreç_.setStandardInputFile(QProcess::nullDevice());
    süreç_.setProcessEnvironment(ortam);
    süreç_.setChildProcessModifier([üst = getpid()] { bekçiOl(üst); });
    süreç_.start(yol, argümanlar);
    süreç_.waitForStarted();
}

DışProgram::~DışProgram()
{
    Öldür();
}

bool DışProgram::Bekle()
{
    return süreç_.state() == QProcess::NotRunning || süreç_.waitForFinished(Bakış);
}

bool DışProgram::Başarılı() const
{
    return süreç_.state() == QProcess::NotRunning && süreç_.error() != QProcess::FailedToStart &&
           süreç_.exitStatus() == QProcess::NormalExit && süreç_.exitCode() == 0;
}

void DışProgram::Öldür()
{
    if (süreç_.state() == QProcess::NotRunning)
        return;
    süreç_.terminate(); // the watcher, which ends the others
    if (süreç_.waitForFinished(ÖlümBeklemesi))
        return;
    süreç_.kill();
    süreç_.waitForFinished(ÖlümBeklemesi);
}
