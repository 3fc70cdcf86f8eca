// Message boxes: composed and asked in one place.
#pragma once

#include <QString>
#include <QStringList>

enum class İletiSimgesi
{
    Bilgi,
    Soru,
    Uyarı,
    Kritik
};
enum class İletiDüğmeleri
{
    Tamam,
    EvetHayır,
    EvetHayırVarsayılanHayır
};
enum class İletiYanıtı
{
    Tamam,
    Evet,
    Hayır
};
enum class İletiYeri
{
    EtkinPencere,
    Ekran
};

/// The paragraphs with an empty line between each two of them; lines end with CR and LF.
QString Paragraflar(const QStringList& paragraflar);

/// Shows a modal box titled with the program's name, owned by the active window or standing on the screen
/// alone, and waits for the answer. Closing the box answers Hayır where there is a choice.
/// @param metin plain text; its lines end with LF, or CR and LF
İletiYanıtı İletiGöster(const QString& metin, İletiSimgesi simge, İletiDüğmeleri düğmeler,
                        İletiYeri yer = İletiYeri::EtkinPencere);
