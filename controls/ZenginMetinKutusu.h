// The rich-text box: shows an article's plain text and marks places in it.
#pragma once

#include "app/Görünüm.h"

#include <QPlainTextEdit>
#include <QString>

/// Built on the plain-text editor because that lays out only what is visible: a text of 20 MB shows at
/// once. Positions count UTF-16 units from 0; a line break is one unit.
class ZenginMetinKutusu : public QPlainTextEdit
{
public:
    explicit ZenginMetinKutusu(QWidget* üst = nullptr);

    QString Text() const;
    /// Replaces the whole text, without marks, and goes to its beginning.
    void Text(const QString& metin);

    QString FontName() const { return font().family(); }
    void FontName(const QString& ad);
    int FontSize() const { return font().pointSize(); }
    /// @param nokta points; 0 leaves the size as it is
    void FontSize(int nokta);
    /// The letters become black or white, whichever reads better on it.
    void BackColor(Renk renk);
};
