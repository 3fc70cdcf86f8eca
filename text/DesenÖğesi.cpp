#include "text/DesenÖğesi.h"

namespace {

std::vector<DesenÖğesi::Aralık> aralıklarıOku(QStringView liste)
{
    std::vector<DesenÖğesi::Aralık> aralıklar;
    for (qsizetype i = 0; i < liste.size();) {
        const TamHarf ilk = TamHarf::Oku(liste, i);
        i += ilk.boy;
        TamHarf son = ilk;
        if (i + 1 < liste.size() && liste[i] == u'-') {
            son = TamHarf::Oku(liste, i + 1);
            i += 1 + son.boy;
        }
        aralıklar.push_back({std::min(ilk.değer, son.değer), std::max(ilk.değer, son.değer)});
    }
    return aralıklar;
}

} // namespace

std::vector<DesenÖğesi> DeseniOku(QStringView desen)
{
    using Tür = DesenÖğesi::Tür;
    std::vector<DesenÖğesi> öğeler;
    for (qsizetype i = 0; i < desen.size(); ++i) {
        const char16_t harf = desen[i].unicode();
        if (harf == u'*') {
            if (öğeler.empty() || öğeler.back().tür != Tür::Hepsi)
                öğeler.push_back({Tür::Hepsi});
        } else if (harf == u'?') {
            öğeler.push_back({Tür::TekHarf});
        } else if (harf == u'#') {
            öğeler.push_back({Tür::Rakam});
        } else if (const qsizetype son = harf == u'[' ? desen.indexOf(u']', i + 1) : -1; son >= 0) {
            QStringView liste = desen.sliced(i + 1, son - i - 1);
            const bool değil = liste.startsWith(u'!');
            if (değil)
                liste = liste.sliced(1);
            if (!liste.isEmpty())
                öğeler.push_back({değil ? Tür::DeğilListe : Tür::Liste, 0, aralıklarıOku(liste)});
            else if (değil) // [!] is a list of the exclamation mark alone
                öğeler.push_back({Tür::Harf, u'!'});
            i = son;
        } else {
            öğeler.push_back({Tür::Harf, HarfKatla(harf)});
        }
    }
    return öğeler;
}
