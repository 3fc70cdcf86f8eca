// The system's printers and printing on them.
#pragma once

#include <QList>
#include <QString>

struct Yazıcı
{
    QString Ad;              ///< as the print service names it
    QString BağlantıNoktası; ///< the device's address; "" where the service does not tell
};

/// All printers, ordered by name as the service orders them; none when the service does not answer within a
/// few seconds.
QList<Yazıcı> Yazıcılar();

/// Name of the printer that the program prints on: the one chosen in this run, else the system's default
/// printer, else the first one; "" when there is none.
QString GeçerliYazıcı();
void GeçerliYazıcı(const QString& ad);

/// Prints plain text on the current printer, on its own paper (A4 where it names none) with margins of two
/// centimetres. Lines break where the text says and where they would be too long. Returns once the print
/// service has the job; meanwhile windows paint and take no input. An empty text prints nothing: it has no
/// page.
/// @param yazıTipi family; the next best one where it is not installed
/// @param nokta points
/// @param başlık what the print service calls the job, not empty; cut where it takes no longer name
/// @throw ÇalışmaHatası Yazıcı: there is no such printer (any more), or the service refuses the job
void MetinYazdır(const QString& metin, const QString& yazıTipi, int nokta, const QString& başlık);
