#include "tools/Hedef.h"

#include "store/MakaleKitaplığı.h"
#include "store/SistemHatası.h"
#include "tools/AraçHatası.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace {

bool boşKlasör(const QString& yol)
{
    return QFileInfo(yol).isDir() &&
           QDir(yol).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

} // namespace

void HedefYeniOlmalı(const QString& yol, HedefTürü tür)
{
    HedefAdıUygunOlmalı(yol);
    const QFileInfo hedef(yol);
    const bool alınır = tür == HedefTürü::Klasör && !hedef.isSymLink() && boşKlasör(yol);
    if ((hedef.exists() || hedef.isSymLink()) && !alınır)
        throw VeritabanıHatası(HataNo::DosyaVar, yol);
    const QString üst = hedef.absolutePath();
    errno = 0;
    if (access(QFile::encodeName(üst).constData(), W_OK | X_OK) != 0)
        SistemHatasıVer(errno, Erişim::Yazma, üst);
}

void HedefAdıUygunOlmalı(const QString& yol)
{
    YolGeçerliOlmalı(yol);
    const QFileInfo hedef(yol);
    for (const QStringView dosya : {DosyaAdları::Kitaplık, DosyaAdları::Grup, DosyaAdları::Kopya}) {
        if (hedef.fileName().startsWith(dosya))
            throw AraçHatası(
                QStringLiteral("%1 kitaplığın bir dosyasının adı; başka bir ad verin.").arg(yol));
    }
    const QString asıl = QDir::cleanPath(hedef.absoluteFilePath());
    if (asıl.startsWith(u"/dev/") || asıl.startsWith(u"/proc/") ||
        (hedef.exists() && !hedef.isFile() && !hedef.isDir()))
        throw AraçHatası(QStringLiteral("%1 bir dosya değil; bir dosyanın adını verin.").arg(yol));
}

HedefDosya::HedefDosya(const QString& yol, Varsa varsa) : yol_(yol), dosya_(yol)
{
    if (varsa == Varsa::Reddet)
        HedefYeniOlmalı(yol, HedefTürü::Dosya);
    else
        HedefAdıUygunOlmalı(yol);
    errno = 0;
    if (!dosya_.open(QIODevice::WriteOnly))
        SistemHatasıVer(errno, Erişim::Yazma, yol);
}

qint64 HedefDosya::Kayıt::writeData(const char* baytlar, qint64 boy)
{
    errno = 0;
    const qint64 yazılan = QSaveFile::writeData(baytlar, boy);
    if (yazılan < 0 && Hata == 0)
        Hata = errno;
    return yazılan;
}

void HedefDosya::hataVer() const
{
    SistemHatasıVer(dosya_.Hata != 0 ? dosya_.Hata : errno, Erişim::Yazma, yol_);
}

void HedefDosya::Yaz(const QByteArray& baytlar)
{
    if (dosya_.write(baytlar) != baytlar.size())
        hataVer();
}

void HedefDosya::DiskeYaz()
{
    errno = 0;
    if (!dosya_.flush() || fsync(dosya_.handle()) != 0)
        hataVer();
}

void HedefDosya::Bitir()
{
    DiskeYaz();
    if (!dosya_.commit())
        hataVer();
}

HedefKlasör::HedefKlasör(const QString& yol) : yol_(QDir::cleanPath(QFileInfo(yol).absoluteFilePath()))
{
    HedefYeniOlmalı(yol_, HedefTürü::Klasör);
    errno = 0;
    geçici_.emplace(yol_ + QStringLiteral(".XXXXXX"));
    if (!geçici_->isValid())
        SistemHatasıVer(errno, Erişim::Yazma, yol_);
}

void HedefKlasör::Yaz(const QString& ad, const QByteArray& baytlar)
{
    QFile dosya(geçici_->filePath(ad));
    errno = 0;
    if (!dosya.open(QIODevice::WriteOnly | QIODevice::NewOnly) || dosya.write(baytlar) != baytlar.size() ||
        !dosya.flush())
        SistemHatasıVer(errno, Erişim::Yazma, dosya.fileName());
}

void HedefKlasör::Bitir()
{
    const QByteArray hedef = QFile::encodeName(yol_), geçici = QFile::encodeName(geçici_->path());
    const int klasör = open(geçici.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const bool yazıldı = klasör >= 0 && syncfs(klasör) == 0;
    if (klasör >= 0)
        close(klasör);
    // An empty folder of that name gives way to it.
    if (!yazıldı || rename(geçici.constData(), hedef.constData()) != 0)
        SistemHatasıVer(errno, Erişim::Yazma, yol_);
    geçici_->setAutoRemove(false);
}
