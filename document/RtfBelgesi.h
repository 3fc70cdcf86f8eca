// Plain text as a rich-text document.
#pragma once

#include "document/BelgeBilgisi.h"

#include <QByteArray>
#include <QString>
#include <QStringView>

/// The text as an RTF 1.5 document. Line breaks of any kind end paragraphs; tabs
/// and no-break spaces are kept, a form feed begins a page, other control characters are left out.
/// An empty text gives an empty document.
/// @param yazıTipi family; the reader's own font where it is empty
/// @param nokta points; used with a family only
/// @param bilgi written as the document's properties, but for OluşturmaTarihi; RtfBilgisiOku gives the same
QByteArray RtfBelgesi(QStringView metin, const QString& yazıTipi = {}, int nokta = 0,
                      const BelgeBilgisi& bilgi = {});
