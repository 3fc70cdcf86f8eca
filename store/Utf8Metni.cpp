#include "store/Utf8Metni.h"

#include <array>
#include <cstdint>

namespace {

/// What may follow: any letter, so many further bytes, or the narrower second byte behind some first ones.
enum Durum : unsigned
{
    Harf,
    Bir,
    İki,
    Üç,
    E0Ardı,
    EDArdı,
    F0Ardı,
    F4Ardı,
    Yanlış,
    DurumSayısı
};

constexpr unsigned DurumBiti = 6; // a state is kept as the place of its bits in a row of the table

constexpr Durum ilkBayttan(unsigned bayt)
{
    if (bayt < 0x80)
        return Harf;
    if (bayt < 0xc2 || bayt > 0xf4)
        return Yanlış;
    if (bayt < 0xe0)
        return Bir;
    if (bayt < 0xf0)
        return bayt == 0xe0 ? E0Ardı : bayt == 0xed ? EDArdı : İki;
    return bayt == 0xf0 ? F0Ardı : bayt == 0xf4 ? F4Ardı : Üç;
}

constexpr Durum sonraki(Durum durum, unsigned bayt)
{
    const auto arada = [bayt](unsigned ilk, unsigned son, Durum yeni) {
        return bayt >= ilk && bayt <= son ? yeni : Yanlış;
    };
    switch (durum) {
    case Harf:
        return ilkBayttan(bayt);
    case Bir:
        return arada(0x80, 0xbf, Harf);
    case İki:
        return arada(0x80, 0xbf, Bir);
    case Üç:
        return arada(0x80, 0xbf, İki);
    case E0Ardı:
        return arada(0xa0, 0xbf, Bir);
    case EDArdı:
        return arada(0x80, 0x9f, Bir);
    case F0Ardı:
        return arada(0x90, 0xbf, İki);
    case F4Ardı:
        return arada(0x80, 0x8f, İki);
    default:
        return Yanlış;
    }
}

/// For each byte a row of all states' successors: one shift a byte, and no branch that could be guessed
/// wrong.
constexpr std::array<std::uint64_t, 256> geçişler()
{
    std::array<std::uint64_t, 256> satırlar = {};
    for (unsigned bayt = 0; bayt < satırlar.size(); ++bayt) {
        for (unsigned durum = 0; durum < DurumSayısı; ++durum)
            satırlar[bayt] |= std::uint64_t(sonraki(Durum(durum), bayt)) * DurumBiti << durum * DurumBiti;
    }
    return satırlar;
}

constexpr auto Geçişler = geçişler();

} // namespace

QString Utf8Metni(std::string_view utf8)
{
    QString metin = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
    if (utf8.starts_with("\xef\xbb\xbf")) // Qt takes it for a byte order mark
        metin.prepend(QChar::ByteOrderMark);
    return metin;
}

bool Utf8Geçerli(std::string_view utf8)
{
    std::uint64_t durum = 0;
    for (const char bayt : utf8)
        durum = Geçişler[static_cast<unsigned char>(bayt)] >> (durum & 63);
    return (durum & 63) == Harf;
}
