#include "store/Utf8Metni.h"

QString Utf8Metni(std::string_view utf8)
{
    QString metin = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
    if (utf8.starts_with("\xef\xbb\xbf")) // Qt takes it for a byte order mark
        metin.prepend(QChar::ByteOrderMark);
    return metin;
}
