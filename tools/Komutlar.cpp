#include "tools/Komutlar.h"

#include "tools/AraçHatası.h"
#include "tools/KomutGövdeleri.h"
#include "tools/Uçbirim.h"
#include "tools/YardımMetni.h"

#include <algorithm>
#include <array>
#include <new>

namespace {

constexpr qsizetype Sınırsız = 1'000'000;

struct Komut
{
    QStringView ad;
    QStringView yalınAd; // as it is typed without Turkish letters
    QStringView değişkenler;
    qsizetype enAz, enÇok; // of those that are no options
    std::vector<SeçenekTanımı> seçenekler;
    ÇıkışDurumu (*çalıştır)(const Değişkenler& değişkenler);
};

constexpr SeçenekTanımı Dene = {u"dene", u"dene", u""};

const std::array<Komut, 10>& komutlar()
{
    static const std::array<Komut, 10> tablo = {{
        {u"oluştur", u"olustur", u"KLASÖR", 1, 1, {}, OluşturKomutu},
        {u"aktar",
         u"aktar",
         u"KLASÖR KAYNAK…",
         2,
         Sınırsız,
         {{u"kalıp", u"kalip", u"KALIP"},
          {u"yazar", u"yazar", u"AD"},
          {u"yer", u"yer", u"YER"},
          {u"tarih", u"tarih", u"TARİH"},
          {u"sütunlar", u"sutunlar", u"ADLAR"},
          {u"olduğu-gibi", u"oldugu-gibi", u""},
          {u"rapor", u"rapor", u"DOSYA"}},
         AktarKomutu},
        {u"dök", u"dok", u"KLASÖR", 1, 1, {}, DökKomutu},
        {u"ver",
         u"ver",
         u"KLASÖR HEDEF --biçim BİÇİM",
         2,
         2,
         {{u"biçim", u"bicim", u"BİÇİM"}, {u"yazar", u"yazar", u"AD"}, {u"sözcük", u"sozcuk", u"SÖZCÜK"}},
         VerKomutu},
        {u"yedekle", u"yedekle", u"KLASÖR HEDEF", 2, 2, {{u"sakla", u"sakla", u"SAYI"}}, YedekleKomutu},
        {u"geri-yükle", u"geri-yukle", u"HEDEF KLASÖR", 1, 2, {{u"yedek", u"yedek", u"AD"}}, GeriYükleKomutu},
        {u"kurtar", u"kurtar", u"KLASÖR YENİ_KLASÖR", 2, 2, {}, KurtarKomutu},
        {u"denetle", u"denetle", u"KLASÖR", 1, 1, {}, DenetleKomutu},
        {u"onar", u"onar", u"KLASÖR", 1, 1, {{u"yedek", u"yedek", u"HEDEF"}}, OnarKomutu},
        {u"ara",
         u"ara",
         u"KLASÖR SÖZCÜK…",
         2,
         Sınırsız,
         {{u"kök", u"kok", u""}, {u"json", u"json", u""}},
         AraKomutu},
    }};
    return tablo;
}

bool yardımİsteği(const QString& değişken)
{
    return değişken == u"--yardım" || değişken == u"--yardim" || değişken == u"--help";
}

ÇıkışDurumu yardım()
{
    Çıktı çıktı;
    çıktı.Yaz(YardımMetni);
    çıktı.Bitir();
    return Başarılı;
}

ÇıkışDurumu seç(const QStringList& değişkenler)
{
    const auto seçeneklerSonu = std::find(değişkenler.begin(), değişkenler.end(), QStringLiteral("--"));
    if (std::any_of(değişkenler.begin(), seçeneklerSonu, yardımİsteği))
        return yardım();
    // A terminal may give a letter and its mark apart.
    const QString ad = değişkenler[0].normalized(QString::NormalizationForm_C);
    const auto komut = std::find_if(komutlar().begin(), komutlar().end(),
                                    [&ad](const Komut& k) { return k.ad == ad || k.yalınAd == ad; });
    if (komut == komutlar().end())
        throw YanlışKullanım(QStringLiteral("“%1” diye bir komut yok.").arg(ad));
    std::vector<SeçenekTanımı> seçenekler = komut->seçenekler;
    seçenekler.push_back(Dene);
    const Değişkenler kalan(değişkenler.mid(1), seçenekler);
    if (kalan.Sıralı().size() < komut->enAz || kalan.Sıralı().size() > komut->enÇok ||
        kalan.Sıralı().contains(QString())) {
        throw YanlışKullanım(
            QStringLiteral("Komut şöyle yazılır: “%1 %2”.").arg(komut->ad, komut->değişkenler));
    }
    return komut->çalıştır(kalan);
}

} // namespace

ÇıkışDurumu KomutÇalıştır(const QStringList& değişkenler)
{
    try {
        if (değişkenler.isEmpty()) {
            HataBildir(QStringLiteral("Bir komut gerekiyor.\n\n") + YardımMetni.trimmed());
            return Yanlış;
        }
        return seç(değişkenler);
    } catch (const YanlışKullanım& hata) {
        HataBildir(hata.Açıklama() + QStringLiteral(" Açıklama için: belgenar-kitaplik --yardım"));
        return Yanlış;
    } catch (const Hata& hata) {
        const QString baş = hata.Numara() ? QStringLiteral("%1: ").arg(hata.Numara()) : QString();
        HataBildir(baş + hata.Açıklama());
    } catch (const std::bad_alloc&) {
        HataBildir(QStringLiteral("Bellek yetmiyor."));
    }
    return Başarısız;
}
