#include "tools/Durdurma.h"

#include "store/VeritabanıHatası.h"
#include "tools/AraçHatası.h"

#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace {

volatile std::sig_atomic_t durdurma = 0;
volatile std::sig_atomic_t uyandırma = -1; // the pipe's end to write to

void notEt(int)
{
    const int hata = errno;
    durdurma = 1;
    // A signal may come just before a call that waits for input, so a flag alone would not be seen.
    [[maybe_unused]] const ssize_t yazılan = write(uyandırma, "", 1);
    errno = hata;
}

} // namespace

DurdurmaBekçisi::DurdurmaBekçisi()
{
    if (pipe2(boru_.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        throw VeritabanıHatası(HataNo::DiskHatası);
    uyandırma = boru_[1];
    struct sigaction eylem = {};
    eylem.sa_handler = notEt;
    eylem.sa_flags = static_cast<int>(SA_RESETHAND);
    for (std::size_t i = 0; i < İşaretler.size(); ++i) {
        sigaction(İşaretler[i], nullptr, &eskiler_[i]);
        if (eskiler_[i].sa_handler != SIG_IGN) // as nohup has it
            sigaction(İşaretler[i], &eylem, nullptr);
    }
}

DurdurmaBekçisi::~DurdurmaBekçisi()
{
    for (std::size_t i = 0; i < İşaretler.size(); ++i)
        sigaction(İşaretler[i], &eskiler_[i], nullptr);
    uyandırma = -1;
    for (const int uç : boru_)
        close(uç);
}

bool DurdurmaBekçisi::Durduruldu() const
{
    return durdurma != 0;
}

void DurdurmaBekçisi::Bak() const
{
    if (Durduruldu())
        throw AraçHatası(QStringLiteral("İşlem durduruldu; kitaplık değişmedi."));
}

void DurdurmaBekçisi::OkunurOlsun(int tanıtıcı) const
{
    std::array<pollfd, 2> beklenenler = {{{tanıtıcı, POLLIN, 0}, {boru_[0], POLLIN, 0}}};
    do
        Bak();
    while (poll(beklenenler.data(), beklenenler.size(), -1) < 0 && errno == EINTR);
    Bak();
}
