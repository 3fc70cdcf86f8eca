// Collects the text that an RTF document gives, and its formats.
#pragma once

#include "document/BiçimliMetin.h"

#include <string_view>

/// What depends on what was put out before: breaks and brackets that come out only once a letter follows,
/// tabs between the cells of a table, stretches of one format.
class RtfÇıktısı
{
public:
    bool Boş() const { return sonuç_.Metin.isEmpty(); }
    /// Length so far in UTF-16 units.
    int Boy() const { return static_cast<int>(sonuç_.Metin.size()); }

    /// Format of all that follows.
    void Biçimle(const KarakterBiçimi& biçim);
    /// One UTF-16 unit; control characters that end lines are line breaks, others but the tab are dropped.
    void Harf(char16_t harf);
    /// @param harfler printable ASCII and tabs
    void Dizi(std::string_view harfler);
    /// @param tabloda the break stands within a table cell
    void YeniSatır(bool tabloda);
    void Hücre();
    void TabloSatırı(bool içTablo);
    /// @param tabloda the footnote belongs to a table cell
    void DipnotBaşı(bool tabloda);
    void DipnotSonu();
    /// What follows begins a line.
    void SatırBaşı() { satırBaşıGerek_ = true; }
    /// Whether the paragraph has none yet; from then on it has.
    bool ListeMetniGerek();
    bool ListeMetniVar() const { return listeMetniVar_; }
    /// After what has paragraphs of its own amid one.
    void ListeMetniVar(bool var) { listeMetniVar_ = var; }
    BiçimliMetin Bitir();

private:
    bool satırBaşında() const { return Boş() || sonuç_.Metin.back() == u'\n'; }
    void satırBitir();
    void dipnotSatırı();
    void bekleyenleriYaz();
    void parçaKapat();

    BiçimliMetin sonuç_;
    KarakterBiçimi biçim_;
    int parçaBaşı_ = 0;
    int dipnot_ = 0;         // footnotes that are open, one in another
    int bekleyenDipnot_ = 0; // those of them that have no letter yet
    char16_t bekleyen_ = 0;  // a tab or blank that comes out before the next letter of the row
    bool satırBaşıGerek_ = false;
    bool satırdaDipnot_ = false; // the footnotes belong to a table row, which is one line
    bool içTabloBitti_ = false;  // the line break of an inner row stands last
    bool listeMetniVar_ = false;
};
