#include "document/RtfSözcükleri.h"

#include <algorithm>
#include <array>
#include <limits>

namespace {

// What ends a stretch of plain bytes.
constexpr std::array<bool, 256> Ayraçlar = [] {
    std::array<bool, 256> ayraçlar{};
    for (std::size_t denetim = 0; denetim < 0x20; ++denetim)
        ayraçlar[denetim] = denetim != '\t';
    ayraçlar['{'] = ayraçlar['}'] = ayraçlar['\\'] = true;
    return ayraçlar;
}();

bool ayraç(char bayt)
{
    return Ayraçlar[static_cast<unsigned char>(bayt)];
}

bool harf(char bayt)
{
    return (bayt >= 'a' && bayt <= 'z') || (bayt >= 'A' && bayt <= 'Z');
}

bool rakam(char bayt)
{
    return bayt >= '0' && bayt <= '9';
}

int onaltılıkRakam(char bayt)
{
    if (rakam(bayt))
        return bayt - '0';
    const char küçük = static_cast<char>(bayt | 0x20);
    return küçük >= 'a' && küçük <= 'f' ? küçük - 'a' + 10 : -1;
}

} // namespace

RtfSözcüğü RtfSözcükleri::Sonraki()
{
    while (yer_ != son_) {
        const char bayt = *yer_;
        if (!ayraç(bayt)) {
            const char* baş = yer_;
            while (yer_ != son_ && !ayraç(*yer_))
                ++yer_;
            return {RtfTürü::Düz, {baş, static_cast<std::size_t>(yer_ - baş)}};
        }
        ++yer_;
        if (bayt == '{')
            return {RtfTürü::GrupBaşı, {}};
        if (bayt == '}')
            return {RtfTürü::GrupSonu, {}};
        if (bayt == '\\' && yer_ != son_)
            return ters();
    }
    return {};
}

void RtfSözcükleri::İkiliAtla(int boy)
{
    if (boy <= 0 || boy > son_ - yer_)
        return;
    const char* arkası = yer_ + boy;
    if (arkası == son_ || QByteArrayView("{}\\\r\n").contains(*arkası))
        yer_ = arkası;
}

// What stands behind a backslash.
RtfSözcüğü RtfSözcükleri::ters()
{
    const char bayt = *yer_;
    if (harf(bayt))
        return sözcük();
    ++yer_;
    switch (bayt) {
    case '\'':
        return onaltılık();
    case '{':
    case '}':
    case '\\':
        return {RtfTürü::Bayt, {}, true, bayt};
    case '\r':
    case '\n':
        return {RtfTürü::Sözcük, "par"};
    case '\t':
        return {RtfTürü::Sözcük, "tab"};
    default:
        return {RtfTürü::Simge, {}, true, static_cast<unsigned char>(bayt)};
    }
}

RtfSözcüğü RtfSözcükleri::sözcük()
{
    const char* baş = yer_;
    while (yer_ != son_ && harf(*yer_))
        ++yer_;
    RtfSözcüğü söz{RtfTürü::Sözcük, {baş, static_cast<std::size_t>(yer_ - baş)}};
    const bool eksi = yer_ != son_ && *yer_ == '-' && yer_ + 1 != son_ && rakam(yer_[1]);
    if (eksi)
        ++yer_;
    qint64 değer = 0;
    for (; yer_ != son_ && rakam(*yer_); ++yer_) {
        söz.Değerli = true;
        değer = std::min<qint64>(değer * 10 + (*yer_ - '0'), std::numeric_limits<int>::max());
    }
    söz.Değer = static_cast<int>(eksi ? -değer : değer);
    if (yer_ != son_ && *yer_ == ' ')
        ++yer_;
    return söz;
}

// Digits that are none are left for the text.
RtfSözcüğü RtfSözcükleri::onaltılık()
{
    const int üst = yer_ != son_ ? onaltılıkRakam(*yer_) : -1;
    const int alt = üst >= 0 && yer_ + 1 != son_ ? onaltılıkRakam(yer_[1]) : -1;
    if (alt < 0)
        return {RtfTürü::Simge, {}, true, '\''};
    yer_ += 2;
    return {RtfTürü::Bayt, {}, true, üst * 16 + alt};
}
