// The temporary folder in which documents are converted.
#pragma once

#include <QTemporaryDir>

/// For this user only, and gone with its owner. One whose owner was killed goes when the next is made.
class ÇevirmeKlasörü
{
public:
    /// @throws ÇalışmaHatası it can't be made
    ÇevirmeKlasörü();
    ~ÇevirmeKlasörü();
    ÇevirmeKlasörü(const ÇevirmeKlasörü&) = delete;
    ÇevirmeKlasörü& operator=(const ÇevirmeKlasörü&) = delete;

    QString Yol(const QString& ad) const { return klasör_.filePath(ad); }
    /// A folder in it, made where it isn't there.
    /// @throws ÇalışmaHatası
    QString AltKlasör(const QString& ad) const;
    /// Writes a file of its own; a part of one is removed.
    /// @throws ÇalışmaHatası
    void Yaz(const QString& yol, const QByteArray& baytlar) const;
    /// Whether the disk is so full that this may be why a program has failed.
    bool DiskDolu() const;

private:
    QTemporaryDir klasör_;
    int kilit_ = -1; // held as long as the folder is in use
};
