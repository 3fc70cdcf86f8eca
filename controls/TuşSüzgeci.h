// What the entry and find boxes do to typed characters, each rule once.
#pragma once

class QWidget;

/// Enter goes to the next control, as the Tab key does, and is swallowed (becomes 0).
void EnterSekmeOlsun(QWidget& kontrol, char16_t& kod);
/// An apostrophe becomes the acute accent.
void KesmeAksanOlsun(char16_t& kod);
/// A letter becomes its Turkish upper-case form.
void HarfBüyüsün(char16_t& kod);
/// The first two: for boxes whose letters stay as typed.
void KutuSüzgeci(QWidget& kontrol, char16_t& kod);
/// All three in this order: for boxes that hold authors and titles.
void BüyükHarfliKutuSüzgeci(QWidget& kontrol, char16_t& kod);
