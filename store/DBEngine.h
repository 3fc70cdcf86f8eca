// The database engine: the workgroup file, workspaces on it, and compaction.
#pragma once

#include "store/KitaplıkSıkıştırma.h"
#include "store/KlasörKilidi.h"
#include "store/VeritabanıHatası.h"
#include "store/Workspace.h"

#include <QString>

#include <functional>
#include <optional>

/// What CompactDatabase may be asked for; the copy is always encrypted, so that is the only choice.
constexpr int dbEncrypt = 2;

/// One engine works on one folder and holds that folder's lock for its whole life, so that no second
/// process works on the same library. Lives as long as the program works on the library.
class DBEngine
{
public:
    /// Called during long work, at most once every 20 ms, so that the caller can repaint.
    using İlerlemeBildirimi = std::function<void()>;

    explicit DBEngine(İlerlemeBildirimi bildir = {});

    /// Sets the workgroup file and takes its folder's lock. Throws DosyaYok when the file is missing and
    /// DosyaKullanımda when another process holds the lock.
    void SystemDB(const QString& yol);
    const QString& SystemDB() const { return grupYolu_; }

    /// A workspace for an account of the workgroup file. Throws HesapGeçersiz for an unknown account or a
    /// wrong password, and what opening the workgroup file throws. Where that can't be written, the workspace
    /// can't change accounts (SaltOkunur).
    /// @param ad the workspace's own name, may be empty
    Workspace CreateWorkspace(const QString& ad, const QString& kullanıcı, const QString& parola);

    /// Copies the library into a new, freshly ordered, encrypted and verified file; the source's bytes
    /// stay as they are but for the roll-back of what a crash left. The workgroup file then knows the
    /// source's salt, which the copy has, too. The copy has been written to disk
    /// when this returns; on failure none is left behind. Throws DosyaVar when the target exists, DosyaBozuk
    /// when any row of the source can't be read whole or its pages contradict each other, DiskDolu,
    /// SaltOkunur, ParolaYanlış and what opening throws.
    /// @param hedefYereli ";LANGID=0x041F;CP=1254;COUNTRY=0", the only collation there is (else
    /// KitaplıkDeğil)
    /// @param seçenekler dbEncrypt; there are no plain-text libraries, so anything else is İzinYok
    /// @param kaynakYereli connect string of the source, ";Pwd=..."; the copy keeps that password
    SıkıştırmaSonucu CompactDatabase(const QString& kaynak, const QString& hedef, const QString& hedefYereli,
                                     int seçenekler, const QString& kaynakYereli);

    /// For the end of work on a library, after it was closed: notes in the workgroup file which bytes it
    /// holds, unless nothing has changed since that was noted. The next CompactDatabase then has less to look
    /// at. Throws what opening throws.
    /// @param yerel connect string of the library, ";Pwd=..."
    void SealDatabase(const QString& yol, const QString& yerel);

private:
    İlerlemeBildirimi bildir_;
    QString grupYolu_;
    std::optional<KlasörKilidi> kilit_;
};
