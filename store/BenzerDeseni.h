// The pattern of LIKE: * any run of letters, ? one letter, # one digit, [a-z] one of a list, [!a-z] none
// of a list; everything else means itself, without regard to case by Turkish rules.
#pragma once

#include "store/SözcükBulucu.h"

#include <QString>
#include <QStringView>

#include <optional>
#include <string_view>
#include <vector>

class BenzerDeseni
{
public:
    /// An unclosed bracket means itself. [] stands for no letter and is passed over.
    explicit BenzerDeseni(QStringView desen);

    /// Whether the whole text fits the pattern.
    bool Uyar(std::string_view utf8) const;
    bool Uyar(QStringView metin) const;

private:
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
    struct Öğe
    {
        Tür tür;
        char16_t harf = 0;                  // of Harf, folded
        std::vector<Aralık> aralıklar = {}; // of Liste and DeğilListe
    };

    void bulucuyuKur();
    static std::vector<Aralık> aralıklarıOku(QStringView liste);
    /// The units that the item takes at the place, 0 when it does not fit there.
    static qsizetype aldığı(const Öğe& öğe, QStringView metin, qsizetype yer);

    std::vector<Öğe> öğeler_;
    // The longest run of plain letters: a text without it can't fit. Of *word* it is the whole question.
    std::optional<SözcükBulucu> bulucu_;
    bool bulmakYeter_ = false;
};
