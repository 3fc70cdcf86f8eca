// The single-line text box.
#pragma once

#include "controls/TuşSüzgeci.h"

#include <QLineEdit>

class MetinKutusu : public TuşOlaylı<QLineEdit>
{
public:
    explicit MetinKutusu(QWidget* üst = nullptr);

    /// The text changed, by typing, pasting or assignment.
    std::function<void()> Change;

    QString Text() const { return text(); }
    void Text(const QString& metin) { setText(metin); }
};
