#include "tools/BibÇözücü.h"

#include "store/Utf8Metni.h"
#include "tools/AraçHatası.h"

extern "C" {
#include <bibutils/bibutils.h>
}

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <new>

namespace {

// Signs that the library must not see as LaTeX go through it as private letters, this one for NUL and so on.
constexpr char32_t GizliHarfler = 0xF0000;
constexpr qsizetype EnUzunAlıntı = 12; // letters of an unknown code that a message repeats

struct Kod
{
    QByteArrayView ad;
    QByteArrayView karşılık; // a single sign is literal
};

// What the library doesn't know, takes for another code, or leaves standing.
constexpr auto Kodlar = std::to_array<Kod>({
    {"textbackslash", "\\"},
    {"textbraceleft", "{"},
    {"textbraceright", "}"},
    {"lbrace", "{"},
    {"rbrace", "}"},
    {"textbar", "|"},
    {"textless", "<"},
    {"textgreater", ">"},
    {"textasciicircum", "^"},
    {"textasciitilde", "~"},
    {"textunderscore", "_"},
    {"textquotesingle", "'"},
    {"textdollar", "$"},
    {"slash", "/"},
    {"ldots", "…"},
    {"dots", "…"},
    {"textellipsis", "…"},
    {"guillemotleft", "«"},
    {"guillemotright", "»"},
    {"textregistered", "®"},
    {"times", "×"},
    {"oe", "œ"},
    {"OE", "Œ"},
    {"TeX", "TeX"},
    {"LaTeX", "LaTeX"},
    {"LaTeXe", "LaTeX2e"},
    {"BibTeX", "BibTeX"},
    {"quad", " "},
    {"par", " "},
    {"textsuperscript", ""},
    {"textsubscript", ""},
    {"ensuremath", ""},
    {"mathrm", ""},
    {"mathit", ""},
    {"text", ""},
    {"underline", ""},
    {"mbox", ""},
    {"hbox", ""},
    {"sc", ""},
    {"tt", ""},
    {"em", ""},
    {"enquote", ""},
    {"cite", ""},
    {"path", ""},
    {"protect", ""},
    {"relax", ""},
});

constexpr QByteArrayView VurguHarfleri = "cuvkrH"; // accents that take a letter

QByteArray gizli(char harf)
{
    return QString::fromUcs4(std::array<char32_t, 1>{GizliHarfler + static_cast<unsigned char>(harf)}.data(),
                             1)
        .toUtf8();
}

QString gizliyiAç(const QString& metin)
{
    static const QString baş = QString::fromUtf8(gizli('\0')).first(1); // the pair's first half
    if (!metin.contains(baş))
        return metin;
    QString sonuç;
    sonuç.reserve(metin.size());
    for (qsizetype i = 0; i < metin.size(); ++i) {
        const char32_t harf =
            metin[i] == baş[0] && i + 1 < metin.size() ? QChar::surrogateToUcs4(metin[i], metin[i + 1]) : 0;
        if (harf >= GizliHarfler && harf < GizliHarfler + 0x80) {
            sonuç += QChar(static_cast<char16_t>(harf - GizliHarfler));
            ++i;
        } else {
            sonuç += metin[i];
        }
    }
    return sonuç;
}

[[noreturn]] void bilinmeyenKod(const QString& kod)
{
    throw AraçHatası(QStringLiteral("“\\%1” diye bir LaTeX kodu bilinmiyor.").arg(kod));
}

/// What the library made of a value, as text. It leaves codes standing that it doesn't know.
QString çözülen(const QString& metin)
{
    if (const qsizetype yer = metin.indexOf(u'\\'); yer >= 0)
        bilinmeyenKod(gizliyiAç(metin.mid(yer + 1, EnUzunAlıntı)).simplified());
    return gizliyiAç(metin).trimmed();
}

bool harfMi(char harf)
{
    return (harf >= 'a' && harf <= 'z') || (harf >= 'A' && harf <= 'Z');
}

/// Takes what is written to the standard error stream while it lives.
class YakınmaYakalayıcı
{
public:
    YakınmaYakalayıcı() : akış_(open_memstream(&metin_, &boy_))
    {
        if (!akış_)
            throw std::bad_alloc();
        stderr = akış_;
    }
    ~YakınmaYakalayıcı()
    {
        stderr = eski_;
        std::fclose(akış_);
        std::free(metin_);
    }
    YakınmaYakalayıcı(const YakınmaYakalayıcı&) = delete;
    YakınmaYakalayıcı& operator=(const YakınmaYakalayıcı&) = delete;

    bool Var()
    {
        std::fflush(akış_);
        return boy_ > 0;
    }

private:
    char* metin_ = nullptr;
    std::size_t boy_ = 0;
    std::FILE* eski_ = stderr;
    std::FILE* akış_;
};

/// The library's list of records.
struct Kayıtlar : bibl
{
    Kayıtlar() : bibl() { bibl_init(this); }
    ~Kayıtlar() { bibl_free(this); }
    Kayıtlar(const Kayıtlar&) = delete;
    Kayıtlar& operator=(const Kayıtlar&) = delete;
};

/// "Family|Given|Given||Suffix" as it is said. The library drops the point of an initial.
QString söylenen(const QString& ad)
{
    const QStringList parçalar = ad.split(u'|');
    QStringList sonuç;
    for (qsizetype i = 1; i < parçalar.size() && !parçalar[i].isEmpty(); ++i)
        sonuç += parçalar[i].size() == 1 && parçalar[i][0].isUpper() ? parçalar[i] + u'.' : parçalar[i];
    sonuç += parçalar[0];
    if (const qsizetype ek = parçalar.indexOf(QString(), 1); ek > 0)
        sonuç += parçalar.mid(ek + 1);
    sonuç.removeAll(QString());
    return sonuç.join(u' ');
}

/// Names are divided at commas with a blank behind; a bar would divide them too.
QByteArray adıHazırla(QByteArray ad)
{
    return ad.replace(",", ", ").replace("|", gizli('|')).simplified();
}

} // namespace

struct BibÇözücü::Ayarlar : param
{
    explicit Ayarlar(int tür) : param()
    {
        if (bibl_initparams(this, tür, BIBL_MODSOUT, ad_) != BIBL_OK)
            throw std::bad_alloc();
        charsetin = charsetout = BIBL_CHARSET_UNICODE;
        utf8in = utf8out = 1;
        charsetin_src = charsetout_src = BIBL_SRC_USER;
        latexout = utf8bom = 0;
        xmlout = BIBL_XMLOUT_FALSE;
        nosplittitle = 1;
    }
    ~Ayarlar() { bibl_freeparams(this); }
    Ayarlar(const Ayarlar&) = delete;
    Ayarlar& operator=(const Ayarlar&) = delete;

private:
    char ad_[9] = "belgenar";
};

BibÇözücü::BibÇözücü()
    : bib_(std::make_unique<Ayarlar>(BIBL_BIBTEXIN)), ris_(std::make_unique<Ayarlar>(BIBL_RISIN))
{
}

BibÇözücü::~BibÇözücü() = default;

/// The values of the record's fields whose tag begins so.
QStringList BibÇözücü::sor(Ayarlar& ayarlar, const QByteArray& kayıt, const char* etiket)
{
    QByteArray girdi = kayıt;
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> akış(
        fmemopen(girdi.data(), std::size_t(girdi.size()), "r"), std::fclose);
    if (!akış)
        throw std::bad_alloc();
    Kayıtlar kayıtlar;
    YakınmaYakalayıcı yakalayıcı;
    char ad[] = "belgenar";
    const int durum = bibl_read(&kayıtlar, akış.get(), ad, &ayarlar);
    if (durum == BIBL_ERR_MEMERR)
        throw std::bad_alloc();
    if (durum != BIBL_OK || kayıtlar.n != 1 || yakalayıcı.Var())
        throw AraçHatası(QStringLiteral("Buradaki LaTeX kodları çözülemiyor."));
    QStringList değerler;
    fields* alanlar = kayıtlar.ref[0];
    for (int i = 0; i < fields_num(alanlar); ++i) {
        const auto metin = [&](void* bellek) { return std::string_view(static_cast<char*>(bellek)); };
        if (metin(fields_tag(alanlar, i, FIELDS_CHRP_NOUSE)).starts_with(etiket))
            değerler += Utf8Metni(metin(fields_value(alanlar, i, FIELDS_CHRP_NOUSE)));
    }
    return değerler;
}

/// The library compares beginnings only: a code of which it leaves the end is another one.
bool BibÇözücü::biliniyor(const QByteArray& kod)
{
    const auto bulunan = kodlar_.constFind(kod);
    if (bulunan != kodlar_.constEnd())
        return *bulunan;
    const QStringList sonuç = sor(*bib_, "@article{k,\n abstract = {x{\\" + kod + "}x}\n}\n", "ABSTRACT");
    const QString harf = sonuç.value(0).mid(1).chopped(1);
    const bool bilinen = sonuç.size() == 1 && !harf.contains(u'\\') &&
                         !(kod.size() > 1 && harf.endsWith(QLatin1Char(kod.back())));
    return *kodlar_.insert(kod, bilinen);
}

/// @param yer of the code's backslash
/// @return where the text goes on
qsizetype BibÇözücü::koduHazırla(const QByteArray& değer, qsizetype yer, QByteArray& sonuç)
{
    qsizetype son = yer + 1;
    while (son < değer.size() && harfMi(değer[son]))
        ++son;
    if (son == yer + 1) { // one sign
        const char harf = son < değer.size() ? değer[son] : ' ';
        if (QByteArrayView("%&$#_{}").contains(harf))
            sonuç += gizli(harf);
        else if (QByteArrayView(" \\\n\r\t,;:").contains(harf))
            sonuç += ' ';
        else if (QByteArrayView("'`^\"~=.").contains(harf))
            sonuç += değer.sliced(yer, 2);
        else if (!QByteArrayView("-/!@()[]").contains(harf))
            bilinmeyenKod(QString::fromUtf8(değer.mid(yer + 1, EnUzunAlıntı)).left(1));
        return std::min(son + 1, değer.size());
    }
    const QByteArray kod = değer.sliced(yer + 1, son - yer - 1);
    const auto bizim =
        std::find_if(Kodlar.begin(), Kodlar.end(), [&kod](const Kod& k) { return k.ad == kod; });
    if (bizim == Kodlar.end()) {
        if (!(kod.size() == 1 && VurguHarfleri.contains(kod[0])) && !biliniyor(kod))
            bilinmeyenKod(QString::fromUtf8(kod));
        sonuç += '\\' + kod;
        return son;
    }
    sonuç += bizim->karşılık.size() == 1 ? gizli(bizim->karşılık[0]) : bizim->karşılık.toByteArray();
    while (son < değer.size() && değer[son] == ' ')
        ++son;
    return değer.sliced(son).startsWith("{}") ? son + 2 : son;
}

QByteArray BibÇözücü::hazırla(const QByteArray& değer)
{
    // One without a partner is money.
    const bool tekDolar = (değer.count('$') - değer.count("\\$")) % 2 != 0;
    QByteArray sonuç;
    sonuç.reserve(değer.size());
    for (qsizetype yer = 0; yer < değer.size();) {
        if (değer[yer] == '\\') {
            yer = koduHazırla(değer, yer, sonuç);
            continue;
        }
        const char harf = değer[yer];
        if (harf == '\n' || harf == '"' ||
            (harf == '$' && tekDolar)) // else the quotation mark becomes another
            sonuç += gizli(harf);
        else
            sonuç += harf;
        ++yer;
    }
    return sonuç;
}

QString BibÇözücü::Latex(const QByteArray& değer)
{
    if (değer.trimmed().isEmpty())
        return {};
    const QStringList sonuç =
        sor(*bib_, "@article{k,\n abstract = {" + hazırla(değer) + "}\n}\n", "ABSTRACT");
    return çözülen(sonuç.value(0));
}

QStringList BibÇözücü::BibAdları(const QByteArray& değer)
{
    if (değer.trimmed().isEmpty())
        return {};
    QStringList adlar;
    const QByteArray alan = adıHazırla(hazırla(değer.simplified()));
    for (const QString& ad : sor(*bib_, "@article{k,\n author = {" + alan + "}\n}\n", "AUTHOR"))
        adlar += çözülen(söylenen(ad));
    return adlar;
}

QString BibÇözücü::RisAdı(const QByteArray& değer)
{
    const QByteArray ad = adıHazırla(değer);
    if (!ad.contains(','))
        return gizliyiAç(Utf8Metni({ad.constData(), std::size_t(ad.size())}));
    const QStringList adlar = sor(*ris_, "TY  - JOUR\nAU  - " + ad + "\nER  - \n", "AUTHOR");
    return adlar.isEmpty() ? QString() : gizliyiAç(söylenen(adlar[0]));
}
