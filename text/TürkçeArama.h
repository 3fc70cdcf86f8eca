// Finding a text within another one without regard to case.
#pragma once

#include <QList>
#include <QStringView>

/// The places (UTF-16 units, from 0, ascending) at which the sought text begins, by Turkish rules. Places
/// may overlap; an empty text is found nowhere.
QList<qsizetype> TümYerler(QStringView metin, QStringView aranan);
