// The signs of finding in all articles, read item by item: ? one letter, # one digit, [a-z] one of a list,
// [!a-z] none of a list, * any run of letters; everything else means itself, without regard to case by
// Turkish rules.
#pragma once

#include "text/TürkçeHarfler.h"

#include <QStringView>

#include <algorithm>
#include <vector>

/// One letter as finding sees it.
struct TamHarf
{
    char32_t değer; // folded
    qsizetype boy;  // in units: 2 for a letter beyond the BMP

    static TamHarf Oku(QStringView metin, qsizetype yer)
    {
        const char16_t birim = metin[yer].unicode();
        if (QChar::isHighSurrogate(birim) && yer + 1 < metin.size() && metin[yer + 1].isLowSurrogate())
            return {QChar::surrogateToUcs4(birim, metin[yer + 1].unicode()), 2};
        return {HarfKatla(birim), 1};
    }
};

struct DesenÖğesi
{
    enum class Tür
    {
        Harf,
        TekHarf,
        Rakam,
        Liste,
        DeğilListe,
        Hepsi
    };
    struct Aralık
    {
        char32_t ilk, son; // folded, both included
    };

    Tür tür;
    char16_t harf = 0;                  // of Harf, folded
    std::vector<Aralık> aralıklar = {}; // of Liste and DeğilListe

    /// The units that the item takes at the place, 0 when it does not fit there. Hepsi fits nowhere by
    /// itself. Here because finding asks it for each letter of each text.
    qsizetype Aldığı(QStringView metin, qsizetype yer) const
    {
        const char16_t birim = metin[yer].unicode();
        switch (tür) {
        case Tür::Harf:
            return HarfKatla(birim) == harf ? 1 : 0;
        case Tür::TekHarf:
            return TamHarf::Oku(metin, yer).boy;
        case Tür::Rakam:
            return birim >= u'0' && birim <= u'9' ? 1 : 0;
        case Tür::Liste:
        case Tür::DeğilListe: {
            const TamHarf tam = TamHarf::Oku(metin, yer);
            const bool listede = std::any_of(aralıklar.begin(), aralıklar.end(), [&tam](Aralık a) {
                return a.ilk <= tam.değer && tam.değer <= a.son;
            });
            return listede == (tür == Tür::Liste) ? tam.boy : 0;
        }
        case Tür::Hepsi:
            break;
        }
        return 0;
    }
};

/// The pattern's items. An unclosed bracket means itself; [] stands for no letter and is passed over.
std::vector<DesenÖğesi> DeseniOku(QStringView desen);
