#include "tools/KaynakçaOkuyucu.h"

#include "document/Utf8.h"
#include "store/MakaleTablosu.h"
#include "store/Utf8Metni.h"
#include "tools/AraçHatası.h"
#include "tools/KaynakçaBağları.h"
#include "tools/KaynakçaBiçimi.h"
#include "tools/KaynakçaTarihi.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <QUtf8StringView>

#include <algorithm>

namespace {

constexpr qsizetype TanımaBoyu = 65536; // bytes that tell a file's kind

// In the order in which they are asked. Names of BibTeX and of its successor.
const QByteArrayList BibYazarları = {"author", "editor"};
const QByteArrayList BibYerleri = {"journal",      "journaltitle", "booktitle", "address",
                                   "location",     "publisher",    "school",    "institution",
                                   "organization", "howpublished"};
const QByteArrayList BibÖzetleri = {"abstract", "note", "annote", "annotation"};
const QByteArrayList RisYazarları = {"AU", "A1"}; // two editions of the format
const QByteArrayList RisHazırlayanları = {"A2", "ED"};
const QByteArrayList RisBaşlıkları = {"TI", "T1", "CT"};
const QByteArrayList RisYerleri = {"JF", "T2", "JO", "JA", "J1", "J2", "BT", "CY", "PP", "PB"};
const QByteArrayList RisÖzetleri = {"AB", "N2", "N1"};

QString metinÇöz(const QByteArray& utf8)
{
    return Utf8Metni({utf8.constData(), std::size_t(utf8.size())});
}

/// What a book has from its series is not where it was published.
bool kitap(const KaynakçaKaydı& kayıt)
{
    return kayıt.Tür == "book";
}

/// A field that is used and stands twice with different values, so that one of them would be lost; else
/// empty.
QByteArray çiftAlan(const KaynakçaKaydı& kayıt)
{
    static const QSet<QByteArray> tekler = {"author", "title", "subtitle", "journal",  "journaltitle",
                                            "date",   "year",  "month",    "abstract", "TI",
                                            "T1",     "T2",    "AB",       "N2"};
    for (const KaynakçaAlanı& alan : kayıt.Alanlar) {
        if (tekler.contains(alan.Ad) && kayıt.Değer(alan.Ad) != alan.Değer)
            return alan.Ad;
    }
    return {};
}

/// Lines with the blanks at their ends taken off, and the whole text's blank lines.
QString satırlarıDüzelt(const QString& metin)
{
    QStringList satırlar = metin.split(u'\n');
    for (QString& satır : satırlar)
        satır = satır.trimmed();
    return satırlar.join(u'\n').trimmed();
}

/// Text of LaTeX with a line for each paragraph.
QByteArray paragraflar(const QByteArray& latex)
{
    QByteArrayList sonuç{QByteArray()};
    for (const QByteArray& satır : latex.split('\n')) {
        if (const QByteArray yalın = satır.simplified(); !yalın.isEmpty())
            sonuç.back() += (sonuç.back().isEmpty() ? "" : " ") + yalın;
        else if (!sonuç.back().isEmpty())
            sonuç += QByteArray();
    }
    return sonuç.join('\n');
}

QByteArray unixSatırlı(QByteArray alan)
{
    alan.replace("\r\n", "\n");
    if (alan.endsWith('\r'))
        alan.chop(1);
    return alan;
}

QByteArray ayraçsız(const QByteArray& alan)
{
    return alan.startsWith('{') && alan.endsWith('}') ? alan.sliced(1, alan.size() - 2) : alan;
}

/// What the entry has of the field that we add to ours; empty where there is none.
QByteArray damgalar(const KaynakçaKaydı& kayıt)
{
    for (const KaynakçaAlanı& alan : kayıt.Alanlar) {
        if ((alan.Ad == DamgaAlanı || alan.Ad == DamgaKodu) && alan.Değer.startsWith(DamgaBaşı) &&
            alan.Değer.size() >= DamgaBaşı.size() + qsizetype(MakaleSütunları.size()) * (DamgaBoyu + 1))
            return alan.Değer.sliced(DamgaBaşı.size());
    }
    return {};
}

} // namespace

std::optional<KaynakçaTürü> KaynakçaTürüBul(const QString& yol)
{
    const QString uzantı = QFileInfo(yol).suffix();
    if (uzantı.compare(u"bib", Qt::CaseInsensitive) == 0)
        return KaynakçaTürü::BibTeX;
    if (uzantı.compare(u"ris", Qt::CaseInsensitive) == 0)
        return KaynakçaTürü::Ris;
    QFile dosya(yol);
    if (!QFileInfo(yol).isFile() || !dosya.open(QIODevice::ReadOnly))
        return {};
    static const QRegularExpression kalıp(QStringLiteral(R"x(^(?:TY  - |\s*@[A-Za-z]+\s*[{(]))x"),
                                          QRegularExpression::MultilineOption);
    const QByteArray baş = dosya.read(TanımaBoyu).replace("\xef\xbb\xbf", "").replace('\r', '\n');
    const auto bulunan = kalıp.match(QString::fromLatin1(baş));
    if (!bulunan.hasMatch())
        return {};
    return bulunan.captured().startsWith(u'T') ? KaynakçaTürü::Ris : KaynakçaTürü::BibTeX;
}

KaynakçaOkuyucu::KaynakçaOkuyucu(const QString& yol, KaynakçaTürü tür, const DurdurmaBekçisi& bekçi)
    : tür_(tür), klasör_(QFileInfo(yol).absolutePath()), bekçi_(bekçi), dosya_(yol, bekçi, DamgaBaşı),
      kayıtlar_(KaynakçaKayıtları::Aç(dosya_, tür))
{
}

std::optional<GelenMakale> KaynakçaOkuyucu::Sonraki()
{
    static const QSet<QByteArray> veriler = {"xdata", "set", "control"}; // no publications
    while (std::optional<KaynakçaKaydı> kayıt = kayıtlar_->Sonraki()) {
        if (!bib() || !veriler.contains(kayıt->Tür))
            return gelen(*kayıt);
    }
    return {};
}

GelenMakale KaynakçaOkuyucu::gelen(KaynakçaKaydı& kayıt)
{
    GelenMakale sonuç{{}, QStringLiteral("%1, %2. satır").arg(dosya_.Ad(), QString::number(kayıt.Satır))};
    if (!kayıt.Anahtar.isEmpty())
        sonuç.Nerede += QStringLiteral(" (%1)").arg(QString::fromUtf8(kayıt.Anahtar));
    for (KaynakçaAlanı& alan : kayıt.Alanlar) {
        if (!QUtf8StringView(alan.Değer).isValidUtf8()) {
            alan.Değer = Utf8Çöz(alan.Değer).toUtf8();
            sonuç.Ret = QStringLiteral("Kayıtta geçerli UTF-8 olmayan baytlar var.");
        }
    }
    if (const QByteArray çift = çiftAlan(kayıt); !çift.isEmpty())
        sonuç.Ret = QStringLiteral("%1 alanı birden çok kez yazılmış.").arg(QString::fromUtf8(çift));
    if (kayıt.Alan("crossref") && bib())
        üsttenAl(kayıt, sonuç);
    const TamDeğerler tam = tamDeğerler(kayıt);
    Makale& makale = sonuç.Değer;
    makale.Yazar = tam[0] ? *tam[0] : yazar(kayıt);
    makale.Başlık = tam[1] ? *tam[1] : başlık(kayıt);
    makale.Yer = tam[2] ? *tam[2] : yer(kayıt);
    makale.Tarih = tam[3] ? *tam[3] : tarih(kayıt);
    makale.Metin = tam[4] ? *tam[4] : metin(kayıt, sonuç);
    return sonuç;
}

/// An entry has what it lacks from the one that its crossref names.
void KaynakçaOkuyucu::üsttenAl(KaynakçaKaydı& kayıt, GelenMakale& gelen)
{
    if (!üstler_)
        üstleriOku();
    const QByteArray anahtar = kayıt.Değer("crossref").trimmed().toLower();
    const auto üst = üstler_->constFind(anahtar);
    if (üst == üstler_->constEnd()) {
        gelen.Ret = QStringLiteral("Kaydın gösterdiği “%1” kaydı (crossref) yok.").arg(metinÇöz(anahtar));
        return;
    }
    for (KaynakçaAlanı alan : üst->Alanlar) {
        if (alan.Ad == "title") // of what the entry appeared in
            alan.Ad = "booktitle";
        if (alan.Ad != "author" && alan.Ad != DamgaAlanı && !kayıt.Alan(alan.Ad))
            kayıt.Alanlar.push_back(alan);
    }
}

void KaynakçaOkuyucu::üstleriOku()
{
    QSet<QByteArray> anahtarlar;
    const auto hepsi = [this](const auto& iş) {
        KayıtDosyası dosya(dosya_.Ad(), bekçi_);
        BibKayıtları kayıtlar(dosya);
        while (std::optional<KaynakçaKaydı> kayıt = kayıtlar.Sonraki())
            iş(*kayıt);
    };
    hepsi([&](const KaynakçaKaydı& kayıt) { anahtarlar += kayıt.Değer("crossref").trimmed().toLower(); });
    üstler_.emplace();
    hepsi([&](const KaynakçaKaydı& kayıt) {
        if (const QByteArray anahtar = kayıt.Anahtar.toLower(); anahtarlar.contains(anahtar))
            üstler_->insert(anahtar, kayıt);
    });
}

/// The first of the names whose field has a value.
QByteArray KaynakçaOkuyucu::ilkAd(const KaynakçaKaydı& kayıt, const QByteArrayList& adlar) const
{
    for (const QByteArray& ad : adlar) {
        if (const KaynakçaAlanı* alan = kayıt.Alan(ad); alan && !alan->Değer.trimmed().isEmpty())
            return ad;
    }
    return {};
}

/// The value of the first of the fields that has one, on one line.
QString KaynakçaOkuyucu::çöz(const KaynakçaKaydı& kayıt, const QByteArrayList& adlar)
{
    const KaynakçaAlanı* alan = kayıt.Alan(ilkAd(kayıt, adlar));
    if (!alan)
        return {};
    if (!bib())
        return metinÇöz(alan->Değer).simplified();
    try {
        return çözücü_.Latex(alan->Değer.simplified());
    } catch (const AraçHatası& hata) {
        dosya_.HataVer(alan->Satır, hata.Açıklama());
    }
}

QString KaynakçaOkuyucu::harfler(const QByteArray& alan) const
{
    return bib() ? BibHarflerindenÇöz(alan) : RisHarflerindenÇöz(alan);
}

/// The values that are still as we wrote them.
KaynakçaOkuyucu::TamDeğerler KaynakçaOkuyucu::tamDeğerler(const KaynakçaKaydı& kayıt)
{
    const QByteArray damga = damgalar(kayıt);
    if (damga.isEmpty())
        return {};
    const auto sütunDamgası = [&damga](std::size_t i) {
        return damga.sliced(qsizetype(i) * (DamgaBoyu + 1), DamgaBoyu);
    };
    static const std::array<std::array<QByteArray, 5>, 2> adlar = {
        {{"author", "title", "journal", "", "abstract"}, {"AU", "TI", "T2", "", "AB"}}};
    TamDeğerler sonuç;
    for (std::size_t i = 0; i < sonuç.size(); ++i) {
        const bool tarihMi = static_cast<MakaleSütunu>(i) == MakaleSütunu::YayimTarihi;
        const QByteArray alan = tarihMi ? damga.sliced(qsizetype(sonuç.size()) * (DamgaBoyu + 1))
                                        : kayıt.Değer(adlar[bib() ? 0 : 1][i]);
        const bool çiftAyraçlı = bib() && i < 2; // author and title
        const QString görünen = tarihMi ? tarih(kayıt) : QString();
        const auto dene = [&](const QByteArray& yazılış) {
            const QString değer = harfler(yazılış);
            if ((tarihMi ? TarihDamgası(değer, görünen) : Damga(değer)) == sütunDamgası(i))
                sonuç[i] = değer;
        };
        dene(çiftAyraçlı ? ayraçsız(alan) : alan);
        if (!sonuç[i] && alan.contains('\r')) // some programs and tools write a file's line ends anew
            dene(unixSatırlı(çiftAyraçlı ? ayraçsız(alan) : alan));
    }
    return sonuç;
}

QStringList KaynakçaOkuyucu::adlar(const KaynakçaAlanı& alan)
{
    try {
        return bib() ? çözücü_.BibAdları(alan.Değer) : QStringList(çözücü_.RisAdı(alan.Değer));
    } catch (const AraçHatası& hata) {
        dosya_.HataVer(alan.Satır, hata.Açıklama());
    }
}

QString KaynakçaOkuyucu::yazar(const KaynakçaKaydı& kayıt)
{
    if (bib()) {
        const KaynakçaAlanı* alan = kayıt.Alan(ilkAd(kayıt, BibYazarları));
        QStringList hepsi = alan ? adlar(*alan) : QStringList();
        const bool ötekiler = hepsi.size() > 1 && hepsi.back() == u"others";
        if (ötekiler)
            hepsi.removeLast();
        return hepsi.join(QStringLiteral(", ")) + (ötekiler ? QStringLiteral(" ve diğerleri") : QString());
    }
    QStringList hepsi;
    for (const QByteArrayList& kodlar : {RisYazarları, RisHazırlayanları}) {
        for (const KaynakçaAlanı& alan : kayıt.Alanlar) {
            if (kodlar.contains(alan.Ad))
                hepsi += adlar(alan);
        }
        hepsi.removeAll(QString());
        if (!hepsi.isEmpty())
            break;
    }
    return hepsi.join(QStringLiteral(", "));
}

QString KaynakçaOkuyucu::başlık(const KaynakçaKaydı& kayıt)
{
    if (!bib())
        return çöz(kayıt, RisBaşlıkları);
    const QString baş = çöz(kayıt, {"title"}), alt = çöz(kayıt, {"subtitle"});
    return baş.isEmpty() || alt.isEmpty() ? baş + alt : baş + QStringLiteral(": ") + alt;
}

QString KaynakçaOkuyucu::yer(const KaynakçaKaydı& kayıt)
{
    QByteArrayList adlar = bib() ? BibYerleri : RisYerleri;
    if (kitap(kayıt)) {
        for (const char* dizi : {"T2", "booktitle"})
            adlar.removeAll(dizi);
    }
    return çöz(kayıt, adlar);
}

QString KaynakçaOkuyucu::tarih(const KaynakçaKaydı& kayıt)
{
    if (bib()) {
        if (const QString tarih = çöz(kayıt, {"date"}); !tarih.isEmpty())
            return KaynakçaTarihi::Sayılardan(tarih).Metin();
        return KaynakçaTarihi{çöz(kayıt, {"year"}), çöz(kayıt, {"month"}), çöz(kayıt, {"day"})}.Metin();
    }
    const KaynakçaTarihi yıl = KaynakçaTarihi::Sayılardan(çöz(kayıt, {"PY", "Y1", "YR"}));
    const KaynakçaTarihi gün = KaynakçaTarihi::Sayılardan(çöz(kayıt, {"DA"}));
    const bool uyar = yıl.Yıl.isEmpty() || (gün.Yıl == yıl.Yıl && gün.Ayrıntı() > yıl.Ayrıntı());
    return (uyar ? gün : yıl).Metin();
}

QString KaynakçaOkuyucu::metin(const KaynakçaKaydı& kayıt, GelenMakale& gelen)
{
    const BağlıMetin bağlı = BağlıMetniOku(BağlıDosyalar(kayıt, tür_), klasör_);
    const QByteArray özetAdı = ilkAd(kayıt, (bib() ? BibÖzetleri : RisÖzetleri));
    const bool özetVar = özetAdı == "abstract" || özetAdı == "AB" || özetAdı == "N2";
    if (!bağlı.Ret.isEmpty() && (bağlı.Var || !özetVar) && gelen.Ret.isEmpty())
        gelen.Ret = bağlı.Ret;
    return bağlı.Var ? bağlı.Metin : özet(kayıt);
}

/// The abstract or the note. Lines are kept where they mean something: in RIS, and in what we wrote.
QString KaynakçaOkuyucu::özet(const KaynakçaKaydı& kayıt)
{
    const KaynakçaAlanı* alan = kayıt.Alan(ilkAd(kayıt, bib() ? BibÖzetleri : RisÖzetleri));
    if (!alan)
        return {};
    if (!bib())
        return satırlarıDüzelt(metinÇöz(alan->Değer));
    try {
        return satırlarıDüzelt(
            çözücü_.Latex(kayıt.Alan(DamgaAlanı) ? alan->Değer : paragraflar(alan->Değer)));
    } catch (const AraçHatası& hata) {
        dosya_.HataVer(alan->Satır, hata.Açıklama());
    }
}
