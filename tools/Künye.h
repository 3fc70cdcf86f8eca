// An article's names, for messages and headings.
#pragma once

#include "store/MakaleOkuyucu.h"

#include <QStringList>

/// The article as far as it is known, such as “BAŞLIK”, YAZAR (Kimlik 17).
inline QString KünyeMetni(const MakaleKünyesi& künye)
{
    const QString başlık = künye.MakaleBasligi.isNull() ? QStringLiteral("Başlığı okunamıyor")
                                                        : u'“' + künye.MakaleBasligi + u'”';
    const QString yazar = künye.YazarAdi.isNull() ? QStringLiteral("yazarı okunamıyor") : künye.YazarAdi;
    return QStringLiteral("%1, %2 (Kimlik %3)").arg(başlık, yazar, QString::number(künye.Kimlik));
}

/// What is known of these, behind commas.
inline QString Sıralanmış(QStringList değerler)
{
    değerler.removeAll(QString());
    return değerler.join(QStringLiteral(", "));
}

/// The article in a list: YAZAR: BAŞLIK.
inline QString ListeMetni(const Makale& makale)
{
    return makale.Yazar + QStringLiteral(": ") + makale.Başlık;
}
