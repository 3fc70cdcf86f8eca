// Message boxes: composed and asked in one place.
#pragma once

#include <QString>

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

/// Shows a modal box titled with the program's name, owned by the active window or standing on the screen
/// alone, and waits for the answer. Closing the box answers Hayır where there is a choice.
İletiYanıtı İletiGöster(const QString& metin, İletiSimgesi simge, İletiDüğmeleri düğmeler,
                        İletiYeri yer = İletiYeri::EtkinPencere);
