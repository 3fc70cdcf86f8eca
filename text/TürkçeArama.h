// Finding a text in another by Turkish rules, without regard to case.
#pragma once

#include <QString>
#include <QStringList>
#include <QStringMatcher>

/// Finds the places of one text in another, one after the other. An empty text is found nowhere.
class MetinArayıcı
{
public:
    MetinArayıcı(QStringView metin, QStringView aranan);

    /// The first place behind so many units, as its position in UTF-16 units counted from 1; 0 when there is
    /// none. What it gave leads it on to the next place, which may overlap.
    qint32 Sonraki(qint32 konum) const;

private:
    QString katlı_;
    QStringMatcher bulucu_;
};

/// The word, and it with its last consonant as it changes before an ending that begins with a vowel, both
/// ways: kitap and kitab(ı), ağaç and ağac(ı), kanat and kanad(ı), sokak and sokağ(ı), renk and reng(i),
/// diyalog and diyaloğ(u). Words of one letter have one form.
QStringList KökBiçimleri(const QString& sözcük);
