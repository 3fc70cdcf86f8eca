// The caption labels of a window's controls.
#pragma once

#include <QLabel>

/// Makes the element of the label array Etiket the caption of a control: its mnemonic leads there, and a
/// screen reader calls the control by it.
/// @param metin number in the table of texts
void EtiketiKur(QLabel& etiket, std::size_t sıra, int metin, QWidget& kontrol);
