// Articles as one PDF document.
#pragma once

#include "tools/Biçimler.h"

/// A4; contents with page numbers in front, then each article on a page of its own.
void PdfVer(const QString& hedef, const MakaleGezisi& gez);
