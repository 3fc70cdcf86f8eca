#include "text/TürkçeArama.h"

#include "text/TürkçeHarfler.h"

#include <array>
#include <utility>

namespace {

// Softened before a vowel, as grammars of Turkish give it. After an n, k becomes g.
constexpr std::array<std::pair<QStringView, QStringView>, 6> Değişimler = {
    {{u"p", u"b"}, {u"ç", u"c"}, {u"t", u"d"}, {u"nk", u"ng"}, {u"k", u"ğ"}, {u"g", u"ğ"}}};

} // namespace

// Folding keeps every position.
MetinArayıcı::MetinArayıcı(QStringView metin, QStringView aranan)
    : katlı_(Katla(metin)), bulucu_(Katla(aranan))
{
}

qint32 MetinArayıcı::Sonraki(qint32 konum) const
{
    return bulucu_.pattern().isEmpty() ? 0 : static_cast<qint32>(bulucu_.indexIn(katlı_, konum) + 1);
}

QStringList KökBiçimleri(const QString& sözcük)
{
    QStringList biçimler = {sözcük};
    const QString katlı = Katla(sözcük);
    const auto değişsin = [&](QStringView eski, QStringView yeni) {
        if (katlı.size() > eski.size() && katlı.endsWith(eski))
            biçimler.append(sözcük.chopped(eski.size()) + yeni.toString());
    };
    for (const auto& [sert, yumuşak] : Değişimler) {
        değişsin(sert, yumuşak);
        değişsin(yumuşak, sert);
    }
    return biçimler;
}
