#include "controls/YazıTipleriModülü.h"

#include "controls/AçılırListe.h"
#include "text/TürkçeSıralama.h"

#include <QFontDatabase>

#include <algorithm>
#include <utility>
#include <vector>

void YazıTipleriniDoldur(AçılırListe& liste)
{
    std::vector<std::pair<QByteArray, QString>> aileler; // each name with its UTF-8, made once
    for (const QString& aile : QFontDatabase::families())
        aileler.emplace_back(aile.toUtf8(), aile);
    std::stable_sort(aileler.begin(), aileler.end(), [](const auto& a, const auto& b) {
        const auto utf8 = [](const auto& ad) {
            return std::string_view(ad.first.constData(), static_cast<std::size_t>(ad.first.size()));
        };
        return TürkçeKarşılaştır(utf8(a), utf8(b)) < 0;
    });
    QStringList adlar;
    for (auto& aile : aileler)
        adlar.append(std::move(aile.second));
    liste.Clear();
    liste.AddItems(adlar);
}
