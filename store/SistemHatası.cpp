#include "store/SistemHatası.h"

#include <QFileInfo>

#include <cerrno>
#include <new>

HataNo SistemHataNo(int hata, Erişim erişim)
{
    switch (hata) {
    case ENOENT:
    case ENOTDIR:
        return HataNo::DosyaYok;
    case ENOSPC:
    case EDQUOT:
    case EFBIG: // beyond what the file system, or a limit of the user's, lets a file grow
        return HataNo::DiskDolu;
    case EROFS:
        return HataNo::SaltOkunur;
    case EACCES:
    case EPERM:
        return erişim == Erişim::Yazma ? HataNo::SaltOkunur : HataNo::İzinYok;
    case EMFILE:
    case ENFILE:
        return HataNo::ÇokDosyaAçık;
    default:
        return HataNo::DiskHatası;
    }
}

void SistemHatasıVer(int hata, Erişim erişim, const QString& yol)
{
    if (hata == ENOMEM)
        throw std::bad_alloc();
    const HataNo numara = SistemHataNo(hata, erişim);
    if (numara == HataNo::DosyaYok)
        YolGeçerliOlmalı(yol);
    // The system's own words are not Turkish; its number helps whoever looks for the cause.
    throw VeritabanıHatası(numara, numara == HataNo::DiskHatası && hata != EIO
                                       ? QStringLiteral("%1; sistem hatası %2").arg(yol).arg(hata)
                                       : yol);
}

void YolGeçerliOlmalı(const QString& yol)
{
    if (yol.contains(QChar::ReplacementCharacter) && !QFileInfo::exists(yol))
        throw VeritabanıHatası(HataNo::YolGeçersiz, yol);
}
