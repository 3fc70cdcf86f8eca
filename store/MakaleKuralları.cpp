#include "store/MakaleKuralları.h"

#include "text/TürkçeHarfler.h"

#include <algorithm>

MakaleEksiği EksiğiBul(const Makale& makale)
{
    if (makale.Yazar.isEmpty())
        return MakaleEksiği::YazarAdıBoş;
    if (!makale.Yazar.contains(u' '))
        return MakaleEksiği::YazarAdıTekSözcük;
    if (makale.Başlık.isEmpty())
        return MakaleEksiği::BaşlıkBoş;
    if (makale.Yer.isEmpty())
        return MakaleEksiği::YerBoş;
    return makale.Metin.isEmpty() ? MakaleEksiği::MetinBoş : MakaleEksiği::Yok;
}

Makale YazılmışGibi(Makale makale)
{
    for (const SütunTanımı& sütun : MakaleSütunları) {
        if (sütun.değer == &Makale::Metin)
            continue;
        QString& değer = makale.*sütun.değer;
        değer = değer.trimmed();
        for (QChar& harf : değer)
            harf = QChar(YazılanHarf(harf.unicode()));
    }
    makale.Yazar = BüyükHarfeÇevir(makale.Yazar);
    makale.Başlık = BüyükHarfeÇevir(makale.Başlık);
    return makale;
}

std::bitset<MakaleKusuruSayısı> Kusurları(const Makale& makale)
{
    std::bitset<MakaleKusuruSayısı> kusurlar;
    const auto varsa = [&kusurlar](MakaleKusuru kusur, bool var) {
        kusurlar[static_cast<std::size_t>(kusur)] = var;
    };
    const bool kesmeli = makale.Yazar.contains(u'\'') || makale.Başlık.contains(u'\'');
    varsa(MakaleKusuru::Kesme, kesmeli);
    Makale künye = makale;
    künye.Metin.clear();
    const Makale yazılan = YazılmışGibi(künye);
    varsa(MakaleKusuru::Yazım, !kesmeli && yazılan != künye);
    varsa(MakaleKusuru::TekSözcük, !makale.Yazar.contains(u' '));
    varsa(MakaleKusuru::Eksik, makale.Yer.isEmpty() || makale.Metin.isEmpty());
    varsa(MakaleKusuru::Uzun,
          std::any_of(MakaleSütunları.begin(), MakaleSütunları.end(), [&makale](const SütunTanımı& sütun) {
              return (makale.*sütun.değer).size() > sütun.yazılabilen;
          }));
    return kusurlar;
}

QString DeğerSorunu(const QString& değer, MakaleSütunu sütun)
{
    const SütunTanımı& tanım = Tanım(sütun);
    if (değer.contains(QChar(u'\0')))
        return QStringLiteral("%1 alanında kullanılamayan bir karakter (NUL) var.").arg(tanım.ad);
    if (!değer.isValidUtf16())
        return QStringLiteral("%1 alanında yarım bir karakter (eşi olmayan \\uD800–\\uDFFF) var.")
            .arg(tanım.ad);
    if (değer.size() > tanım.enUzun)
        return QStringLiteral("%1 alanı çok uzun: %2 karakter; en çok %3 olabilir.")
            .arg(tanım.ad, QString::number(değer.size()), QString::number(tanım.enUzun));
    if (AdSütunu(sütun) && değer.trimmed().isEmpty())
        return QStringLiteral("%1 alanı boş.").arg(tanım.ad);
    return {};
}

QString DeğerSorunu(const Makale& makale)
{
    for (std::size_t i = 0; i < MakaleSütunları.size(); ++i) {
        if (QString sorun = DeğerSorunu(makale.*MakaleSütunları[i].değer, static_cast<MakaleSütunu>(i));
            !sorun.isEmpty())
            return sorun;
    }
    return {};
}
