#include "controls/ZenginMetinKutusu.h"

#include "controls/BelgeDüzenleme.h"
#include "document/RtfBelgesi.h"

#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <memory>
#include <utility>

namespace {

constexpr Renk İşaretRengi = 0x0000FF; // red

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

void ZenginMetinKutusu::OrtadaSeç(int yer, int uzunluk)
{
    Seç(yer, uzunluk);
    centerCursor();
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
    setPlainText(NulSuz(metin));
    biçimli_ = false;
}

void ZenginMetinKutusu::Değiştir(const BiçimliMetin& belge)
{
    biçimli_ = !belge.Parçalar.isEmpty();
    BelgeyiDeğiştir(*document(), belge, palette().color(QPalette::Base));
    setTextCursor(QTextCursor(document())); // to the beginning
}

void ZenginMetinKutusu::DüzMetneİndir()
{
    const QString metin = Text();
    const auto ilk = std::find_if_not(metin.begin(), metin.end(), kırpılır);
    const auto son = std::find_if_not(metin.rbegin(), std::reverse_iterator(ilk), kırpılır).base();
    if (biçimli_ || ilk != metin.begin() || son != metin.end())
        BelgeyiKırp(*document(), ilk - metin.begin(), metin.end() - son,
                    std::exchange(biçimli_, false) ? Biçimler::Gitsin : Biçimler::Kalsın);
}

void ZenginMetinKutusu::YalnızOkunur()
{
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

// Only text comes in, whatever else the clipboard offers with it. No scrolling here: a drop calls this in
// the middle of its own step. The widget follows its caret by itself.
void ZenginMetinKutusu::insertFromMimeData(const QMimeData* veri)
{
    if (veri->hasText())
        textCursor().insertText(NulSuz(veri->text()), {});
}

// The plain-text editor's own would change the letters' size when Ctrl is held; that is a setting's matter.
void ZenginMetinKutusu::wheelEvent(QWheelEvent* olay)
{
    QAbstractScrollArea::wheelEvent(olay); // NOLINT(bugprone-parent-virtual-call)
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
    const QColor renk = EkranRengi(İşaretRengi, palette());
    işaret.setForeground(renk);
    işaret.setFontWeight(QFont::Bold);
    BelgedeBiçimle(*document(), yerler, uzunluk, işaret);
    if (const QColor altlık = OkunurAltlık(renk, palette().color(QPalette::Base)); altlık.isValid()) {
        QTextCharFormat zemin;
        zemin.setBackground(altlık);
        QList<qsizetype> harfler =
            yerler; // without the blank that each begins with: a ground under it joins words
        for (qsizetype& yer : harfler)
            ++yer;
        BelgedeBiçimle(*document(), harfler, uzunluk - 1, zemin);
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
