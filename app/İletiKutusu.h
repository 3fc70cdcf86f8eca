// Message boxes: composed, centred and asked in one place.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
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

/// Shows a modal box titled with the program's name and waits for the answer. Closing the box answers
/// Hayır where there is a choice.
İletiYanıtı İletiGöster(const QString& metin, İletiSimgesi simge, İletiDüğmeleri düğmeler,
                        İletiYeri yer = İletiYeri::EtkinPencere);

/// Top left corner of a box of this size (pixels) centred over a rectangle; halves go to the even number.
QPoint OrtalıYer(const QRect& üst, const QSize& kutu);
