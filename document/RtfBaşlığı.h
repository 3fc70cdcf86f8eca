// The tables at the head of an RTF document: fonts with their code pages, and colours.
#pragma once

#include "document/BiçimliMetin.h"
#include "document/KodSayfası.h"
#include "document/RtfTabloları.h"
#include "document/SimgeYazıTipleri.h"

#include <QHash>

#include <array>
#include <map>
#include <vector>

/// Fonts and colours are filled while the document's head is read, and then asked. A font's place in the
/// table stands for it; -1 stands for the document's default font.
class RtfBaşlığı
{
public:
    /// The document is in UTF-8, and names no other code page.
    void Utf8Varsay() { utf8Varsayılan_ = true; }
    /// A word that belongs to the head.
    /// @param tabloda within the font table
    void Sözcük(const RtfTanımı& tanım, int değer, bool tabloda);

    /// Begins the line of a font in the table.
    void YazıTipiBaşı(int no);
    /// A letter of the name in that line.
    void YazıTipiHarfi(char16_t harf);
    /// Place of the line that is read; -1 before the first.
    int YazılanYazıTipi() const { return yazılan_; }

    /// Place of a font; -1 when there is none of this number.
    int YazıTipiYeri(int no) const { return yerler_.value(no, -1); }
    /// Family; empty for the default font, and for a symbol font whose signs are known: it has nothing for
    /// their Unicode characters.
    QString YazıTipiAdı(int yer) const
    {
        return yer < 0 || yazıTipi(yer).simgeler ? QString() : yazıTipi(yer).ad;
    }
    /// Whether the font holds signs in place of letters.
    bool Simgesel(int yer) const;
    /// Its signs; nullptr for a font of letters, or of signs that aren't known.
    const SimgeTablosu* Simgeler(int yer) const;
    const KodSayfası& KodSayfasıBul(int yer);

    /// A colour of the table ends here.
    void RenkSonu();
    /// The colour of a number; none for one outside the table.
    quint32 Renk(int no) const;

private:
    struct YazıTipi
    {
        QString ad;
        int kodSayfası = RtfKodSayfası::Belgenin;
        const SimgeTablosu* simgeler = nullptr; // by name
        bool adBitti = false;
    };

    YazıTipi& yazıTipi(int yer) { return yazıTipleri_[static_cast<std::size_t>(yer)]; }
    const YazıTipi& yazıTipi(int yer) const { return yazıTipleri_[static_cast<std::size_t>(yer)]; }
    const YazıTipi* asıl(int yer) const;
    int belgeninKodu() const;
    int kodu(int yer) const;

    std::vector<YazıTipi> yazıTipleri_;
    QHash<int, int> yerler_; // by number
    int varsayılan_ = 0;     // number of the default font
    int yazılan_ = -1;

    std::vector<quint32> renkler_;
    std::array<int, 3> bileşenler_{}; // of the colour that is read
    bool bileşenVar_ = false;

    std::map<int, KodSayfası> sayfalar_; // those opened so far
    int belgeKodu_ = KodSayfası::Windows1252;
    bool utf8Varsayılan_ = false;
};
