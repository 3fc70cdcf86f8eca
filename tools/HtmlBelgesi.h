// Articles as one web page.
#pragma once

#include "tools/Biçimler.h"

/// Contents in front, each entry leading to its article. XHTML, so that any program reads it.
void HtmlVer(const QString& hedef, const MakaleGezisi& gez);
