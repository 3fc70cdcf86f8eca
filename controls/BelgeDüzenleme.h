// Changes to a text document that are one step each: for undoing, and for the widget that shows it.
#pragma once

#include "document/BiçimliMetin.h"

#include <QColor>
#include <QList>
#include <QTextCharFormat>

class QTextDocument;

// While such a step is open the document's layout is behind its text: a widget that moves its caret or
// scrolls then reads stray memory. So the step is open inside these functions only, and they know of no
// widget. Positions count UTF-16 units from 0.

/// The text without its NULs, which the library refuses and no text needs.
QString NulSuz(QString metin);

/// Replaces the whole text. A colour that could not be read on the background is left out.
void BelgeyiDeğiştir(QTextDocument& belge, const BiçimliMetin& yeni, const QColor& zemin);

/// Gives stretches of one length a format, on top of what they have.
void BelgedeBiçimle(QTextDocument& belge, const QList<qsizetype>& yerler, qsizetype uzunluk,
                    const QTextCharFormat& biçim);

enum class Biçimler
{
    Kalsın,
    Gitsin
};
/// Takes units from the text's beginning and from its end.
void BelgeyiKırp(QTextDocument& belge, qsizetype baştan, qsizetype sondan, Biçimler biçimler);
