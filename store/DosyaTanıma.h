// Tells from the outside what is wrong with a file that can't be opened as a library.
#pragma once

#include "store/VeritabanıHatası.h"

#include <QString>

/// Why the first page of this file does not decipher: the file is foreign (KitaplıkDeğil) or empty
/// (DosyaBoş). ParolaYanlış stands for the rest: a wrong key and a damaged first page look alike.
HataNo OkunamayanDosyaTanısı(const QString& yol);

/// The same for a file whose key is known to be right: ParolaYanlış becomes incomplete (DosyaYarım) or
/// damaged (DosyaBozuk).
HataNo AnahtarDoğruysaTanı(const QString& yol, HataNo tanı);

/// Whether the file begins like an unencrypted SQLite database.
bool DüzMetinVeritabanı(const QString& yol);
