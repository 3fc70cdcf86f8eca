#include "document/Utf8.h"

#include <algorithm>

namespace {

unsigned char işaretsiz(char bayt)
{
    return static_cast<unsigned char>(bayt);
}

bool ascii(char bayt)
{
    return işaretsiz(bayt) < 0x80;
}

// What the second byte may be; the others are 0x80 to 0xBF.
struct Aralık
{
    int ilk;
    int son;
};

Aralık ikinciBayt(int baş)
{
    switch (baş) {
    case 0xE0:
        return {0xA0, 0xBF}; // longer than needed below
    case 0xED:
        return {0x80, 0x9F}; // surrogates above
    case 0xF0:
        return {0x90, 0xBF};
    case 0xF4:
        return {0x80, 0x8F}; // beyond Unicode above
    default:
        return {0x80, 0xBF};
    }
}

int harfBoyu(int baş)
{
    if (baş < 0x80)
        return 1;
    if (baş < 0xC2 || baş > 0xF4)
        return 0;
    return baş < 0xE0 ? 2 : baş < 0xF0 ? 3 : 4;
}

// Windows-1254: quotation marks, dashes and the ellipsis; no-break blank, guillemets and the acute accent,
// which in UTF-8 stand behind a C2 themselves.
bool türkçeİm(unsigned char baş, unsigned char bayt)
{
    const auto biri = [bayt](QByteArrayView imler) { return imler.contains(static_cast<char>(bayt)); };
    return biri("\x85\x91\x92\x93\x94\x96\x97") || (baş != 0xC2 && biri("\xA0\xAB\xB4\xBB"));
}

bool türkçeHarf(unsigned char bayt)
{
    return QByteArrayView("\xC2\xC7\xCE\xD0\xD6\xDB\xDC\xDD\xDE\xE2\xE7\xEE")
        .contains(static_cast<char>(bayt));
}

// A word of Windows-1254 ends here. What stands before a letter of UTF-8 is a letter of UTF-8 or no letter.
bool türkçeSözSonu(QByteArrayView harf, char önceki)
{
    const unsigned char baş = işaretsiz(harf.front());
    const bool sözİçinde = !ascii(önceki) || (önceki | 0x20) >= 'a';
    return sözİçinde && türkçeHarf(baş) && std::all_of(harf.begin() + 1, harf.end(), [baş](char bayt) {
               return türkçeİm(baş, işaretsiz(bayt));
           });
}

} // namespace

Utf8Adımı Utf8İlk(QByteArrayView baytlar)
{
    const int baş = işaretsiz(baytlar.front());
    const int boy = harfBoyu(baş);
    if (boy <= 1)
        return {1, boy == 1};
    Aralık beklenen = ikinciBayt(baş);
    for (int i = 1; i < boy; ++i) {
        const int bayt = i < baytlar.size() ? işaretsiz(baytlar[i]) : 0;
        if (bayt < beklenen.ilk || bayt > beklenen.son)
            return {i, false};
        beklenen = {0x80, 0xBF};
    }
    return {boy, true};
}

QString Utf8Çöz(QByteArrayView baytlar)
{
    QString metin;
    qsizetype baş = 0;
    for (qsizetype yer = 0; yer < baytlar.size();) {
        const Utf8Adımı adım = Utf8İlk(baytlar.sliced(yer));
        if (!adım.Geçerli) {
            metin += QString::fromUtf8(baytlar.sliced(baş, yer - baş));
            metin += QChar(QChar::ReplacementCharacter);
            baş = yer + adım.Boy;
        }
        yer += adım.Boy;
    }
    const QString son = QString::fromUtf8(baytlar.sliced(baş));
    return baş == 0 ? son : metin + son; // most texts have no wrong letter, and are not copied
}

void Utf8Sayacı::Say(QByteArrayView baytlar, char önceki)
{
    bool harfAltı = false; // the byte before ended a letter of UTF-8
    for (qsizetype yer = 0; yer < baytlar.size();) {
        if (ascii(baytlar[yer])) {
            önceki = baytlar[yer++];
            harfAltı = false;
            continue;
        }
        const Utf8Adımı adım = Utf8İlk(baytlar.sliced(yer));
        if (!adım.Geçerli)
            ++yanlış_;
        else if (!harfAltı && türkçeSözSonu(baytlar.sliced(yer, adım.Boy), önceki))
            ++benzer_;
        else
            ++kesin_;
        uzun_ = uzun_ || (adım.Geçerli && adım.Boy > 2);
        harfAltı = adım.Geçerli;
        yer += adım.Boy;
        önceki = baytlar[yer - 1];
    }
}
