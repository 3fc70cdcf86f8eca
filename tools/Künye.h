// An article's names, for messages.
#pragma once

#include "store/MakaleOkuyucu.h"

/// The article as far as it is known, such as “BAŞLIK”, YAZAR (Kimlik 17).
inline QString KünyeMetni(const MakaleKünyesi& künye)
{
    const QString başlık = künye.MakaleBasligi.isNull() ? QStringLiteral("Başlığı okunamıyor")
                                                        : u'“' + künye.MakaleBasligi + u'”';
    const QString yazar = künye.YazarAdi.isNull() ? QStringLiteral("yazarı okunamıyor") : künye.YazarAdi;
    return QStringLiteral("%1, %2 (Kimlik %3)").arg(başlık, yazar, QString::number(künye.Kimlik));
}
