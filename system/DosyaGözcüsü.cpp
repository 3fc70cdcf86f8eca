#include "system/DosyaGözcüsü.h"

#include <QFile>

#include <sys/inotify.h>
#include <unistd.h>

DosyaGözcüsü::DosyaGözcüsü(const QString& yol) : uç_(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{
    if (uç_ >= 0)
        inotify_add_watch(uç_, QFile::encodeName(yol).constData(), IN_OPEN | IN_CLOSE);
}

DosyaGözcüsü::~DosyaGözcüsü()
{
    if (uç_ >= 0)
        close(uç_);
}

void DosyaGözcüsü::Bak()
{
    // Openings and closings can't be counted: equal notices in a row come as one.
    alignas(inotify_event) char tampon[4096];
    ssize_t okunan = 0;
    while (uç_ >= 0 && (okunan = read(uç_, tampon, sizeof tampon)) > 0) {
        for (ssize_t yer = 0; yer < okunan;) {
            const auto* olay = reinterpret_cast<const inotify_event*>(tampon + yer);
            if (olay->mask & IN_OPEN)
                açıldı_ = true;
            yer += static_cast<ssize_t>(sizeof *olay + olay->len);
        }
        sonOlay_.start();
    }
}
