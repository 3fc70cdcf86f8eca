// The labels of a window.
#pragma once

#include "app/Metinler.h"

#include <QLabel>

/// Gives the element of the label array Etiket its name and text.
void EtiketiKur(QLabel& etiket, std::size_t sıra, const QString& yazı);
/// Makes it the caption of a control: its mnemonic leads there, and a screen reader calls the control by it.
void EtiketiKur(QLabel& etiket, std::size_t sıra, İleti metin, QWidget& kontrol);
