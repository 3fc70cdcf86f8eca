// Looks for a plain text in many UTF-8 texts, without regard to case by Turkish rules.
#pragma once

#include <QStringView>

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

/// Made once for a sought text, then asked for each searched one, which is neither copied nor folded:
/// the rarest pair of neighbouring letters is scanned for, in all forms that their letters have, and only
/// around a hit letters are compared.
class SözcükBulucu
{
public:
    /// @param aranan not empty
    explicit SözcükBulucu(QStringView aranan);

    bool İçerir(std::string_view utf8) const { return !Bul(utf8).empty(); }
    /// The first place where it stands, as a part of the searched text; empty when there is none.
    std::string_view Bul(std::string_view utf8) const;

private:
    /// The bytes that may stand at one place; unused ones repeat the first.
    using Baytlar = std::array<unsigned char, 4>;

    const char* adayBul(const char* yer, const char* son) const;
    std::string_view çevresi(const char* ayrım, const char* ilk, const char* son) const;

    std::vector<char32_t> harfler_; // folded
    std::size_t ayrım_ = 0; // the pair is the letters before and at this index; 0: the first letter alone
    Baytlar önceki_{};      // last bytes of the letter before
    Baytlar sonraki_{};     // first bytes of the letter at
};
