#include "system/KapatmaSinyalleri.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int sinyaller[] = {SIGTERM, SIGINT, SIGHUP};
int boru[2] = {-1, -1}; // a signal handler may do little more than write a byte

void yakala(int)
{
    const int hata = errno;
    const char bayt = 1;
    [[maybe_unused]] const ssize_t yazılan = write(boru[1], &bayt, 1);
    errno = hata;
}

void işleyiciAta(void (*işleyici)(int))
{
    struct sigaction eylem = {};
    eylem.sa_handler = işleyici;
    eylem.sa_flags = SA_RESTART;
    for (const int sinyal : sinyaller)
        sigaction(sinyal, &eylem, nullptr);
}

} // namespace

KapatmaSinyalleri::KapatmaSinyalleri(std::function<void()> kapat)
{
    if (pipe2(boru, O_CLOEXEC | O_NONBLOCK) != 0)
        return; // the signals then end the process; the library survives that
    bildirim_ = std::make_unique<QSocketNotifier>(boru[0], QSocketNotifier::Read);
    QObject::connect(bildirim_.get(), &QSocketNotifier::activated, bildirim_.get(),
                     [kapat = std::move(kapat)] {
                         char baytlar[16];
                         while (read(boru[0], baytlar, sizeof baytlar) > 0) {
                         }
                         kapat();
                     });
    işleyiciAta(yakala);
}

KapatmaSinyalleri::~KapatmaSinyalleri()
{
    işleyiciAta(SIG_DFL);
    bildirim_.reset();
    for (int& uç : boru) {
        if (uç >= 0)
            close(uç);
        uç = -1;
    }
}
