// Puts a generation of a backup back into the program folder.
#pragma once

#include "store/KitaplıkYedeği.h"

struct GeriYüklemeSonucu
{
    QString
        ÖncekiYol; ///< where what stood there is now, without a separator at its end; empty where nothing did
    qint64 MakaleSayısı = 0;
    QStringList Notlar; ///< Turkish sentences about what is odd but did no harm
};

/// Copies the generation into the folder, which is made where it is missing, checks the copy whole, moves the
/// files that stood there into a folder Onceki-2026-11-25-160000 in it, and puts the new ones in their place.
/// From the moment at which the old library goes to that at which the new one stands there is no Makale.mde,
/// so that the program refuses to start; the next call, for whatever generation, finishes what a killed one
/// left. A file that is a link stays where it really is, and a link to it is put aside. What fails before the
/// old files go leaves the folder as it was. Throws ÖğeYok for an unknown generation, DosyaBozuk and the like
/// for one that isn't whole, DosyaKullanımda while the library, or hedef, is in use, KlasörlerAyrıDeğil as
/// Yedekle, DiskDolu, SaltOkunur, İşlemDurduruldu (only before the old files go).
/// @param ad of the generation's folder in hedef
/// @param klasör with a separator at its end
GeriYüklemeSonucu GeriYükle(const QString& hedef, const QString& ad, const QString& klasör, YedekKipi kip,
                            const SürdürmeBildirimi& bildir = {},
                            const QDateTime& an = QDateTime::currentDateTime());
