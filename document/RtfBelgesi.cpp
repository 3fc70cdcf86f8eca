#include "document/RtfBelgesi.h"

#include <QChar>

#include <charconv>

namespace {

// One fallback letter follows each \u; the proofing language is Turkish (1055 is its language number).
constexpr char baş[] = "{\\rtf1\\ansi\\ansicpg1254\\uc1\\deflang1055 \\lang1055 ";

/// \uN with N as a signed 16-bit number, as the format wants it.
void evrenselYaz(QByteArray& belge, char16_t harf)
{
    char sayı[8];
    const auto son = std::to_chars(sayı, sayı + sizeof sayı, static_cast<qint16>(harf)).ptr;
    belge.append("\\u").append(sayı, son - sayı).append('?');
}

void harfYaz(QByteArray& belge, char16_t harf)
{
    switch (harf) {
    case u'\\':
    case u'{':
    case u'}':
        belge.append('\\').append(static_cast<char>(harf));
        return;
    case u'\n':
    case u'\r':
    case QChar::ParagraphSeparator:
    case QChar::LineSeparator:
        belge.append("\\par\n");
        return;
    case u'\v':
        belge.append("\\line ");
        return;
    case u'\t':
        belge.append("\\tab ");
        return;
    case u'\f':
        belge.append("\\page ");
        return;
    case QChar::Nbsp:
        belge.append("\\~");
        return;
    default:
        if (harf > 0x7e)
            evrenselYaz(belge, harf);
        else if (harf >= u' ')
            belge.append(static_cast<char>(harf));
    }
}

void yazıTipiniYaz(QByteArray& belge, const QString& ad, int nokta)
{
    belge.append("{\\fonttbl{\\f0 ");
    for (const QChar harf : ad) {
        if (harf != u';') // it ends the name
            harfYaz(belge, harf.unicode());
    }
    belge.append(";}}\\f0\\fs" + QByteArray::number(2 * nokta) + ' ');
}

void değerYaz(QByteArray& belge, const char* ad, QStringView değer)
{
    belge.append("{\\").append(ad).append(' ');
    for (const QChar harf : BelgeÖzelliği(değer.toString()))
        harfYaz(belge, harf.unicode());
    belge.append('}');
}

void özellikYaz(QByteArray& belge, QStringView ad, const QString& değer)
{
    if (değer.isEmpty())
        return;
    değerYaz(belge, "propname", ad);
    belge.append("\\proptype30"); // text
    değerYaz(belge, "staticval", değer);
}

void bilgiyiYaz(QByteArray& belge, const BelgeBilgisi& bilgi)
{
    if (!bilgi.Başlık.isEmpty() || !bilgi.Yazar.isEmpty()) {
        belge.append("{\\info");
        değerYaz(belge, "title", bilgi.Başlık);
        değerYaz(belge, "author", bilgi.Yazar);
        belge.append('}');
    }
    if (!bilgi.Yer.isEmpty() || !bilgi.Tarih.isEmpty()) {
        belge.append("{\\*\\userprops");
        özellikYaz(belge, YayımYeriÖzelliği, bilgi.Yer);
        özellikYaz(belge, YayımTarihiÖzelliği, bilgi.Tarih);
        belge.append('}');
    }
}

} // namespace

QByteArray RtfBelgesi(QStringView metin, const QString& yazıTipi, int nokta, const BelgeBilgisi& bilgi)
{
    QByteArray belge(baş);
    bilgiyiYaz(belge, bilgi);
    if (!yazıTipi.isEmpty())
        yazıTipiniYaz(belge, yazıTipi, nokta);
    belge.reserve(metin.size() + metin.size() / 2 + 64); // Turkish texts take about that much
    for (qsizetype i = 0; i < metin.size(); ++i) {
        const char16_t harf = metin[i].unicode();
        const bool ikiliSon = harf == u'\n' && i > 0 && metin[i - 1] == u'\r';
        if (!ikiliSon)
            harfYaz(belge, harf);
    }
    if (!metin.isEmpty())
        belge.append("\\par"); // a reader takes the last \par for the end of the last paragraph
    return belge.append('}');
}
