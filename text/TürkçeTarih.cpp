#include "text/TürkçeTarih.h"

#include "text/TürkçeHarfler.h"

#include <QDate>
#include <QVarLengthArray>

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace {

// Folded; a month's short name is its first three letters.
constexpr std::array<QStringView, 12> Aylar{u"ocak",   u"şubat",   u"mart",  u"nisan", u"mayıs", u"haziran",
                                            u"temmuz", u"ağustos", u"eylül", u"ekim",  u"kasım", u"aralık"};
constexpr std::array<QStringView, 7> HaftaGünleri{u"pazartesi", u"salı",      u"çarşamba", u"perşembe",
                                                  u"cuma",      u"cumartesi", u"pazar"};
constexpr qsizetype KısaAdBoyu = 3;

// g day, a month's number, A month's name, y year, H day of the week. Day and month alone are a day of the
// current year, but need no pattern and no clock: every such pair is also a month of a two-digit year, which
// the conversion falls back on ("30 Şubat" is February 1930).
constexpr std::array<std::string_view, 11> Kalıplar{"gAy", "Agy", "yAg", "gAyH", "Ay", "yA",
                                                    "gay", "agy", "yag", "ay",   "ya"};
constexpr qsizetype EnÇokÖğe = 4;

enum class Tür
{
    Sayı, // one or two digits
    Yıl,  // three or four digits, from 100
    Ay,
    HaftaGünü,
};

struct Öğe
{
    Tür tür;
    int değer;
};
using Öğeler = QVarLengthArray<Öğe, EnÇokÖğe>;

bool rakamMı(QChar harf)
{
    return harf >= u'0' && harf <= u'9';
}

bool harfMi(QChar harf)
{
    return harf.isLetter();
}

/// Takes the units that fit off the text's beginning.
QStringView baştanAl(QStringView& metin, bool (*uyar)(QChar))
{
    const auto son = std::find_if_not(metin.begin(), metin.end(), uyar);
    const QStringView alınan = metin.first(son - metin.begin());
    metin = metin.sliced(alınan.size());
    return alınan;
}

std::optional<Öğe> sayı(QStringView rakamlar)
{
    const int değer = rakamlar.toInt();
    if (rakamlar.size() <= 2)
        return Öğe{Tür::Sayı, değer};
    if (rakamlar.size() > 4 || değer < 100)
        return {};
    return Öğe{Tür::Yıl, değer};
}

std::optional<Öğe> ad(QStringView sözcük)
{
    const auto ay = std::find_if(Aylar.begin(), Aylar.end(), [sözcük](QStringView adı) {
        return sözcük == adı || sözcük == adı.first(KısaAdBoyu);
    });
    if (ay != Aylar.end())
        return Öğe{Tür::Ay, int(ay - Aylar.begin()) + 1};
    const auto gün = std::find(HaftaGünleri.begin(), HaftaGünleri.end(), sözcük);
    if (gün != HaftaGünleri.end())
        return Öğe{Tür::HaftaGünü, int(gün - HaftaGünleri.begin()) + 1};
    return {};
}

/// The elements of a folded text; none if anything in it belongs to no date.
Öğeler öğeler(QStringView metin)
{
    Öğeler sonuç;
    bool virgül = false;
    bool adlı = false;
    for (metin = metin.trimmed();;) {
        const QStringView rakamlar = baştanAl(metin, rakamMı);
        const auto öğe = rakamlar.isEmpty() ? ad(baştanAl(metin, harfMi)) : sayı(rakamlar);
        if (!öğe || sonuç.size() == EnÇokÖğe)
            return {};
        sonuç.append(*öğe);
        adlı = adlı || öğe->tür == Tür::Ay;
        if (metin.isEmpty())
            return virgül && !adlı ? Öğeler() : sonuç;
        metin = metin.trimmed();
        if (QStringView(u"./-,").contains(metin.front())) {
            virgül = virgül || metin.front() == u',';
            metin = metin.sliced(1).trimmed();
        }
    }
}

/// The year that a number of one or two digits stands for; any other element as it is.
Öğe tamYıl(Öğe öğe)
{
    if (öğe.tür != Tür::Sayı)
        return öğe;
    return {Tür::Yıl, öğe.değer + (öğe.değer < 30 ? 2000 : 1900)};
}

bool uyar(const Öğeler& öğeler, std::string_view kalıp)
{
    if (öğeler.size() != qsizetype(kalıp.size()))
        return false;
    int gün = 1, ay = 0, yıl = 0, haftaGünü = 0;
    bool uyuyor = true;
    const auto al = [&uyuyor](Öğe öğe, Tür beklenen, int& yer) {
        uyuyor = uyuyor && öğe.tür == beklenen;
        yer = öğe.değer;
    };
    for (std::size_t i = 0; i < kalıp.size(); ++i) {
        const Öğe öğe = öğeler[qsizetype(i)];
        switch (kalıp[i]) {
        case 'g':
            al(öğe, Tür::Sayı, gün);
            break;
        case 'a':
            al(öğe, Tür::Sayı, ay);
            break;
        case 'A':
            al(öğe, Tür::Ay, ay);
            break;
        case 'H':
            al(öğe, Tür::HaftaGünü, haftaGünü);
            break;
        default:
            al(tamYıl(öğe), Tür::Yıl, yıl);
        }
    }
    const QDate tarih(yıl, ay, gün);
    return uyuyor && tarih.isValid() && (haftaGünü == 0 || haftaGünü == tarih.dayOfWeek());
}

} // namespace

bool TürkçeTarihMi(QStringView metin)
{
    const QString katlı = Katla(metin);
    const Öğeler bulunan = öğeler(katlı);
    return std::any_of(Kalıplar.begin(), Kalıplar.end(),
                       [&bulunan](std::string_view kalıp) { return uyar(bulunan, kalıp); });
}
