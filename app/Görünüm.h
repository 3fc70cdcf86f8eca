// Sizes, colours and the measure of all windows.
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

class QWidget;

/// 0x00BBGGRR, or 0x80000000 plus the number of a system colour.
using Renk = quint32;

inline constexpr Renk OdakMavisi = 0xFF0000;           ///< caption label of the field that has the focus
inline constexpr Renk PencereZeminiRengi = 0x80000005; ///< system colour of fields
inline constexpr Renk DüğmeYüzüRengi = 0x8000000F;     ///< system colour of button faces
inline constexpr Renk DüğmeYazısıRengi = 0x80000012;   ///< system colour of letters on button faces

/// Point size of an index of the size list (8 to 14); 0 for an index outside the list.
int YazıBoyutu(qint16 sıra);
/// Colour of an index of the background-colour list; 0 for an index outside the list.
Renk ZeminRengi(qint16 sıra);

/// System colours come from the palette.
QColor EkranRengi(Renk renk, const QPalette& palet);
/// Black or white, whichever reads better on the background.
QColor OkunurYazıRengi(const QColor& zemin);
/// The colour itself on a light background; on a dark one lightened, in its own hue, as far as letters in
/// it need to be read.
QColor OkunurTon(const QColor& renk, const QColor& zemin);

/// What to lay under letters whose colour must stay, where they can't be read on the background; no valid
/// colour where they can.
QColor OkunurAltlık(const QColor& yazı, const QColor& zemin);

/// Gives a field a background, and letters in black or white, whichever reads better on it; hints fainter.
void ZeminVer(QWidget& kontrol, const QColor& zemin);

/// The size (points) of the windows' own letters that their measures are made for.
inline constexpr double OlağanYazıBoyutu = 9;

/// Lets the windows follow the desktop's letters: theirs get its size, and with larger ones all measures
/// grow. They grow only as far as a window of the given size (twips, at the usual size of letters) still
/// fits into the screen's free area; with smaller ones the measures stay.
/// To be called before the first window is made; without it letters have their usual size.
void FormÖlçüsünüKur(const QFont& masaüstü, const QSize& enAzBoy);

/// The font of the windows' own controls.
/// @param nokta what its size is where the usual letters have their usual size
QFont FormYazıTipi(double nokta = OlağanYazıBoyutu);
/// Its family: the one that it has here where its own is not installed.
QString FormYazıTipiAdı();

/// Twips to pixels and back for the measures of windows and controls, which grow with the letters. Places on
/// the screen don't (Piksel, Twip).
int FormPikseli(double twip);
int FormTwipi(int piksel);
