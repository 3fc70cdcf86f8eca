#include "controls/BelgeDüzenleme.h"

#include "app/Görünüm.h"

#include <QTextCursor>
#include <QTextDocument>

namespace {

/// An open step; closed by its destructor. The layout is told once, of all of it.
class TekAdım
{
public:
    explicit TekAdım(QTextDocument& belge) : imleç_(&belge) { imleç_.beginEditBlock(); }
    ~TekAdım() { imleç_.endEditBlock(); }
    TekAdım(const TekAdım&) = delete;
    TekAdım& operator=(const TekAdım&) = delete;

    QTextCursor& Tümü()
    {
        imleç_.select(QTextCursor::Document);
        return imleç_;
    }
    QTextCursor& Parça(qsizetype yer, qsizetype uzunluk)
    {
        imleç_.setPosition(static_cast<int>(yer));
        imleç_.setPosition(static_cast<int>(yer + uzunluk), QTextCursor::KeepAnchor);
        return imleç_;
    }

private:
    QTextCursor imleç_;
};

QTextCharFormat ekranBiçimi(const KarakterBiçimi& biçim, const QColor& zemin)
{
    QTextCharFormat sonuç;
    if (biçim.Kalın)
        sonuç.setFontWeight(QFont::Bold);
    if (biçim.İtalik)
        sonuç.setFontItalic(true);
    if (biçim.AltıÇizili)
        sonuç.setFontUnderline(true);
    if (biçim.ÜstüÇizili)
        sonuç.setFontStrikeOut(true);
    if (biçim.YarımNokta > 0)
        sonuç.setFontPointSize(biçim.YarımNokta / 2.0);
    if (!biçim.YazıTipi.isEmpty())
        sonuç.setFontFamilies({biçim.YazıTipi});
    if (biçim.Renk != KarakterBiçimi::Renksiz) {
        const QColor renk = EkranRengi(biçim.Renk, {});
        if (OkunurYazıRengi(renk) != OkunurYazıRengi(zemin)) // dark on dark could not be read
            sonuç.setForeground(renk);
    }
    return sonuç;
}

} // namespace

QString NulSuz(QString metin)
{
    return metin.remove(QChar(u'\0'));
}

void BelgeyiDeğiştir(QTextDocument& belge, const BiçimliMetin& yeni, const QColor& zemin)
{
    TekAdım adım(belge);
    adım.Tümü().insertText(NulSuz(yeni.Metin), {});
    for (const BiçimliParça& parça : yeni.Parçalar)
        adım.Parça(parça.Yer, parça.Uzunluk).mergeCharFormat(ekranBiçimi(parça.Biçim, zemin));
}

void BelgedeBiçimle(QTextDocument& belge, const QList<qsizetype>& yerler, qsizetype uzunluk,
                    const QTextCharFormat& biçim)
{
    TekAdım adım(belge);
    for (const qsizetype yer : yerler)
        adım.Parça(yer, uzunluk).mergeCharFormat(biçim);
}

void BelgeyiKırp(QTextDocument& belge, qsizetype baştan, qsizetype sondan, Biçimler biçimler)
{
    TekAdım adım(belge);
    adım.Parça(belge.characterCount() - 1 - sondan, sondan).removeSelectedText();
    adım.Parça(0, baştan).removeSelectedText();
    if (biçimler == Biçimler::Gitsin)
        adım.Tümü().setCharFormat({});
}
