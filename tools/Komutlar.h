// The tool's commands, as they are typed.
#pragma once

#include <QStringList>

/// Runs the command that the arguments name and reports on the standard output and error. Returns the
/// process's exit status: 0 good, 1 failed, 2 wrong usage.
/// @param değişkenler the arguments without the program's name
int KomutÇalıştır(const QStringList& değişkenler);
