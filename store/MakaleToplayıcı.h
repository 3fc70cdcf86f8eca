// Collects the articles of a file, whatever is damaged around them, reading each page as seldom as it can.
#pragma once

#include "store/KitaplıkYapısı.h"
#include "store/MakaleOkuyucu.h"
#include "store/MakaleTablosu.h"

#include <QByteArray>

#include <array>
#include <functional>
#include <initializer_list>
#include <map>
#include <optional>
#include <string_view>
#include <unordered_set>
#include <vector>

class Deyim;
class KurtarmaKaynağı;

/// An article's values in the order of the columns, UTF-8; valid during a call only.
using MakaleDeğerleri = std::array<std::string_view, MakaleSütunları.size()>;

/// Goes through the table as far as its own paths lead, then by the keys that the indices name, then through
/// single pages; each way only for what the ones before have not brought. Made and owned by the rescue, one
/// for each file. The file's source must outlive it.
class MakaleToplayıcı
{
public:
    /// Takes one whole article, and every key once only.
    using Alıcı = std::function<void(qint64 kimlik, const MakaleDeğerleri& değerler)>;

    /// @param alınanlar the keys of the articles that are taken; those that are there already aren't looked
    /// for
    MakaleToplayıcı(KurtarmaKaynağı& kaynak, std::unordered_set<qint64>& alınanlar, const Alıcı& alıcı);

    /// Looks for every article.
    void TümünüTopla();
    /// Looks for those that are set as Eksikler.
    void EksikleriTopla();

    /// Of which something is known, but which can't be read whole. By key.
    std::map<qint64, MakaleKünyesi> Eksikler;
    /// Whether there may have been articles of which nothing is known any more.
    bool BilinmeyenOlabilir() const { return !tablo_ && !birDizin_; }
    /// What the file's structure is worth, by all that was seen.
    YapıDurumu Durum() const { return durum_; }

private:
    bool tabloyuGez();
    void tabloyaGöre(YapıDurumu dizinler);
    bool satırıAtla(qint64& son);
    void dizinleriGez();
    bool diziniOku(const QByteArray& sql, const std::function<void(const Deyim&)>& iş);
    bool diziniGez(const QByteArray& sql);
    std::optional<SatırToplamı> dizinToplamı(const QByteArray& sql);
    /// Calls for a second time where the first one was false: what was read before may be at fault.
    /// @return whether it was true
    template<class İş> bool yineleyerek(İş&& oku);
    void anahtarlarlaAra();
    void sayfalarıGez();
    void sayfalarıGez(std::initializer_list<quint8> türler, QByteArray (*tabloSql)(const QByteArray&),
                      const std::function<void(const QByteArray&)>& iş);
    void tabloSayfasınıGez(const QByteArray& tablo);
    Deyim sayfaDeyimi(const QByteArray& sql);
    void satır(const Deyim& deyim);
    void bil(const Deyim& deyim);
    bool al(const Deyim& deyim);
    bool aranır(qint64 kimlik) const;

    KurtarmaKaynağı& kaynak_;
    std::unordered_set<qint64>& alınanlar_;
    Alıcı alıcı_;
    YapıDurumu durum_;
    std::pair<qint64, QByteArray> sayfa_;      // that is looked at, and what makes it a table; 0 for none
    SatırToplamı toplam_;                      // of the table's rows
    bool adlarTam_ = true;                     // each row's names have gone into it
    bool tablo_ = false;                       // its paths lead to all of it
    bool birDizin_ = false, dizinler_ = false; // could be read whole: one of them, both
    bool okunamayanVar_ = false;               // a key's row could not be read
};
