// What must hold for every text that was read, whatever the bytes were.
#pragma once

#include "document/BelgeBilgisi.h"
#include "document/BiçimliMetin.h"

/// What is wrong with the text; nullptr when nothing is.
inline const char* MetinKusuru(const BiçimliMetin& okunan)
{
    const QString& metin = okunan.Metin;
    for (qsizetype i = 0; i < metin.size(); ++i) {
        const char16_t harf = metin[i].unicode();
        if (harf == 0)
            return "NUL";
        if (harf == u'\r' || harf == u'\f' || harf == QChar::LineSeparator ||
            harf == QChar::ParagraphSeparator)
            return "a line end that is no line feed";
        if (QChar::isHighSurrogate(harf) && i + 1 < metin.size() && metin[i + 1].isLowSurrogate())
            ++i;
        else if (QChar::isSurrogate(harf))
            return "a lone surrogate";
    }
    qsizetype son = 0;
    for (const BiçimliParça& parça : okunan.Parçalar) {
        if (parça.Uzunluk <= 0 || parça.Yer < son || parça.Biçim == KarakterBiçimi())
            return "stretches that are empty, not in order or without a format";
        son = qsizetype(parça.Yer) + parça.Uzunluk;
    }
    return son > metin.size() ? "a stretch beyond the text" : nullptr;
}

/// What is wrong with a document's properties; nullptr when nothing is.
inline const char* BilgiKusuru(const BelgeBilgisi& bilgi)
{
    for (const QString* değer :
         {&bilgi.Yazar, &bilgi.Başlık, &bilgi.Yer, &bilgi.Tarih, &bilgi.OluşturmaTarihi}) {
        if (değer->trimmed() != *değer || değer->contains(QLatin1Char('\n')))
            return "a property with blanks or lines around";
        if (const char* kusur = MetinKusuru({*değer, {}}))
            return kusur;
    }
    return nullptr;
}
