// The numbered table of user-interface texts.
#pragma once

#include <QString>

/// The text with this number, letter for letter. A number that the table lacks is a fault of the
/// program and ends it.
QString Metin(int numara);

/// The text as a screen reader should say it: without mnemonic marks and trailing dots.
QString SadeMetin(int numara);

/// The line under a list that says how many entries it has.
QString ToplamYazısı(qint64 sayı);
