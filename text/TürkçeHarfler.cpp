#include "text/TürkçeHarfler.h"

#include <QChar>

#include <algorithm>
#include <array>
#include <memory>
#include <optional>

namespace {

constexpr char16_t NoktalıBüyükİ = u'\u0130';
constexpr char16_t NoktasızKüçükI = u'\u0131';

using HarfTablosu = std::array<char16_t, 0x10000>;

/// The small letter of the two capital I's; nothing for any other letter.
constexpr std::optional<char16_t> küçükI(char16_t harf)
{
    switch (harf) {
    case u'I':
        return NoktasızKüçükI;
    case NoktalıBüyükİ:
        return u'i';
    default:
        return {};
    }
}

char16_t katlanmış(char16_t harf)
{
    return küçükI(harf).value_or(QChar(harf).toCaseFolded().unicode());
}

// Folding is asked for each unit of each searched text, so it is one look-up in a table made once.
const HarfTablosu& katlamaTablosu()
{
    static const std::unique_ptr<const HarfTablosu> tablo = [] {
        auto yeni = std::make_unique<HarfTablosu>();
        for (std::size_t i = 0; i < yeni->size(); ++i)
            (*yeni)[i] = katlanmış(static_cast<char16_t>(i));
        return yeni;
    }();
    return *tablo;
}

bool sözcükAyırır(char16_t harf)
{
    return harf == u' ' || harf == u'\0' || (harf >= u'\t' && harf <= u'\r');
}

} // namespace

char16_t HarfKatla(char16_t harf) noexcept
{
    return katlamaTablosu()[harf];
}

QString Katla(QStringView metin)
{
    const HarfTablosu& tablo = katlamaTablosu();
    QString sonuç(metin.size(), Qt::Uninitialized);
    std::transform(metin.utf16(), metin.utf16() + metin.size(), reinterpret_cast<char16_t*>(sonuç.data()),
                   [&tablo](char16_t harf) { return tablo[harf]; });
    return sonuç;
}

bool İleBaşlar(QStringView metin, QStringView baş) noexcept
{
    if (metin.size() < baş.size())
        return false;
    const HarfTablosu& tablo = katlamaTablosu();
    return std::equal(baş.utf16(), baş.utf16() + baş.size(), metin.utf16(),
                      [&tablo](char16_t a, char16_t b) { return tablo[a] == tablo[b]; });
}

char16_t BüyükHarf(char16_t harf) noexcept
{
    switch (harf) {
    case u'i':
        return NoktalıBüyükİ;
    case NoktasızKüçükI:
        return u'I';
    default:
        return QChar(harf).toUpper().unicode();
    }
}

char16_t KüçükHarf(char16_t harf) noexcept
{
    return küçükI(harf).value_or(QChar(harf).toLower().unicode());
}

QString BüyükHarfeÇevir(QStringView metin)
{
    QString sonuç = metin.toString();
    for (QChar& harf : sonuç)
        harf = QChar(BüyükHarf(harf.unicode()));
    return sonuç;
}

QString TürkçeÖzelAd(QStringView metin)
{
    while (metin.startsWith(u' '))
        metin = metin.sliced(1);
    while (metin.endsWith(u' '))
        metin.chop(1);

    QString sonuç = metin.toString();
    bool sözcükBaşı = true;
    for (QChar& harf : sonuç) {
        const char16_t birim = harf.unicode();
        harf = QChar(sözcükBaşı ? BüyükHarf(birim) : KüçükHarf(birim));
        sözcükBaşı = sözcükAyırır(birim);
    }
    return sonuç;
}
