// Plain text as a rich-text document.
#pragma once

#include <QByteArray>
#include <QStringView>

/// The text as an RTF 1.5 document in the reader's own font. Line breaks of any kind end paragraphs; tabs
/// and no-break spaces are kept, a form feed begins a page, other control characters are left out.
/// An empty text gives an empty document.
QByteArray RtfBelgesi(QStringView metin);
