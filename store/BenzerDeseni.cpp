#include "store/BenzerDeseni.h"

#include "store/Utf8Metni.h"
#include "text/TürkçeHarfler.h"

#include <algorithm>

namespace {

struct TamHarf
{
    char32_t değer; // folded
    qsizetype boy;  // in units: 2 for a letter beyond the BMP
};

TamHarf harfOku(QStringView metin, qsizetype yer)
{
    const char16_t birim = metin[yer].unicode();
    if (QChar::isHighSurrogate(birim) && yer + 1 < metin.size() && metin[yer + 1].isLowSurrogate())
        return {QChar::surrogateToUcs4(birim, metin[yer + 1].unicode()), 2};
    return {HarfKatla(birim), 1};
}

} // namespace

BenzerDeseni::BenzerDeseni(QStringView desen)
{
    for (qsizetype i = 0; i < desen.size(); ++i) {
        const char16_t harf = desen[i].unicode();
        if (harf == u'*') {
            if (öğeler_.empty() || öğeler_.back().tür != Tür::Hepsi)
                öğeler_.push_back({Tür::Hepsi});
        } else if (harf == u'?') {
            öğeler_.push_back({Tür::TekHarf});
        } else if (harf == u'#') {
            öğeler_.push_back({Tür::Rakam});
        } else if (const qsizetype son = harf == u'[' ? desen.indexOf(u']', i + 1) : -1; son >= 0) {
            QStringView liste = desen.sliced(i + 1, son - i - 1);
            const bool değil = liste.startsWith(u'!');
            if (değil)
                liste = liste.sliced(1);
            if (!liste.isEmpty())
                öğeler_.push_back({değil ? Tür::DeğilListe : Tür::Liste, 0, aralıklarıOku(liste)});
            else if (değil) // [!] is a list of the exclamation mark alone
                öğeler_.push_back({Tür::Harf, u'!'});
            i = son;
        } else {
            öğeler_.push_back({Tür::Harf, HarfKatla(harf)});
        }
    }
    bulucuyuKur();
}

void BenzerDeseni::bulucuyuKur()
{
    QString enUzun, şimdiki;
    for (const Öğe& öğe : öğeler_) {
        if (öğe.tür == Tür::Harf)
            şimdiki += QChar(öğe.harf);
        else
            şimdiki.clear();
        if (şimdiki.size() > enUzun.size())
            enUzun = şimdiki;
    }
    if (enUzun.isEmpty())
        return;
    bulucu_.emplace(enUzun);
    bulmakYeter_ = static_cast<std::size_t>(enUzun.size()) + 2 == öğeler_.size() &&
                   öğeler_.front().tür == Tür::Hepsi && öğeler_.back().tür == Tür::Hepsi;
}

std::vector<BenzerDeseni::Aralık> BenzerDeseni::aralıklarıOku(QStringView liste)
{
    std::vector<Aralık> aralıklar;
    for (qsizetype i = 0; i < liste.size();) {
        const TamHarf ilk = harfOku(liste, i);
        i += ilk.boy;
        TamHarf son = ilk;
        if (i + 1 < liste.size() && liste[i] == u'-') {
            son = harfOku(liste, i + 1);
            i += 1 + son.boy;
        }
        aralıklar.push_back({std::min(ilk.değer, son.değer), std::max(ilk.değer, son.değer)});
    }
    return aralıklar;
}

qsizetype BenzerDeseni::aldığı(const Öğe& öğe, QStringView metin, qsizetype yer)
{
    const char16_t birim = metin[yer].unicode();
    const auto listede = [&öğe](char32_t harf) {
        return std::any_of(öğe.aralıklar.begin(), öğe.aralıklar.end(),
                           [harf](Aralık a) { return a.ilk <= harf && harf <= a.son; });
    };
    switch (öğe.tür) {
    case Tür::Harf:
        return HarfKatla(birim) == öğe.harf ? 1 : 0;
    case Tür::TekHarf:
        return harfOku(metin, yer).boy;
    case Tür::Rakam:
        return birim >= u'0' && birim <= u'9' ? 1 : 0;
    case Tür::Liste:
    case Tür::DeğilListe: {
        const TamHarf harf = harfOku(metin, yer);
        return listede(harf.değer) == (öğe.tür == Tür::Liste) ? harf.boy : 0;
    }
    case Tür::Hepsi:
        break;
    }
    return 0;
}

bool BenzerDeseni::Uyar(QStringView metin) const
{
    // Only the last * is ever gone back to: what an earlier one skipped, a later one can skip as well.
    std::size_t öğe = 0;
    qsizetype yer = 0;
    std::size_t yıldızdanSonra = 0;
    qsizetype yıldızYeri = -1;
    while (yer < metin.size()) {
        if (öğe < öğeler_.size() && öğeler_[öğe].tür == Tür::Hepsi) {
            yıldızdanSonra = ++öğe;
            yıldızYeri = yer;
            if (öğe == öğeler_.size())
                return true;
            continue;
        }
        const qsizetype boy = öğe < öğeler_.size() ? aldığı(öğeler_[öğe], metin, yer) : 0;
        if (boy > 0) {
            yer += boy;
            ++öğe;
        } else if (yıldızYeri >= 0) {
            yıldızYeri += harfOku(metin, yıldızYeri).boy;
            yer = yıldızYeri;
            öğe = yıldızdanSonra;
        } else {
            return false;
        }
    }
    while (öğe < öğeler_.size() && öğeler_[öğe].tür == Tür::Hepsi)
        ++öğe;
    return öğe == öğeler_.size();
}

bool BenzerDeseni::Uyar(std::string_view utf8) const
{
    if (bulucu_ && !bulucu_->İçerir(utf8))
        return false;
    return bulmakYeter_ || Uyar(Utf8Metni(utf8));
}
