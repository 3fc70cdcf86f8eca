// Reads what an RTF document says of itself.
#pragma once

#include "document/BelgeBilgisi.h"

#include <QByteArrayView>

/// The document's properties: title, author and time of creation, and those of the user's own by name. Of
/// damaged documents what can be read; nothing where the bytes are no RTF. Takes time in proportion to the
/// length.
/// @throws std::bad_alloc
BelgeBilgisi RtfBilgisiOku(QByteArrayView baytlar);
