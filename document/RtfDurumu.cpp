#include "document/RtfDurumu.h"

#include <algorithm>

namespace {

constexpr int EnBüyükYarımNokta = 3276; // 1,638 points, the most that word processors allow

} // namespace

RtfDurumu RtfDurumu::İçGrup() const
{
    RtfDurumu iç = *this;
    iç.Kapanış = RtfKapanışı::Yok;
    iç.Yeni = true;
    iç.Yıldızlı = false;
    return iç;
}

void RtfDurumu::Biçimle(const RtfTanımı& tanım, const RtfSözcüğü& söz, const RtfBaşlığı& başlık)
{
    const bool açık = !söz.Değerli || söz.Değer != 0;
    switch (tanım.Eylem) {
    case RtfEylemi::Bayrak:
        Bayraklar = static_cast<quint8>(açık ? Bayraklar | tanım.Değer : Bayraklar & ~tanım.Değer);
        break;
    case RtfEylemi::BayrakSil:
        Bayraklar = static_cast<quint8>(Bayraklar & ~tanım.Değer);
        break;
    case RtfEylemi::YazıTipi:
        YazıTipi = başlık.YazıTipiYeri(söz.Değer);
        break;
    case RtfEylemi::Boy:
        if (söz.Değer > 0)
            YarımNokta = std::min(söz.Değer, EnBüyükYarımNokta);
        break;
    case RtfEylemi::Renk:
        Renk = başlık.Renk(söz.Değer);
        break;
    case RtfEylemi::HarfBiçimiSıfırla:
        YazıTipi = -1;
        YarımNokta = 0;
        Renk = KarakterBiçimi::Renksiz;
        Bayraklar = 0;
        break;
    case RtfEylemi::ParagrafBiçimiSıfırla:
        Tabloda = false;
        Madde = -1;
        break;
    case RtfEylemi::Tabloda:
        Tabloda = açık;
        break;
    default: // how deep in tables
        Tabloda = söz.Değer > 0;
    }
}

KarakterBiçimi RtfDurumu::Biçim(const RtfBaşlığı& başlık) const
{
    KarakterBiçimi biçim;
    biçim.Kalın = Bayraklar & RtfBayrağı::Kalın;
    biçim.İtalik = Bayraklar & RtfBayrağı::İtalik;
    biçim.AltıÇizili = Bayraklar & RtfBayrağı::AltıÇizili;
    biçim.ÜstüÇizili = Bayraklar & RtfBayrağı::ÜstüÇizili;
    biçim.YarımNokta = YarımNokta;
    biçim.Renk = Renk;
    biçim.YazıTipi = başlık.YazıTipiAdı(YazıTipi);
    return biçim;
}
