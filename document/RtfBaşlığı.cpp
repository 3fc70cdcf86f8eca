#include "document/RtfBaşlığı.h"

#include <QStringList>

#include <algorithm>
#include <utility>

namespace {

// Far more than documents have; they keep damaged ones from growing in memory.
constexpr std::size_t EnÇokYazıTipi = 32768;
constexpr std::size_t EnÇokRenk = 65536;
constexpr int EnUzunYazıTipiAdı = 64;

// Names of the time when the scripts of a font were fonts of their own.
QString sadeAd(const QString& ad)
{
    static const QStringList ekler = {QStringLiteral(" Tur"),      QStringLiteral(" TUR"),
                                      QStringLiteral(" CE"),       QStringLiteral(" Cyr"),
                                      QStringLiteral(" CYR"),      QStringLiteral(" Greek"),
                                      QStringLiteral(" Baltic"),   QStringLiteral(" (Hebrew)"),
                                      QStringLiteral(" (Arabic)"), QStringLiteral(" (Vietnamese)")};
    const QString kırpık = ad.trimmed();
    const auto ek = std::find_if(ekler.begin(), ekler.end(),
                                 [&kırpık](const QString& aday) { return kırpık.endsWith(aday); });
    return ek == ekler.end() ? kırpık : kırpık.chopped(ek->size());
}

} // namespace

void RtfBaşlığı::Sözcük(const RtfTanımı& tanım, int değer, bool tabloda)
{
    const bool yazıTipinin = tabloda && yazılan_ >= 0;
    switch (tanım.Eylem) {
    case RtfEylemi::KodSayfası:
        belgeKodu_ = tanım.Değer;
        break;
    case RtfEylemi::AnsiKodSayfası:
        if (KodSayfası::Biliniyor(değer))
            belgeKodu_ = değer;
        break;
    case RtfEylemi::VarsayılanYazıTipi:
        varsayılan_ = değer;
        break;
    case RtfEylemi::KarakterKümesi:
        if (yazıTipinin)
            yazıTipi(yazılan_).kodSayfası = RtfKümeKodSayfası(değer);
        break;
    case RtfEylemi::YazıTipiKodSayfası:
        if (yazıTipinin && KodSayfası::Biliniyor(değer))
            yazıTipi(yazılan_).kodSayfası = değer;
        break;
    case RtfEylemi::RenkBileşeni:
        bileşenler_[static_cast<std::size_t>(tanım.Değer)] = std::clamp(değer, 0, 255);
        bileşenVar_ = true;
        break;
    default:
        break;
    }
}

void RtfBaşlığı::YazıTipiBaşı(int no)
{
    yazılan_ = YazıTipiYeri(no);
    if (yazılan_ >= 0) {
        yazıTipi(yazılan_) = {};
    } else if (yazıTipleri_.size() < EnÇokYazıTipi) {
        yazılan_ = static_cast<int>(yazıTipleri_.size());
        yazıTipleri_.emplace_back();
        yerler_.insert(no, yazılan_);
    }
}

void RtfBaşlığı::YazıTipiHarfi(char16_t harf)
{
    if (yazılan_ < 0 || harf < u' ')
        return;
    YazıTipi& tip = yazıTipi(yazılan_);
    if (tip.adBitti)
        return;
    tip.adBitti = harf == u';';
    if (tip.adBitti) {
        tip.ad = sadeAd(tip.ad);
        tip.simgeler = SimgeTablosuBul(tip.ad);
    } else if (tip.ad.size() < EnUzunYazıTipiAdı) {
        tip.ad += QChar(harf);
    }
}

// The default font where there is no other; nullptr where that isn't in the table.
const RtfBaşlığı::YazıTipi* RtfBaşlığı::asıl(int yer) const
{
    const int asılYer = yer < 0 ? YazıTipiYeri(varsayılan_) : yer;
    return asılYer < 0 ? nullptr : &yazıTipi(asılYer);
}

bool RtfBaşlığı::Simgesel(int yer) const
{
    const YazıTipi* tip = asıl(yer);
    return tip && (tip->simgeler || tip->kodSayfası == RtfKodSayfası::Simgesel);
}

const SimgeTablosu* RtfBaşlığı::Simgeler(int yer) const
{
    const YazıTipi* tip = asıl(yer);
    return tip ? tip->simgeler : nullptr;
}

int RtfBaşlığı::belgeninKodu() const
{
    return utf8Varsayılan_ ? KodSayfası::Utf8 : belgeKodu_;
}

int RtfBaşlığı::kodu(int yer) const
{
    const YazıTipi* tip = asıl(yer);
    const int kod = tip ? tip->kodSayfası : RtfKodSayfası::Belgenin;
    const int belgenin = belgeninKodu();
    if (kod == RtfKodSayfası::Belgenin || kod == RtfKodSayfası::Simgesel)
        return belgenin;
    const bool batı = kod == KodSayfası::Windows1252;
    const bool türkçe = kod == KodSayfası::Windows1254;
    // Turkish programs name the Western character set and write Turkish letters. The two pages differ in
    // little more than those six, whose places in the Western one hold Icelandic letters. And what writes
    // UTF-8 has to name some set.
    const bool belgeninki = (batı && belgenin == KodSayfası::Windows1254) ||
                            ((batı || türkçe) && belgenin == KodSayfası::Utf8 && utf8Varsayılan_);
    return belgeninki ? belgenin : kod;
}

const KodSayfası& RtfBaşlığı::KodSayfasıBul(int yer)
{
    const int no = kodu(yer);
    return sayfalar_.try_emplace(no, no).first->second;
}

void RtfBaşlığı::RenkSonu()
{
    const auto [kırmızı, yeşil, mavi] = std::exchange(bileşenler_, {});
    const bool var = std::exchange(bileşenVar_, false);
    if (renkler_.size() < EnÇokRenk)
        renkler_.push_back(var ? static_cast<quint32>(mavi << 16 | yeşil << 8 | kırmızı)
                               : KarakterBiçimi::Renksiz);
}

quint32 RtfBaşlığı::Renk(int no) const
{
    const auto yer = static_cast<std::size_t>(no);
    return no >= 0 && yer < renkler_.size() ? renkler_[yer] : KarakterBiçimi::Renksiz;
}
