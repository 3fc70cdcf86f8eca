// The calls by which a test program reaches the files of one folder, SQLite's and Qt's among them: they can
// be counted, made to fail, and written down.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <sys/types.h>

enum class ÇağrıTürü
{
    Açma,
    Okuma,
    Yazma,
    Kopyalama, ///< within the system; whoever can't do that reads and writes
    Kesme,
    Eşitleme,
    Adlandırma,
    Değişme, ///< two files take each other's name
    Silme,
    Bakma, ///< at what is known of a file
    Hak    ///< owner, rights, locks
};

struct SistemÇağrısı
{
    ÇağrıTürü Tür;
    std::string Yol = {};     ///< below the folder; "" is the folder itself
    std::string YeniYol = {}; ///< of a renaming
    const void* Baytlar = nullptr;
    std::size_t Boy = 0; ///< of what is to be read or written: less makes the call a short one
    off_t Yer = 0;       ///< in the file: of a write; the new size of one that is cut
    bool Klasör = false; ///< whether a folder is synced
    int Bayraklar = 0;   ///< of an opening
};

/// Called before each call that has to do with the folder; above 0 it is the errno that the call fails with.
/// Empty outside of a test: then all go their way.
extern std::function<int(SistemÇağrısı&)> ÇağrıGözcüsü;
/// The folder; also what is opened before a test watches.
extern std::string GözlenenKlasör;
