// Whether a text typed as a date of publication is a date.
#pragma once

#include <QStringView>

/// Whether the text is a date by the rules a system with Turkish regional settings converts dates by,
/// without a time. Case makes no difference, by Turkish rules: "ŞUBAT 2003", "1 kas 2003", but not "kasim".
///
/// - Day, month and year; month, day and year; or year, month and day. The month is a name, its first three
///   letters, or a number. The text must name a day that exists; the years go from 100 to 9999.
/// - Month and year, or day and month: "Şubat 2003", "02.2003", "1 Şubat".
/// - One full stop, slash, hyphen or blank separates, with any blanks around; a comma only beside names, as
///   it is the decimal sign of numbers. Digits and letters need nothing between them: "1Şubat2003".
/// - A year may have one or two digits: 0 to 29 are 2000 to 2029, 30 to 99 are 1930 to 1999. All orders are
///   tried, so "29 Şubat 01" is 1 February 2029 (Microsoft's knowledge base, articles 241370 and 241728).
/// - The day of the week may follow a whole date with the month's name, as in the long date format of
///   Turkish settings (d MMMM yyyy dddd), and must be the right one. In other places it makes no date.
bool TürkçeTarihMi(QStringView metin);
