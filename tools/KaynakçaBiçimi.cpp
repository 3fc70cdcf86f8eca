#include "tools/KaynakçaBiçimi.h"

#include "store/Utf8Metni.h"

#include <QCryptographicHash>

#include <algorithm>
#include <array>

namespace {

struct Kaçış
{
    char harf;
    QByteArrayView yazılış;
};

// Braces are counted by BibTeX even behind a backslash, so none stands for itself.
constexpr std::array<Kaçış, 11> Kaçışlar = {{
    {'\\', "\\textbackslash{}"},
    {'{', "\\textbraceleft{}"},
    {'}', "\\textbraceright{}"},
    {'%', "\\%"},
    {'&', "\\&"},
    {'$', "\\$"},
    {'#', "\\#"},
    {'_', "\\_"},
    {'~', "\\textasciitilde{}"},
    {'^', "\\textasciicircum{}"},
    {'@', "{@}"}, // at the beginning of a line only, where some programs see a new entry
}};

// Sequences of TeX end in braces or are one sign, so that what follows them stays as it is.
const Kaçış* kaçış(char harf)
{
    const auto bulunan =
        std::find_if(Kaçışlar.begin(), Kaçışlar.end(), [harf](const Kaçış& k) { return k.harf == harf; });
    return bulunan == Kaçışlar.end() ? nullptr : bulunan;
}

// Whether a line could be taken for one that begins with a code, or for one that was given a blank.
bool kodaBenzer(QByteArrayView satır)
{
    const auto büyük = [](char bayt) { return bayt >= 'A' && bayt <= 'Z'; };
    const auto rakam = [](char bayt) { return bayt >= '0' && bayt <= '9'; };
    if (satır.startsWith(' '))
        return true;
    return satır.size() > 2 && büyük(satır[0]) && (büyük(satır[1]) || rakam(satır[1])) &&
           satır.sliced(2).trimmed().startsWith('-');
}

} // namespace

QByteArray Damga(const QString& değer)
{
    return QCryptographicHash::hash(değer.toUtf8(), QCryptographicHash::Sha256).toHex().first(DamgaBoyu);
}

QByteArray TarihDamgası(const QString& tarih, const QString& görünen)
{
    return Damga(tarih + u'\n' + görünen);
}

QByteArray BibHarfleri(const QString& değer)
{
    const QByteArray baytlar = değer.toUtf8();
    QByteArray sonuç;
    sonuç.reserve(baytlar.size() + baytlar.size() / 16);
    bool satırBaşı = true;
    for (const char bayt : baytlar) {
        const Kaçış* k = kaçış(bayt);
        if (k && (bayt != '@' || satırBaşı))
            sonuç += k->yazılış;
        else
            sonuç += bayt;
        satırBaşı = bayt == '\n' || bayt == '\r' || (satırBaşı && (bayt == ' ' || bayt == '\t'));
    }
    return sonuç;
}

QString BibHarflerindenÇöz(const QByteArray& alan)
{
    QByteArray sonuç;
    sonuç.reserve(alan.size());
    for (qsizetype yer = 0; yer < alan.size();) {
        const QByteArrayView kalan = QByteArrayView(alan).sliced(yer);
        const bool olabilir = kalan[0] == '\\' || kalan[0] == '{';
        const auto k = std::find_if(Kaçışlar.begin(), Kaçışlar.end(), [&](const Kaçış& aday) {
            return olabilir && kalan.startsWith(aday.yazılış);
        });
        sonuç += k == Kaçışlar.end() ? kalan[0] : k->harf;
        yer += k == Kaçışlar.end() ? 1 : k->yazılış.size();
    }
    return Utf8Metni({sonuç.constData(), std::size_t(sonuç.size())});
}

QByteArray RisHarfleri(const QString& değer)
{
    const QByteArray baytlar = değer.toUtf8();
    QByteArray sonuç;
    sonuç.reserve(baytlar.size() + baytlar.size() / 16);
    for (qsizetype yer = 0, son = 0; son >= 0; yer = son + 1) {
        son = baytlar.indexOf('\n', yer);
        const QByteArrayView satır =
            QByteArrayView(baytlar).sliced(yer, (son < 0 ? baytlar.size() : son) - yer);
        if (yer > 0)
            sonuç += kodaBenzer(satır) ? "\n " : "\n";
        sonuç += satır;
    }
    return sonuç;
}

QString RisHarflerindenÇöz(const QByteArray& alan)
{
    QByteArray sonuç;
    sonuç.reserve(alan.size());
    bool satırBaşı = false;
    for (const char bayt : alan) {
        if (!satırBaşı || bayt != ' ')
            sonuç += bayt;
        satırBaşı = bayt == '\n';
    }
    return Utf8Metni({sonuç.constData(), std::size_t(sonuç.size())});
}
