// The lock that keeps two processes from working on one library.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// The folder, and those in which its library's files really lie; each once, without links in its path.
QStringList GerçekKlasörler(const QString& klasör);

/// Holds an exclusive lock on a program folder while it lives, and on the folders in which its library's
/// files really lie where they are links: the same library is locked by whatever way it is reached. The
/// system drops the locks when the process ends, however it ends, and no file is left behind. The folders'
/// own descriptors are locked, since opening the library file a second time would drop SQLite's locks on it.
class KlasörKilidi
{
public:
    /// Throws DosyaKullanımda when another process holds the lock, DosyaYok when there is no such folder,
    /// YolGeçersiz, ÇokDosyaAçık and İzinYok when it can't be opened, and DiskHatası where the file system
    /// can't lock folders.
    explicit KlasörKilidi(const QString& klasör);
    ~KlasörKilidi();
    KlasörKilidi(KlasörKilidi&& diğer) noexcept;
    KlasörKilidi& operator=(KlasörKilidi&& diğer) noexcept;

private:
    KlasörKilidi() = default;
    void kilitle(const QString& klasör);

    std::vector<int> tanıtıcılar_;
};
