#include "system/ÇevirmeKlasörü.h"

#include "system/ÇalışmaHatası.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QStorageInfo>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

constexpr qint64 AzYer = qint64(4) << 20;
constexpr int KilitsizSüre = 60; // s; a folder this young may be about to be locked

QString kalıp()
{
    return QStringLiteral("belgenar-cevirme-");
}

// -1 where somebody else holds it.
int kilitle(const QString& yol)
{
    const int no = open(QFile::encodeName(yol).constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (no < 0 || flock(no, LOCK_EX | LOCK_NB) == 0)
        return no;
    close(no);
    return -1;
}

void eskileriSil()
{
    const QDateTime sınır = QDateTime::currentDateTime().addSecs(-KilitsizSüre);
    const QFileInfoList klasörler =
        QDir::temp().entryInfoList({kalıp() + u'*'}, QDir::Dirs | QDir::NoSymLinks | QDir::Hidden);
    for (const QFileInfo& klasör : klasörler) {
        if (klasör.ownerId() != getuid() || klasör.lastModified() > sınır)
            continue;
        if (const int kilit = kilitle(klasör.filePath()); kilit >= 0) {
            QDir(klasör.filePath()).removeRecursively();
            close(kilit);
        }
    }
}

[[noreturn]] void yazılamadı(const QString& neden)
{
    throw ÇalışmaHatası(ÇalışmaHataNo::DosyaErişimi,
                        QStringLiteral("Geçici klasöre yazılamadı: %1").arg(neden));
}

} // namespace

ÇevirmeKlasörü::ÇevirmeKlasörü() : klasör_(QDir::temp().filePath(kalıp() + QStringLiteral("XXXXXX")))
{
    if (!klasör_.isValid())
        yazılamadı(klasör_.errorString());
    kilit_ = kilitle(klasör_.path());
    eskileriSil();
}

ÇevirmeKlasörü::~ÇevirmeKlasörü()
{
    klasör_.remove();
    if (kilit_ >= 0)
        close(kilit_);
}

QString ÇevirmeKlasörü::AltKlasör(const QString& ad) const
{
    if (!QDir(klasör_.path()).mkpath(ad))
        yazılamadı(qt_error_string(errno));
    return klasör_.filePath(ad);
}

void ÇevirmeKlasörü::Yaz(const QString& yol, const QByteArray& baytlar) const
{
    QFile dosya(yol);
    if (dosya.open(QIODevice::WriteOnly) && dosya.write(baytlar) == baytlar.size() && dosya.flush())
        return;
    const QString neden = dosya.errorString();
    dosya.remove();
    yazılamadı(neden);
}

bool ÇevirmeKlasörü::DiskDolu() const
{
    return QStorageInfo(klasör_.path()).bytesAvailable() < AzYer;
}
