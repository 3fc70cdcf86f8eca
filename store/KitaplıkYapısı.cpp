#include "store/KitaplıkYapısı.h"

#include "store/Bağlantı.h"
#include "store/Utf8Metni.h"
#include "store/VeritabanıHatası.h"

#include <QFileInfo>

#include <algorithm>
#include <optional>

namespace {

// The number is how many complaints may come at most; by default they end at a hundred.
constexpr auto SayfalarSql = "PRAGMA quick_check(1000000)";
constexpr auto DizinlerSql = "PRAGMA integrity_check(1000000)";

constexpr auto TabloSatırlarıSql = "SELECT YazarAdi, MakaleBasligi, Kimlik FROM Makaleler NOT INDEXED";
constexpr auto YazarDizini = "SELECT YazarAdi, MakaleBasligi, Kimlik FROM Makaleler INDEXED BY YazarDizini";
constexpr auto BaşlıkDizini = "SELECT '', MakaleBasligi, Kimlik FROM Makaleler INDEXED BY BaslikDizini";

quint64 karıştır(quint64 sayı)
{
    sayı = (sayı ^ (sayı >> 31)) * 0x9e3779b97f4a7c15;
    return (sayı ^ (sayı >> 29)) * 0xd6e8feb86659fd93;
}

quint64 özet(std::string_view utf8)
{
    return karıştır(std::hash<std::string_view>()(utf8));
}

/// What the check's complaints come to; they reach us line by line.
class Yakınmalar
{
public:
    void Ekle(QStringView satır)
    {
        if (satır.isEmpty() || satır == u"ok" || satır.startsWith(u"*** in database"))
            return;
        if (satır.contains(u"never used"))
            boşta_ = true;
        else
            durum_ = std::max(durum_, türü(satır));
    }
    YapıDurumu Durum() const
    {
        // Below a page that can't be read all belong to nothing; without one they were lost.
        return boşta_ && durum_ != YapıDurumu::Okunamıyor ? YapıDurumu::Bozuk : durum_;
    }

private:
    static YapıDurumu türü(QStringView satır)
    {
        if (satır.contains(u" index "))
            return YapıDurumu::DizinBozuk;
        if (satır.contains(u"btreeInitPage() returns error") || satır.contains(u"unable to get the page") ||
            satır.contains(u"Failed to read ptrmap"))
            return YapıDurumu::Okunamıyor;
        return YapıDurumu::Bozuk;
    }

    YapıDurumu durum_ = YapıDurumu::Sağlam;
    bool boşta_ = false;
};

bool fazlaBaytVar(Bağlantı& kitaplık)
{
    return QFileInfo(kitaplık.Yol()).size() >
           kitaplık.Sayı("PRAGMA page_count") * kitaplık.Sayı("PRAGMA page_size");
}

SatırToplamı toplam(Bağlantı& kitaplık, const char* sql)
{
    SatırToplamı toplam;
    for (Deyim deyim(kitaplık, sql); deyim.Adım();)
        toplam.Ekle(deyim.Baytlar(0), deyim.Baytlar(1), deyim.Sayı(2));
    return toplam;
}

/// Nothing where the index can't be read whole, or isn't there.
std::optional<SatırToplamı> dizinToplamı(Bağlantı& kitaplık, const char* sql)
try {
    return toplam(kitaplık, sql);
} catch (const VeritabanıHatası& hata) {
    if (hata != HataNo::DosyaBozuk && hata != HataNo::Sözdizimi)
        throw;
    return {};
}

bool başlıklarUyar(const SatırToplamı& bir, const SatırToplamı& öteki)
{
    return bir.Satırlar == öteki.Satırlar && bir.Başlık == öteki.Başlık;
}

} // namespace

YapıDurumu YapıyıDenetle(Bağlantı& kitaplık, DenetimDerinliği derinlik)
{
    Yakınmalar yakınmalar;
    try {
        Deyim deyim(kitaplık, derinlik == DenetimDerinliği::Dizinler ? DizinlerSql : SayfalarSql);
        while (deyim.Adım()) {
            const QString ileti = deyim.Metin(0);
            for (const QStringView satır : QStringView(ileti).split(u'\n'))
                yakınmalar.Ekle(satır);
        }
    } catch (const VeritabanıHatası& hata) {
        if (hata != HataNo::DosyaBozuk)
            throw;
        yakınmalar.Ekle(u"unable to get the page");
    }
    return std::max(yakınmalar.Durum(), fazlaBaytVar(kitaplık) ? YapıDurumu::FazlaBayt : YapıDurumu::Sağlam);
}

void SatırToplamı::Ekle(std::string_view yazar, std::string_view başlık, qint64 kimlik)
{
    const quint64 satır = karıştır(özet(başlık) + quint64(kimlik));
    ++Satırlar;
    Başlık += satır;
    YazarVeBaşlık += karıştır(satır + özet(yazar));
}

SatırToplamı TabloToplamı(Bağlantı& kitaplık)
{
    return toplam(kitaplık, TabloSatırlarıSql);
}

YapıDurumu DizinleriDenetle(Bağlantı& kitaplık, const SatırToplamı& tablo)
{
    const auto yazarlar = dizinToplamı(kitaplık, YazarDizini);
    const auto başlıklar = dizinToplamı(kitaplık, BaşlıkDizini);
    if (yazarlar && başlıklar && başlıklarUyar(*yazarlar, *başlıklar) && !başlıklarUyar(tablo, *başlıklar))
        return YapıDurumu::Bozuk;
    const bool uyar = yazarlar && yazarlar->Satırlar == tablo.Satırlar &&
                      yazarlar->YazarVeBaşlık == tablo.YazarVeBaşlık && başlıklar &&
                      başlıklarUyar(tablo, *başlıklar);
    return uyar ? YapıDurumu::Sağlam : YapıDurumu::DizinBozuk;
}

YapıDurumu GenelDurum(Bağlantı& kitaplık, YapıDurumu sayfalar, const SatırToplamı& tablo)
{
    if (sayfalar > YapıDurumu::Okunamıyor)
        return sayfalar;
    const YapıDurumu dizinler = DizinleriDenetle(kitaplık, tablo);
    return sayfalar == YapıDurumu::Sağlam ? dizinler : std::max(YapıDurumu::DizinBozuk, dizinler);
}

YapıDurumu GenelDurum(Bağlantı& kitaplık, DenetimDerinliği derinlik)
try {
    const YapıDurumu sayfalar = YapıyıDenetle(kitaplık, derinlik);
    return sayfalar > YapıDurumu::Okunamıyor ? sayfalar
                                             : GenelDurum(kitaplık, sayfalar, TabloToplamı(kitaplık));
} catch (const VeritabanıHatası& hata) {
    if (hata != HataNo::DosyaBozuk)
        throw;
    return YapıDurumu::Okunamıyor;
}

std::string_view SağlamDeğer(const Deyim& satır, int sütun)
{
    const std::string_view utf8 = satır.Yazı(sütun);
    if (!Utf8Geçerli(utf8))
        throw VeritabanıHatası(HataNo::DosyaBozuk);
    return utf8;
}
