#include "document/RtfÇıktısı.h"

#include <algorithm>
#include <utility>

namespace {

// A document for reading has some thousands; what draws them would not cope with more. The text goes on.
constexpr int EnÇokParça = 1'000'000;

} // namespace

void RtfÇıktısı::Biçimle(const KarakterBiçimi& biçim)
{
    if (biçim == biçim_)
        return;
    parçaKapat();
    biçim_ = biçim;
}

void RtfÇıktısı::parçaKapat()
{
    const int son = static_cast<int>(sonuç_.Metin.size());
    if (son > parçaBaşı_ && biçim_ != KarakterBiçimi() && sonuç_.Parçalar.size() < EnÇokParça)
        sonuç_.Parçalar.append({parçaBaşı_, son - parçaBaşı_, biçim_});
    parçaBaşı_ = son;
}

void RtfÇıktısı::Harf(char16_t harf)
{
    switch (harf) {
    case u'\n':
    case u'\v':
    case u'\f':
    case u'\r':
    case QChar::LineSeparator:
    case QChar::ParagraphSeparator:
        YeniSatır(false);
        return;
    case u'\t':
    case u' ':
        if (bekleyenDipnot_ > 0) // blanks in front of a footnote's text
            return;
        break;
    default:
        if (harf < u' ')
            return;
    }
    bekleyenleriYaz();
    sonuç_.Metin += QChar(harf);
}

void RtfÇıktısı::Dizi(std::string_view harfler)
{
    if (bekleyenDipnot_ > 0)
        harfler.remove_prefix(std::min(harfler.find_first_not_of(" \t"), harfler.size()));
    if (harfler.empty())
        return;
    bekleyenleriYaz();
    sonuç_.Metin += QLatin1StringView(harfler.data(), static_cast<qsizetype>(harfler.size()));
}

void RtfÇıktısı::bekleyenleriYaz()
{
    içTabloBitti_ = false;
    if (std::exchange(satırBaşıGerek_, false) && !satırBaşında())
        sonuç_.Metin += u'\n';
    if (bekleyen_)
        sonuç_.Metin += QChar(std::exchange(bekleyen_, u'\0'));
    for (; bekleyenDipnot_ > 0; --bekleyenDipnot_) {
        if (!satırBaşında() && !sonuç_.Metin.back().isSpace())
            sonuç_.Metin += u' ';
        sonuç_.Metin += u'[';
    }
}

void RtfÇıktısı::YeniSatır(bool tabloda)
{
    listeMetniVar_ = false;
    if (!tabloda && dipnot_ == 0)
        satırBitir();
    else if (bekleyen_ == 0 && bekleyenDipnot_ == 0)
        bekleyen_ = u' '; // one line a row, and a footnote stays in its line
}

void RtfÇıktısı::satırBitir()
{
    bekleyen_ = 0;
    satırBaşıGerek_ = içTabloBitti_ = listeMetniVar_ = false;
    sonuç_.Metin += u'\n';
}

void RtfÇıktısı::Hücre()
{
    if (bekleyenDipnot_ > 0)
        return;
    if (dipnot_ > 0 && satırdaDipnot_) {
        YeniSatır(true);
        return;
    }
    if (bekleyen_ == u'\t')
        bekleyenleriYaz(); // an empty cell
    bekleyen_ = u'\t';
    listeMetniVar_ = false;
}

void RtfÇıktısı::TabloSatırı(bool içTablo)
{
    if (dipnot_ > 0) {
        dipnotSatırı();
        return;
    }
    if (!içTablo && içTabloBitti_) { // the inner table was the row's end, and ended the line
        bekleyen_ = 0;
        içTabloBitti_ = false;
        return;
    }
    satırBitir();
    içTabloBitti_ = içTablo;
}

// The rows of a table in a footnote begin lines where they can; the bracket needs none.
void RtfÇıktısı::dipnotSatırı()
{
    if (satırdaDipnot_) {
        YeniSatır(true);
        return;
    }
    bekleyen_ = 0;
    listeMetniVar_ = false;
    satırBaşıGerek_ = bekleyenDipnot_ == 0;
}

void RtfÇıktısı::DipnotBaşı(bool tabloda)
{
    if (dipnot_ == 0)
        satırdaDipnot_ = tabloda;
    ++dipnot_;
    ++bekleyenDipnot_;
}

void RtfÇıktısı::DipnotSonu()
{
    --dipnot_;
    if (bekleyenDipnot_ > 0) {
        --bekleyenDipnot_; // it had no text
        return;
    }
    bekleyen_ = 0;
    satırBaşıGerek_ = false;
    bekleyenleriYaz();
    sonuç_.Metin += u']';
}

bool RtfÇıktısı::ListeMetniGerek()
{
    return !std::exchange(listeMetniVar_, true);
}

BiçimliMetin RtfÇıktısı::Bitir()
{
    parçaKapat();
    QString& metin = sonuç_.Metin;
    for (qsizetype i = 0; i < metin.size(); ++i) {
        if (!metin[i].isSurrogate())
            continue;
        if (metin[i].isHighSurrogate() && i + 1 < metin.size() && metin[i + 1].isLowSurrogate())
            ++i;
        else
            metin[i] = QChar::ReplacementCharacter;
    }
    metin.squeeze();
    return std::move(sonuç_);
}
