// What the operating system says of files, in the store's own numbers.
#pragma once

#include "store/VeritabanıHatası.h"

#include <QString>

/// What a file was wanted for: the same refusal means another thing.
enum class Erişim
{
    Okuma,
    Yazma
};

/// The number for an errno. What has none of its own is DiskHatası.
HataNo SistemHataNo(int hata, Erişim erişim);

/// Throws that number with the path; std::bad_alloc where memory ran out. A path that is missing because
/// its bytes are no UTF-8, and so could not be taken over, is YolGeçersiz.
[[noreturn]] void SistemHatasıVer(int hata, Erişim erişim, const QString& yol);

/// Throws YolGeçersiz for a missing path some of whose bytes could not be taken over.
void YolGeçerliOlmalı(const QString& yol);
