#include "store/MakaleArama.h"

#include "store/Bağlantı.h"
#include "store/Database.h"
#include "store/KitaplıkYapısı.h"
#include "store/MakaleTablosu.h"
#include "store/SözcükBulucu.h"
#include "store/Utf8Metni.h"
#include "text/TürkçeSıralama.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

namespace {

constexpr auto AramaSql = "SELECT YazarAdi, MakaleBasligi, YayimYeri, YayimTarihi, MakaleMetni"
                          " FROM Makaleler NOT INDEXED";

constexpr int EnÇokYer = 20; // places of a word in one text that are looked at
constexpr int BaşlıkPuanı = 100;
constexpr int YazarPuanı = 60;
constexpr int MetinPuanı = 10;
constexpr std::size_t ÖncekiBaytlar = 60; // of the line before the word
constexpr std::size_t SatırBaytları = 160;

bool devamBaytı(char bayt)
{
    return (static_cast<unsigned char>(bayt) & 0xC0) == 0x80;
}

std::size_t harfBaşı(std::string_view metin, std::size_t yer)
{
    while (yer > 0 && yer < metin.size() && devamBaytı(metin[yer]))
        --yer;
    return yer;
}

/// Whether the letter that holds this byte belongs to words.
bool sözcükHarfi(std::string_view metin, std::size_t bayt)
{
    const std::size_t baş = harfBaşı(metin, bayt);
    const QString harf = Utf8Metni(metin.substr(baş, std::max<std::size_t>(bayt + 1 - baş, 4)));
    const QList<uint> kodlar = harf.toUcs4();
    return !kodlar.isEmpty() && QChar::isLetterOrNumber(kodlar.front());
}

/// Where a word stands in a text: from inside a longer word to being one itself.
enum class Konum
{
    İçinde,
    Başında,
    Kendisi
};

Konum konumu(std::string_view metin, std::string_view bulunan)
{
    const auto yer = static_cast<std::size_t>(bulunan.data() - metin.data());
    const std::size_t son = yer + bulunan.size();
    if (yer > 0 && sözcükHarfi(metin, yer - 1))
        return Konum::İçinde;
    return son < metin.size() && sözcükHarfi(metin, son) ? Konum::Başında : Konum::Kendisi;
}

/// What a word came to in one text.
struct Geçiş
{
    int Sayı = 0;
    Konum EnİyiKonum = Konum::İçinde;
    std::size_t EnİyiYer = 0; // in bytes
};

class ArananSözcük
{
public:
    explicit ArananSözcük(const QStringList& biçimler)
    {
        for (const QString& biçim : biçimler)
            bulucular_.emplace_back(biçim);
    }

    bool İçinde(std::string_view metin) const
    {
        return std::any_of(bulucular_.begin(), bulucular_.end(),
                           [metin](const SözcükBulucu& bulucu) { return bulucu.İçerir(metin); });
    }

    Geçiş Say(std::string_view metin) const
    {
        Geçiş geçiş;
        for (const SözcükBulucu& bulucu : bulucular_)
            say(metin, bulucu, geçiş);
        return geçiş;
    }

    /// Adds the places in the line, in bytes.
    void Yerleri(std::string_view satır, std::vector<std::pair<std::size_t, std::size_t>>& yerler) const
    {
        for (const SözcükBulucu& bulucu : bulucular_) {
            for (std::size_t baş = 0; baş < satır.size();) {
                const std::string_view bulunan = bulucu.Bul(satır.substr(baş));
                if (bulunan.empty())
                    break;
                const auto yer = static_cast<std::size_t>(bulunan.data() - satır.data());
                yerler.emplace_back(yer, bulunan.size());
                baş = yer + bulunan.size();
            }
        }
    }

private:
    static void say(std::string_view metin, const SözcükBulucu& bulucu, Geçiş& geçiş)
    {
        for (std::size_t baş = 0; baş < metin.size() && geçiş.Sayı < EnÇokYer;) {
            const std::string_view bulunan = bulucu.Bul(metin.substr(baş));
            if (bulunan.empty())
                return;
            const auto yer = static_cast<std::size_t>(bulunan.data() - metin.data());
            const Konum konum = konumu(metin, bulunan);
            if (geçiş.Sayı++ == 0 || konum > geçiş.EnİyiKonum) {
                geçiş.EnİyiKonum = konum;
                geçiş.EnİyiYer = yer;
            }
            baş = yer + bulunan.size();
        }
    }

    std::vector<SözcükBulucu> bulucular_;
};

int puan(const Geçiş& geçiş, int birim)
{
    if (geçiş.Sayı == 0)
        return 0;
    return birim + birim / 2 * static_cast<int>(geçiş.EnİyiKonum) + geçiş.Sayı;
}

/// The text's line around the place, from blank to blank.
std::string_view satır(std::string_view metin, std::size_t yer)
{
    std::size_t baş = harfBaşı(metin, yer > ÖncekiBaytlar ? yer - ÖncekiBaytlar : 0);
    if (baş > 0) {
        const std::size_t boşluk = metin.substr(0, yer).find_first_of(" \n\t", baş);
        baş = boşluk == std::string_view::npos ? baş : boşluk + 1;
    }
    std::size_t son = metin.size();
    if (son - baş > SatırBaytları) {
        son = metin.find_last_of(" \n\t", baş + SatırBaytları);
        if (son == std::string_view::npos || son <= yer)
            son = harfBaşı(metin, baş + SatırBaytları);
    }
    return metin.substr(baş, son - baş);
}

class Arama
{
public:
    explicit Arama(const std::vector<QStringList>& sözcükler)
    {
        for (const QStringList& biçimler : sözcükler)
            sözcükler_.emplace_back(biçimler);
    }

    /// Nothing where the row lacks a word.
    std::optional<AramaSonucu> Bak(const Deyim& deyim) const
    {
        const std::array<std::string_view, 3> alanlar = {deyim.Baytlar(1), deyim.Baytlar(0), deyim.Yazı(4)};
        for (const ArananSözcük& sözcük : sözcükler_) {
            if (std::none_of(alanlar.begin(), alanlar.end(),
                             [&sözcük](std::string_view alan) { return sözcük.İçinde(alan); }))
                return {};
        }
        AramaSonucu sonuç{{}, 0, {}, {}};
        for (int i = 0; const SütunTanımı& sütun : MakaleSütunları) {
            if (sütun.değer != &Makale::Metin)
                sonuç.Bulunan.*sütun.değer = Utf8Metni(SağlamDeğer(deyim, i));
            ++i;
        }
        değerlendir(alanlar, sonuç);
        return sonuç;
    }

private:
    void değerlendir(const std::array<std::string_view, 3>& alanlar, AramaSonucu& sonuç) const
    {
        std::optional<Geçiş> enİyi; // in the text
        for (const ArananSözcük& sözcük : sözcükler_) {
            const Geçiş metinde = sözcük.Say(alanlar[2]);
            sonuç.Puan += puan(sözcük.Say(alanlar[0]), BaşlıkPuanı) +
                          puan(sözcük.Say(alanlar[1]), YazarPuanı) + puan(metinde, MetinPuanı);
            if (metinde.Sayı > 0 && (!enİyi || metinde.EnİyiKonum > enİyi->EnİyiKonum))
                enİyi = metinde;
        }
        işaretle(satır(alanlar[2], enİyi ? enİyi->EnİyiYer : 0), sonuç);
    }

    void işaretle(std::string_view baytlar, AramaSonucu& sonuç) const
    {
        sonuç.Bağlam = Utf8Metni(baytlar).simplified();
        const std::string satır = sonuç.Bağlam.toStdString();
        std::vector<std::pair<std::size_t, std::size_t>> yerler;
        for (const ArananSözcük& sözcük : sözcükler_)
            sözcük.Yerleri(satır, yerler);
        std::sort(yerler.begin(), yerler.end());
        const std::string_view görünüm(satır);
        std::size_t son = 0;
        for (const auto& [yer, boy] : yerler) {
            if (yer < son)
                continue;
            sonuç.İşaretler.emplace_back(Utf8Metni(görünüm.substr(0, yer)).size(),
                                         Utf8Metni(görünüm.substr(yer, boy)).size());
            son = yer + boy;
        }
    }

    std::vector<ArananSözcük> sözcükler_;
};

bool önce(const AramaSonucu& bir, const AramaSonucu& öteki)
{
    if (bir.Puan != öteki.Puan)
        return bir.Puan > öteki.Puan;
    return TürkçeKarşılaştır(bir.Bulunan.Başlık, öteki.Bulunan.Başlık) < 0;
}

} // namespace

std::vector<AramaSonucu> MakaleAra(const Database& kitaplık, const std::vector<QStringList>& sözcükler,
                                   const std::function<void()>& bildir)
{
    const Arama arama(sözcükler);
    std::vector<AramaSonucu> sonuçlar;
    for (Deyim deyim(kitaplık.Dosya(), AramaSql); deyim.Adım();) {
        if (auto sonuç = arama.Bak(deyim))
            sonuçlar.push_back(std::move(*sonuç));
        bildir();
    }
    std::stable_sort(sonuçlar.begin(), sonuçlar.end(), önce);
    return sonuçlar;
}
