// The single-line text box.
#pragma once

#include "controls/TuşOlaylı.h"

#include <QLineEdit>

/// A field's text without blanks at its ends; line breaks and other control characters, which only pasting
/// brings in, count as blanks.
QString KırpıkSatır(QString satır);

class MetinKutusu : public TuşOlaylı<QLineEdit>
{
public:
    explicit MetinKutusu(QWidget* üst = nullptr);

    /// The text changed, by typing, pasting or assignment.
    std::function<void()> Change;

    QString Text() const { return text(); }
    void Text(const QString& metin) { setText(metin); }

    QString KırpıkText() const { return KırpıkSatır(Text()); }
};
