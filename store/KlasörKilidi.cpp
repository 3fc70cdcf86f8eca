#include "store/KlasörKilidi.h"

#include "store/MakaleKitaplığı.h"
#include "store/SistemHatası.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

QStringList GerçekKlasörler(const QString& klasör)
{
    const QString kendisi = QFileInfo(klasör).canonicalFilePath();
    QStringList klasörler = {kendisi.isEmpty() ? klasör : kendisi};
    for (const QStringView ad : {DosyaAdları::Kitaplık, DosyaAdları::Grup}) {
        const QFileInfo dosya(klasör + u'/' + ad.toString());
        if (dosya.exists())
            klasörler.append(dosya.canonicalPath());
    }
    klasörler.removeDuplicates();
    return klasörler;
}

KlasörKilidi::KlasörKilidi(const QString& klasör) : KlasörKilidi() // from here on the destructor lets go
{
    for (const QString& gerçek : GerçekKlasörler(klasör))
        kilitle(gerçek);
}

void KlasörKilidi::kilitle(const QString& klasör)
{
    const int tanıtıcı = open(QFile::encodeName(klasör).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (tanıtıcı < 0)
        SistemHatasıVer(errno, Erişim::Okuma, klasör);
    tanıtıcılar_.push_back(tanıtıcı);
    if (flock(tanıtıcı, LOCK_EX | LOCK_NB) != 0)
        throw VeritabanıHatası(errno == EWOULDBLOCK ? HataNo::DosyaKullanımda : HataNo::DiskHatası, klasör);
}

KlasörKilidi::~KlasörKilidi()
{
    for (const int tanıtıcı : tanıtıcılar_)
        close(tanıtıcı);
}

KlasörKilidi::KlasörKilidi(KlasörKilidi&& diğer) noexcept = default;

KlasörKilidi& KlasörKilidi::operator=(KlasörKilidi&& diğer) noexcept
{
    tanıtıcılar_.swap(diğer.tanıtıcılar_);
    return *this;
}
