#include "document/SimgeYazıTipleri.h"

#include <QByteArray>
#include <QString>

#include <algorithm>
#include <iterator>
#include <string_view>

namespace {

struct Dizi
{
    std::size_t ilk; // byte of the first sign
    std::u16string_view simgeler;
};

// Serifed and sans-serif marks are one; pieces of tall brackets stand for themselves.
constexpr Dizi Symbol[] = {
    {0x20, u" !∀#∃%&∋()∗+,−./0123456789:;<=>?"},
    {0x40, u"≅ΑΒΧΔΕΦΓΗΙϑΚΛΜΝΟΠΘΡΣΤΥςΩΞΨΖ[∴]⊥_"},
    {0x60, u"‾αβχδεφγηιϕκλμνοπθρστυϖωξψζ{|}∼"},
    {0xA0, u"€ϒ′≤⁄∞ƒ♣♦♥♠↔←↑→↓°±″≥×∝∂•÷≠≡≈…⏐⎯↵"},
    {0xC0, u"ℵℑℜ℘⊗⊕∅∩∪⊃⊇⊄⊂⊆∈∉∠∇®©™∏√⋅¬∧∨⇔⇐⇑⇒⇓"},
    {0xE0, u"◊⟨®©™∑⎛⎜⎝⎡⎢⎣⎧⎨⎩⎪"},
    {0xF1, u"⟩∫⌠⎮⌡⎞⎟⎠⎤⎥⎦⎫⎬⎭"},
};

constexpr Dizi Dingbats[] = {
    {0x20, u" ✁✂✃✄☎✆✇✈✉☛☞✌✍✎✏✐✑✒✓✔✕✖✗✘✙✚✛✜✝✞✟"},
    {0x40, u"✠✡✢✣✤✥✦✧★✩✪✫✬✭✮✯✰✱✲✳✴✵✶✷✸✹✺✻✼✽✾✿"},
    {0x60, u"❀❁❂❃❄❅❆❇❈❉❊❋●❍■❏❐❑❒▲▼◆❖◗❘❙❚❛❜❝❞"},
    {0x80, u"❨❩❪❫❬❭❮❯❰❱❲❳❴❵"},
    {0xA1, u"❡❢❣❤❥❦❧♣♦♥♠①②③④⑤⑥⑦⑧⑨⑩❶❷❸❹❺❻❼❽❾❿"},
    {0xC0, u"➀➁➂➃➄➅➆➇➈➉➊➋➌➍➎➏➐➑➒➓➔→↔↕➘➙➚➛➜➝➞➟"},
    {0xE0, u"➠➡➢➣➤➥➦➧➨➩➪➫➬➭➮➯"},
    {0xF1, u"➱➲➳➴➵➶➷➸➹➺➻➼➽➾"},
};

// Those that most fonts for text have, or something that looks much the same.
constexpr Dizi Wingdings[] = {
    {0x20, u" ✏✂✁"},
    {0x28, u"☎✆✉"},
    {0x36, u"⌛⌨"},
    {0x3E, u"✇✍"},
    {0x41, u"✌"},
    {0x45, u"☜☞☝☟"},
    {0x4A, u"☺"},
    {0x4C, u"☹"},
    {0x4E, u"☠⚐"},
    {0x51, u"✈☼"},
    {0x54, u"❄"},
    {0x56, u"✞"},
    {0x58, u"✠✡☪☯ॐ☸♈♉♊♋♌♍♎♏♐♑♒♓&&●❍■□"},
    {0x71, u"❑❒⬧⧫◆❖⬥⌧"},
    {0x7A, u"⌘❀✿❝❞"},
    {0x80, u"⓪①②③④⑤⑥⑦⑧⑨⑩⓿❶❷❸❹❺❻❼❽❾❿"},
    {0x9E, u"·•"},
    {0xA1, u"○"},
    {0xA4, u"◉◎"},
    {0xA7, u"▪◻"},
    {0xAA, u"✦★✶✴✹✵"},
    {0xB1, u"⌖"},
    {0xB5, u"✪✰"},
    {0xD5, u"⌫⌦"},
    {0xD8, u"➢"},
    {0xDF, u"←→↑↓↖↗↙↘←➔↑↓↖↗↙↘⇦⇨⇧⇩⬄⇳⬁⬀⬃⬂"},
    {0xFA, u"▫✗✓☒☑"},
};

template<std::size_t Boy> constexpr SimgeTablosu tabloKur(const Dizi (&diziler)[Boy])
{
    SimgeTablosu tablo{};
    for (const Dizi& dizi : diziler)
        std::copy(dizi.simgeler.begin(), dizi.simgeler.end(), tablo.begin() + dizi.ilk);
    return tablo;
}

constexpr SimgeTablosu SymbolTablosu = tabloKur(Symbol);
constexpr SimgeTablosu DingbatsTablosu = tabloKur(Dingbats);
constexpr SimgeTablosu WingdingsTablosu = tabloKur(Wingdings);

struct Ad
{
    std::string_view ad;
    const SimgeTablosu* tablo;
};

constexpr Ad Adlar[] = {
    {"symbol", &SymbolTablosu},         {"symbolmt", &SymbolTablosu},
    {"zapfdingbats", &DingbatsTablosu}, {"itczapfdingbats", &DingbatsTablosu},
    {"dingbats", &DingbatsTablosu},     {"monotypesorts", &DingbatsTablosu},
    {"wingdings", &WingdingsTablosu},
};

} // namespace

const SimgeTablosu* SimgeTablosuBul(QStringView ad)
{
    const QByteArray yalın = ad.toLatin1().toLower().replace(' ', "");
    const auto* yer = std::find_if(std::begin(Adlar), std::end(Adlar), [&yalın](const Ad& aday) {
        return yalın == QByteArrayView(aday.ad.data(), static_cast<qsizetype>(aday.ad.size()));
    });
    return yer == std::end(Adlar) ? nullptr : yer->tablo;
}
