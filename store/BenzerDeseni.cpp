#include "store/BenzerDeseni.h"

#include "store/Utf8Metni.h"

using Tür = DesenÖğesi::Tür;

BenzerDeseni::BenzerDeseni(QStringView desen) : öğeler_(DeseniOku(desen))
{
    bulucuyuKur();
}

void BenzerDeseni::bulucuyuKur()
{
    QString enUzun, şimdiki;
    for (const DesenÖğesi& öğe : öğeler_) {
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
        const qsizetype boy = öğe < öğeler_.size() ? öğeler_[öğe].Aldığı(metin, yer) : 0;
        if (boy > 0) {
            yer += boy;
            ++öğe;
        } else if (yıldızYeri >= 0) {
            yıldızYeri += TamHarf::Oku(metin, yıldızYeri).boy;
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
