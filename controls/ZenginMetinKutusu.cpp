#include "controls/ZenginMetinKutusu.h"

#include "app/RtfBelgesi.h"

#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <memory>
#include <utility>

namespace {

constexpr Renk İşaretRengi = 0x0000FF; // red

/// Gives stretches of a text formats of their own, all in one edit: the layout then is told once.
class TopluBiçimleme
{
public:
    explicit TopluBiçimleme(QTextDocument& belge) : imleç_(&belge) { imleç_.beginEditBlock(); }
    ~TopluBiçimleme() { imleç_.endEditBlock(); }
    TopluBiçimleme(const TopluBiçimleme&) = delete;
    TopluBiçimleme& operator=(const TopluBiçimleme&) = delete;

    void Ver(int yer, int uzunluk, const QTextCharFormat& biçim)
    {
        imleç_.setPosition(yer);
        imleç_.setPosition(yer + uzunluk, QTextCursor::KeepAnchor);
        imleç_.mergeCharFormat(biçim);
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

// What the library refuses, and no text needs.
QString nulSuz(QString metin)
{
    return metin.remove(QChar(u'\0'));
}

QString satırlı(QString metin)
{
    metin.replace(QChar::ParagraphSeparator, u'\n');
    return metin.replace(QChar::LineSeparator, u'\n'); // what Shift+Enter types
}

bool kırpılır(QChar harf)
{
    return harf == u' ';
}

} // namespace

ZenginMetinKutusu::ZenginMetinKutusu(QWidget* üst) : TuşOlaylı<QPlainTextEdit>(üst)
{
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
}

// The widget's own plain text turns no-break spaces into blanks.
QString ZenginMetinKutusu::Text() const
{
    return satırlı(document()->toRawText());
}

QByteArray ZenginMetinKutusu::TextRTF() const
{
    return RtfBelgesi(Text(), FontName(), FontSize());
}

QString ZenginMetinKutusu::SelText() const
{
    return satırlı(textCursor().selectedText());
}

void ZenginMetinKutusu::Seç(int yer, int uzunluk)
{
    QTextCursor imleç = textCursor();
    const int son = document()->characterCount() - 1;
    imleç.setPosition(std::clamp(yer, 0, son));
    imleç.setPosition(std::clamp(yer + uzunluk, 0, son), QTextCursor::KeepAnchor);
    setTextCursor(imleç);
}

// Plain text only, letter for letter: formats here are marks and leftovers of a file.
QMimeData* ZenginMetinKutusu::createMimeDataFromSelection() const
{
    auto veri = std::make_unique<QMimeData>();
    veri->setText(SelText());
    return veri.release();
}

void ZenginMetinKutusu::Text(const QString& metin)
{
    setCurrentCharFormat({}); // else the marks at the caret would colour all of the new text
    setPlainText(nulSuz(metin));
    biçimli_ = false;
}

void ZenginMetinKutusu::Değiştir(const BiçimliMetin& belge)
{
    biçimli_ = !belge.Parçalar.isEmpty();
    TopluBiçimleme biçimleme(*document());
    QTextCursor imleç(document());
    imleç.select(QTextCursor::Document);
    imleç.insertText(nulSuz(belge.Metin), {});
    for (const BiçimliParça& parça : belge.Parçalar)
        biçimleme.Ver(parça.Yer, parça.Uzunluk, ekranBiçimi(parça.Biçim, palette().color(QPalette::Base)));
    setTextCursor(QTextCursor(document())); // to the beginning
}

void ZenginMetinKutusu::DüzMetneİndir()
{
    const QString metin = Text();
    const auto ilk = std::find_if_not(metin.begin(), metin.end(), kırpılır);
    const auto son = std::find_if_not(metin.rbegin(), std::reverse_iterator(ilk), kırpılır).base();
    if (!biçimli_ && ilk == metin.begin() && son == metin.end())
        return;
    QTextCursor imleç(document());
    imleç.beginEditBlock();
    const auto çıkar = [&imleç](qsizetype baş, qsizetype bitiş) {
        imleç.setPosition(static_cast<int>(baş));
        imleç.setPosition(static_cast<int>(bitiş), QTextCursor::KeepAnchor);
        imleç.removeSelectedText();
    };
    çıkar(son - metin.begin(), metin.size());
    çıkar(0, ilk - metin.begin());
    if (std::exchange(biçimli_, false)) {
        imleç.select(QTextCursor::Document);
        imleç.setCharFormat({});
    }
    imleç.endEditBlock();
}

void ZenginMetinKutusu::YalnızOkunur()
{
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

// Only text comes in, whatever else the clipboard offers with it.
void ZenginMetinKutusu::insertFromMimeData(const QMimeData* veri)
{
    if (veri->hasText())
        textCursor().insertText(nulSuz(veri->text()), {});
    ensureCursorVisible();
}

void ZenginMetinKutusu::SelStart(int yer)
{
    const int görünen = verticalScrollBar()->value();
    imleciKoy(yer);
    verticalScrollBar()->setValue(görünen);
}

// The widget scrolls to where its caret is put.
void ZenginMetinKutusu::imleciKoy(int yer)
{
    QTextCursor imleç = textCursor();
    imleç.setPosition(std::clamp(yer, 0, document()->characterCount() - 1));
    setTextCursor(imleç);
}

void ZenginMetinKutusu::İşaretle(const QList<qsizetype>& yerler, qsizetype uzunluk)
{
    if (yerler.isEmpty())
        return;
    QTextCharFormat işaret;
    işaret.setForeground(EkranRengi(İşaretRengi, palette()));
    işaret.setFontWeight(QFont::Bold);
    {
        TopluBiçimleme biçimleme(*document());
        for (const qsizetype yer : yerler)
            biçimleme.Ver(static_cast<int>(yer), static_cast<int>(uzunluk), işaret);
    }

    // The caret ends at the last one; the reader begins at the first.
    const int önce = verticalScrollBar()->value();
    imleciKoy(static_cast<int>(yerler.first()));
    if (verticalScrollBar()->value() != önce) // it came in at the edge
        centerCursor();
    SelStart(static_cast<int>(yerler.last()));
}

void ZenginMetinKutusu::FontName(const QString& ad)
{
    QFont yazıTipi = font();
    yazıTipi.setFamilies({ad});
    setFont(yazıTipi);
}

void ZenginMetinKutusu::FontSize(int nokta)
{
    if (nokta <= 0)
        return;
    QFont yazıTipi = font();
    yazıTipi.setPointSize(nokta);
    setFont(yazıTipi);
}

void ZenginMetinKutusu::BackColor(Renk renk)
{
    ZeminVer(*this, EkranRengi(renk, palette()));
}
