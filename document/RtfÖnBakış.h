// Looks ahead into an RTF document for what a single pass can't know.
#pragma once

#include <QByteArrayView>

/// Whether bytes above 127 mean UTF-8. Programs that write it often don't say so.
struct RtfKodlaması
{
    bool HamUtf8 = false;     ///< those that stand for themselves
    bool KaçışlıUtf8 = false; ///< those written as \'hh; never where the document names another code page
};

RtfKodlaması RtfKodlamasıBul(QByteArrayView belge);

/// What follows the brace that ended the document, as far as it goes on with the document because that
/// brace is one too many: text and another such brace, or words for structure. Else empty.
QByteArrayView RtfDevamı(QByteArrayView kalan);
