// Keeps a crash from writing the process's memory to the disk: articles stand there in the clear.
#pragma once

#include <sys/resource.h>

/// For this process and those that it starts. By its limit and not by making the process undumpable, which
/// would also keep the desktop's portals and a debugger of the user's from it.
inline void ÇekirdekDökümünüKapat() noexcept
{
    const rlimit yok = {0, 0};
    setrlimit(RLIMIT_CORE, &yok);
}
