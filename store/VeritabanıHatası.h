// The one error type of the store.
#pragma once

#include "base/Hata.h"

/// What went wrong. The numbers are shown to users and never change. They are those that desktop engines with
/// workspaces and recordsets give the same faults, so that readers who kept such libraries know them.
enum class HataNo : int
{
    KayıtYok = 3021,
    KayıtAçılmadı = 3020,
    DosyaYok = 3024,
    DiskDolu = 3026,
    SaltOkunur = 3027,
    HesapGeçersiz = 3029,
    ParolaYanlış = 3031,
    SürümYeni = 3041,
    DiskHatası = 3043,
    YolGeçersiz = 3044,
    DosyaKullanımda = 3045,
    ÇokDosyaAçık = 3048,
    DosyaBozuk = 3049,
    İzinYok = 3051,
    İşlemDurduruldu = 3059,
    AlanYok = 3061,
    Sözdizimi = 3075,
    TabloYok = 3078,
    DeğerÇokUzun = 3163,
    KayıtSilinmiş = 3167,
    DosyaVar = 3204,
    ÖğeYok = 3265,
    KitaplıkDeğil = 3343,
    HesapVar = 3390,
    NesneKapalı = 3420,
    DeğerGeçersiz = 3421,
    // These engines have no number for the two ways in which a file can be incomplete.
    DosyaYarım = 3901,
    DosyaBoş = 3902,
    // Nor for backups.
    KlasörlerAyrıDeğil = 3903,
};

/// Thrown by everything in store/. The sentence goes with the number.
class VeritabanıHatası : public Hata
{
public:
    /// @param ek what the sentence is about (a file, a name); set behind it in brackets when not empty
    explicit VeritabanıHatası(HataNo numara, const QString& ek = {});

    HataNo Tür() const noexcept { return static_cast<HataNo>(Numara()); }
    bool operator==(HataNo tür) const noexcept { return Tür() == tür; }
};
