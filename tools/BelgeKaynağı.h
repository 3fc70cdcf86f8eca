// Articles as documents: each file of a folder is one, or a single file.
#pragma once

#include "system/BelgeÇevirici.h"
#include "tools/BelgeListesi.h"
#include "tools/Kaynaklar.h"

#include <QHash>

/// What can't be read comes out as refused. Author, title, place and date come from the document's own
/// properties, else from its path by the pattern; the date on which a document was made counts where no other
/// is known. A file that MetinKaydı made is taken letter for letter.
class BelgeKaynağı : public MakaleKaynağı
{
public:
    /// Converts what other programs must convert; throws AraçHatası when interrupted.
    /// @param belgeler as BelgeleriListele gives them
    /// @param ayar must outlive this, as must the guard
    BelgeKaynağı(std::vector<BelgeDosyası> belgeler, const KaynakAyarı& ayar, const DurdurmaBekçisi& bekçi);

    std::optional<GelenMakale> Sonraki() override;
    qint64 Konum() const override { return qint64(sıra_); }
    qint64 Boy() const override { return qint64(belgeler_.size()); }

private:
    void çevir();
    /// Throws MetinOkumaHatası.
    Makale oku(const QString& yol) const;
    Makale künyele(const QString& yol, ÇevrilenBelge belge) const;

    std::vector<BelgeDosyası> belgeler_;
    const KaynakAyarı& ayar_;
    const DurdurmaBekçisi& bekçi_;
    QHash<QString, ÇevrilenBelge> çevrilenler_; // by absolute path
    std::size_t sıra_ = 0;
};
