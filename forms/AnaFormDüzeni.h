// Where the main window's controls stand.
#pragma once

#include <array>

/// In twips; places are within the window, those of YazarListesi within its panel Altlık.
struct Kutu
{
    int sol, üst, genişlik, yükseklik;
};

struct AnaFormDüzeni
{
    std::array<Kutu, 6> Etiket;
    Kutu Altlık, YazarListesi, YazarBulKutusu, MakaleListesi, MakaleBulKutusu, MakaleMetniKutusu, BulKutusu,
        BulButonu, TemizleButonu, TümündeBulButonu, ÇıkışButonu, ToplamYazarSayısıEtiketi,
        ToplamMakaleSayısıEtiketi;

    /// @param genişlik of the whole window, frame included, in twips; not below what the window allows
    static AnaFormDüzeni Hesapla(int genişlik, int yükseklik);
};
