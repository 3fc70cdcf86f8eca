#include "tools/MetinKaydı.h"

#include "store/MakaleTablosu.h"
#include "store/Utf8Metni.h"

#include <QUtf8StringView>

namespace {

/// What a line can't hold as it is, and how it is written.
constexpr std::array<std::pair<char, char>, 3> Kaçışlar = {{{'\\', '\\'}, {'\n', 'n'}, {'\r', 'r'}}};

QByteArray satırDeğeri(const QString& değer)
{
    QByteArray sonuç;
    for (const char bayt : değer.toUtf8()) {
        const auto* kaçış = std::find_if(Kaçışlar.begin(), Kaçışlar.end(),
                                         [bayt](const auto& çift) { return çift.first == bayt; });
        if (kaçış == Kaçışlar.end())
            sonuç += bayt;
        else
            (sonuç += '\\') += kaçış->second;
    }
    return sonuç;
}

/// Nothing for an escape that satırDeğeri doesn't write.
std::optional<QString> değeri(QByteArrayView satır)
{
    QByteArray sonuç;
    for (qsizetype i = 0; i < satır.size(); ++i) {
        if (satır[i] != '\\') {
            sonuç += satır[i];
            continue;
        }
        const char harf = ++i < satır.size() ? satır[i] : '\0';
        const auto* kaçış = std::find_if(Kaçışlar.begin(), Kaçışlar.end(),
                                         [harf](const auto& çift) { return çift.second == harf; });
        if (kaçış == Kaçışlar.end())
            return {};
        sonuç += kaçış->first;
    }
    return Utf8Metni({sonuç.data(), std::size_t(sonuç.size())});
}

QByteArray baş(const SütunTanımı& sütun)
{
    return sütun.ad.toUtf8() + ": ";
}

bool künyede(const SütunTanımı& sütun)
{
    return sütun.değer != &Makale::Metin;
}

} // namespace

QByteArray MetinKaydı(const Makale& makale)
{
    QByteArray kayıt;
    for (const SütunTanımı& sütun : MakaleSütunları) {
        if (künyede(sütun))
            kayıt += baş(sütun) + satırDeğeri(makale.*sütun.değer) + '\n';
    }
    return kayıt + '\n' + makale.Metin.toUtf8();
}

std::optional<Makale> MetinKaydıÇöz(QByteArrayView baytlar)
{
    if (!baytlar.startsWith(baş(MakaleSütunları.front())) || !QUtf8StringView(baytlar).isValidUtf8())
        return {};
    Makale makale;
    for (const SütunTanımı& sütun : MakaleSütunları) {
        if (!künyede(sütun))
            continue;
        const QByteArray ad = baş(sütun);
        const qsizetype son = baytlar.indexOf('\n');
        if (!baytlar.startsWith(ad) || son < 0)
            return {};
        const std::optional<QString> değer = değeri(baytlar.sliced(ad.size(), son - ad.size()));
        if (!değer)
            return {};
        makale.*sütun.değer = *değer;
        baytlar = baytlar.sliced(son + 1);
    }
    if (!baytlar.startsWith('\n'))
        return {};
    makale.Metin = Utf8Metni({baytlar.data() + 1, std::size_t(baytlar.size() - 1)});
    return makale;
}
