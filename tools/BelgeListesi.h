// The documents in a folder and in those below it.
#pragma once

#include <QString>

#include <vector>

class DurdurmaBekçisi;

struct BelgeDosyası
{
    QString Yol;
    QString Ret = {}; ///< why it can't even be tried; empty where it can
};

/// Every file, in the order of the names; hidden ones and hidden folders are left out. Links are followed; a
/// folder is gone through once, however many links lead to it. A folder that can't be read stands in the list
/// as refused. Throws AraçHatası when interrupted.
std::vector<BelgeDosyası> BelgeleriListele(const QString& klasör, const DurdurmaBekçisi& bekçi);
