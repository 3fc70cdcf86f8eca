// The rich-text box: shows and takes an article's text, and marks places in it.
#pragma once

#include "app/Görünüm.h"
#include "controls/TuşOlaylı.h"
#include "document/BiçimliMetin.h"

#include <QList>
#include <QPlainTextEdit>
#include <QString>

/// Built on the plain-text editor because that lays out only what is visible: a text of 20 MB shows at
/// once. Positions count UTF-16 units from 0; a line break is one unit.
class ZenginMetinKutusu : public TuşOlaylı<QPlainTextEdit>
{
public:
    explicit ZenginMetinKutusu(QWidget* üst = nullptr);

    /// The whole text with "\n" as line break; every other unit as it was set.
    QString Text() const;
    /// The whole text as an RTF document in the box's font, without marks.
    QByteArray TextRTF() const;
    /// Replaces the whole text, without marks, and goes to its beginning.
    void Text(const QString& metin);

    /// Replaces the whole text by one with formats, as the user's own change: it can be undone.
    void Değiştir(const BiçimliMetin& belge);
    /// Makes the text plain and takes the blanks from its ends. Can be undone; the caret stays in its place.
    void DüzMetneİndir();

    /// For showing only: the text can be selected but not changed.
    void YalnızOkunur();

    /// Where the selection begins, or the caret stands.
    int SelStart() const { return textCursor().selectionStart(); }
    int SelLength() const { return textCursor().selectionEnd() - textCursor().selectionStart(); }
    /// The selected text with "\n" as line break; every other unit as it was set.
    QString SelText() const;
    /// Selects a stretch; its end becomes the caret.
    void Seç(int yer, int uzunluk);
    /// Selects a stretch and brings it to the middle of what is seen.
    void OrtadaSeç(int yer, int uzunluk);
    /// Puts the caret at a place, at the text's end where that lies beyond it; selects nothing and
    /// does not scroll.
    void SelStart(int yer);

    /// Colours the given stretches of the shown copy red and makes them bold, on a ground on which red can be
    /// read, and scrolls to the first.
    /// @param yerler ascending places at which stretches of this length begin, each with a blank
    void İşaretle(const QList<qsizetype>& yerler, qsizetype uzunluk);

    QString FontName() const { return font().family(); }
    void FontName(const QString& ad);
    int FontSize() const { return font().pointSize(); }
    /// @param nokta points; 0 leaves the size as it is
    void FontSize(int nokta);
    /// The letters become black or white, whichever reads better on it.
    void BackColor(Renk renk);

protected:
    QMimeData* createMimeDataFromSelection() const override;
    void insertFromMimeData(const QMimeData* veri) override;
    void wheelEvent(QWheelEvent* olay) override;

private:
    void imleciKoy(int yer);

    bool biçimli_ = false; // some of the text may have a format of its own
};
