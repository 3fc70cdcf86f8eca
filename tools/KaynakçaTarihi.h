// The date of publication, as bibliographies have it and as people write it.
#pragma once

#include <QString>

/// What is known of a date; each part may be empty.
struct KaynakçaTarihi
{
    QString Yıl;
    QString Ay;  ///< a number from 1 to 12, a month's name in English or Turkish, or anything
    QString Gün; ///< of the month

    /// "2004-05-12", "2004/05//Güz" and what begins so. Of a period its beginning; anything else is the year.
    static KaynakçaTarihi Sayılardan(const QString& değer);
    /// "12 Mayıs 2004", "Mayıs 2004", "12.5.2004"; of other texts with a number of four digits that as the
    /// year, else nothing.
    static KaynakçaTarihi Türkçeden(const QString& değer);

    int AyNo() const;      ///< from 1; 0 where the month is none
    QString Metin() const; ///< "12 Mayıs 2004", as far as it is known
    int Ayrıntı() const;   ///< how many parts are known
};
