// The key of an encrypted file, and the salt that a library's is derived with.
#pragma once

#include <QByteArray>

/// How the key of a file is given.
enum class AnahtarTürü
{
    Parola,
    HamAnahtar
};

struct Anahtar
{
    AnahtarTürü tür = AnahtarTürü::Parola;
    QByteArray değer; ///< a password as UTF-8; or 32 raw bytes, behind them the file's salt where it is known
};

/// A file's first bytes are its salt.
inline constexpr qsizetype TuzBoyu = 16;

/// TuzBoyu random bytes.
QByteArray YeniTuz();

/// The password's raw key, with the salt. Deriving takes some 30 ms; the last key is kept, so that a start,
/// which opens the library several times, derives once.
/// @param parola UTF-8, not empty
/// @param tuz TuzBoyu bytes
Anahtar TuzluAnahtar(const QByteArray& parola, const QByteArray& tuz);
/// Has another processor begin to derive it, for the first TuzluAnahtar to wait less. Once in a process.
void AnahtarıHazırla(const QByteArray& parola, const QByteArray& tuz);
