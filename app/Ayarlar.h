// The per-user settings store.
#pragma once

#include <QString>

/// The section that holds every setting.
inline constexpr QStringView AyarBölümü = u"Ayarlar";

/// The stored text, or the default where there is none or the store can't be read.
QString AyarOku(const QString& uygulama, QStringView bölüm, QStringView anahtar, const QString& varsayılan);

/// The stored text as a number; a text that is no finite number reads as 0.
double SayıAyarıOku(QStringView anahtar, double varsayılan);

/// Writes at once; a store that can't be written is passed over, since no setting is worth an error.
void AyarYaz(const QString& uygulama, QStringView bölüm, QStringView anahtar, const QString& değer);

/// The same two for this program's own section.
QString AyarOku(QStringView anahtar, const QString& varsayılan);
void AyarYaz(QStringView anahtar, const QString& değer);

/// A number as a 16-bit list index: fractions are rounded, what does not fit becomes -1 (no entry).
qint16 SıraSayısı(double sayı);
