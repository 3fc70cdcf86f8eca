// Faults of the operating system and of other programs.
#pragma once

#include "base/Hata.h"

/// The numbers under which the run-time library of the Basic languages reports such faults, so that those who
/// have kept programs of its kind know them. They are shown to users and never change.
enum class ÇalışmaHataNo : int
{
    YetersizBellek = 7,
    İçHata = 51,
    DosyaErişimi = 75,
    GeçersizDizin = 381,
    NesneOluşmadı = 429,
    Otomasyon = 440,
    Yazıcı = 482
};

/// Thrown by system/, and above it where a window's own rule is broken.
class ÇalışmaHatası : public Hata
{
public:
    ÇalışmaHatası(ÇalışmaHataNo numara, const QString& açıklama) : Hata(açıklama, static_cast<int>(numara)) {}
};
