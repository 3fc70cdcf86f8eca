// The pattern of LIKE, with the signs that text/DesenÖğesi reads.
#pragma once

#include "store/SözcükBulucu.h"
#include "text/DesenÖğesi.h"

#include <QString>
#include <QStringView>

#include <optional>
#include <string_view>
#include <vector>

class BenzerDeseni
{
public:
    explicit BenzerDeseni(QStringView desen);

    /// Whether the whole text fits the pattern.
    bool Uyar(std::string_view utf8) const;
    bool Uyar(QStringView metin) const;

private:
    void bulucuyuKur();

    std::vector<DesenÖğesi> öğeler_;
    // The longest run of plain letters: a text without it can't fit. Of *word* it is the whole question.
    std::optional<SözcükBulucu> bulucu_;
    bool bulmakYeter_ = false;
};
