#include "forms/AnaFormDüzeni.h"

namespace {

constexpr int SolKenar = 300;
constexpr int ÜstKenar = 180;
constexpr int EtiketGenişliği = 1695;
constexpr int EtiketYüksekliği = 255;
constexpr int KutuYüksekliği = 345;
constexpr int ListeÜstü = 465;
constexpr int YazarListesiYüksekliği = 1305; // five whole entries
constexpr int MakaleEtiketiÜstü = 2445;
constexpr int ToplamGenişliği = 1155 + SolKenar; // ends where the list ends
constexpr int BulGenişliği = 1140;
constexpr int DüğmeYüksekliği = 345;
constexpr int YüksekDüğmeYüksekliği = 400 + DüğmeYüksekliği;

constexpr Kutu etiket(int sol, int üst)
{
    return {sol, üst, EtiketGenişliği, EtiketYüksekliği};
}

} // namespace

AnaFormDüzeni AnaFormDüzeni::Hesapla(int genişlik, int yükseklik)
{
    const int liste = genişlik / 3;
    const int metinSolu = liste + 495;
    const int altSıra = yükseklik - 1790; // the labels above the find boxes
    const int düğmeSolu = metinSolu + 1780, düğmeÜstü = altSıra + 40;
    const int makaleler = yükseklik - 4605;
    return {
        .Etiket = {{etiket(SolKenar, ÜstKenar), etiket(SolKenar, 1800), etiket(SolKenar, MakaleEtiketiÜstü),
                    etiket(SolKenar, altSıra), etiket(metinSolu, ÜstKenar), etiket(metinSolu, altSıra)}},
        .Altlık = {SolKenar, ListeÜstü, liste, YazarListesiYüksekliği},
        .YazarListesi = {0, 0, liste, YazarListesiYüksekliği},
        .YazarBulKutusu = {SolKenar, 2055, liste, KutuYüksekliği},
        .MakaleListesi = {SolKenar, 2715, liste, makaleler},
        .MakaleBulKutusu = {SolKenar, altSıra + 300, liste, KutuYüksekliği},
        .MakaleMetniKutusu = {metinSolu, ListeÜstü, genişlik - (liste + 940), makaleler + 2250},
        .BulKutusu = {metinSolu, altSıra + 300, 1690, KutuYüksekliği},
        .BulButonu = {düğmeSolu, düğmeÜstü, BulGenişliği, DüğmeYüksekliği},
        .TemizleButonu = {düğmeSolu, düğmeÜstü + 400, BulGenişliği, DüğmeYüksekliği},
        .TümündeBulButonu = {düğmeSolu + 1220, düğmeÜstü, 1365, YüksekDüğmeYüksekliği},
        .ÇıkışButonu = {genişlik - 1560, düğmeÜstü, 1115, YüksekDüğmeYüksekliği},
        .ToplamYazarSayısıEtiketi = {liste - 1155, ÜstKenar, ToplamGenişliği, EtiketYüksekliği},
        .ToplamMakaleSayısıEtiketi = {liste - 1155, MakaleEtiketiÜstü, ToplamGenişliği, EtiketYüksekliği}};
}
