#include "store/MakaleOkuyucu.h"

#include "store/Bağlantı.h"
#include "store/Database.h"
#include "store/Utf8Metni.h"
#include "text/TürkçeSıralama.h"

#include <algorithm>

namespace {

constexpr auto SıralıSql = "SELECT Kimlik, YazarAdi, MakaleBasligi FROM Makaleler"
                           " ORDER BY YazarAdi, MakaleBasligi, Kimlik";
constexpr auto AğaçSql = "SELECT Kimlik, YazarAdi, MakaleBasligi FROM Makaleler NOT INDEXED";
constexpr auto YazarDizini = "SELECT Kimlik, YazarAdi, MakaleBasligi FROM Makaleler INDEXED BY YazarDizini";
constexpr auto BaşlıkDizini = "SELECT Kimlik, NULL, MakaleBasligi FROM Makaleler INDEXED BY BaslikDizini";
constexpr auto MakaleSql = "SELECT YazarAdi, MakaleBasligi, YayimYeri, YayimTarihi, MakaleMetni"
                           " FROM Makaleler WHERE Kimlik=?1";

// A single page, taken for one of the table and for one of an index.
constexpr auto TabloAdı = "TabloSayfasi", DizinAdı = "DizinSayfasi";
constexpr auto TabloSayfasıSql = "SELECT Kimlik, YazarAdi, MakaleBasligi FROM TabloSayfasi";
constexpr auto SayfadakiMakaleSql = "SELECT YazarAdi, MakaleBasligi, YayimYeri, YayimTarihi, MakaleMetni"
                                    " FROM TabloSayfasi WHERE Kimlik=?1";
// The first page of a file holds the names of its tables.
constexpr qint64 İlkSayfa = 2;

/// What is known of an article while it is searched for.
struct Bulunan
{
    MakaleKünyesi Künye;
    bool Ağaçta = false;          // the table's own paths lead to it
    bool Dizinde = false;         // an index names it
    std::vector<qint64> Sayfalar; // it stands on these, live or not
};

class Arama
{
public:
    explicit Arama(Bağlantı& kitaplık) : kitaplık_(kitaplık) {}

    void Ağaçlar();  ///< all to which the file's own paths lead
    void Sayfalar(); ///< then what stands on any page
    std::unordered_map<qint64, Bulunan> Bulunanlar;
    bool TabloTam = false, DizinlerTam = false, BirDizinTam = false;

private:
    template<class İş> bool oku(const QByteArray& sql, İş&& iş)
    {
        return OkunduğuKadar([&] {
            for (Deyim deyim(kitaplık_, sql); deyim.Adım();)
                iş(ekle(deyim));
        });
    }
    Bulunan& ekle(const Deyim& deyim);
    void sayfayıOku(qint64 sayfa);

    Bağlantı& kitaplık_;
};

MakaleKünyesi künye(const Deyim& deyim)
{
    return {deyim.Sayı(0), Utf8Metni(deyim.Baytlar(1)), Utf8Metni(deyim.Baytlar(2))};
}

/// The first source of a name counts.
Bulunan& Arama::ekle(const Deyim& deyim)
{
    const MakaleKünyesi yeni = künye(deyim);
    Bulunan& bulunan = Bulunanlar[yeni.Kimlik];
    bulunan.Künye.Kimlik = yeni.Kimlik;
    if (bulunan.Künye.YazarAdi.isNull())
        bulunan.Künye.YazarAdi = yeni.YazarAdi;
    if (bulunan.Künye.MakaleBasligi.isNull())
        bulunan.Künye.MakaleBasligi = yeni.MakaleBasligi;
    return bulunan;
}

void Arama::Ağaçlar()
{
    const auto dizinde = [](Bulunan& bulunan) { bulunan.Dizinde = true; };
    TabloTam = oku(AğaçSql, [](Bulunan& bulunan) { bulunan.Ağaçta = true; });
    const bool yazarlar = oku(YazarDizini, dizinde), başlıklar = oku(BaşlıkDizini, dizinde);
    DizinlerTam = yazarlar && başlıklar;
    BirDizinTam = yazarlar || başlıklar;
}

void Arama::Sayfalar()
{
    const qint64 sayfalar = kitaplık_.Sayı("PRAGMA page_count");
    for (qint64 sayfa = İlkSayfa; sayfa <= sayfalar; ++sayfa)
        sayfayıOku(sayfa);
}

void Arama::sayfayıOku(qint64 sayfa)
{
    kitaplık_.SayfalarıTabloSay({{sayfa, TabloSayfası(TabloAdı)}, {sayfa, DizinSayfası(DizinAdı)}});
    oku(TabloSayfasıSql, [sayfa](Bulunan& bulunan) { bulunan.Sayfalar.push_back(sayfa); });
    if (!DizinlerTam)
        oku(DizinSayfasıSorgusu(DizinAdı), [](Bulunan& bulunan) { bulunan.Dizinde = true; });
}

std::optional<Makale> makaleyiOku(Bağlantı& kitaplık, const char* sql, qint64 kimlik)
{
    std::optional<Makale> makale;
    OkunduğuKadar([&] {
        Deyim satır(kitaplık, sql);
        if (!satır.Bağla(1, kimlik).Adım())
            return;
        Makale okunan;
        for (int i = 0; const SütunTanımı& sütun : MakaleSütunları)
            okunan.*sütun.değer = Utf8Metni(SağlamDeğer(satır, i++));
        makale = std::move(okunan);
    });
    return makale;
}

} // namespace

bool MakaleKünyesi::Önce(const MakaleKünyesi& öteki) const
{
    if (const int yazar = TürkçeKarşılaştır(YazarAdi, öteki.YazarAdi); yazar != 0)
        return yazar < 0;
    if (const int başlık = TürkçeKarşılaştır(MakaleBasligi, öteki.MakaleBasligi); başlık != 0)
        return başlık < 0;
    return Kimlik < öteki.Kimlik;
}

bool MakaleKünyesi::AdlarıUyar(const QString& yazar, const QString& başlık) const
{
    const auto uyar = [](const QString& ad, const QString& değer) { return ad.isNull() || ad == değer; };
    return uyar(YazarAdi, yazar) && uyar(MakaleBasligi, başlık);
}

MakaleOkuyucu::MakaleOkuyucu(const Database& kitaplık)
    : MakaleOkuyucu(kitaplık.Dosya(), GenelDurum(kitaplık.Dosya(), DenetimDerinliği::Sayfalar))
{
}

MakaleOkuyucu::MakaleOkuyucu(Bağlantı& kitaplık, YapıDurumu durum) : kitaplık_(kitaplık), durum_(durum)
{
    if (durum == YapıDurumu::Sağlam) {
        for (Deyim deyim(kitaplık, SıralıSql); deyim.Adım();)
            künyeler_.push_back(künye(deyim));
        return;
    }
    künyeleriAra();
    std::sort(künyeler_.begin(), künyeler_.end(),
              [](const MakaleKünyesi& bir, const MakaleKünyesi& öteki) { return bir.Önce(öteki); });
}

void MakaleOkuyucu::künyeleriAra()
{
    Arama arama(kitaplık_);
    arama.Ağaçlar();
    if (durum_ != YapıDurumu::DizinBozuk)
        arama.Sayfalar();
    bilinmeyenOlabilir_ = !arama.TabloTam && !arama.BirDizinTam;
    for (auto& [kimlik, bulunan] : arama.Bulunanlar) {
        // Where the table is whole, what only an index knows of is the index's fault; and what stands on a
        // page to which nothing leads was deleted, if the indices can tell.
        const bool var =
            bulunan.Ağaçta || (durum_ != YapıDurumu::DizinBozuk && (bulunan.Dizinde || !arama.DizinlerTam));
        if (!var)
            continue;
        künyeler_.push_back(std::move(bulunan.Künye));
        sayfalar_.emplace(kimlik, std::move(bulunan.Sayfalar));
    }
}

std::optional<Makale> MakaleOkuyucu::Oku(const MakaleKünyesi& künye)
{
    auto okunan = oku(künye);
    if (!okunan) { // the one before may be at fault
        kitaplık_.ÖnbelleğiBoşalt();
        okunan = oku(künye);
        kitaplık_.ÖnbelleğiBoşalt();
    }
    return okunan;
}

std::optional<Makale> MakaleOkuyucu::oku(const MakaleKünyesi& künye)
{
    if (auto okunan = makaleyiOku(kitaplık_, MakaleSql, künye.Kimlik))
        return okunan;
    for (const qint64 sayfa : sayfalar_[künye.Kimlik]) {
        kitaplık_.SayfalarıTabloSay({{sayfa, TabloSayfası(TabloAdı)}});
        auto okunan = makaleyiOku(kitaplık_, SayfadakiMakaleSql, künye.Kimlik);
        if (okunan && künye.AdlarıUyar(okunan->Yazar, okunan->Başlık))
            return okunan;
    }
    return {};
}
