// Which cells of a table row continue the one before, as the row's description tells.
#pragma once

#include <bitset>
#include <cstddef>

/// Counts the cells of the descriptions and those of the text.
class RtfSatırı
{
public:
    enum class Sonraki
    {
        Yeni,
        Sürer
    };

    /// A description begins.
    void Tanımla() { *this = {}; }
    /// The cell that is described next continues the one before.
    void Birleştir() { birleşiyor_ = true; }
    /// The description of a cell ends.
    void HücreTanımla()
    {
        if (birleşiyor_ && tanımlanan_ < sürenler_.size())
            sürenler_.set(tanımlanan_);
        birleşiyor_ = false;
        ++tanımlanan_;
    }
    /// A cell of the text ends.
    /// @return what the next one is
    Sonraki HücreBitir()
    {
        ++biten_;
        return biten_ < sürenler_.size() && sürenler_[biten_] ? Sonraki::Sürer : Sonraki::Yeni;
    }
    /// The row ends; its description holds for those behind too.
    void Bitir() { biten_ = 0; }

private:
    std::bitset<64> sürenler_; // word processors allow 63 cells
    std::size_t tanımlanan_ = 0;
    std::size_t biten_ = 0;
    bool birleşiyor_ = false;
};
