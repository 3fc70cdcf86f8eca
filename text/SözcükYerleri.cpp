#include "text/SözcükYerleri.h"

#include "text/DesenÖğesi.h"
#include "text/TürkçeArama.h"

#include <algorithm>

namespace {

using Parça = std::vector<DesenÖğesi>; // without Hepsi, never empty

std::vector<Parça> parçalar(const QString& desen)
{
    std::vector<Parça> hepsi(1);
    for (DesenÖğesi& öğe : DeseniOku(desen)) {
        if (öğe.tür != DesenÖğesi::Tür::Hepsi)
            hepsi.back().push_back(std::move(öğe));
        else if (!hepsi.back().empty())
            hepsi.emplace_back();
    }
    if (hepsi.back().empty())
        hepsi.pop_back();
    return hepsi;
}

bool işaretli(const QString& sözcük)
{
    return std::any_of(sözcük.begin(), sözcük.end(),
                       [](QChar harf) { return QStringView(u"*?#[").contains(harf); });
}

/// The units that the piece takes at the place, 0 when it does not fit there.
qsizetype aldığı(const Parça& parça, QStringView metin, qsizetype yer)
{
    qsizetype son = yer;
    for (const DesenÖğesi& öğe : parça) {
        const qsizetype boy = son < metin.size() ? öğe.Aldığı(metin, son) : 0;
        if (boy == 0)
            return 0;
        son += boy;
    }
    return son - yer;
}

} // namespace

// The library's texts are in normal form C; a pasted word need not be.
SözcükYerleri::SözcükYerleri(QStringView metin, const QString& sözcük)
{
    const QString aranan = sözcük.normalized(QString::NormalizationForm_C);
    yazıldığıGibi(metin, aranan);
    if (yerler_.isEmpty() && işaretli(aranan))
        işaretleriyle(metin, aranan);
}

void SözcükYerleri::yazıldığıGibi(QStringView metin, const QString& sözcük)
{
    const auto boy = static_cast<qint32>(sözcük.size());
    const MetinArayıcı arayıcı(metin, sözcük);
    for (qint32 yer = arayıcı.Sonraki(0); yer != 0; yer = arayıcı.Sonraki(yer - 1 + boy))
        yerler_.append({yer - 1, boy});
}

void SözcükYerleri::işaretleriyle(QStringView metin, const QString& sözcük)
{
    const std::vector<Parça> aranan = parçalar(sözcük);
    if (aranan.empty())
        return;
    for (qsizetype yer = 0; yer < metin.size();) {
        qsizetype boy = 0;
        for (const Parça& parça : aranan)
            boy = std::max(boy, aldığı(parça, metin, yer));
        if (boy > 0)
            yerler_.append({static_cast<qint32>(yer), static_cast<qint32>(boy)});
        yer += boy > 0 ? boy : TamHarf::Oku(metin, yer).boy;
    }
}

qsizetype SözcükYerleri::ilkBaşlayan(qint32 baş) const
{
    return std::lower_bound(yerler_.begin(), yerler_.end(), baş,
                            [](const MetinYeri& yer, qint32 sınır) { return yer.Baş < sınır; }) -
           yerler_.begin();
}

std::optional<SözcükYerleri::Adım> SözcükYerleri::Sonraki(MetinYeri seçili) const
{
    if (yerler_.isEmpty())
        return {};
    qsizetype sıra = ilkBaşlayan(seçili.Baş);
    if (sıra < Sayı() && yerler_[sıra] == seçili)
        ++sıra;
    const bool sardı = sıra == Sayı();
    if (sardı)
        sıra = 0;
    return Adım{yerler_[sıra], sıra + 1, sardı};
}

std::optional<SözcükYerleri::Adım> SözcükYerleri::Önceki(MetinYeri seçili) const
{
    if (yerler_.isEmpty())
        return {};
    const qsizetype sıra = ilkBaşlayan(seçili.Baş);
    const bool sardı = sıra == 0;
    const qsizetype önceki = sardı ? Sayı() - 1 : sıra - 1;
    return Adım{yerler_[önceki], önceki + 1, sardı};
}
