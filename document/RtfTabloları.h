// What the words of RTF mean to a reader of text. The words and character sets are those of RTF 1.9.1 as
// Microsoft published it.
#pragma once

#include <QtGlobal>

#include <string_view>

enum class RtfEylemi : quint8
{
    // Letters and structure; these give text.
    Harf,          ///< the value is a UTF-16 unit
    Paragraf,      ///< end of a paragraph or section
    YeniSatır,     ///< end of a line, column or page
    SatırTanımı,   ///< begins the description of a table row's cells
    HücreTanımı,   ///< a cell ends in it
    BirleşikHücre, ///< that cell continues the one before
    Hücre,         ///< end of a table cell
    İçHücre,       ///< the same in a table within a cell
    Satır,         ///< end of a table row
    İçSatır,       ///< the same in a table within a cell
    Unicode,
    // Formats.
    Bayrak,    ///< sets a bit of RtfBayrağı, or clears it where the number is 0
    BayrakSil, ///< clears a bit
    YazıTipi,
    Boy,
    Renk,
    HarfBiçimiSıfırla,
    ParagrafBiçimiSıfırla,
    Tabloda, ///< the paragraph belongs to a table
    TabloDerinliği,
    // Header.
    KodSayfası, ///< the value is the page
    AnsiKodSayfası,
    VarsayılanYazıTipi,
    KarakterKümesi,
    YazıTipiKodSayfası,
    MaddeTürü, ///< the value is of RtfMaddeTürü
    MaddeDüzeyi,
    MaddeBaşlangıcı,
    RenkBileşeni, ///< the value is 0 for red, 1 for green, 2 for blue
                  // Bytes.
    YedekBoyu,    ///< how many characters stand in for a Unicode one
    İkili,
    // Destinations, from here on.
    Atlanan,       ///< the value is of RtfAtlanan
    MetinHedefi,   ///< as if it were no destination
    İskelet,       ///< holds text only deeper inside
    İskeletMetni,  ///< the text in one
    İçTabloTanımı, ///< as if it were no destination; describes a table within a cell
    MetinKutusu,   ///< the same, on lines of its own
    Dipnot,
    ListeMetni,
    Madde,     ///< describes the items of a list
    MaddeÖnü,  ///< text before the number
    MaddeArdı, ///< text behind it
    Alan,
    AlanKomutu,
    YazıTipleri,
    Renkler,
};

inline bool HedefMi(RtfEylemi eylem)
{
    return eylem >= RtfEylemi::Atlanan;
}

struct RtfBayrağı
{
    enum : quint8
    {
        Kalın = 1,
        İtalik = 2,
        AltıÇizili = 4,
        ÜstüÇizili = 8,
        Gizli = 16,
        Silinmiş = 32
    };
};

/// What stands before a list's items.
enum class RtfMaddeTürü : quint8
{
    Yok,
    İmli, ///< a bullet
    Sayı,
    BüyükHarf,
    KüçükHarf,
    BüyükRoma,
    KüçükRoma
};

/// Far more than word processors write; they keep damaged documents from growing in memory.
struct RtfSınırı
{
    static constexpr int Derinlik = 10'000; ///< of groups
    static constexpr int Yedek = 255;       ///< characters that stand in for a Unicode one
};

/// What a dropped destination may hold.
struct RtfAtlanan
{
    enum : int
    {
        Paragrafsız,
        Paragraflı
    };
};

struct RtfTanımı
{
    RtfEylemi Eylem;
    int Değer = 0;
};

/// The meaning of a word without its backslash; nullptr for one that says nothing about the text.
const RtfTanımı* RtfTanımıBul(std::string_view ad);

/// Code pages that a font may have beside the real ones.
struct RtfKodSayfası
{
    static constexpr int Belgenin = 0;
    static constexpr int Simgesel = 42;
};

/// The code page of a font's character set.
int RtfKümeKodSayfası(int küme);
