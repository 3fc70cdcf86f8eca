// Whether the pages of a library file fit together, and whether its indices agree with the table.
#pragma once

#include "store/VeritabanıHatası.h"

#include <QtGlobal>

#include <string_view>

class Bağlantı;
class Deyim;

/// What a library's structure is worth, from good to bad.
enum class YapıDurumu
{
    Sağlam,
    DizinBozuk, ///< an index has other entries than the table wants; no article is touched by that
    Okunamıyor, ///< some pages can't be read
    FazlaBayt,  ///< bytes behind the last page that the file knows of
    Bozuk       ///< pages contradict each other: what reads without an error may be old or mixed
};

/// Sayfalar looks at every page once, Dizinler at each row's entries in the indices as well, which takes
/// about ten times as long and also finds entries that stand in the wrong place.
enum class DenetimDerinliği
{
    Sayfalar,
    Dizinler
};

/// Looks for pages that belong to nothing, to two things or can't be read, and for bytes behind the last one.
/// Whether one that can't be read is the table's, reading that whole tells.
YapıDurumu YapıyıDenetle(Bağlantı& kitaplık, DenetimDerinliği derinlik);

/// Sums over rows, whatever their order: equal where the rows are the same, and else hardly ever.
struct SatırToplamı
{
    qint64 Satırlar = 0;
    quint64 YazarVeBaşlık = 0;
    quint64 Başlık = 0;

    /// @param yazar, başlık UTF-8
    void Ekle(std::string_view yazar, std::string_view başlık, qint64 kimlik);
    bool operator==(const SatırToplamı&) const = default;
};

/// The sum over the table; throws DosyaBozuk where it can't be read whole.
SatırToplamı TabloToplamı(Bağlantı& kitaplık);

/// Compares the indices with what TabloToplamı gave. Where both indices agree with each other against the
/// table, it is the table that is wrong (Bozuk): one of its pages is an old one. Otherwise Sağlam or
/// DizinBozuk.
YapıDurumu DizinleriDenetle(Bağlantı& kitaplık, const SatırToplamı& tablo);

/// What the pages, as YapıyıDenetle found them, a table that could be read whole and the indices come to.
YapıDurumu GenelDurum(Bağlantı& kitaplık, YapıDurumu sayfalar, const SatırToplamı& tablo);

/// Both of these together. Okunamıyor: pages of the table; with those of an index it is DizinBozuk.
YapıDurumu GenelDurum(Bağlantı& kitaplık, DenetimDerinliği derinlik);

/// Runs the work up to the first page that can't be read. @return whether it came to its end
template<class İş> bool OkunduğuKadar(İş&& iş)
{
    try {
        iş();
        return true;
    } catch (const VeritabanıHatası& hata) {
        if (hata != HataNo::DosyaBozuk)
            throw;
        return false;
    }
}

/// A value of an article, valid until the statement's next step. Throws DosyaBozuk where it can't be read
/// whole, isn't UTF-8 or holds NUL, as no stored text does.
std::string_view SağlamDeğer(const Deyim& satır, int sütun);
