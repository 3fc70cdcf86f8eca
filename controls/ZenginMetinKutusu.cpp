#include "controls/ZenginMetinKutusu.h"

#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace {

constexpr Renk İşaretRengi = 0x0000FF; // red

} // namespace

ZenginMetinKutusu::ZenginMetinKutusu(QWidget* üst) : TuşOlaylı<QPlainTextEdit>(üst)
{
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
}

// The widget's own plain text turns no-break spaces into blanks.
QString ZenginMetinKutusu::Text() const
{
    return document()->toRawText().replace(QChar::ParagraphSeparator, u'\n');
}

void ZenginMetinKutusu::Text(const QString& metin)
{
    setCurrentCharFormat({}); // else the marks at the caret would colour all of the new text
    setPlainText(metin);
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
    // One edit for all: the layout then is told once.
    QTextCursor imleç(document());
    imleç.beginEditBlock();
    for (const qsizetype yer : yerler) {
        imleç.setPosition(static_cast<int>(yer));
        imleç.setPosition(static_cast<int>(yer + uzunluk), QTextCursor::KeepAnchor);
        imleç.mergeCharFormat(işaret);
    }
    imleç.endEditBlock();

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
    QPalette palet = palette();
    const QColor zemin = EkranRengi(renk, palet);
    palet.setColor(QPalette::Base, zemin);
    palet.setColor(QPalette::Text, OkunurYazıRengi(zemin));
    setPalette(palet);
}
