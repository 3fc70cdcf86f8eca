#include "store/KitaplıkKlasörü.h"

#include "store/KitaplıkDosyası.h"
#include "store/KlasörKilidi.h"
#include "store/MakaleKitaplığı.h"
#include "store/SistemHatası.h"
#include "store/ÇalışmaGrubu.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::array<QStringView, 2> Çift = {DosyaAdları::Grup, DosyaAdları::Kitaplık};

bool içerikHatası(HataNo numara)
{
    switch (numara) {
    case HataNo::DosyaBozuk:
    case HataNo::DosyaYarım:
    case HataNo::DosyaBoş:
    case HataNo::KitaplıkDeğil:
    case HataNo::ParolaYanlış:
    case HataNo::HesapGeçersiz:
    case HataNo::SürümYeni:
        return true;
    default:
        return false;
    }
}

/// What is wrong with a copy is wrong with the file that it was made of.
template<class İş> auto asılAdıyla(const QString& asıl, const İş& iş)
try {
    return iş();
} catch (const VeritabanıHatası& hata) {
    if (!içerikHatası(hata.Tür()))
        throw;
    throw VeritabanıHatası(hata.Tür(), asıl);
}

bool sürsün(const SürdürmeBildirimi& bildir)
{
    return !bildir || bildir(0, 0);
}

void sürmeli(bool sürüyor)
{
    if (!sürüyor)
        throw VeritabanıHatası(HataNo::İşlemDurduruldu);
}

AçmaKipi kip(const QString& dosya)
{
    return YarımYazmaVar(dosya) ? AçmaKipi::OkuYaz : AçmaKipi::Oku;
}

std::unique_ptr<ÇalışmaGrubu> sağlamGrup(const QString& yol)
{
    auto grup = std::make_unique<ÇalışmaGrubu>(yol, kip(yol));
    grup->Hesaplar();
    if (const std::optional<HataNo> yabancı = YabancıGrup(*grup))
        throw VeritabanıHatası(*yabancı);
    return grup;
}

/// Whether it is what was sealed, page by page: then nothing else needs to be looked at.
bool mühürlü(const Bağlantı& kitaplık, const std::optional<Mühür>& mühür, const SürdürmeBildirimi& bildir)
{
    if (!mühür)
        return false;
    const SayfaBulgusu sayfalar = SayfalarıDenetle(kitaplık.Yol(), KitaplıkAnahtarı(kitaplık.Tuz()),
                                                   [&bildir] { sürmeli(sürsün(bildir)); });
    return sayfalar.Doğru && sayfalar.Bulunan.AynıSayfalar(*mühür);
}

ÇiftDurumu kitaplığıDenetle(const QString& klasör, ÇalışmaGrubu& grup, const SürdürmeBildirimi& bildir)
{
    const AçmaKipi açmaKipi = kip(KitaplıkYolu(klasör, DosyaAdları::Kitaplık));
    const auto kitaplık = KitaplıkBağlantısı(klasör, açmaKipi, grup);
    kitaplık->SürdürmeAta([&bildir] { return sürsün(bildir); });
    if (açmaKipi == AçmaKipi::Oku && mühürlü(*kitaplık, grup.KitaplıkMührü(), bildir))
        return {YapıDurumu::Sağlam, kitaplık->Sayı("SELECT count(*) FROM Makaleler")};
    const YapıDurumu sayfalar = YapıyıDenetle(*kitaplık, DenetimDerinliği::Sayfalar);
    const SatırToplamı satırlar = SatırlarıOku(*kitaplık);
    const YapıDurumu durum = GenelDurum(*kitaplık, sayfalar, satırlar);
    if (durum > YapıDurumu::DizinBozuk)
        throw VeritabanıHatası(HataNo::DosyaBozuk);
    return {durum, satırlar.Satırlar};
}

/// @param asıl the folder whose files are named in errors
ÇiftDurumu çiftiDenetle(const QString& klasör, const QString& asıl, const SürdürmeBildirimi& bildir)
{
    const auto grup = asılAdıyla(KitaplıkYolu(asıl, DosyaAdları::Grup),
                                 [&] { return sağlamGrup(KitaplıkYolu(klasör, DosyaAdları::Grup)); });
    return asılAdıyla(KitaplıkYolu(asıl, DosyaAdları::Kitaplık),
                      [&] { return kitaplığıDenetle(klasör, *grup, bildir); });
}

/// Free of links as far as the path exists.
QString gerçekYol(const QString& yol)
{
    QString baş = QDir(yol).absolutePath(), kalan;
    while (QFileInfo(baş).canonicalFilePath().isEmpty()) {
        kalan = u'/' + QFileInfo(baş).fileName() + kalan;
        baş = QFileInfo(baş).path();
    }
    return QDir::cleanPath(QFileInfo(baş).canonicalFilePath() + kalan);
}

QStringList içindekiler(const QString& klasör)
{
    return QDir(klasör).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

QStringList kitaplıkDosyaları()
{
    QStringList adlar;
    for (const QStringView dosya : {DosyaAdları::Kitaplık, DosyaAdları::Grup, DosyaAdları::Kopya}) {
        const QString ad = dosya.toString();
        adlar << ad << GünlükYolu(ad) << ad + u'~';
    }
    return adlar;
}

void klasörYap(const QString& yol)
{
    if (mkdir(QFile::encodeName(yol).constData(), S_IRWXU) != 0) {
        if (errno == EEXIST)
            throw VeritabanıHatası(HataNo::DosyaVar, yol);
        SistemHatasıVer(errno, Erişim::Yazma, yol);
    }
    ÜstKlasörüDiskeYaz(yol);
}

} // namespace

ÇiftDurumu ÇiftiDenetle(const QString& klasör, const SürdürmeBildirimi& bildir)
{
    const bool yarım = std::any_of(Çift.begin(), Çift.end(), [&klasör](QStringView dosya) {
        return YarımYazmaVar(KitaplıkYolu(klasör, dosya));
    });
    if (!yarım)
        return çiftiDenetle(klasör, klasör, bildir);
    const QTemporaryDir geçici; // holds encrypted files only
    if (!geçici.isValid())
        throw VeritabanıHatası(HataNo::DiskHatası, QDir::tempPath());
    return ÇiftiKopyala(klasör, geçici.path() + u'/', bildir);
}

ÇiftDurumu ÇiftiKopyala(const QString& klasör, const QString& hedef, const SürdürmeBildirimi& bildir)
{
    qint64 yapılan = 0, toplam = 0;
    for (const QStringView dosya : Çift)
        toplam += QFileInfo(KitaplıkYolu(klasör, dosya)).size();
    const auto parça = [&](qint64 boy) {
        yapılan = std::min(yapılan + boy, toplam); // a journal comes on top
        sürmeli(!bildir || bildir(yapılan, toplam));
    };
    for (const QStringView dosya : Çift)
        GünlüğüyleKopyala(KitaplıkYolu(klasör, dosya), KitaplıkYolu(hedef, dosya), parça);
    // Meanwhile the system writes them to the disk.
    const ÇiftDurumu durum = çiftiDenetle(hedef, klasör, bildir);
    for (const QStringView dosya : Çift) {
        DosyayıSil(GünlükYolu(KitaplıkYolu(hedef, dosya))); // one that wasn't good for anything
        DiskeYaz(KitaplıkYolu(hedef, dosya));
    }
    sürmeli(sürsün(bildir));
    return durum;
}

bool İçinde(const QString& iç, const QString& dış)
{
    const QString sınır = gerçekYol(dış), yol = gerçekYol(iç);
    return yol == sınır || yol.startsWith(sınır.endsWith(u'/') ? sınır : sınır + u'/');
}

void AyrıOlmalı(const QString& klasör, const QString& yedekler)
{
    if (İçinde(yedekler, klasör) || GerçekKlasörler(klasör).contains(gerçekYol(yedekler)))
        throw VeritabanıHatası(HataNo::KlasörlerAyrıDeğil, yedekler);
}

bool Var(const QString& yol)
{
    struct stat bilgi = {};
    return lstat(QFile::encodeName(yol).constData(), &bilgi) == 0;
}

bool YalnızKitaplıkVar(const QString& klasör)
{
    const QStringList bilinenler = kitaplıkDosyaları(), bulunanlar = içindekiler(klasör);
    return std::all_of(bulunanlar.begin(), bulunanlar.end(), [&](const QString& ad) {
        const QFileInfo bilgi(klasör + u'/' + ad);
        return bilinenler.contains(ad) && (bilgi.isSymLink() || !bilgi.isDir());
    });
}

void KitaplıkKlasörünüSil(const QString& klasör)
{
    if (!Var(klasör))
        return;
    if (!YalnızKitaplıkVar(klasör))
        throw VeritabanıHatası(HataNo::DosyaVar, klasör);
    for (const QString& ad : içindekiler(klasör))
        DosyayıSil(klasör + u'/' + ad);
    if (rmdir(QFile::encodeName(klasör).constData()) != 0)
        SistemHatasıVer(errno, Erişim::Yazma, klasör);
}

void KlasörYapılabilmeli(const QString& yol)
{
    QString var = QDir(yol).absolutePath();
    while (!Var(var))
        var = QFileInfo(var).path();
    if (!QFileInfo(var).isDir())
        throw VeritabanıHatası(HataNo::DosyaVar, var);
    errno = 0;
    if (access(QFile::encodeName(var).constData(), W_OK | X_OK) != 0)
        SistemHatasıVer(errno, Erişim::Yazma, var);
}

YeniKlasör::YeniKlasör(const QString& yol)
{
    QStringList eksikler;
    QString üst = QDir(yol).absolutePath();
    for (; !Var(üst); üst = QFileInfo(üst).path())
        eksikler.prepend(üst);
    if (!QFileInfo(üst).isDir())
        throw VeritabanıHatası(HataNo::DosyaVar, üst);
    YeniKlasör yarım; // takes away what was made before something failed
    for (const QString& eksik : eksikler) {
        klasörYap(eksik);
        yarım.yapılanlar_.append(eksik);
    }
    yapılanlar_.swap(yarım.yapılanlar_);
}

YeniKlasör::~YeniKlasör()
{
    while (!yapılanlar_.isEmpty())
        rmdir(QFile::encodeName(yapılanlar_.takeLast()).constData());
}

GeçiciKlasör::GeçiciKlasör(const QString& yol) : yol_(yol)
{
    KitaplıkKlasörünüSil(yol);
    klasörYap(yol);
}

GeçiciKlasör::~GeçiciKlasör()
{
    try {
        if (!yol_.isEmpty())
            KitaplıkKlasörünüSil(yol_);
    } catch (const std::exception&) {
        // The next call takes it away.
    }
}

void GeçiciKlasör::Adlandır(const QString& yeniYol)
{
    DosyayıTaşı(yol_, yeniYol);
    yol_.clear();
}
