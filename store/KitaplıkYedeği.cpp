#include "store/KitaplıkYedeği.h"

#include "store/KitaplıkDenetimi.h"
#include "store/KitaplıkDosyası.h"
#include "store/KlasörKilidi.h"
#include "store/MakaleKitaplığı.h"
#include "store/ÇalışmaGrubu.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr QStringView Ön = u"Belgenar-";
const QString TarihBiçimi = QStringLiteral("yyyy-MM-dd-HHmmss");
// No generation, whatever a killed process left in it: a copy that isn't whole yet, and one that is being
// deleted.
const QString YarımAdı = QStringLiteral(".Belgenar-yarim"), SilinenAdı = QStringLiteral(".Belgenar-silinen");

const QString SilinemediMetni = QStringLiteral("Eski yedek silinemedi: %1 %2");
const QString YabancıDosyaMetni =
    QStringLiteral("Eski yedek silinmedi; içinde kitaplığa ait olmayan dosyalar var: %1");
const QString KiminBelliDeğilMetni =
    QStringLiteral("Hangi kitaplığın olduğu okunamayan yedek var: %1. Sayıya katılmadı, silinmedi.");
const QString SonrakiTarihMetni = QStringLiteral("Bugünden sonraki bir tarihi taşıyan yedek var: %1. Sayıya "
                                                 "katılmadı, silinmedi; bilgisayarın saatine bakın.");

/// The number behind the date, 1 for none.
int sıraNo(const QString& ad)
{
    return std::max(1, QStringView(ad).mid(Ön.size() + TarihBiçimi.size() + 1).toInt());
}

bool önce(const QString& bir, const QString& öteki)
{
    constexpr qsizetype boy = Ön.size() + 17; // all names have as many letters up to the end of their date
    const int fark = QStringView(bir).left(boy).compare(QStringView(öteki).left(boy));
    return fark != 0 ? fark < 0 : sıraNo(bir) < sıraNo(öteki);
}

/// Names, the newest first.
QStringList nesiller(const QString& hedef)
{
    QStringList adlar = QDir(hedef).entryList(QDir::Dirs | QDir::NoSymLinks | QDir::NoDotAndDotDot);
    adlar.removeIf([](const QString& ad) { return !AddakiTarih(Ön, ad); });
    std::sort(adlar.begin(), adlar.end(), [](const QString& a, const QString& b) { return önce(b, a); });
    return adlar;
}

/// By what a library is known; empty where it can't be read.
struct Kimlik
{
    QByteArray Grup; ///< of the workgroup file
    QByteArray Tuz;  ///< of the library file, which all copies of it share
};

Kimlik kimliği(const QString& klasör)
{
    Kimlik kimlik;
    QFile dosya(KitaplıkYolu(klasör, DosyaAdları::Kitaplık));
    if (dosya.open(QIODevice::ReadOnly))
        kimlik.Tuz = dosya.read(TuzBoyu);
    try {
        kimlik.Grup = ÇalışmaGrubu(KitaplıkYolu(klasör, DosyaAdları::Grup), AçmaKipi::Oku).KitaplıkKimliği();
    } catch (const VeritabanıHatası&) {
        // The library file tells, too.
    }
    return kimlik;
}

enum class Sahiplik
{
    Bizim, ///< or a generation without a library, which nobody misses
    Başkasının,
    Belirsiz
};

Sahiplik sahipliği(const Kimlik& nesil, const Kimlik& bizim)
{
    if (!nesil.Grup.isEmpty())
        return nesil.Grup == bizim.Grup ? Sahiplik::Bizim : Sahiplik::Başkasının;
    return nesil.Tuz.isEmpty() || nesil.Tuz == bizim.Tuz ? Sahiplik::Bizim : Sahiplik::Belirsiz;
}

/// What goes, the oldest first.
/// @param bizim of the library whose generations these are
QStringList silinecekler(const QString& hedef, const QString& yeni, int sakla, const Kimlik& bizim,
                         QStringList& notlar)
{
    QStringList eskiler;
    for (const QString& ad : nesiller(hedef)) {
        if (ad == yeni)
            continue;
        const Sahiplik kimin = sahipliği(kimliği(hedef + u'/' + ad + u'/'), bizim);
        if (önce(yeni, ad))
            notlar.append(SonrakiTarihMetni.arg(ad));
        else if (kimin == Sahiplik::Belirsiz)
            notlar.append(KiminBelliDeğilMetni.arg(ad));
        else if (kimin == Sahiplik::Bizim)
            eskiler.prepend(ad);
    }
    QStringList fazlalar = eskiler.mid(0, std::max<qsizetype>(0, eskiler.size() - std::max(sakla, 1) + 1));
    fazlalar.removeIf([&](const QString& ad) {
        const bool yabancıVar = !YalnızKitaplıkVar(hedef + u'/' + ad);
        if (yabancıVar)
            notlar.append(YabancıDosyaMetni.arg(ad));
        return yabancıVar;
    });
    return fazlalar;
}

/// Renamed first, so that no half generation is ever seen. A failure is told only: the new one stands.
void nesilleriSil(const QString& hedef, const QStringList& adlar, YedekSonucu& sonuç)
{
    const QString silinen = hedef + u'/' + SilinenAdı;
    QString ad = SilinenAdı;
    try {
        KitaplıkKlasörünüSil(silinen); // a killed process may have left it
        for (const QString& eski : adlar) {
            ad = eski;
            DosyayıTaşı(hedef + u'/' + ad, silinen);
            sonuç.Silinenler.append(ad);
            KitaplıkKlasörünüSil(silinen);
        }
    } catch (const VeritabanıHatası& hata) {
        sonuç.Notlar.append(SilinemediMetni.arg(ad, hata.Açıklama()));
    }
}

void durumuYaz(const ÇiftDurumu& durum, YedekSonucu& sonuç)
{
    sonuç.MakaleSayısı = durum.MakaleSayısı;
    if (durum.Durum == YapıDurumu::DizinBozuk)
        sonuç.Notlar.append(DizinBozukMetni.toString());
}

YedekSonucu dene(const QString& klasör, const QString& hedef, int sakla, const SürdürmeBildirimi& bildir,
                 const QDateTime& an)
{
    YedekSonucu sonuç;
    KlasörYapılabilmeli(hedef);
    const QString ad = BoşAd(Ön, hedef, an);
    sonuç.Yol = hedef + u'/' + ad;
    durumuYaz(ÇiftiDenetle(klasör, bildir), sonuç);
    sonuç.Silinenler = silinecekler(hedef, ad, sakla, kimliği(klasör), sonuç.Notlar);
    return sonuç;
}

YedekSonucu yap(const QString& klasör, const QString& hedef, int sakla, const SürdürmeBildirimi& bildir,
                const QDateTime& an)
{
    YedekSonucu sonuç;
    YeniKlasör hedefKlasörü(hedef);
    const KlasörKilidi hedefKilidi(hedef);
    GeçiciKlasör yarım(hedef + u'/' + YarımAdı);
    durumuYaz(ÇiftiKopyala(klasör, yarım.İçi(), bildir), sonuç);
    const QString ad = BoşAd(Ön, hedef, an);
    sonuç.Yol = hedef + u'/' + ad;
    yarım.Adlandır(sonuç.Yol);
    hedefKlasörü.Kalsın();
    nesilleriSil(hedef, silinecekler(hedef, ad, sakla, kimliği(sonuç.Yol + u'/'), sonuç.Notlar), sonuç);
    return sonuç;
}

} // namespace

YedekSonucu Yedekle(const QString& klasör, const QString& hedef, int sakla, YedekKipi kip,
                    const SürdürmeBildirimi& bildir, const QDateTime& an)
{
    const KlasörKilidi kilit(klasör);
    const QString yer = QDir(hedef).absolutePath();
    AyrıOlmalı(klasör, yer);
    return kip == YedekKipi::Dene ? dene(klasör, yer, sakla, bildir, an)
                                  : yap(klasör, yer, sakla, bildir, an);
}

std::vector<YedekNesli> Yedekler(const QString& hedef, const SürdürmeBildirimi& bildir)
{
    const KlasörKilidi kilit(hedef);
    std::vector<YedekNesli> bulunanlar;
    for (const QString& ad : nesiller(hedef)) {
        YedekNesli& nesil = bulunanlar.emplace_back();
        nesil.Ad = ad;
        nesil.Tarih = *AddakiTarih(Ön, ad);
        try {
            const ÇiftDurumu durum = ÇiftiDenetle(NeslinKlasörü(hedef, ad), bildir);
            nesil.MakaleSayısı = durum.MakaleSayısı;
            if (durum.Durum == YapıDurumu::DizinBozuk)
                nesil.Not = DizinBozukMetni.toString();
        } catch (const VeritabanıHatası& hata) {
            if (hata == HataNo::İşlemDurduruldu)
                throw;
            nesil.Sorun = hata;
        }
    }
    return bulunanlar;
}

std::optional<QDateTime> AddakiTarih(QStringView ön, const QString& ad)
{
    static const QRegularExpression biçim(
        QStringLiteral("^(\\d{4}-\\d\\d-\\d\\d)-(\\d{6})(-[1-9]\\d{0,8})?\\z"));
    const QRegularExpressionMatch uyan = biçim.match(ad.startsWith(ön) ? ad.mid(ön.size()) : QString());
    const QDate gün = QDate::fromString(uyan.captured(1), Qt::ISODate);
    const QTime saat = QTime::fromString(uyan.captured(2), QStringLiteral("HHmmss"));
    return gün.isValid() && saat.isValid() ? std::optional(QDateTime(gün, saat)) : std::nullopt;
}

QString BoşAd(QStringView ön, const QString& klasör, const QDateTime& an, const QString& son)
{
    const QString kök = ön.toString() + an.toString(TarihBiçimi);
    QString ad = kök;
    for (int no = 2; Var(klasör + u'/' + ad) || Var(klasör + u'/' + ad + son); ++no)
        ad = kök + u'-' + QString::number(no);
    return ad;
}

QString NeslinKlasörü(const QString& hedef, const QString& ad)
{
    const QString yol = QDir(hedef).absoluteFilePath(ad);
    if (!AddakiTarih(Ön, ad) || !QFileInfo(yol).isDir())
        throw VeritabanıHatası(HataNo::ÖğeYok, ad);
    return yol + u'/';
}
