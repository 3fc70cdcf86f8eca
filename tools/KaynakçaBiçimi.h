// How articles stand in the bibliographies that we write, so that they can be read back letter for letter.
#pragma once

#include <QByteArray>
#include <QString>

// Beside the fields that every reference program knows, an entry of ours has one more (`belgenar` in BibTeX,
// U5 in RIS): "Belgenar 1", a stamp of each of the five values in the order of the table, and the date as it
// stands in the library, since BibTeX and RIS know numbers only. Where a field read by the rules below has
// its stamp, it is what we wrote; where it doesn't, somebody has changed it, and it is read as any other
// field.

inline constexpr char DamgaAlanı[] = "belgenar";
inline constexpr char DamgaKodu[] = "U5";
inline constexpr QByteArrayView DamgaBaşı = "Belgenar 1 ";
inline constexpr qsizetype DamgaBoyu = 16; // each with a blank behind

/// 16 letters that stand for a value.
QByteArray Damga(const QString& değer);
/// That of a date and of what the entry's other fields say of it, so that a change of those shows.
QByteArray TarihDamgası(const QString& tarih, const QString& görünen);

/// A value for a field of BibTeX, in UTF-8 and with balanced braces; blanks and line breaks stay.
QByteArray BibHarfleri(const QString& değer);
/// The way back; of other texts anything.
QString BibHarflerindenÇöz(const QByteArray& alan);

/// A value for a field of RIS in UTF-8: what stands behind its code, none of its further lines like a code.
QByteArray RisHarfleri(const QString& değer);
/// The way back; of other texts anything.
QString RisHarflerindenÇöz(const QByteArray& alan);
