// What the program asks of the operating system.
#pragma once

#include <QString>

#include <optional>

class QWidget;

/// What the system says of itself.
struct SürümBilgisi
{
    quint32 Ana = 0;
    quint32 Alt = 0;
    quint32 Platform = 0; ///< 2 is NT
    QString ServisPaketi; ///< as the system gives it; ends at its first NUL
};

/// Nothing when the system does not answer.
std::optional<SürümBilgisi> SürümBilgisiAl();

/// Whether the program runs on such a system: on any that answers but NT before 4.0 and NT 4.0 with service
/// pack 1 or 2.
enum class SürümDurumu
{
    Uygun,
    YanıtYok,
    Eski
};
SürümDurumu SürümüDeğerlendir(const std::optional<SürümBilgisi>& sürüm);

/// Whether there is a file or folder at the path.
bool DosyaVar(const QString& yol);

/// The path with a separator at its end.
QString SonaAyraçEkle(const QString& yol);

enum class KayıtKökü : quint32
{
    Sınıflar = 0x80000000
};

/// A text of the desktop's registry, "" when absent. There is none on this system; the one key that
/// tells whether a word processor is installed ("Word.Document\CurVer") is answered by looking for it.
QString KayıtMetniOku(KayıtKökü kök, const QString& anahtarYolu, const QString& değerAdı);

/// Opens a web or mail address with the desktop's own program for it. Any other address, also a malformed
/// one, opens nothing; nothing is reported.
void AdresAç(const QString& adres);

/// Lets all windows paint during long work; what the user does meanwhile waits until it is over.
void PencereleriBoya();

/// Makes all controls of a window treat their texts as Turkish.
void TürkçeKarakterKümesiUygula(QWidget& pencere);
