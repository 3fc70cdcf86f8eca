// What holds for the text at one place of an RTF document.
#pragma once

#include "document/RtfBaşlığı.h"
#include "document/RtfSözcükleri.h"
#include "document/RtfTabloları.h"

/// Where text goes.
enum class RtfHedefi : quint8
{
    Metin,
    Atlanan,
    AtlananMetin, ///< may have paragraphs
    İskelet,
    YazıTipleri,
    Renkler,
    AlanKomutu,
    Madde,
    MaddeÖnü,
    MaddeArdı
};

/// What a group does when it ends.
enum class RtfKapanışı : quint8
{
    Yok,
    Dipnot,
    Kutu,
    Alan,
    AlanKomutu,
    Madde
};

/// A group begins with its surrounding group's state, and its end restores that.
struct RtfDurumu
{
    int YazıTipi = -1; ///< place in the font table; -1 for the default font
    int YarımNokta = 0;
    quint32 Renk = KarakterBiçimi::Renksiz;
    int AlanBaşı = 0;         ///< place in the text where the field begins
    char16_t AlanSimgesi = 0; ///< what the field stands for where its result is empty
    int Madde = -1;           ///< description of the list items that paragraphs are
    quint8 Bayraklar = 0;     ///< of RtfBayrağı
    quint8 YedekBoyu = 1;     ///< how many characters stand in for a Unicode one
    RtfHedefi Hedef = RtfHedefi::Metin;
    RtfHedefi İskelettekiHedef = RtfHedefi::Atlanan; ///< of the text deep in a frame
    RtfKapanışı Kapanış = RtfKapanışı::Yok;
    bool Yeni = true;             ///< nothing but \* was read in the group
    bool Yıldızlı = false;        ///< \* was
    bool Tabloda = false;         ///< the paragraph stands in a table cell
    bool İçMetin = false;         ///< within a footnote, a text box or the description of an inner table
    bool ListeMetninde = false;   ///< within a list item's number or bullet
    bool ListeMetniVardı = false; ///< the paragraph around that had its list text

    /// Whether letters become text here.
    bool Yazılıyor() const
    {
        return Hedef == RtfHedefi::Metin && (Bayraklar & (RtfBayrağı::Gizli | RtfBayrağı::Silinmiş)) == 0;
    }
    /// Whether all within is dropped.
    bool Atlanıyor() const { return Hedef == RtfHedefi::Atlanan || Hedef == RtfHedefi::AtlananMetin; }
    /// State at the beginning of a group within.
    RtfDurumu İçGrup() const;
    /// Applies a word for a format.
    void Biçimle(const RtfTanımı& tanım, const RtfSözcüğü& söz, const RtfBaşlığı& başlık);
    KarakterBiçimi Biçim(const RtfBaşlığı& başlık) const;
};
