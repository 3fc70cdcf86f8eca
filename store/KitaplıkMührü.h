// The seal of a library file: by it a start knows that the file is as it was left, without looking at every
// row.
#pragma once

#include "store/KitaplıkAnahtarı.h"

#include <QByteArray>
#include <QString>

#include <functional>

enum class Sıkılık
{
    Sıkı,    ///< as a compaction left it
    Değişmiş ///< changed since, and closed in order
};

/// Kept in the workgroup file; broken before the first change, so that a file that was left in the middle of
/// one has none.
struct Mühür
{
    QByteArray Kimlik;   ///< which file it is, and which of its states: two 32-bit numbers
    QByteArray Özet;     ///< SHA-256 over the codes of all pages
    QByteArray Sıralama; ///< SıralamaSürümü of its indices
    Sıkılık Hali = Sıkılık::Değişmiş;

    bool operator==(const Mühür&) const = default;
    bool AynıSayfalar(const Mühür& öteki) const { return Kimlik == öteki.Kimlik && Özet == öteki.Özet; }
};

/// What a look at every page found. Identical bytes have identical sums, and hardly any others.
struct SayfaBulgusu
{
    bool Doğru = false; ///< whether the file consists of whole pages whose bytes fit their codes
    Mühür Bulunan;      ///< where it does; Değişmiş
};

/// The seal of a file as it is; only its first page is compared with its code. Throws DosyaYok, DosyaBozuk
/// where that one doesn't decipher, DiskHatası.
/// @param anahtar as TuzluAnahtar gives it
Mühür MühürBas(const QString& yol, const Anahtar& anahtar);

/// Which file it is, and which of its states; null where the first page doesn't decipher. Throws DosyaYok,
/// DiskHatası.
QByteArray DosyaKimliği(const QString& yol, const Anahtar& anahtar);

/// Looks at all pages, on all processors at once. A page that the disk doesn't give isn't right either.
/// @param bildir called between blocks by the thread that called; what it throws ends the work. May be empty
SayfaBulgusu SayfalarıDenetle(const QString& yol, const Anahtar& anahtar,
                              const std::function<void()>& bildir);
