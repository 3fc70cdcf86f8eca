#include "store/KlasörKilidi.h"

#include "store/VeritabanıHatası.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <utility>

KlasörKilidi::KlasörKilidi(const QString& klasör)
    : tanıtıcı_(open(QFile::encodeName(klasör).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
    if (tanıtıcı_ < 0)
        throw VeritabanıHatası(errno == EACCES ? HataNo::İzinYok : HataNo::DosyaYok, klasör);
    if (flock(tanıtıcı_, LOCK_EX | LOCK_NB) != 0) {
        const HataNo hata = errno == EWOULDBLOCK ? HataNo::DosyaKullanımda : HataNo::DiskHatası;
        close(tanıtıcı_);
        throw VeritabanıHatası(hata, klasör);
    }
}

KlasörKilidi::~KlasörKilidi()
{
    if (tanıtıcı_ >= 0)
        close(tanıtıcı_);
}

KlasörKilidi::KlasörKilidi(KlasörKilidi&& diğer) noexcept : tanıtıcı_(std::exchange(diğer.tanıtıcı_, -1)) {}

KlasörKilidi& KlasörKilidi::operator=(KlasörKilidi&& diğer) noexcept
{
    std::swap(tanıtıcı_, diğer.tanıtıcı_);
    return *this;
}
