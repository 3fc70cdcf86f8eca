// A library's session: how it opens and how it closes.
#pragma once

#include "store/DBEngine.h"

#include <QPoint>

#include <optional>

/// How the main window stood at the end, for the next run.
struct PencereSonu
{
    std::optional<QPoint> Yer; ///< of its frame, in twips; a normal window has one
    int YazarSırası;           ///< of the selected author, from 0; -1 for none
    int Durum;                 ///< as it is stored
};

/// Shows nothing: refusals and reports are the caller's. Whoever makes one keeps it for as long as the
/// library is worked on; the destructor lets go of it.
class Oturum
{
public:
    enum class Erişim
    {
        Yazma,
        Okuma ///< also where the file can't be written
    };

    /// The program's way: takes the folder's lock, compacts the library, makes sure of the user account, and
    /// opens the library as the user. ÇalışmaAlanı is the owner's until then. Throws what any of the steps
    /// throws.
    /// @param klasör with a separator at its end
    /// @param bildir called during long work, so that windows can be repainted
    /// @return what the compaction found; an index that it made anew is logged
    YapıDurumu Aç(const QString& klasör, const DBEngine::İlerlemeBildirimi& bildir = {});
    /// For work on a library that stays as it is: takes the lock and opens it as its owner.
    void SahipOlarakAç(const QString& klasör, Erişim erişim);
    /// The same for work that needs sound indices: compacts the library first, as Aç does.
    /// @return what the compaction found
    YapıDurumu SıkıştırıpSahipOlarakAç(const QString& klasör);

    /// The program's end: lets go of the library but not of the lock, seals it, deletes the user account and
    /// stores the settings. Errors end their own step only.
    void Kapat(const PencereSonu& son);
    /// Lets go of the library and its lock, nothing else.
    void Bırak();

    // Released from below: database, workspace, engine (which holds the lock).
    std::optional<DBEngine> Motor;
    std::optional<Workspace> ÇalışmaAlanı;
    std::optional<Database> Veritabanı;

private:
    void sahipAlanınıAç(const QString& klasör, const DBEngine::İlerlemeBildirimi& bildir);

    QString klasör_; // with a separator at its end
};
