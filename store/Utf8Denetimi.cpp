#include "store/Utf8Denetimi.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>

namespace {

// Sixteen bytes at a time; the compiler turns this into the machine's vector instructions. Comparisons give
// 0 or -1 for each byte.
using Vektör = unsigned char __attribute__((vector_size(16)));
constexpr std::size_t VektörBoyu = 16;
constexpr std::size_t Öncekiler = 3; // bytes before one that say what it may be

Vektör yükle(const char* baytlar)
{
    Vektör vektör;
    std::memcpy(&vektör, baytlar, VektörBoyu);
    return vektör;
}

/// Not zero for each of the sixteen bytes from there on that can't follow the three before it.
Vektör kusurlar(const char* yer)
{
    const Vektör bayt = yükle(yer), bir = yükle(yer - 1), iki = yükle(yer - 2), üç = yükle(yer - 3);
    const auto devam = (bayt & 0xc0) == 0x80;
    const auto beklenen = (bir >= 0xc0) | (iki >= 0xe0) | (üç >= 0xf0);
    const auto kullanılmaz = (bayt == 0xc0) | (bayt == 0xc1) | (bayt > 0xf4);
    const auto uzunYazım = ((bir == 0xe0) & (bayt < 0xa0)) | ((bir == 0xf0) & (bayt < 0x90));
    const auto aralıkDışı = ((bir == 0xed) & (bayt >= 0xa0)) | ((bir == 0xf4) & (bayt >= 0x90));
    return reinterpret_cast<Vektör>((devam ^ beklenen) | kullanılmaz | uzunYazım | aralıkDışı);
}

/// The same where the text begins or ends within these bytes: zeros stand around it.
Vektör kenarKusurları(std::string_view baytlar, std::size_t yer)
{
    std::array<char, Öncekiler + VektörBoyu> dolgulu = {};
    const std::size_t ilk = yer < Öncekiler ? 0 : yer - Öncekiler;
    const std::size_t son = std::min(baytlar.size(), yer + VektörBoyu);
    if (ilk < son)
        std::memcpy(dolgulu.data() + (ilk + Öncekiler - yer), baytlar.data() + ilk, son - ilk);
    return kusurlar(dolgulu.data() + Öncekiler);
}

} // namespace

bool Utf8Geçerli(std::string_view baytlar)
{
    Vektör kusur = {};
    // To behind the end, where a sequence that was cut short shows.
    for (std::size_t yer = 0; yer < baytlar.size() + Öncekiler; yer += VektörBoyu) {
        kusur |= yer >= Öncekiler && yer + VektörBoyu <= baytlar.size() ? kusurlar(baytlar.data() + yer)
                                                                        : kenarKusurları(baytlar, yer);
    }
    const Vektör yok = {};
    return std::memcmp(&kusur, &yok, VektörBoyu) == 0;
}
