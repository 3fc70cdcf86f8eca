// Text of documents that other programs must read.
#pragma once

#include "document/BelgeBilgisi.h"

#include <QStringList>

#include <functional>

/// What became of one document.
struct ÇevrilenBelge
{
    QString Metin;
    BelgeBilgisi Bilgi;
    QString Neden; ///< why it could not be read: a Turkish sentence that doesn't name the file; else empty

    bool Okundu() const { return Neden.isEmpty(); }
};

/// How long another program may take, in ms. What takes longer is ended, and only its document is refused.
struct ÇevirmeSüreleri
{
    int Açılış = 180'000; ///< from the word processor's start to its first sign
    int Belge = 60'000;   ///< for each document
};

/// Given each document in the order of the paths, as soon as it and those before it are there.
using ÇevrilenAlıcı = std::function<void(qsizetype kaçıncı, const ÇevrilenBelge& belge)>;

/// Reads word processors' documents (DOC, DOCX, ODT), HTML and EPUB with LibreOffice, and PDF with poppler's
/// programs; RTF and plain text, whatever such a file is named, by itself. Files are told apart by what they
/// hold. A document without a letter is refused. Needs no application object.
///
/// Works on copies in a private temporary folder, with a private profile of the word processor: no macros, no
/// network, no meeting with one that runs already. The folder and the programs are gone when this returns or
/// throws; when the process is killed, the programs are gone, and the folder by the next call. A document
/// that brings the word processor down, or keeps it, costs only itself.
/// @param yollar absolute
/// @param sürsün asked ten times a second and more; false stops. It may throw, too, as may the receiver
/// @return false when stopped
/// @throws ÇalışmaHatası the temporary folder can't be made or written
bool BelgeleriÇevir(const QStringList& yollar, const ÇevrilenAlıcı& alıcı,
                    const std::function<bool()>& sürsün = {}, const ÇevirmeSüreleri& süreler = {});
