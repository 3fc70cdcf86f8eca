#include "store/GeriYükleme.h"
#include "store/KitaplıkYedeği.h"
#include "tools/AraçHatası.h"
#include "tools/Durdurma.h"
#include "tools/KomutGövdeleri.h"
#include "tools/Uçbirim.h"

#include <algorithm>

namespace {

const QString EnYeni = QStringLiteral("son");

YedekKipi kip(const Değişkenler& değişkenler)
{
    return değişkenler.Deneme() ? YedekKipi::Dene : YedekKipi::Yap;
}

int saklanacak(const Değişkenler& değişkenler)
{
    if (!değişkenler.Var(u"sakla"))
        return OlağanNesilSayısı;
    bool sayı = false;
    const int sonuç = değişkenler.Değer(u"sakla").toInt(&sayı);
    if (!sayı || sonuç < 1)
        throw YanlışKullanım(QStringLiteral("--sakla 1 ya da daha büyük bir sayı olmalı."));
    return sonuç;
}

QString nesilSatırı(const YedekNesli& nesil)
{
    const QString durum =
        nesil.Sorun ? QStringLiteral("%1: %2").arg(nesil.Sorun->Numara()).arg(nesil.Sorun->Açıklama())
                    : QStringLiteral("%1 makale").arg(nesil.MakaleSayısı);
    const QString not_ = nesil.Not.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(nesil.Not);
    return QStringLiteral("%1  %2  %3%4")
        .arg(nesil.Ad, nesil.Tarih.toString(u"dd.MM.yyyy HH:mm"), durum, not_);
}

ÇıkışDurumu nesilleriYaz(const QString& hedef, const std::vector<YedekNesli>& nesiller)
{
    Çıktı çıktı;
    for (const YedekNesli& nesil : nesiller)
        çıktı.Yaz(nesilSatırı(nesil) + u'\n');
    if (nesiller.empty())
        çıktı.Yaz(QStringLiteral("Yedek yok: %1\n").arg(hedef));
    else
        çıktı.Yaz(QStringLiteral("Birini geri koymak için: --yedek AD (en yenisi için --yedek son).\n"));
    çıktı.Bitir();
    const bool sorunlu = std::any_of(nesiller.begin(), nesiller.end(),
                                     [](const YedekNesli& nesil) { return nesil.Sorun.has_value(); });
    return sorunlu ? Başarısız : Başarılı;
}

/// The newest one that can be put back.
QString enYeniSağlam(const QString& hedef, const SürdürmeBildirimi& bildir)
{
    const std::vector<YedekNesli> nesiller = Yedekler(hedef, bildir);
    const auto yer =
        std::find_if(nesiller.begin(), nesiller.end(), [](const YedekNesli& nesil) { return !nesil.Sorun; });
    if (yer == nesiller.end())
        throw AraçHatası(QStringLiteral("Sağlam bir yedek yok: %1").arg(hedef));
    return yer->Ad;
}

} // namespace

ÇıkışDurumu YedekleKomutu(const Değişkenler& değişkenler)
{
    const int sakla = saklanacak(değişkenler);
    const DurdurmaBekçisi bekçi;
    YedekSonucu sonuç;
    {
        İlerleme ilerleme(QStringLiteral("Yedek alınıyor"));
        sonuç = Yedekle(KlasörYolu(değişkenler.Sıralı()[0]), değişkenler.Sıralı()[1], sakla, kip(değişkenler),
                        ilerleme.Sürdüren(bekçi));
    }
    if (değişkenler.Deneme())
        Bildir(DenemeMetni);
    Bildir(QStringLiteral("Yedek: %1 (%2 makale)").arg(sonuç.Yol, QString::number(sonuç.MakaleSayısı)));
    for (const QString& silinen : sonuç.Silinenler)
        Bildir(QStringLiteral("Silinen eski yedek: %1").arg(silinen));
    for (const QString& not_ : sonuç.Notlar)
        Bildir(QStringLiteral("Not: %1").arg(not_));
    return Başarılı;
}

ÇıkışDurumu GeriYükleKomutu(const Değişkenler& değişkenler)
{
    const QString& hedef = değişkenler.Sıralı()[0];
    const DurdurmaBekçisi bekçi;
    std::optional<İlerleme> ilerleme(std::in_place, QStringLiteral("Yedekler okunuyor"));
    const SürdürmeBildirimi bildir = ilerleme->Sürdüren(bekçi);
    if (!değişkenler.Var(u"yedek")) {
        const std::vector<YedekNesli> nesiller = Yedekler(hedef, bildir);
        ilerleme.reset();
        return nesilleriYaz(hedef, nesiller);
    }
    if (değişkenler.Sıralı().size() < 2)
        throw YanlışKullanım(QStringLiteral("Yedeğin konacağı KLASÖR eksik."));
    QString ad = değişkenler.Değer(u"yedek");
    if (ad == EnYeni)
        ad = enYeniSağlam(hedef, bildir);
    const GeriYüklemeSonucu sonuç =
        GeriYükle(hedef, ad, KlasörYolu(değişkenler.Sıralı()[1]), kip(değişkenler), bildir);
    ilerleme.reset();
    if (değişkenler.Deneme())
        Bildir(DenemeMetni);
    Bildir(QStringLiteral("Geri konan: %1 (%2 makale)").arg(ad, QString::number(sonuç.MakaleSayısı)));
    if (!sonuç.ÖncekiYol.isEmpty())
        Bildir(QStringLiteral("Önceki dosyaların yeri: %1").arg(sonuç.ÖncekiYol));
    for (const QString& not_ : sonuç.Notlar)
        Bildir(QStringLiteral("Not: %1").arg(not_));
    return Başarılı;
}
