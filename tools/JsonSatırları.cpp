#include "tools/JsonSatırları.h"

#include "store/VeritabanıHatası.h"
#include "tools/AraçHatası.h"

#include <QUtf8StringView>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr char BaytSırasıİmi[] = "\xef\xbb\xbf";
constexpr char16_t Birimİmi = u'\xfeff';
constexpr std::size_t ParçaBoyu = 65536;
// Longer than any line that the library could take, unless most of it is written as escapes.
constexpr qsizetype EnUzunSatır = 1'000'000'000;
constexpr qsizetype EnUzunAlıntı = 40; // characters of a wrong name that a message repeats

bool boşluk(char16_t harf)
{
    return harf == u' ' || harf == u'\t' || harf == u'\r' || harf == u'\n';
}

bool boş(const QByteArray& satır)
{
    return std::all_of(satır.begin(), satır.end(),
                       [](char harf) { return boşluk(static_cast<uchar>(harf)); });
}

/// A name from the file, fit for a message on a terminal.
QString alıntı(const QString& ad)
{
    QString kısa = ad.left(EnUzunAlıntı);
    for (QChar& harf : kısa) {
        if (!harf.isPrint())
            harf = QChar::ReplacementCharacter;
    }
    return kısa.size() < ad.size() ? kısa + u'…' : kısa;
}

/// Reads the one object of a line. Holds the line while it lives.
class Çözücü
{
public:
    explicit Çözücü(const QString& satır) : metin_(satır) {}

    Makale Oku();

private:
    void üyeOku(std::array<std::optional<QString>, MakaleSütunları.size()>& değerler);
    QString dize();
    QChar kaçış();
    char16_t onaltılık();

    void boşluğuGeç();
    char16_t şimdiki() const { return yer_ < metin_.size() ? metin_[yer_].unicode() : u'\0'; }
    bool varsaGeç(char16_t harf);
    void beklenen(char16_t harf, const QString& ad);
    [[noreturn]] void hata(const QString& ne) const;

    QStringView metin_;
    qsizetype yer_ = 0;
};

void Çözücü::hata(const QString& ne) const
{
    throw AraçHatası(QStringLiteral("Geçerli bir JSON değil; %1. karakterde %2.").arg(yer_ + 1).arg(ne));
}

void Çözücü::boşluğuGeç()
{
    while (yer_ < metin_.size() && boşluk(metin_[yer_].unicode()))
        ++yer_;
}

bool Çözücü::varsaGeç(char16_t harf)
{
    boşluğuGeç();
    if (şimdiki() != harf)
        return false;
    ++yer_;
    return true;
}

void Çözücü::beklenen(char16_t harf, const QString& ad)
{
    if (!varsaGeç(harf))
        hata(ad + QStringLiteral(" bekleniyordu"));
}

char16_t Çözücü::onaltılık()
{
    bool oldu = false;
    const QStringView hane = metin_.mid(yer_, 4);
    const bool haneler = std::all_of(hane.begin(), hane.end(), [](QChar harf) {
        return (harf >= u'0' && harf <= u'9') || (harf >= u'a' && harf <= u'f') ||
               (harf >= u'A' && harf <= u'F');
    });
    const ushort birim = haneler && hane.size() == 4 ? hane.toUShort(&oldu, 16) : ushort(0);
    if (!oldu)
        hata(QStringLiteral("dört onaltılık hane bekleniyordu"));
    yer_ += 4;
    return birim;
}

// Stands behind the backslash.
QChar Çözücü::kaçış()
{
    const char16_t harf = şimdiki();
    ++yer_;
    switch (harf) {
    case u'"':
    case u'\\':
    case u'/':
        return harf;
    case u'b':
        return u'\b';
    case u'f':
        return u'\f';
    case u'n':
        return u'\n';
    case u'r':
        return u'\r';
    case u't':
        return u'\t';
    case u'u':
        return onaltılık();
    default:
        --yer_;
        hata(QStringLiteral("bilinmeyen bir kaçış dizisi var"));
    }
}

QString Çözücü::dize()
{
    beklenen(u'"', QStringLiteral("çift tırnak"));
    QString değer;
    for (;;) {
        const qsizetype ilk = yer_;
        while (yer_ < metin_.size() && metin_[yer_] != u'"' && metin_[yer_] != u'\\' && metin_[yer_] >= u' ')
            ++yer_;
        değer += metin_.sliced(ilk, yer_ - ilk);
        if (yer_ == metin_.size())
            hata(QStringLiteral("metin kapanmadan satır bitiyor"));
        if (metin_[yer_] < u' ')
            hata(QStringLiteral("metin içinde kaçışsız bir denetim karakteri var"));
        if (metin_[yer_++] == u'"')
            return değer;
        değer += kaçış();
    }
}

void Çözücü::üyeOku(std::array<std::optional<QString>, MakaleSütunları.size()>& değerler)
{
    boşluğuGeç();
    const QString ad = dize();
    const auto sütun = std::find_if(MakaleSütunları.begin(), MakaleSütunları.end(),
                                    [&ad](const SütunTanımı& tanım) { return tanım.ad == ad; });
    if (sütun == MakaleSütunları.end())
        throw AraçHatası(QStringLiteral("“%1” diye bir alan yok.").arg(alıntı(ad)));
    auto& değer = değerler[static_cast<std::size_t>(sütun - MakaleSütunları.begin())];
    if (değer)
        throw AraçHatası(QStringLiteral("%1 alanı birden çok kez geçiyor.").arg(ad));
    beklenen(u':', QStringLiteral("iki nokta"));
    boşluğuGeç();
    if (yer_ < metin_.size() && QStringView(u"0123456789-tfn[{").contains(metin_[yer_]))
        throw AraçHatası(QStringLiteral("%1 alanının değeri bir metin değil.").arg(ad));
    değer = dize();
}

Makale Çözücü::Oku()
{
    boşluğuGeç();
    if (yer_ < metin_.size() && QStringView(u"0123456789-tfn[\"").contains(metin_[yer_]))
        throw AraçHatası(QStringLiteral("Satır bir JSON nesnesi değil."));
    std::array<std::optional<QString>, MakaleSütunları.size()> değerler;
    beklenen(u'{', QStringLiteral("süslü ayraç"));
    if (!varsaGeç(u'}')) {
        do {
            üyeOku(değerler);
        } while (varsaGeç(u','));
        beklenen(u'}', QStringLiteral("virgül ya da kapanan süslü ayraç"));
    }
    boşluğuGeç();
    if (yer_ != metin_.size())
        hata(QStringLiteral("nesneden sonra fazlalık var"));

    Makale makale;
    for (std::size_t i = 0; i < makale.size(); ++i) {
        if (!değerler[i])
            throw AraçHatası(QStringLiteral("%1 alanı eksik.").arg(MakaleSütunları[i].ad));
        makale[i] = std::move(*değerler[i]);
    }
    return makale;
}

/// The value as the library keeps it. A mark at its beginning would not survive being read back.
QString düzenle(QString değer)
{
    if (!değer.isValidUtf16() || değer.contains(QChar(u'\0')))
        return değer; // refused in any case
    qsizetype imler = 0;
    while (imler < değer.size() && değer[imler] == Birimİmi)
        ++imler;
    return değer.remove(0, imler).normalized(QString::NormalizationForm_C);
}

void değeriDenetle(const QString& değer, MakaleSütunu sütun)
{
    const SütunTanımı& tanım = Tanım(sütun);
    if (değer.contains(QChar(u'\0')))
        throw AraçHatası(QStringLiteral("%1 alanında kullanılamayan bir karakter (NUL) var.").arg(tanım.ad));
    if (!değer.isValidUtf16()) {
        throw AraçHatası(QStringLiteral("%1 alanında yarım bir karakter (eşi olmayan \\uD800–\\uDFFF) var.")
                             .arg(tanım.ad));
    }
    if (değer.size() > tanım.enUzun) {
        throw AraçHatası(QStringLiteral("%1 alanı çok uzun: %2 karakter; en çok %3 olabilir.")
                             .arg(tanım.ad)
                             .arg(değer.size())
                             .arg(tanım.enUzun));
    }
    if ((sütun == MakaleSütunu::YazarAdi || sütun == MakaleSütunu::MakaleBasligi) &&
        değer.trimmed().isEmpty())
        throw AraçHatası(QStringLiteral("%1 alanı boş.").arg(tanım.ad));
}

void kaçışlıEkle(QByteArray& satır, const QByteArray& utf8)
{
    for (const char harf : utf8) {
        switch (harf) {
        case '"':
        case '\\':
            satır.append('\\').append(harf);
            break;
        case '\n':
            satır += "\\n";
            break;
        case '\r':
            satır += "\\r";
            break;
        case '\t':
            satır += "\\t";
            break;
        default:
            if (const auto değer = static_cast<uchar>(harf); değer < 0x20) {
                satır += "\\u" + QByteArray::number(değer, 16).rightJustified(4, '0');
            } else {
                satır += harf;
            }
        }
    }
}

HataNo açmaHatası(const QFile& dosya)
{
    if (!dosya.exists())
        return HataNo::DosyaYok;
    return dosya.error() == QFileDevice::PermissionsError ? HataNo::İzinYok : HataNo::DiskHatası;
}

} // namespace

Makale MakaleÇöz(const QByteArray& satır)
{
    if (!QUtf8StringView(satır).isValidUtf8())
        throw AraçHatası(QStringLiteral("Satır geçerli bir UTF-8 metni değil."));
    const QString metin = QString::fromUtf8(satır);
    Makale makale = Çözücü(metin).Oku();
    for (std::size_t i = 0; i < makale.size(); ++i) {
        makale[i] = düzenle(std::move(makale[i]));
        değeriDenetle(makale[i], static_cast<MakaleSütunu>(i));
    }
    return makale;
}

QByteArray MakaleSatırı(const Makale& makale)
{
    QByteArray satır = "{";
    for (std::size_t i = 0; i < makale.size(); ++i) {
        const QString değer = düzenle(makale[i]);
        if (değer.contains(QChar(u'\0')))
            throw VeritabanıHatası(HataNo::DosyaBozuk, MakaleSütunları[i].ad.toString());
        satır += (i == 0 ? "\"" : ", \"") + MakaleSütunları[i].ad.toUtf8() + "\": \"";
        kaçışlıEkle(satır, değer.toUtf8());
        satır += '"';
    }
    return satır + "}\n";
}

JsonSatırları::JsonSatırları(const QString& yol)
    : ad_(yol == u'-' ? QStringLiteral("standart girdi") : yol), girdi_(yol == u'-'), dosya_(yol)
{
    const bool açıldı = girdi_ ? dosya_.open(stdin, QIODevice::ReadOnly) : dosya_.open(QIODevice::ReadOnly);
    if (!açıldı)
        throw VeritabanıHatası(açmaHatası(dosya_), ad_);
}

bool JsonSatırları::satırOku()
{
    satır_.clear();
    std::vector<char> parça(ParçaBoyu);
    do {
        const qint64 boy = dosya_.readLine(parça.data(), qint64(parça.size()));
        if (boy <= 0 && dosya_.error() != QFileDevice::NoError)
            throw VeritabanıHatası(HataNo::DiskHatası, ad_);
        if (boy <= 0)
            break;
        satır_.append(parça.data(), boy);
        if (satır_.size() > EnUzunSatır)
            throw AraçHatası(QStringLiteral("%1, %2. satır: Satır çok uzun.").arg(ad_).arg(satırNo_ + 1));
    } while (!satır_.endsWith('\n'));
    if (satır_.isEmpty())
        return false;
    if (++satırNo_ == 1 && satır_.startsWith(BaytSırasıİmi))
        satır_.remove(0, qsizetype(sizeof BaytSırasıİmi) - 1);
    if (satır_.endsWith('\n'))
        satır_.chop(satır_.endsWith("\r\n") ? 2 : 1);
    return true;
}

std::optional<Makale> JsonSatırları::Sonraki()
{
    while (satırOku()) {
        if (boş(satır_))
            continue;
        try {
            return MakaleÇöz(satır_);
        } catch (const AraçHatası& hata) {
            throw AraçHatası(QStringLiteral("%1, %2. satır: %3").arg(ad_).arg(satırNo_).arg(hata.Açıklama()));
        }
    }
    return {};
}

void JsonSatırları::BaşaDön()
{
    dosya_.seek(0);
    satırNo_ = 0;
}
