// The lock that keeps two processes from working on one library.
#pragma once

#include <QString>

/// Holds an exclusive lock on a folder while it lives; the system drops it when the process ends,
/// however it ends, and no file is left behind. The folder's own descriptor is locked, since opening
/// the library file a second time would drop SQLite's locks on it.
class KlasörKilidi
{
public:
    /// Throws 3045 when another process holds the lock, 3024 when there is no such folder, 3051 when
    /// it may not be read, and 3043
    /// where the file system can't lock folders.
    explicit KlasörKilidi(const QString& klasör);
    ~KlasörKilidi();
    KlasörKilidi(KlasörKilidi&& diğer) noexcept;
    KlasörKilidi& operator=(KlasörKilidi&& diğer) noexcept;

private:
    int tanıtıcı_ = -1;
};
