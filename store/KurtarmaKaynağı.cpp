#include "store/KurtarmaKaynağı.h"

#include "store/DosyaTanıma.h"
#include "store/KitaplıkDosyası.h"
#include "store/MakaleKitaplığı.h"
#include "store/SistemHatası.h"

#include <QFileInfo>
#include <QtEndian>

#include <algorithm>
#include <cerrno>
#include <optional>

namespace {

constexpr qint64 BlokBoyu = 256 * SayfaBoyu;

// In the first page's header.
constexpr qsizetype DeğişimYeri = 24, SayfaSayısıYeri = 28, SayımınDeğişimiYeri = 92;

// A journal: a header as long as a sector, then pages with their numbers and codes; more such parts may
// follow.
constexpr qsizetype SektörYeri = 20;
constexpr qint64 EnKısaSektör = 512, EnUzunSektör = 65536;
const QByteArray Günlükİmzası = QByteArray::fromHex("d9d505f920a163d7");

quint32 sayı(const QByteArray& baytlar, qsizetype yer)
{
    return baytlar.size() < yer + 4 ? 0 : qFromBigEndian<quint32>(baytlar.constData() + yer);
}

/// Shorter at the file's end, and where the disk doesn't give all.
QByteArray oku(QFile& dosya, qint64 yer, qint64 boy)
{
    return dosya.seek(yer) ? dosya.read(boy) : QByteArray();
}

QByteArray sayfayıOku(QFile& dosya, qint64 no)
{
    return oku(dosya, (no - 1) * SayfaBoyu, SayfaBoyu);
}

void aç(QFile& dosya, const QString& yol, QIODevice::OpenMode kip)
{
    dosya.setFileName(yol);
    errno = 0;
    if (!dosya.open(kip | QIODevice::Unbuffered))
        SistemHatasıVer(errno, kip == QIODevice::ReadOnly ? Erişim::Okuma : Erişim::Yazma, yol);
}

void yaz(QFile& dosya, const QByteArray& baytlar)
{
    if (dosya.write(baytlar) != baytlar.size())
        SistemHatasıVer(errno, Erişim::Yazma, dosya.fileName());
}

/// Calls with each block of the file; null stands for one that the disk doesn't give.
template<class İş> void bloklar(QFile& dosya, qint64 boy, qint64 blok, İş&& iş)
{
    for (qint64 yer = 0; yer < boy; yer += blok) {
        const qint64 beklenen = std::min(blok, boy - yer);
        QByteArray baytlar = oku(dosya, yer, beklenen);
        iş(yer, beklenen, baytlar.size() == beklenen ? baytlar : QByteArray());
    }
}

bool disktenOkunur(QFile& dosya, qint64 boy)
{
    bool okunur = true;
    bloklar(dosya, boy, BlokBoyu,
            [&](qint64, qint64, const QByteArray& baytlar) { okunur = okunur && !baytlar.isNull(); });
    return okunur;
}

/// The first bytes of a file, zeros for those that the disk doesn't give.
void kopyala(const QString& yol, const QString& kopya, qint64 boy)
{
    QFile kaynak, hedef;
    aç(kaynak, yol, QIODevice::ReadOnly);
    aç(hedef, kopya, QIODevice::WriteOnly | QIODevice::Truncate);
    bloklar(kaynak, boy, BlokBoyu, [&](qint64 yer, qint64 blok, const QByteArray& baytlar) {
        if (!baytlar.isNull())
            return yaz(hedef, baytlar);
        for (qint64 sayfa = yer; sayfa < yer + blok; sayfa += SayfaBoyu) {
            const qint64 beklenen = std::min(SayfaBoyu, yer + blok - sayfa);
            QByteArray okunan = oku(kaynak, sayfa, beklenen);
            yaz(hedef, okunan.size() == beklenen ? okunan : QByteArray(beklenen, '\0'));
        }
    });
}

/// In which layout a file was made whose first page is lost. Where the second one is lost as well, it says
/// that the table's root is on that: nothing can be taken for a whole table then.
SayfaDüzeni düzeni(QFile& dosya, const SayfaŞifresi& şifre)
{
    constexpr char kökünKaydı = 1; // accounts of pages begin with the page behind them, the table's root
    const QByteArray ikinci = sayfayıOku(dosya, 2);
    return şifre.Doğru(ikinci, 2) && şifre.Çöz(ikinci, 2).startsWith(kökünKaydı) ? SayfaDüzeni::Budanır
                                                                                 : SayfaDüzeni::Budanmaz;
}

/// The first page of a new library.
QByteArray yeniİlkSayfa(const QString& yol, const SayfaŞifresi& şifre, SayfaDüzeni düzen)
{
    const GeçiciDosya geçici(yol);
    DosyayıSil(yol);
    BoşDosyaOluştur(yol, şifre.Anahtarı(), düzen);
    QFile dosya;
    aç(dosya, yol, QIODevice::ReadOnly);
    return şifre.Çöz(sayfayıOku(dosya, 1), 1);
}

/// Makes a copy as long as its whole pages, and puts the first one in front.
void onar(const QString& kopya, qint64 sayfalar, QByteArray ilkSayfa, const SayfaŞifresi& şifre)
{
    // Where the two counters of changes differ, SQLite takes the file's size for the number of its pages.
    ilkSayfa[SayımınDeğişimiYeri] = static_cast<char>(~ilkSayfa[DeğişimYeri]);
    QFile dosya;
    aç(dosya, kopya, QIODevice::ReadWrite);
    yaz(dosya, şifre.Şifrele(ilkSayfa, 1));
    if (!dosya.resize(sayfalar * SayfaBoyu))
        SistemHatasıVer(errno, Erişim::Yazma, kopya);
}

/// Nothing where there is nothing to be had.
template<class İş> auto ümitVarsa(İş&& iş) -> decltype(iş())
try {
    return iş();
} catch (const VeritabanıHatası& hata) {
    if (!OkunacakBirŞeyYok(hata.Tür()))
        throw;
    return {};
}

/// Whether it can be a journal: what is none takes nothing back.
bool günlükMü(const QString& yol)
{
    QFile dosya(yol);
    return dosya.open(QIODevice::ReadOnly) && dosya.read(Günlükİmzası.size()) == Günlükİmzası;
}

/// Copies the file with its journal and has SQLite roll back what that holds.
void geriAl(const QString& yol, const QString& kopya)
{
    kopyala(yol, kopya, QFileInfo(yol).size());
    kopyala(GünlükYolu(yol), GünlükYolu(kopya), QFileInfo(GünlükYolu(yol)).size());
    // The right key isn't known before: the salt may come out of the journal. The pages are put back as they
    // are, before the first one is deciphered.
    const Anahtar herhangi = {AnahtarTürü::HamAnahtar, QByteArray(32 + TuzBoyu, '\1')};
    ümitVarsa([&] {
        const Bağlantı geriAlan(kopya, herhangi, AçmaKipi::OkuYaz);
        return false;
    });
    DosyayıSil(GünlükYolu(kopya));
}

} // namespace

struct KurtarmaKaynağı::Bulgu
{
    SayfaŞifresi Şifre;
    QByteArray İlkSayfa; // deciphered; empty where it can't be
};

std::unique_ptr<KurtarmaKaynağı> KurtarmaKaynağı::Aç(const QString& yol, const QString& kopya,
                                                     const std::vector<QByteArray>& tuzlar,
                                                     const Sürdürme& sürsünMü)
{
    using Kaynak = std::unique_ptr<KurtarmaKaynağı>;
    if (QFileInfo(GünlükYolu(yol)).size() == 0)
        return Kaynak(new KurtarmaKaynağı(yol, kopya, Kimin::Başkasının, tuzlar, sürsünMü));
    // The journal may be damaged, or another file's: the better of both.
    Kaynak geri = ümitVarsa([&] {
        const QString ad = kopya + QStringLiteral(".geri");
        geriAl(yol, ad);
        return Kaynak(new KurtarmaKaynağı(ad, ad, Kimin::Bizim, tuzlar, sürsünMü));
    });
    const auto olduğuGibi = [&] {
        kopyala(yol, kopya, QFileInfo(yol).size());
        return Kaynak(new KurtarmaKaynağı(kopya, kopya, Kimin::Bizim, tuzlar, sürsünMü));
    };
    if (!geri)
        return olduğuGibi();
    geri->geriAlındı_ = günlükMü(GünlükYolu(yol));
    Kaynak haliyle = ümitVarsa(olduğuGibi);
    return haliyle && haliyle->geriAlınandanİyi(*geri) ? std::move(haliyle) : std::move(geri);
}

KurtarmaKaynağı::Bulgu KurtarmaKaynağı::şifreyiBul(QFile& dosya, const std::vector<QByteArray>& tuzlar)
{
    const QByteArray ilk = sayfayıOku(dosya, 1);
    std::vector<QByteArray> adaylar = {ilk.left(TuzBoyu)};
    adaylar.insert(adaylar.end(), tuzlar.begin(), tuzlar.end());
    std::vector<SayfaŞifresi> şifreler;
    for (auto aday = adaylar.begin(); aday != adaylar.end(); ++aday) {
        if (aday->size() != TuzBoyu || std::find(adaylar.begin(), aday, *aday) != aday)
            continue;
        SayfaŞifresi& şifre = şifreler.emplace_back(KitaplıkAnahtarı(*aday));
        if (şifre.Doğru(ilk, 1)) {
            const QByteArray düz = şifre.Çöz(ilk, 1); // before it is moved from
            return {std::move(şifre), düz};
        }
    }
    for (quint32 no = 2; no <= dosya.size() / SayfaBoyu; ++no) {
        const QByteArray sayfa = sayfayıOku(dosya, no);
        for (SayfaŞifresi& şifre : şifreler) {
            if (şifre.Doğru(sayfa, no))
                return {std::move(şifre), {}};
        }
    }
    const QString yol = dosya.fileName();
    throw VeritabanıHatası(AnahtarDoğruysaTanı(yol, OkunamayanDosyaTanısı(yol)), yol);
}

KurtarmaKaynağı::KurtarmaKaynağı(const QString& yol, const QString& kopya, Kimin kimin,
                                 const std::vector<QByteArray>& tuzlar, const Sürdürme& sürsünMü)
{
    aç(dosya_, yol, QIODevice::ReadOnly);
    const qint64 boy = dosya_.size();
    if (boy == 0)
        throw VeritabanıHatası(HataNo::DosyaBoş, yol);
    Bulgu bulgu = şifreyiBul(dosya_, tuzlar);
    şifre_ = std::move(bulgu.Şifre);
    sayfalar_ = boy / SayfaBoyu;
    yerlerBilinir_ = !bulgu.İlkSayfa.isEmpty();
    const qint64 beklenen = sayı(bulgu.İlkSayfa, SayfaSayısıYeri) * SayfaBoyu;
    const bool okunur = disktenOkunur(dosya_, boy);
    const SayfaDüzeni düzen = düzeni(dosya_, *şifre_);
    QString açılan = yol;
    if (!okunur || boy != beklenen || !Anahtarı().değer.endsWith(oku(dosya_, 0, TuzBoyu))) {
        dosya_.close();
        if (kimin == Kimin::Başkasının)
            kopyala(yol, kopya, boy);
        onar(kopya, sayfalar_,
             yerlerBilinir_ ? bulgu.İlkSayfa : yeniİlkSayfa(kopya + QStringLiteral(".ilk"), *şifre_, düzen),
             *şifre_);
        aç(dosya_, kopya, QIODevice::ReadOnly);
        açılan = kopya;
    }
    bağlantı_ = KitaplıkBağlantısı(açılan, Anahtarı(), AçmaKipi::Oku);
    const bool eksik = !okunur || boy < beklenen;
    const bool fazla = boy > beklenen;
    denetle(eksik, fazla, sürsünMü);
}

/// @param eksik, fazla whether the file is shorter or longer than its first page says
void KurtarmaKaynağı::denetle(bool eksik, bool fazla, const Sürdürme& sürsünMü)
{
    if (!yerlerBilinir_ || eksik) {
        durum_ = YapıDurumu::Okunamıyor;
    } else if (fazla) {
        durum_ = YapıDurumu::FazlaBayt;
    } else {
        bağlantı_->SürdürmeAta(sürsünMü);
        durum_ = YapıyıDenetle(*bağlantı_, DenetimDerinliği::Sayfalar);
        bağlantı_->SürdürmeAta({});
    }
}

bool KurtarmaKaynağı::geriAlınandanİyi(KurtarmaKaynağı& geri)
{
    // Another file's journal may have brought that file's first page.
    if (Anahtarı().değer == geri.Anahtarı().değer) {
        const YapıDurumu durum = std::max(durum_, YapıDurumu::DizinBozuk),
                         geriDurum = std::max(geri.durum_, YapıDurumu::DizinBozuk);
        if (durum != geriDurum || durum == YapıDurumu::DizinBozuk)
            return durum < geriDurum;
    }
    return okunanSayfalar() > geri.okunanSayfalar();
}

qint64 KurtarmaKaynağı::okunanSayfalar()
{
    qint64 okunan = 0;
    for (quint32 no = 1; no <= sayfalar_; ++no)
        okunan += şifre_->Doğru(sayfayıOku(dosya_, no), no) ? 1 : 0;
    return okunan;
}

quint8 KurtarmaKaynağı::SayfaTürü(qint64 sayfa)
{
    const QByteArray baş = oku(dosya_, (sayfa - 1) * SayfaBoyu, SayfaŞifresi::Blok),
                     sonu = oku(dosya_, sayfa * SayfaBoyu - SayfaŞifresi::Ayrılan, SayfaŞifresi::Ayrılan);
    return baş.size() < SayfaŞifresi::Blok || sonu.size() < SayfaŞifresi::Ayrılan
               ? 0
               : şifre_->İlkBayt(baş, sonu);
}

bool OkunacakBirŞeyYok(HataNo hata)
{
    switch (hata) {
    case HataNo::DosyaYok:
    case HataNo::DosyaBoş:
    case HataNo::DosyaYarım:
    case HataNo::DosyaBozuk:
    case HataNo::ParolaYanlış:
    case HataNo::KitaplıkDeğil:
        return true;
    default:
        return false;
    }
}

std::vector<QByteArray> GünlüktekiTuzlar(const QString& günlük)
{
    std::vector<QByteArray> tuzlar;
    QFile dosya(günlük);
    if (!dosya.open(QIODevice::ReadOnly))
        return tuzlar;
    const qint64 okunan = sayı(oku(dosya, SektörYeri, 4), 0);
    const qint64 sektör = okunan > EnUzunSektör ? EnKısaSektör : std::max(okunan, EnKısaSektör);
    for (qint64 yer = sektör; yer < dosya.size();) {
        const QByteArray baş = oku(dosya, yer, 4 + TuzBoyu);
        if (sayı(baş, 0) == 1)
            tuzlar.push_back(baş.mid(4));
        const qint64 sonraki = (yer + sektör - 1) / sektör * sektör;
        yer = oku(dosya, sonraki, 8) == Günlükİmzası ? sonraki + sektör : yer + 4 + SayfaBoyu + 4;
    }
    return tuzlar;
}
