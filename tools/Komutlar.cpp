#include "tools/Komutlar.h"

#include "app/Oturum.h"
#include "store/KitaplıkDenetimi.h"
#include "store/MakaleKitaplığı.h"
#include "store/MakaleOkuyucu.h"
#include "store/SistemHatası.h"
#include "tools/AraçHatası.h"
#include "tools/Durdurma.h"
#include "tools/JsonSatırları.h"
#include "tools/Uçbirim.h"

#include <QDir>

#include <algorithm>
#include <array>
#include <new>
#include <optional>
#include <vector>

namespace {

constexpr int Başarılı = 0;
constexpr int Başarısız = 1;
constexpr int YanlışKullanım = 2;

// None of the library's rows: what is appended needs no look at what is there.
const QString EklemeSorgusu = QStringLiteral("SELECT * FROM [Makaleler] WHERE 1=0");

const QString YardımMetni = QStringLiteral(
    R"(belgenar-kitaplik: Belgenar'ın makale kitaplığını oluşturur, doldurur, döker ve denetler.

Kullanım:
  belgenar-kitaplik oluştur KLASÖR       Boş bir kitaplık oluşturur; var olanın üzerine yazmaz.
  belgenar-kitaplik aktar KLASÖR DOSYA   DOSYA'daki makaleleri kitaplığa ekler. Satırlardan biri bile
                                         yanlışsa hiçbirini eklemez. DOSYA yerine "-" yazılırsa
                                         standart girdiyi okur.
  belgenar-kitaplik dök KLASÖR           Bütün makaleleri standart çıktıya yazar; bozuk bir kitaplıktan
                                         okunabilenleri yazar, okunamayanları bildirir.
  belgenar-kitaplik denetle KLASÖR       Kitaplığın iki dosyasını denetler; hiçbir şeyi değiştirmez.
  belgenar-kitaplik --yardım             Bu açıklamayı gösterir.

KLASÖR, Makale.mde ile Makale.tps dosyalarının bulunduğu program klasörüdür. Program ya da başka bir
araç kitaplığı açık tutarken hiçbir komut çalışmaz.

Makaleler JSON Lines biçimindedir: UTF-8, her satırda bir nesne, her nesnede beş metin:
  {"YazarAdi": "…", "MakaleBasligi": "…", "YayimYeri": "…", "YayimTarihi": "…", "MakaleMetni": "…"}
Yazar adı ile başlık boş olamaz. Boş satırlar atlanır.

Çıkış durumu: 0 başarılı, 1 başarısız, denetimde sorun bulundu ya da dökümde eksik makale var, 2 yanlış
kullanım.
Komutlar olustur, dok ve --yardim diye de yazılabilir.
)");

QString klasörYolu(const QString& klasör)
{
    YolGeçerliOlmalı(klasör);
    const QString yol = QDir(klasör).absolutePath();
    return yol.endsWith(u'/') ? yol : yol + u'/';
}

int oluştur(const QStringList& değişkenler)
{
    const QString klasör = klasörYolu(değişkenler[0]);
    if (!QDir().mkpath(klasör))
        throw AraçHatası(QStringLiteral("Klasör oluşturulamıyor (%1).").arg(klasör));
    const KlasörKilidi kilit(klasör);
    KitaplıkKur(klasör);
    Bildir(QStringLiteral("Boş bir kitaplık oluşturuldu: %1").arg(klasör));
    return Başarılı;
}

/// The article as far as it is known, such as “BAŞLIK”, YAZAR (Kimlik 17).
QString künyeMetni(const MakaleKünyesi& künye)
{
    const QString başlık = künye.MakaleBasligi.isNull() ? QStringLiteral("Başlığı okunamıyor")
                                                        : u'“' + künye.MakaleBasligi + u'”';
    return QStringLiteral("%1, %2 (Kimlik %3)")
        .arg(başlık, künye.YazarAdi.isNull() ? QStringLiteral("yazarı okunamıyor") : künye.YazarAdi)
        .arg(künye.Kimlik);
}

void satırlarıDenetle(JsonSatırları& satırlar)
{
    İlerleme ilerleme(QStringLiteral("Satırlar denetleniyor"));
    while (satırlar.Sonraki())
        ilerleme.Göster(satırlar.Konum(), satırlar.Boy());
    satırlar.BaşaDön();
}

/// Returns the number of articles appended.
qint64 makaleleriEkle(const Database& veritabanı, JsonSatırları& satırlar)
{
    İlerleme ilerleme(QStringLiteral("Makaleler aktarılıyor"));
    Recordset kayıtlar = veritabanı.OpenRecordset(EklemeSorgusu);
    while (const auto makale = satırlar.Sonraki()) {
        kayıtlar.AddNew();
        makale->Yaz(kayıtlar);
        kayıtlar.Update();
        ilerleme.Göster(satırlar.BirKezOkunur() ? kayıtlar.RecordCount() : satırlar.Konum(),
                        satırlar.BirKezOkunur() ? 0 : satırlar.Boy());
    }
    return kayıtlar.RecordCount();
}

int aktar(const QStringList& değişkenler)
{
    Oturum oturum;
    oturum.SahipOlarakAç(klasörYolu(değişkenler[0]), Oturum::Erişim::Yazma);
    const DurdurmaBekçisi bekçi;
    JsonSatırları satırlar(değişkenler[1], bekçi);
    if (!satırlar.BirKezOkunur()) // else a bad line rolls back what came before it
        satırlarıDenetle(satırlar);
    qint64 eklenen = 0;
    oturum.Veritabanı->TekİşlemdeYap([&] {
        eklenen = makaleleriEkle(*oturum.Veritabanı, satırlar);
        bekçi.Bak(); // the last article may have been a long one
    });
    Bildir(QStringLiteral("%1 makale aktarıldı.").arg(eklenen));
    return Başarılı;
}

/// Says what a damaged library didn't give. Returns the exit status.
int dökümHesabı(const MakaleOkuyucu& okuyucu, const std::vector<MakaleKünyesi>& eksikler)
{
    const YapıDurumu durum = okuyucu.Durum();
    for (const MakaleKünyesi& künye : eksikler)
        HataBildir(QStringLiteral("Eksik makale: ") + künyeMetni(künye));
    if (eksikler.empty() && durum == YapıDurumu::DizinBozuk)
        HataBildir(QStringLiteral("Not: Kitaplığın bir dizini bozuk; makalelerin hepsi yazıldı."));
    if (eksikler.empty() && durum <= YapıDurumu::DizinBozuk)
        return Başarılı;
    QString cümle = QStringLiteral("Kitaplık bozuk: %1 makale yazıldı, %2 makale eksik.")
                        .arg(okuyucu.Künyeler().size() - eksikler.size())
                        .arg(eksikler.size());
    if (okuyucu.BilinmeyenOlabilir())
        cümle += QStringLiteral(" Adı bilinmeyen başka eksikler de olabilir.");
    if (durum > YapıDurumu::Okunamıyor)
        cümle += QStringLiteral(" Yazılanların bir bölümü eski ya da karışık olabilir.");
    HataBildir(cümle);
    return Başarısız;
}

int dök(const QStringList& değişkenler)
{
    Oturum oturum;
    oturum.SahipOlarakAç(klasörYolu(değişkenler[0]), Oturum::Erişim::Okuma);
    Çıktı çıktı;
    std::vector<MakaleKünyesi> eksikler;
    auto ilerleme = std::make_optional<İlerleme>(QStringLiteral("Makaleler dökülüyor"));
    oturum.Veritabanı->İlerlemeAta([&ilerleme] {
        ilerleme->Göster(0, 0);
        return true;
    });
    MakaleOkuyucu okuyucu(*oturum.Veritabanı);
    for (qint64 sayı = 0; const MakaleKünyesi& künye : okuyucu.Künyeler()) {
        if (const auto makale = okuyucu.Oku(künye))
            çıktı.Yaz(MakaleSatırı(*makale));
        else
            eksikler.push_back(künye);
        ilerleme->Göster(++sayı, qint64(okuyucu.Künyeler().size()));
    }
    çıktı.Bitir();
    oturum.Veritabanı->İlerlemeAta({});
    ilerleme.reset();
    return dökümHesabı(okuyucu, eksikler);
}

int denetle(const QStringList& değişkenler)
{
    DenetimSonucu sonuç;
    {
        İlerleme ilerleme(QStringLiteral("Kitaplık denetleniyor"));
        sonuç = KitaplığıDenetle(klasörYolu(değişkenler[0]), [&ilerleme](qint64 okunan, qint64 toplam) {
            ilerleme.Göster(okunan, toplam);
        });
    }
    Çıktı çıktı;
    for (const DenetimBulgusu& bulgu : sonuç.Bulgular)
        çıktı.Yaz(QStringLiteral("%1: %2: %3\n").arg(bulgu.Dosya).arg(int(bulgu.Numara)).arg(bulgu.Metin));
    for (const QString& not_ : sonuç.Notlar)
        çıktı.Yaz(QStringLiteral("Not: %1\n").arg(not_));
    çıktı.Yaz(sonuç.Bulgular.empty()
                  ? QStringLiteral("Kitaplık sağlam; %1 makale var.\n").arg(sonuç.MakaleSayısı)
                  : QStringLiteral("Kitaplıkta sorun var.\n"));
    çıktı.Bitir();
    return sonuç.Bulgular.empty() ? Başarılı : Başarısız;
}

int yardım(const QStringList&)
{
    Çıktı çıktı;
    çıktı.Yaz(YardımMetni);
    çıktı.Bitir();
    return Başarılı;
}

struct Komut
{
    QStringView ad;
    QStringView yalınAd; // as it is typed without Turkish letters
    QStringView değişkenler;
    qsizetype değişkenSayısı;
    int (*çalıştır)(const QStringList& değişkenler);
};

constexpr std::array<Komut, 4> Komutlar = {{
    {u"oluştur", u"olustur", u"KLASÖR", 1, oluştur},
    {u"aktar", u"aktar", u"KLASÖR DOSYA", 2, aktar},
    {u"dök", u"dok", u"KLASÖR", 1, dök},
    {u"denetle", u"denetle", u"KLASÖR", 1, denetle},
}};

bool yardımİsteği(const QString& değişken)
{
    return değişken == u"--yardım" || değişken == u"--yardim" || değişken == u"--help";
}

int yanlışKullanım(const QString& cümle)
{
    HataBildir(cümle + QStringLiteral(" Açıklama için: belgenar-kitaplik --yardım"));
    return YanlışKullanım;
}

int seç(const QStringList& değişkenler)
{
    if (std::any_of(değişkenler.begin(), değişkenler.end(), yardımİsteği))
        return yardım({});
    // A terminal may give a letter and its mark apart.
    const QString ad = değişkenler[0].normalized(QString::NormalizationForm_C);
    const auto komut = std::find_if(Komutlar.begin(), Komutlar.end(),
                                    [&ad](const Komut& k) { return k.ad == ad || k.yalınAd == ad; });
    if (komut == Komutlar.end())
        return yanlışKullanım(QStringLiteral("“%1” diye bir komut yok.").arg(ad));
    const QStringList kalan = değişkenler.mid(1);
    if (kalan.size() != komut->değişkenSayısı || kalan.contains(QString())) {
        return yanlışKullanım(
            QStringLiteral("Komut şöyle yazılır: %1 %2.").arg(komut->ad, komut->değişkenler));
    }
    return komut->çalıştır(kalan);
}

} // namespace

int KomutÇalıştır(const QStringList& değişkenler)
{
    try {
        if (değişkenler.isEmpty()) {
            HataBildir(QStringLiteral("Bir komut gerekiyor.\n\n") + YardımMetni.trimmed());
            return YanlışKullanım;
        }
        return seç(değişkenler);
    } catch (const Hata& hata) {
        const QString baş = hata.Numara() ? QStringLiteral("%1: ").arg(hata.Numara()) : QString();
        HataBildir(baş + hata.Açıklama());
    } catch (const std::bad_alloc&) {
        HataBildir(QStringLiteral("Bellek yetmiyor."));
    }
    return Başarısız;
}
