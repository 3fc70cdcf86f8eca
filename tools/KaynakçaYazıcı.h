// Articles as entries of a bibliography, for reference programs and for KaynakçaOkuyucu.
#pragma once

#include "store/Makale.h"

#include <QByteArray>

/// One entry of BibTeX in UTF-8, with a blank line behind; entries written one after the other are a file.
/// @param sıra makes the entry's key, which is to be a different one for each article of a file
QByteArray BibKaydı(const Makale& makale, qint64 sıra);

/// One record of RIS in UTF-8, with a blank line behind.
QByteArray RisKaydı(const Makale& makale);
