// Bytes of an RTF document made into letters.
#pragma once

#include "document/RtfBaşlığı.h"
#include "document/RtfÖnBakış.h"

#include <array>
#include <functional>
#include <optional>

/// Goes by the font: its code page, or its signs where it is one of signs. A letter's bytes may stand apart,
/// as long as nothing else comes between.
class RtfHarfleri
{
public:
    /// How a byte stands in the document.
    enum class Yazılış
    {
        Ham,
        Kaçışlı ///< as \'hh
    };

    /// @param başlık must outlive this
    /// @param alıcı is given each UTF-16 unit
    RtfHarfleri(RtfBaşlığı& başlık, std::function<void(char16_t)> alıcı);

    /// Where bytes above 127 are UTF-8, whatever font and head say.
    void Varsay(const RtfKodlaması& kodlama);
    /// Font of the bytes that follow, by its place in the head.
    void YazıTipi(int yer);
    /// The head has changed.
    void Unut() { sayfa_ = nullptr; }

    void Bayt(unsigned char bayt, Yazılış yazılış);
    /// What \u with this number stands for; those of private use may stand for a symbol font's bytes.
    void Unicode(int değer);
    /// Passes over raw characters that stand in for one of Unicode.
    /// @param kaç how many; less those that were there
    void YedekAtla(std::string_view& baytlar, int& kaç) const;
    /// Whether bytes below 128 are ASCII here.
    bool Ascii() const { return yarımBoyu_ == 0 && !başlık_.Simgeler(yazıTipi_); }
    /// Something else comes: a letter that has begun gives U+FFFD.
    void Kes();

private:
    const KodSayfası& sayfa(Yazılış yazılış);
    char16_t simge(unsigned char bayt) const;
    void çokBaytlı(unsigned char bayt, Yazılış yazılış);

    RtfBaşlığı& başlık_;
    std::function<void(char16_t)> alıcı_;
    std::optional<KodSayfası> hamUtf8_;
    int yazıTipi_ = -1;
    const KodSayfası* sayfa_ = nullptr; // of the font; unknown until asked for
    std::array<char, 4> yarım_{};       // a letter's first bytes
    std::size_t yarımBoyu_ = 0;
    const KodSayfası* yarımSayfası_ = nullptr;
};
