#include "store/SözcükBulucu.h"

#include "text/TürkçeHarfler.h"

#include <QByteArray>
#include <QChar>
#include <QList>
#include <QString>

#include <algorithm>
#include <cstring>
#include <optional>
#include <utility>

namespace {

// Sixteen bytes at a time; the compiler turns this into the machine's vector instructions.
using Vektör = unsigned char __attribute__((vector_size(16)));
constexpr std::ptrdiff_t VektörBoyu = 16;

// Roughly how many of a thousand letters of Turkish prose are this one, for choosing a rare pair. Counted
// over this program's own starter library; letters that are not listed are rare.
constexpr std::array<std::pair<char32_t, int>, 22> sıklıklar = {
    {{U' ', 130}, {U'a', 100}, {U'e', 75}, {U'i', 70}, {U'n', 60}, {U'r', 60}, {U'l', 55}, {U'ı', 45},
     {U'k', 40},  {U'd', 35},  {U't', 32}, {U'm', 30}, {U's', 27}, {U'y', 27}, {U'u', 27}, {U'o', 20},
     {U'b', 20},  {U'ü', 17},  {U'ş', 15}, {U'z', 13}, {U'g', 11}, {U'ç', 10}}};
constexpr int SeyrekHarf = 8;

int sıklık(char32_t harf)
{
    const auto* yer = std::find_if(sıklıklar.begin(), sıklıklar.end(),
                                   [harf](const auto& çift) { return çift.first == harf; });
    return yer == sıklıklar.end() ? SeyrekHarf : yer->second;
}

/// Every letter that folds to another one, ordered by what it folds to.
const std::vector<std::pair<char16_t, char16_t>>& tersKatlama()
{
    static const std::vector<std::pair<char16_t, char16_t>> tablo = [] {
        std::vector<std::pair<char16_t, char16_t>> çiftler;
        for (char32_t harf = 0; harf < 0x10000; ++harf) {
            const auto birim = static_cast<char16_t>(harf);
            if (const char16_t katlı = HarfKatla(birim); katlı != birim)
                çiftler.emplace_back(katlı, birim);
        }
        std::sort(çiftler.begin(), çiftler.end());
        return çiftler;
    }();
    return tablo;
}

QByteArray utf8(char32_t harf)
{
    return QString::fromUcs4(&harf, 1).toUtf8();
}

/// The UTF-8 forms of all letters that fold to this one.
std::vector<QByteArray> biçimler(char32_t katlı)
{
    std::vector<QByteArray> sonuç = {utf8(katlı)};
    if (katlı < 0x10000) {
        const auto& tablo = tersKatlama();
        const auto aranan = static_cast<char16_t>(katlı);
        for (auto yer = std::lower_bound(tablo.begin(), tablo.end(), std::pair(aranan, char16_t(0)));
             yer != tablo.end() && yer->first == aranan; ++yer)
            sonuç.push_back(utf8(yer->second));
    }
    return sonuç;
}

/// The different ones among the bytes; nothing when they are more than there is room for.
template<class Seç> std::optional<std::array<unsigned char, 4>> baytlar(char32_t harf, Seç seç)
{
    std::array<unsigned char, 4> sonuç{};
    std::size_t sayı = 0;
    for (const QByteArray& biçim : biçimler(harf)) {
        const auto bayt = static_cast<unsigned char>(seç(biçim));
        if (std::find(sonuç.begin(), sonuç.begin() + std::ptrdiff_t(sayı), bayt) !=
            sonuç.begin() + std::ptrdiff_t(sayı))
            continue;
        if (sayı == sonuç.size())
            return {};
        sonuç[sayı++] = bayt;
    }
    std::fill(sonuç.begin() + std::ptrdiff_t(sayı), sonuç.end(), sonuç[0]);
    return sonuç;
}

auto ilkBaytlar(char32_t harf)
{
    return baytlar(harf, [](const QByteArray& biçim) { return biçim.front(); });
}

auto sonBaytlar(char32_t harf)
{
    return baytlar(harf, [](const QByteArray& biçim) { return biçim.back(); });
}

bool devamBaytı(char bayt)
{
    return (static_cast<unsigned char>(bayt) & 0xC0) == 0x80;
}

/// The letter at the place, folded, which is then moved behind it. What is no UTF-8 gives a value that
/// no letter has.
char32_t sonrakiHarf(const char*& yer, const char* son)
{
    const auto ilk = static_cast<unsigned char>(*yer++);
    if (ilk < 0x80)
        return HarfKatla(ilk);
    int kalan = ilk >= 0xF0 ? 3 : ilk >= 0xE0 ? 2 : 1;
    char32_t harf = ilk & (0x3F >> kalan);
    for (; kalan > 0 && yer < son && devamBaytı(*yer); --kalan)
        harf = (harf << 6) | (static_cast<unsigned char>(*yer++) & 0x3F);
    if (kalan > 0)
        return 0xFFFFFFFF;
    return harf < 0x10000 ? HarfKatla(static_cast<char16_t>(harf)) : harf;
}

/// The same for the letter that ends at the place, which is moved to its beginning.
char32_t öncekiHarf(const char*& yer, const char* ilk)
{
    const char* son = yer;
    do
        --yer;
    while (yer > ilk && devamBaytı(*yer) && son - yer < 4);
    const char* baş = yer;
    return sonrakiHarf(baş, son);
}

Vektör doldur(unsigned char bayt)
{
    return Vektör{} + bayt;
}

bool içinde(const std::array<unsigned char, 4>& küme, char bayt)
{
    const auto b = static_cast<unsigned char>(bayt);
    return b == küme[0] || b == küme[1] || b == küme[2] || b == küme[3];
}

} // namespace

SözcükBulucu::SözcükBulucu(QStringView aranan)
{
    for (const char32_t harf : aranan.toUcs4())
        harfler_.push_back(harf < 0x10000 ? HarfKatla(static_cast<char16_t>(harf)) : harf);

    int enAz = 0;
    for (std::size_t i = 1; i < harfler_.size() && i < 64; ++i) {
        const int çiftSıklığı = sıklık(harfler_[i - 1]) * sıklık(harfler_[i]);
        if (ayrım_ != 0 && çiftSıklığı >= enAz)
            continue;
        const auto önceki = sonBaytlar(harfler_[i - 1]);
        const auto sonraki = ilkBaytlar(harfler_[i]);
        if (!önceki || !sonraki)
            continue;
        enAz = çiftSıklığı;
        ayrım_ = i;
        önceki_ = *önceki;
        sonraki_ = *sonraki;
    }
}

std::string_view SözcükBulucu::Bul(std::string_view utf8) const
{
    const char* const ilk = utf8.data();
    const char* const son = ilk + utf8.size();
    if (ayrım_ == 0) { // one letter, or none that can be scanned for
        for (const char* yer = ilk; yer < son; sonrakiHarf(yer, son)) {
            if (const std::string_view bulunan = çevresi(yer, ilk, son); !bulunan.empty())
                return bulunan;
        }
        return {};
    }
    for (const char* yer = ilk; (yer = adayBul(yer, son)) != nullptr; ++yer) {
        if (const std::string_view bulunan = çevresi(yer + 1, ilk, son); !bulunan.empty())
            return bulunan;
    }
    return {};
}

/// The first place from which a last byte of the one letter and a first byte of the other stand side by
/// side; null when there is none.
const char* SözcükBulucu::adayBul(const char* yer, const char* son) const
{
    const Vektör a0 = doldur(önceki_[0]), a1 = doldur(önceki_[1]), a2 = doldur(önceki_[2]),
                 a3 = doldur(önceki_[3]);
    const Vektör b0 = doldur(sonraki_[0]), b1 = doldur(sonraki_[1]), b2 = doldur(sonraki_[2]),
                 b3 = doldur(sonraki_[3]);
    for (; son - yer > VektörBoyu; yer += VektörBoyu) {
        Vektör a, b;
        std::memcpy(&a, yer, sizeof a);
        std::memcpy(&b, yer + 1, sizeof b);
        const auto uyan =
            ((a == a0) | (a == a1) | (a == a2) | (a == a3)) & ((b == b0) | (b == b1) | (b == b2) | (b == b3));
        std::array<std::uint64_t, 2> yarılar{};
        std::memcpy(yarılar.data(), &uyan, sizeof uyan);
        if ((yarılar[0] | yarılar[1]) != 0)
            break;
    }
    for (; son - yer > 1; ++yer) {
        if (içinde(önceki_, yer[0]) && içinde(sonraki_, yer[1]))
            return yer;
    }
    return nullptr;
}

/// The letters around the place where the letter of the index ayrım_ begins; empty where others stand there.
std::string_view SözcükBulucu::çevresi(const char* ayrım, const char* ilk, const char* son) const
{
    const char* bitiş = ayrım;
    for (std::size_t i = ayrım_; i < harfler_.size(); ++i) {
        if (bitiş >= son || sonrakiHarf(bitiş, son) != harfler_[i])
            return {};
    }
    const char* baş = ayrım;
    for (std::size_t i = ayrım_; i > 0; --i) {
        if (baş <= ilk || öncekiHarf(baş, ilk) != harfler_[i - 1])
            return {};
    }
    return {baş, static_cast<std::size_t>(bitiş - baş)};
}
