// Looks ahead into an RTF document for what a single pass can't know.
#pragma once

#include <QByteArrayView>

/// What follows the brace that ended the document, as far as it goes on with the document because that
/// brace is one too many: text and another such brace, or words for structure. Else empty.
QByteArrayView RtfDevamı(QByteArrayView kalan);
