#include "store/GeriYükleme.h"

#include "store/KitaplıkDenetimi.h"
#include "store/KitaplıkDosyası.h"
#include "store/KlasörKilidi.h"
#include "store/MakaleKitaplığı.h"
#include "store/SistemHatası.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <unistd.h>

namespace {

constexpr QStringView Ön = u"Onceki-";
// While the work is under way: behind the name of the folder of the old files, and of that in which a copy of
// the generation isn't whole yet.
constexpr QChar YarımEki = u'~';

const QString TamamlandıMetni =
    QStringLiteral("Yarım kalmış bir geri yükleme vardı; ondan önceki dosyalar burada: %1");
const QString BağlantıydıMetni =
    QStringLiteral("%1 bir bağlantıydı; asıl dosya yerinde bırakıldı, yenisi program klasörüne kondu.");

/// One restoring. The folder of the old files tells how far a killed one came:
/// - "yeni" in it holds both new files: all in the program folder is old, and some of it may have been moved.
/// - "yeni" holds the library only: Makale.tps in the program folder is new.
/// - "yeni" is empty: the new pair stands.
/// - There is no "yeni": nothing has been moved, unless a later call was killed after taking it away.
class GeriYükleyici
{
public:
    GeriYükleyici(const QString& klasör, const QDateTime& an) : klasör_(klasör), an_(an) {}

    GeriYüklemeSonucu Yap(const QString& nesil, const SürdürmeBildirimi& bildir);

private:
    QString burada(QStringView dosya) const { return klasör_ + dosya.toString(); }
    QString eskide(QStringView dosya) const { return eski_ + u'/' + dosya.toString(); }
    QString yenide(QStringView dosya) const { return yeni() + u'/' + dosya.toString(); }
    QString yeni() const { return eski_ + QStringLiteral("/yeni"); }

    void yarımıBul();
    void hazırla(const QString& nesil, const SürdürmeBildirimi& bildir);
    void kopyala(const QString& nesil, const SürdürmeBildirimi& bildir);
    void grubuSakla();
    void vazgeç() noexcept;
    void kenaraKoy(const QString& dosya);
    bool bağlantıyıKenaraKoy(const QString& dosya);
    void bitir();

    QString klasör_; // with a separator at its end
    QDateTime an_;
    QString eski_; // the folder of the old files, under its unfinished name
    GeriYüklemeSonucu sonuç_;
};

GeriYüklemeSonucu GeriYükleyici::Yap(const QString& nesil, const SürdürmeBildirimi& bildir)
{
    yarımıBul();
    hazırla(nesil, bildir);
    const QString kitaplık = DosyaAdları::Kitaplık.toString(), grup = DosyaAdları::Grup.toString();
    for (const QString& dosya :
         {kitaplık, GünlükYolu(kitaplık), DosyaAdları::Kopya.toString(), GünlükYolu(grup)})
        kenaraKoy(dosya); // each is on the disk before the next one
    DosyayıTaşı(yenide(grup), burada(grup));
    DosyayıTaşı(yenide(kitaplık), burada(kitaplık));
    bitir();
    return sonuç_;
}

/// Takes up, or ends, what a killed call left.
void GeriYükleyici::yarımıBul()
{
    const QStringList klasörler =
        QDir(klasör_).entryList({Ön.toString() + u'*' + YarımEki}, QDir::Dirs | QDir::NoSymLinks);
    const auto yarım = std::find_if(klasörler.begin(), klasörler.end(),
                                    [](const QString& ad) { return bool(AddakiTarih(Ön, ad.chopped(1))); });
    if (yarım == klasörler.end())
        return;
    eski_ = klasör_ + *yarım;
    const bool yeniVar = Var(yeni());
    // The new pair stands; or somebody has put another library there meanwhile.
    if ((yeniVar && !Var(yenide(DosyaAdları::Kitaplık))) ||
        (Var(eskide(DosyaAdları::Kitaplık)) && Var(burada(DosyaAdları::Kitaplık)))) {
        bitir();
        if (!sonuç_.ÖncekiYol.isEmpty())
            sonuç_.Notlar.append(TamamlandıMetni.arg(sonuç_.ÖncekiYol));
        sonuç_.ÖncekiYol.clear();
        eski_.clear();
    } else if (yeniVar && !Var(yenide(DosyaAdları::Grup)) && Var(burada(DosyaAdları::Grup))) {
        DosyayıTaşı(burada(DosyaAdları::Grup), yenide(DosyaAdları::Grup));
    }
}

/// All that needs room on the disk or may be stopped, before anything in the program folder changes.
void GeriYükleyici::hazırla(const QString& nesil, const SürdürmeBildirimi& bildir)
{
    const bool baştan = eski_.isEmpty();
    if (baştan)
        eski_ = klasör_ + BoşAd(Ön, klasör_, an_, QString(YarımEki)) + YarımEki;
    YeniKlasör eski(eski_);
    try {
        kopyala(nesil, bildir);
        grubuSakla();
    } catch (...) {
        if (baştan)
            vazgeç();
        throw;
    }
    eski.Kalsın();
}

void GeriYükleyici::kopyala(const QString& nesil, const SürdürmeBildirimi& bildir)
{
    GeçiciKlasör kopya(yeni() + YarımEki);
    const ÇiftDurumu durum = ÇiftiKopyala(nesil, kopya.İçi(), bildir);
    sonuç_.MakaleSayısı = durum.MakaleSayısı;
    if (durum.Durum == YapıDurumu::DizinBozuk)
        sonuç_.Notlar.append(DizinBozukMetni.toString());
    KitaplıkKlasörünüSil(yeni()); // of a killed call
    kopya.Adlandır(yeni());
}

/// Makale.tps is copied and stays until the new one takes its name, so that the folder never looks like one
/// in which a library may be made.
void GeriYükleyici::grubuSakla()
{
    const QString grup = DosyaAdları::Grup.toString();
    if (Var(eskide(DosyaAdları::Kitaplık)) || !Var(burada(grup)) || bağlantıyıKenaraKoy(grup))
        return; // in the first case it was copied before the library went
    DosyayıSil(eskide(grup));
    DosyayıKopyala(burada(grup), eskide(grup), [](qint64) {});
    DiskeYaz(eskide(grup));
}

void GeriYükleyici::vazgeç() noexcept
{
    try {
        KitaplıkKlasörünüSil(yeni());
        DosyayıSil(eskide(DosyaAdları::Grup));
    } catch (const std::exception&) {
        // The next call takes it away.
    }
}

/// A library goes before its journal: without that it would open, and half a write be taken for a whole one.
void GeriYükleyici::kenaraKoy(const QString& dosya)
{
    if (bağlantıyıKenaraKoy(dosya))
        DosyayıSil(burada(dosya));
    else if (Var(burada(dosya)))
        DosyayıTaşı(burada(dosya), eskide(dosya));
}

/// @return false for what is no link
bool GeriYükleyici::bağlantıyıKenaraKoy(const QString& dosya)
{
    const QFileInfo bilgi(burada(dosya));
    if (!bilgi.isSymLink())
        return false;
    DosyayıSil(eskide(dosya));
    // The whole path: from another folder a relative one leads elsewhere.
    if (symlink(QFile::encodeName(bilgi.symLinkTarget()).constData(),
                QFile::encodeName(eskide(dosya)).constData()) != 0)
        SistemHatasıVer(errno, Erişim::Yazma, eskide(dosya));
    ÜstKlasörüDiskeYaz(eskide(dosya));
    sonuç_.Notlar.append(BağlantıydıMetni.arg(dosya));
    return true;
}

/// Gives the folder of the old files its name, or takes it away where it holds none.
void GeriYükleyici::bitir()
{
    const QString ad = eski_.chopped(1);
    const bool boş = QDir(eski_).entryList(QDir::Files | QDir::System | QDir::Hidden).isEmpty();
    if (!boş)
        DosyayıTaşı(eski_, ad);
    const QString yer = boş ? eski_ : ad;
    KitaplıkKlasörünüSil(yer + QStringLiteral("/yeni"));
    KitaplıkKlasörünüSil(yer + QStringLiteral("/yeni") + YarımEki);
    if (boş)
        KitaplıkKlasörünüSil(eski_);
    sonuç_.ÖncekiYol = boş ? QString() : ad;
}

GeriYüklemeSonucu dene(const QString& nesil, const QString& klasör, const SürdürmeBildirimi& bildir,
                       const QDateTime& an)
{
    GeriYüklemeSonucu sonuç;
    const ÇiftDurumu durum = ÇiftiDenetle(nesil, bildir);
    sonuç.MakaleSayısı = durum.MakaleSayısı;
    if (durum.Durum == YapıDurumu::DizinBozuk)
        sonuç.Notlar.append(DizinBozukMetni.toString());
    for (const QStringView dosya : {DosyaAdları::Kitaplık, DosyaAdları::Grup, DosyaAdları::Kopya}) {
        if (Var(KitaplıkYolu(klasör, dosya)))
            sonuç.ÖncekiYol = klasör + BoşAd(Ön, klasör, an, QString(YarımEki));
    }
    return sonuç;
}

} // namespace

GeriYüklemeSonucu GeriYükle(const QString& hedef, const QString& ad, const QString& klasör, YedekKipi kip,
                            const SürdürmeBildirimi& bildir, const QDateTime& an)
{
    const QString nesil = NeslinKlasörü(hedef, ad);
    AyrıOlmalı(klasör, hedef);
    if (İçinde(klasör, nesil))
        throw VeritabanıHatası(HataNo::KlasörlerAyrıDeğil, klasör);
    const bool deneme = kip == YedekKipi::Dene;
    std::optional<YeniKlasör> yeni;
    std::optional<KlasörKilidi> kilit;
    if (!deneme)
        yeni.emplace(klasör);
    if (!deneme || QFileInfo(klasör).isDir())
        kilit.emplace(klasör);
    const KlasörKilidi hedefKilidi(hedef);
    if (deneme)
        return dene(nesil, klasör, bildir, an);
    GeriYüklemeSonucu sonuç = GeriYükleyici(klasör, an).Yap(nesil, bildir);
    yeni->Kalsın();
    return sonuç;
}
