// Reads a library's articles one by one, whatever is damaged around them.
#pragma once

#include "store/KitaplıkYapısı.h"
#include "store/MakaleTablosu.h"

#include <QString>

#include <optional>
#include <unordered_map>
#include <vector>

class Bağlantı;
class Database;

/// An article's key and names; a name is null where it can't be read.
struct MakaleKünyesi
{
    qint64 Kimlik;
    QString YazarAdi, MakaleBasligi;

    /// The order of author, title and key.
    bool Önce(const MakaleKünyesi& öteki) const;
    /// Whether an article with these names may be this one: as far as its own are known, they are the same.
    bool AdlarıUyar(const QString& yazar, const QString& başlık) const;
};

/// Finds the articles when it is made: in a sound library through an index, else through the table as far as
/// its own paths lead, through both indices, and on each single page of the file.
class MakaleOkuyucu
{
public:
    /// Looks at the structure first. The library must outlive this.
    explicit MakaleOkuyucu(const Database& kitaplık);
    /// @param durum as GenelDurum found it
    MakaleOkuyucu(Bağlantı& kitaplık, YapıDurumu durum);

    YapıDurumu Durum() const { return durum_; }
    /// Every article of which anything is known, in the order of author, title and key.
    const std::vector<MakaleKünyesi>& Künyeler() const { return künyeler_; }
    /// Whether there may have been articles of which nothing is known any more.
    bool BilinmeyenOlabilir() const { return bilinmeyenOlabilir_; }

    /// Nothing where the article can't be read whole.
    std::optional<Makale> Oku(const MakaleKünyesi& künye);

private:
    void künyeleriAra();
    std::optional<Makale> oku(const MakaleKünyesi& künye);

    Bağlantı& kitaplık_;
    YapıDurumu durum_;
    std::vector<MakaleKünyesi> künyeler_;
    std::unordered_map<qint64, std::vector<qint64>> sayfalar_; // on which an article stands, by its key
    bool bilinmeyenOlabilir_ = false;
};
