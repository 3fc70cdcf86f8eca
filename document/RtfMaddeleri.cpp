#include "document/RtfMaddeleri.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::size_t EnÇokMadde = 100; // kinds of items, not items
constexpr int EnUzunİm = 32;            // more is no bullet
constexpr int EnBüyükİlk = 32767;
constexpr int EnBüyükRoma = 3999;
constexpr int EnBüyükHarfSırası = 26 * 10;

// a to z, aa, bb
QString harfSırası(int no)
{
    return QString((no - 1) / 26 + 1, QChar(u'a' + (no - 1) % 26));
}

QString romaSayısı(int no)
{
    static constexpr std::pair<int, const char*> Basamaklar[] = {
        {1000, "m"}, {900, "cm"}, {500, "d"}, {400, "cd"}, {100, "c"}, {90, "xc"}, {50, "l"},
        {40, "xl"},  {10, "x"},   {9, "ix"},  {5, "v"},    {4, "iv"},  {1, "i"}};
    QString sayı;
    for (const auto& [değer, yazı] : Basamaklar)
        for (; no >= değer; no -= değer)
            sayı += QLatin1StringView(yazı);
    return sayı;
}

// ASCII letters, to which the rules of Turkish don't apply.
QString büyük(QString sayı)
{
    for (QChar& harf : sayı)
        harf = QChar(harf.unicode() & ~0x20);
    return sayı;
}

QString yazıyla(RtfMaddeTürü tür, int no)
{
    const bool harfli = no >= 1 && no <= EnBüyükHarfSırası;
    const bool romalı = no >= 1 && no <= EnBüyükRoma;
    switch (tür) {
    case RtfMaddeTürü::BüyükHarf:
        return harfli ? büyük(harfSırası(no)) : QString::number(no);
    case RtfMaddeTürü::KüçükHarf:
        return harfli ? harfSırası(no) : QString::number(no);
    case RtfMaddeTürü::BüyükRoma:
        return romalı ? büyük(romaSayısı(no)) : QString::number(no);
    case RtfMaddeTürü::KüçükRoma:
        return romalı ? romaSayısı(no) : QString::number(no);
    default:
        return QString::number(no);
    }
}

} // namespace

void RtfMaddeleri::Sözcük(const RtfTanımı& tanım, int değer)
{
    switch (tanım.Eylem) {
    case RtfEylemi::MaddeTürü:
        yazılan_.tür = static_cast<RtfMaddeTürü>(tanım.Değer);
        break;
    case RtfEylemi::MaddeDüzeyi:
        yazılan_.düzey = std::clamp(değer, 0, EnBüyükİlk);
        if (yazılan_.tür == RtfMaddeTürü::Yok)
            yazılan_.tür = RtfMaddeTürü::Sayı;
        break;
    case RtfEylemi::MaddeBaşlangıcı:
        yazılan_.ilk = std::clamp(değer, 0, EnBüyükİlk);
        break;
    default:
        break;
    }
}

void RtfMaddeleri::Harf(RtfEylemi yeri, char16_t harf)
{
    QString& yazı = yeri == RtfEylemi::MaddeÖnü ? yazılan_.ön : yazılan_.ard;
    if (harf >= u' ' && yazı.size() < EnUzunİm)
        yazı += QChar(harf);
}

int RtfMaddeleri::Bitir()
{
    auto yer = std::find(maddeler_.begin(), maddeler_.end(), yazılan_);
    if (yer == maddeler_.end()) {
        if (maddeler_.size() == EnÇokMadde)
            return -1;
        yer = maddeler_.insert(yer, yazılan_);
        sıralar_.push_back(0);
    }
    return static_cast<int>(yer - maddeler_.begin());
}

QString RtfMaddeleri::Say(int yer)
{
    const auto sıra = static_cast<std::size_t>(yer);
    const Madde& madde = maddeler_[sıra];
    if (madde.tür == RtfMaddeTürü::Yok)
        return {};
    sayıyor_ = true;
    for (std::size_t i = 0; i < maddeler_.size(); ++i)
        if (maddeler_[i].düzey > madde.düzey)
            sıralar_[i] = 0;
    const int no = madde.ilk + sıralar_[sıra]++;
    if (madde.tür != RtfMaddeTürü::İmli)
        return madde.ön + yazıyla(madde.tür, no) + madde.ard + u'\t';
    const QString im = madde.ön + madde.ard;
    return (im.isEmpty() ? QStringLiteral("•") : im) + u'\t';
}

void RtfMaddeleri::Kes()
{
    if (std::exchange(sayıyor_, false))
        std::fill(sıralar_.begin(), sıralar_.end(), 0);
}
