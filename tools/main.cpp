// The command-line companion. There is no application object: none of the work needs one, and it would
// complain about a locale that isn't UTF-8. The arguments are taken as UTF-8 whatever the locale.
#include "system/ÇekirdekDökümü.h"
#include "tools/Komutlar.h"

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

// A closed standard stream must not have its number taken by a library file. Opened for the other
// direction, so that using it fails as it would have.
void standartAkışlarıDoldur()
{
    for (int no = STDIN_FILENO; no <= STDERR_FILENO; ++no) {
        if (fcntl(no, F_GETFD) < 0 && open("/dev/null", no == STDIN_FILENO ? O_WRONLY : O_RDONLY) != no)
            _exit(1);
    }
}

} // namespace

int main(int sayı, char** değişkenler)
{
    ÇekirdekDökümünüKapat();
    std::signal(SIGPIPE, SIG_IGN); // a closed pipe is told as any other output that can't be written
    standartAkışlarıDoldur();
    QStringList metinler;
    for (int i = 1; i < sayı; ++i)
        metinler.append(QString::fromUtf8(değişkenler[i]));
    return KomutÇalıştır(metinler);
}
