#include "store/MakaleToplayıcı.h"

#include "store/Bağlantı.h"
#include "store/KurtarmaKaynağı.h"
#include "store/Utf8Metni.h"

#include <algorithm>
#include <limits>

namespace {

// The key and the names stand first, as on an index's page.
const QByteArray SatırSütunları =
    QByteArrayLiteral("SELECT Kimlik, YazarAdi, MakaleBasligi, YayimYeri, YayimTarihi, MakaleMetni FROM ");
constexpr int İlkDeğer = 1;
const QByteArray AğaçSql = SatırSütunları + "Makaleler NOT INDEXED WHERE Kimlik>?1 ORDER BY Kimlik";
constexpr auto SonrakiKimlikSql =
    "SELECT Kimlik FROM Makaleler NOT INDEXED WHERE Kimlik>?1 ORDER BY Kimlik LIMIT 1";
constexpr auto AdlarSql = "SELECT Kimlik, YazarAdi, MakaleBasligi FROM Makaleler NOT INDEXED WHERE Kimlik=?1";
const QByteArray AnahtarlaSql = SatırSütunları + "Makaleler NOT INDEXED WHERE Kimlik=?1";
constexpr auto YazarDizini = "SELECT Kimlik, YazarAdi, MakaleBasligi FROM Makaleler INDEXED BY YazarDizini";
constexpr auto BaşlıkDizini = "SELECT Kimlik, NULL, MakaleBasligi FROM Makaleler INDEXED BY BaslikDizini";

// The kinds of pages, by their first byte. What leads to table pages holds no article.
constexpr quint8 TabloYaprağı = 13, DizinYaprağı = 10, DizinDalı = 2;
constexpr int EnÇokUlaşılamayan = 16; // keys in a row, before the table's paths are given up
constexpr qint64 İlkSayfa = 2;        // the one before holds the names of the tables
constexpr std::size_t Deste =
    64; // pages that are made known to SQLite at once: that costs more than one page

/// A name, null where it can't be read.
QString ad(const Deyim& deyim, int sütun)
{
    QString okunan;
    OkunduğuKadar([&] { okunan = Utf8Metni(SağlamDeğer(deyim, sütun)); });
    return okunan;
}

bool aynıBaşlıklar(const std::optional<SatırToplamı>& bir, const std::optional<SatırToplamı>& öteki)
{
    return bir && öteki && bir->Satırlar == öteki->Satırlar && bir->Başlık == öteki->Başlık;
}

} // namespace

MakaleToplayıcı::MakaleToplayıcı(KurtarmaKaynağı& kaynak, std::unordered_set<qint64>& alınanlar,
                                 const Alıcı& alıcı)
    : kaynak_(kaynak), alınanlar_(alınanlar), alıcı_(alıcı), durum_(kaynak.Durum())
{
}

void MakaleToplayıcı::TümünüTopla()
{
    tablo_ = tabloyuGez();
    // Where the table is whole, what only an index knows of is the index's fault, unless both agree against
    // it.
    if (tablo_) {
        anahtarlarlaAra(); // what one that can't be read has taken with it
        const YapıDurumu dizinler =
            adlarTam_ ? DizinleriDenetle(kaynak_.Dosya(), toplam_) : YapıDurumu::DizinBozuk;
        tabloyaGöre(dizinler);
        if (dizinler == YapıDurumu::Sağlam || durum_ != YapıDurumu::Bozuk)
            return;
    } else {
        durum_ = std::max(durum_, YapıDurumu::Okunamıyor);
    }
    dizinleriGez();
    anahtarlarlaAra();
    if (!Eksikler.empty() || !birDizin_)
        sayfalarıGez();
}

/// What the whole table and the indices make of what was found before.
void MakaleToplayıcı::tabloyaGöre(YapıDurumu dizinler)
{
    if (durum_ == YapıDurumu::Okunamıyor) // what can't be read is none of the table's pages
        durum_ = YapıDurumu::DizinBozuk;
    if (!Eksikler.empty())
        durum_ = std::max(durum_, YapıDurumu::Okunamıyor);
    durum_ = std::max(durum_, dizinler);
}

void MakaleToplayıcı::EksikleriTopla()
{
    birDizin_ = dizinler_ = true; // no others are wanted
    anahtarlarlaAra();
    if (okunamayanVar_)
        sayfalarıGez();
}

/// @return whether the table's own paths led to all of its rows
bool MakaleToplayıcı::tabloyuGez()
{
    qint64 son = std::numeric_limits<qint64>::min();
    const auto kalanlar = [&] {
        Deyim deyim(kaynak_.Dosya(), AğaçSql);
        for (deyim.Bağla(1, son); deyim.Adım(); son = deyim.Sayı(0))
            satır(deyim);
    };
    while (!OkunduğuKadar(kalanlar)) {
        if (!satırıAtla(son))
            return false;
    }
    return true;
}

/// Steps over a row whose text ends the reading of the rows behind it.
/// @param son the last key before it; becomes its own
/// @return whether there is one
bool MakaleToplayıcı::satırıAtla(qint64& son)
{
    std::optional<qint64> kimlik;
    OkunduğuKadar([&] {
        Deyim deyim(kaynak_.Dosya(), SonrakiKimlikSql);
        if (deyim.Bağla(1, son).Adım())
            kimlik = deyim.Sayı(0);
    });
    if (!kimlik)
        return false;
    son = *kimlik;
    const bool adlar = OkunduğuKadar([&] {
        Deyim deyim(kaynak_.Dosya(), AdlarSql);
        if (deyim.Bağla(1, son).Adım())
            bil(deyim);
        toplam_.Ekle(deyim.Baytlar(1), deyim.Baytlar(2), son);
    });
    adlarTam_ = adlarTam_ && adlar;
    if (aranır(son))
        Eksikler.try_emplace(son, MakaleKünyesi{son, {}, {}});
    return true;
}

/// A row to which the table's own paths lead.
void MakaleToplayıcı::satır(const Deyim& deyim)
{
    adlarTam_ =
        OkunduğuKadar([&] { toplam_.Ekle(deyim.Baytlar(1), deyim.Baytlar(2), deyim.Sayı(0)); }) && adlarTam_;
    if (aranır(deyim.Sayı(0)) && !al(deyim))
        bil(deyim);
}

/// Notes what is known of an article; the first source of a name counts.
void MakaleToplayıcı::bil(const Deyim& deyim)
{
    const qint64 kimlik = deyim.Sayı(0);
    if (!aranır(kimlik))
        return;
    MakaleKünyesi& künye = Eksikler.try_emplace(kimlik, MakaleKünyesi{kimlik, {}, {}}).first->second;
    if (künye.YazarAdi.isNull())
        künye.YazarAdi = ad(deyim, 1);
    if (künye.MakaleBasligi.isNull())
        künye.MakaleBasligi = ad(deyim, 2);
}

bool MakaleToplayıcı::aranır(qint64 kimlik) const
{
    return !alınanlar_.contains(kimlik);
}

/// Takes the row if all of it can be read.
bool MakaleToplayıcı::al(const Deyim& deyim)
{
    MakaleDeğerleri değerler;
    const bool tam = OkunduğuKadar([&] {
        for (std::size_t i = 0; i < değerler.size(); ++i)
            değerler[i] = SağlamDeğer(deyim, İlkDeğer + int(i));
    });
    if (!tam)
        return false;
    const qint64 kimlik = deyim.Sayı(0);
    alıcı_(kimlik, değerler);
    alınanlar_.insert(kimlik);
    Eksikler.erase(kimlik);
    return true;
}

void MakaleToplayıcı::dizinleriGez()
{
    // At a place that was only guessed there may be a part of an index, or the other one: two that agree are
    // whole. Those that don't say nothing; their pages still tell the names.
    if (!kaynak_.YerlerBilinir() && !aynıBaşlıklar(dizinToplamı(YazarDizini), dizinToplamı(BaşlıkDizini)))
        return;
    const bool yazarlar = diziniGez(YazarDizini), başlıklar = diziniGez(BaşlıkDizini);
    dizinler_ = yazarlar && başlıklar;
    birDizin_ = yazarlar || başlıklar;
}

/// @return whether it is there and was read whole
bool MakaleToplayıcı::diziniOku(const QByteArray& sql, const std::function<void(const Deyim&)>& iş)
try {
    for (Deyim deyim = sayfaDeyimi(sql); deyim.Adım();)
        iş(deyim);
    return true;
} catch (const VeritabanıHatası& hata) {
    if (hata != HataNo::DosyaBozuk && hata != HataNo::Sözdizimi)
        throw;
    return false;
}

bool MakaleToplayıcı::diziniGez(const QByteArray& sql)
{
    return diziniOku(sql, [this](const Deyim& deyim) { bil(deyim); });
}

std::optional<SatırToplamı> MakaleToplayıcı::dizinToplamı(const QByteArray& sql)
{
    SatırToplamı toplam;
    const auto ekle = [&](const Deyim& deyim) { toplam.Ekle({}, deyim.Baytlar(2), deyim.Sayı(0)); };
    return diziniOku(sql, ekle) ? std::optional(toplam) : std::nullopt;
}

template<class İş> bool MakaleToplayıcı::yineleyerek(İş&& oku)
{
    if (oku())
        return true;
    kaynak_.Dosya().ÖnbelleğiBoşalt();
    if (oku())
        return true;
    kaynak_.Dosya().ÖnbelleğiBoşalt();
    return false;
}

/// By the table's paths. Where they lead nowhere for one key after the other, the rest is left to the pages.
void MakaleToplayıcı::anahtarlarlaAra()
{
    Deyim deyim(kaynak_.Dosya(), AnahtarlaSql);
    int ulaşılamayan = 0; // keys in a row
    for (auto sıra = Eksikler.begin(); sıra != Eksikler.end() && ulaşılamayan < EnÇokUlaşılamayan;) {
        const qint64 kimlik = (sıra++)->first; // what is taken is deleted from them
        bool ulaşıldı = false;
        const bool okundu = yineleyerek([&] {
            bool tamam = false;
            OkunduğuKadar([&] {
                const bool var = deyim.Bağla(1, kimlik).Adım();
                ulaşıldı = true;
                tamam = !var || al(deyim);
            });
            deyim.Sıfırla();
            return tamam;
        });
        okunamayanVar_ = okunamayanVar_ || !okundu;
        ulaşılamayan = ulaşıldı ? 0 : ulaşılamayan + 1;
    }
}

/// Looks at each page for itself.
void MakaleToplayıcı::sayfalarıGez()
{
    if (!dizinler_)
        sayfalarıGez({DizinYaprağı, DizinDalı}, DizinSayfası, [this](const QByteArray& dizin) {
            yineleyerek([&] { return diziniGez(DizinSayfasıSorgusu(dizin)); });
        });
    sayfalarıGez({TabloYaprağı}, TabloSayfası, [this](const QByteArray& tablo) { tabloSayfasınıGez(tablo); });
}

/// Makes each page of these kinds a table, and calls with its name.
void MakaleToplayıcı::sayfalarıGez(std::initializer_list<quint8> türler,
                                   QByteArray (*tabloSql)(const QByteArray&),
                                   const std::function<void(const QByteArray&)>& iş)
{
    std::vector<std::pair<qint64, QByteArray>> deste;
    const auto ad = [](qint64 sayfa) { return "Sayfa" + QByteArray::number(sayfa); };
    const auto bitir = [&] {
        kaynak_.Dosya().SayfalarıTabloSay(deste);
        for (const auto& sayfa : deste) {
            sayfa_ = sayfa;
            iş(ad(sayfa.first));
        }
        sayfa_ = {};
        deste.clear();
    };
    for (qint64 sayfa = İlkSayfa; sayfa <= kaynak_.SayfaSayısı(); ++sayfa) {
        if (std::find(türler.begin(), türler.end(), kaynak_.SayfaTürü(sayfa)) != türler.end())
            deste.emplace_back(sayfa, tabloSql(ad(sayfa)));
        if (deste.size() == Deste)
            bitir();
    }
    bitir();
}

/// A statement about the page that is looked at. One that could not be read makes SQLite forget all tables
/// that aren't the file's own.
Deyim MakaleToplayıcı::sayfaDeyimi(const QByteArray& sql)
{
    try {
        return Deyim(kaynak_.Dosya(), sql);
    } catch (const VeritabanıHatası& hata) {
        if (hata != HataNo::TabloYok || sayfa_.first == 0)
            throw;
        kaynak_.Dosya().SayfalarıTabloSay({sayfa_});
        return Deyim(kaynak_.Dosya(), sql);
    }
}

/// The rows of one page. What stands on a page to which nothing leads was deleted, if the indices can tell.
void MakaleToplayıcı::tabloSayfasınıGez(const QByteArray& tablo)
{
    std::vector<qint64> arananlar;
    yineleyerek([&] {
        arananlar.clear();
        return OkunduğuKadar([&] {
            for (Deyim deyim = sayfaDeyimi("SELECT Kimlik FROM " + tablo); deyim.Adım();) {
                const qint64 kimlik = deyim.Sayı(0);
                if (aranır(kimlik) && (!dizinler_ || Eksikler.contains(kimlik)))
                    arananlar.push_back(kimlik);
            }
        });
    });
    for (const qint64 kimlik : arananlar) {
        const auto bilinen = Eksikler.find(kimlik);
        const auto oku = [&](const QByteArray& sql, auto&& iş) {
            return OkunduğuKadar([&] {
                Deyim deyim = sayfaDeyimi(sql + tablo + " WHERE Kimlik=?1");
                if (deyim.Bağla(1, kimlik).Adım())
                    iş(deyim);
            });
        };
        const bool alındı = yineleyerek([&] {
            bool tamam = false;
            oku(SatırSütunları, [&](const Deyim& deyim) {
                // A page with other names is an older copy.
                if (bilinen == Eksikler.end() || bilinen->second.AdlarıUyar(ad(deyim, 1), ad(deyim, 2)))
                    tamam = al(deyim);
            });
            return tamam;
        });
        if (!alındı)
            oku("SELECT Kimlik, YazarAdi, MakaleBasligi FROM ", [this](const Deyim& deyim) { bil(deyim); });
    }
}
