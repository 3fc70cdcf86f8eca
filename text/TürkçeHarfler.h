// Turkish letter case. i/İ and ı/I are two pairs of letters, which neither Qt's nor Unicode's
// default case mapping knows; this unit is the only place that does.
#pragma once

#include <QString>
#include <QStringView>

/// One UTF-16 unit folded for comparison without regard to case: I gives ı, İ gives i, any other unit
/// its simple Unicode folding. Length and positions are kept; letters beyond the BMP stay as they are.
char16_t HarfKatla(char16_t harf) noexcept;

/// The text with every unit folded; the result has the text's length.
QString Katla(QStringView metin);

/// Whether the text begins with the given beginning, without regard to case. An empty beginning always fits.
bool İleBaşlar(QStringView metin, QStringView baş) noexcept;

/// The upper-case form of one typed unit; what has no single upper-case form (ß) stays.
char16_t BüyükHarf(char16_t harf) noexcept;

/// One typed unit as names take it: an apostrophe becomes the acute accent, which breaks no query.
constexpr char16_t YazılanHarf(char16_t harf) noexcept
{
    return harf == u'\'' ? u'´' : harf;
}

/// The lower-case form of one unit; what has no single lower-case form stays.
char16_t KüçükHarf(char16_t harf) noexcept;

/// The text with every unit in upper case; the result has the text's length.
QString BüyükHarfeÇevir(QStringView metin);

/// Proper case for names of places and dates: blanks around the text are dropped, the first letter of
/// each word is upper case and the rest lower case. A blank, a tab or a line break starts a word; a
/// hyphen or a point does not.
QString TürkçeÖzelAd(QStringView metin);
