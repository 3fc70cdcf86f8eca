// Reads Rich Text Format as far as a reader of articles needs it: the running text and its letters' formats.
#pragma once

#include "document/BiçimliMetin.h"

#include <QByteArrayView>

/// Whether the bytes begin like an RTF document; blanks and a UTF-8 byte order mark may stand before.
bool RtfMi(QByteArrayView baytlar);

/// The text of an RTF document with its formats.
///
/// Kept: paragraphs; tables, a line a row with tabs between the cells, those merged sideways as one; results
/// of fields and objects; numbers and bullets of lists, also where old documents leave them to the reader;
/// footnotes, in square brackets where they are referred to; text boxes, on lines of their own; signs of
/// symbol fonts, as Unicode. Dropped: headers and footers, annotations, document information, pictures,
/// equations, hidden and deleted text, optional hyphens (a search would not find the word that holds one).
///
/// Put up with: missing and surplus braces, also amid the document; binary data of another length than it
/// says; a Unicode character without the one that stands in for it. Takes time in proportion to the length
/// and, beside the result, no more than a few megabytes. Not read: styles (writers repeat what a style says),
/// the second font of East Asian and right-to-left runs.
/// @throws MetinOkumaHatası the bytes are no RTF, or end before the first letter within a table of the header
/// @throws std::bad_alloc
BiçimliMetin RtfOku(QByteArrayView baytlar);
