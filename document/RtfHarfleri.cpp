#include "document/RtfHarfleri.h"

#include "document/Utf8.h"

#include <utility>

RtfHarfleri::RtfHarfleri(RtfBaşlığı& başlık, std::function<void(char16_t)> alıcı)
    : başlık_(başlık), alıcı_(std::move(alıcı))
{
}

void RtfHarfleri::Varsay(const RtfKodlaması& kodlama)
{
    if (kodlama.KaçışlıUtf8)
        başlık_.Utf8Varsay();
    if (kodlama.HamUtf8)
        hamUtf8_.emplace(KodSayfası::Utf8);
}

void RtfHarfleri::YazıTipi(int yer)
{
    if (yer != yazıTipi_)
        sayfa_ = nullptr;
    yazıTipi_ = yer;
}

void RtfHarfleri::Bayt(unsigned char bayt, Yazılış yazılış)
{
    if (yarımBoyu_ > 0 && yarımSayfası_ == &sayfa(yazılış)) {
        çokBaytlı(bayt, yazılış);
        return;
    }
    Kes();
    const bool utf8 = bayt >= 0x80 && yazılış == Yazılış::Ham && hamUtf8_;
    if (const char16_t im = utf8 ? u'\0' : simge(bayt)) {
        alıcı_(im);
    } else if (bayt < 0x80) {
        alıcı_(bayt);
    } else if (const KodSayfası& kod = sayfa(yazılış); kod.Boy(bayt) == 1) {
        alıcı_(kod.Harf(bayt));
    } else {
        yarımSayfası_ = &kod;
        yarım_[yarımBoyu_++] = static_cast<char>(bayt);
    }
}

void RtfHarfleri::Unicode(int değer)
{
    const int kod = değer < 0 ? değer + 0x10000 : değer;
    if (kod < 0 || kod > 0x10FFFF) {
        alıcı_(QChar::ReplacementCharacter);
    } else if (kod > 0xFFFF) {
        alıcı_(QChar::highSurrogate(static_cast<char32_t>(kod)));
        alıcı_(QChar::lowSurrogate(static_cast<char32_t>(kod)));
    } else if ((kod & 0xFF00) == 0xF000 && başlık_.Simgesel(yazıTipi_)) {
        Bayt(static_cast<unsigned char>(kod & 0xFF), Yazılış::Kaçışlı);
    } else {
        alıcı_(static_cast<char16_t>(kod));
    }
}

void RtfHarfleri::YedekAtla(std::string_view& baytlar, int& kaç) const
{
    for (; kaç > 0 && !baytlar.empty(); --kaç) {
        const QByteArrayView kalan(baytlar.data(), static_cast<qsizetype>(baytlar.size()));
        baytlar.remove_prefix(hamUtf8_ ? static_cast<std::size_t>(Utf8İlk(kalan).Boy) : 1);
    }
}

void RtfHarfleri::Kes()
{
    if (std::exchange(yarımBoyu_, 0) > 0)
        alıcı_(QChar::ReplacementCharacter);
}

const KodSayfası& RtfHarfleri::sayfa(Yazılış yazılış)
{
    if (yazılış == Yazılış::Ham && hamUtf8_)
        return *hamUtf8_;
    if (!sayfa_)
        sayfa_ = &başlık_.KodSayfasıBul(yazıTipi_);
    return *sayfa_;
}

// The sign that the font has for a byte; 0 for none.
char16_t RtfHarfleri::simge(unsigned char bayt) const
{
    if (const SimgeTablosu* simgeler = başlık_.Simgeler(yazıTipi_))
        return (*simgeler)[bayt];
    // The bullets of the usual symbol fonts.
    if ((bayt == 0xB7 || bayt == 0xA7) && başlık_.Simgesel(yazıTipi_))
        return bayt == 0xB7 ? u'•' : u'▪';
    return 0;
}

void RtfHarfleri::çokBaytlı(unsigned char bayt, Yazılış yazılış)
{
    yarım_[yarımBoyu_++] = static_cast<char>(bayt);
    if (yarımBoyu_ < static_cast<std::size_t>(yarımSayfası_->Boy(static_cast<unsigned char>(yarım_[0]))))
        return;
    const auto baytlar = yarım_;
    const std::size_t boy = std::exchange(yarımBoyu_, 0);
    const QString harfler = yarımSayfası_->Harf({baytlar.data(), boy});
    for (const QChar harf : harfler)
        alıcı_(harf.unicode());
    if (!harfler.isEmpty())
        return;
    alıcı_(QChar::ReplacementCharacter);
    for (std::size_t i = 1; i < boy; ++i) // those behind the first may be letters of their own
        Bayt(static_cast<unsigned char>(baytlar[i]), yazılış);
}
