// The tool's commands, as they are typed.
#pragma once

#include <QStringList>

/// A process's exit status.
enum ÇıkışDurumu : int
{
    Başarılı = 0,
    Başarısız = 1, ///< or something was refused, or is not as it should be
    Yanlış = 2     ///< was typed wrongly
};

/// Runs the command that the arguments name and reports on the standard output and error.
/// @param değişkenler the arguments without the program's name
ÇıkışDurumu KomutÇalıştır(const QStringList& değişkenler);
