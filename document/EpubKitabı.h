// Puts the chapters of an electronic book into one page.
#pragma once

#include "document/BelgeBilgisi.h"

#include <QByteArray>

#include <functional>

struct EpubKitabı
{
    QByteArray Html; ///< UTF-8 with a byte order mark: all chapters in reading order
    BelgeBilgisi Bilgi;
};

/// @param parça gives a file of the book by its name in it; empty where there is none
/// @throws MetinOkumaHatası the book doesn't tell its chapters, or they can't be read; doesn't name it
EpubKitabı EpubOku(const std::function<QByteArray(const QString& ad)>& parça);
