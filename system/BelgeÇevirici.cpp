#include "system/BelgeÇevirici.h"

#include "document/EpubKitabı.h"
#include "document/MetinDosyası.h"
#include "document/RtfBilgisi.h"
#include "document/RtfOkuyucu.h"
#include "system/DışProgram.h"
#include "system/OfisÇevirici.h"
#include "system/PdfMetni.h"
#include "system/ÇalışmaHatası.h"

#include <QRegularExpression>

#include <new>
#include <optional>
#include <vector>

namespace {

constexpr int ZipUyarısı = 1, ZipteYok = 11; // statuses of unzip: a trifle, and no such file

// What one process of the word processor gets: a start costs seconds, the copies' room and the command line
// have an end.
constexpr qsizetype BirlikteBelge = 300;
constexpr qint64 BirlikteBayt = qint64(128) << 20;

constexpr qsizetype ÖnBakış = 4096; // where a page names its code page

/// The work is to stop.
class Durduruldu : public Hata
{
public:
    Durduruldu() : Hata(QStringLiteral("Belgelerin okunması durduruldu.")) {}
};

[[noreturn]] void at(const QString& neden)
{
    throw MetinOkumaHatası(neden);
}

bool htmlMi(const QString& yol, const QByteArray& baytlar)
{
    const QByteArray baş = baytlar.left(ÖnBakış).toLower();
    return yol.endsWith(u".html", Qt::CaseInsensitive) || yol.endsWith(u".htm", Qt::CaseInsensitive) ||
           baş.contains("<html") || baş.contains("<!doctype html");
}

// A page in UTF-8, if it may be in UTF-8 or a Turkish code page. Pages often name the Western one, another
// than they are in, or none.
QByteArray htmlHazırla(const QByteArray& baytlar)
{
    static const QRegularExpression adlandırma(
        QStringLiteral("(<meta[^>]*)charset\\s*=\\s*[\"']?\\s*([\\w-]+)"),
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression türkçe(
        QStringLiteral("^(utf-?8|us-ascii|iso-8859-[19]|windows-125[24]|latin-?[15]|x-user-defined)$"),
        QRegularExpression::CaseInsensitiveOption);
    const auto bulunan = adlandırma.match(QString::fromLatin1(baytlar.left(ÖnBakış)));
    if (bulunan.hasMatch() && !türkçe.match(bulunan.captured(2)).hasMatch())
        return baytlar;
    QString metin = MetinÇöz(baytlar).Metin;
    QString baş = metin.left(ÖnBakış);
    baş.replace(adlandırma, QStringLiteral("\\1x-charset=\\2"));
    return "\xEF\xBB\xBF" + (baş + metin.mid(ÖnBakış)).toUtf8();
}

// A name that unzip takes for no pattern and no option.
QString zipAdı(const QString& ad)
{
    static const QRegularExpression özel(QStringLiteral("([*?\\[\\]\\\\]|^-)"));
    return QString(ad).replace(özel, QStringLiteral("\\\\1"));
}

/// Documents that one process of the word processor converts, and those between them.
class Öbek
{
public:
    Öbek(const ÇevirmeKlasörü& klasör, OfisÇevirici& ofis, const ÇevirmeSüreleri& süreler,
         const std::function<void()>& bak)
        : klasör_(klasör), ofis_(ofis), süreler_(süreler), bak_(bak)
    {
    }

    /// Reads a document, or leaves it to the word processor.
    void Ekle(const QString& yol);
    bool Dolu() const { return std::ssize(sonuçlar_) >= BirlikteBelge || bayt_ >= BirlikteBayt; }
    /// @param alıcı given all that were added, in order
    void Bitir(const ÇevrilenAlıcı& alıcı);

private:
    std::optional<ÇevrilenBelge> oku(const QString& yol);
    EpubKitabı epub(const QString& yol);
    std::optional<ÇevrilenBelge> ofise(const QString& uzantı, const QByteArray& baytlar,
                                       const BelgeBilgisi& bilgi = {});

    const ÇevirmeKlasörü& klasör_;
    OfisÇevirici& ofis_;
    const ÇevirmeSüreleri& süreler_;
    const std::function<void()>& bak_;
    std::vector<std::optional<ÇevrilenBelge>> sonuçlar_; // none while the word processor has it
    std::vector<BelgeBilgisi> bilgiler_;                 // of what it has, where known beforehand
    QStringList adlar_;                                  // of its files
    qint64 bayt_ = 0;
};

void Öbek::Ekle(const QString& yol)
{
    std::optional<ÇevrilenBelge> sonuç;
    try {
        sonuç = oku(yol);
    } catch (const MetinOkumaHatası& hata) {
        sonuç = ÇevrilenBelge{{}, {}, hata.Açıklama()};
    } catch (const ÇalışmaHatası& hata) { // no room for a copy
        sonuç = ÇevrilenBelge{{}, {}, hata.Açıklama()};
    } catch (const std::bad_alloc&) {
        sonuç = ÇevrilenBelge{{}, {}, QStringLiteral("Dosyayı okumaya bellek yetmiyor.")};
    }
    sonuçlar_.push_back(std::move(sonuç));
}

std::optional<ÇevrilenBelge> Öbek::oku(const QString& yol)
{
    const QByteArray baytlar = DosyaBaytları(yol);
    const auto içinde = [&baytlar](const char* imza) { return baytlar.left(ÖnBakış).contains(imza); };
    ÇevrilenBelge belge;
    if (RtfMi(baytlar)) {
        belge = {RtfOku(baytlar).Metin, RtfBilgisiOku(baytlar), {}};
    } else if (baytlar.left(1024).contains("%PDF-")) {
        return PdfMetniOku(yol, klasör_, süreler_.Belge, bak_);
    } else if (baytlar.startsWith("PK\3\4")) {
        if (içinde("application/epub+zip") || yol.endsWith(u".epub", Qt::CaseInsensitive)) {
            const EpubKitabı kitap = epub(yol);
            return ofise(QStringLiteral(".html"), kitap.Html, kitap.Bilgi);
        }
        return ofise(içinde("application/vnd.oasis.opendocument") ? QStringLiteral(".odt")
                                                                  : QStringLiteral(".docx"),
                     baytlar);
    } else if (baytlar.startsWith("\xD0\xCF\x11\xE0")) {
        if (baytlar.contains(QByteArray("E\0n\0c\0r\0y\0p\0t\0e\0d\0P\0a\0c\0k\0a\0g\0e\0", 32)))
            at(QStringLiteral("Belge parolayla korunuyor."));
        return ofise(QStringLiteral(".doc"), baytlar);
    } else if (htmlMi(yol, baytlar)) {
        return ofise(QStringLiteral(".html"), htmlHazırla(baytlar));
    } else {
        belge.Metin = MetinÇöz(baytlar).Metin; // a word processor would take anything for text
    }
    if (belge.Metin.trimmed().isEmpty())
        at(QStringLiteral("Belgede metin yok."));
    return belge;
}

EpubKitabı Öbek::epub(const QString& yol)
{
    const QString program = DışProgram::Bul({QStringLiteral("unzip")});
    if (program.isEmpty())
        at(QStringLiteral("EPUB kitaplarını okumak için unzip paketini kurun."));
    QProcessEnvironment ortam = QProcessEnvironment::systemEnvironment();
    ortam.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    // By a name without signs that it would take for a pattern.
    const QString bağ = klasör_.Yol(QStringLiteral("kitap.epub"));
    QFile::remove(bağ);
    if (!QFile::link(QFileInfo(yol).absoluteFilePath(), bağ))
        at(QStringLiteral("Kitap açılamadı."));
    qint64 kalan = MetinDosyasıSınırı;
    return EpubOku([&](const QString& ad) {
        DışProgram süreç(program, {QStringLiteral("-p"), QStringLiteral("-P"), QString(), bağ, zipAdı(ad)},
                         ortam);
        QByteArray parça;
        const auto al = [&] {
            bak_();
            parça += süreç.Çıktı();
            if (parça.size() > kalan)
                at(QStringLiteral("Kitap çok büyük."));
        };
        if (!ProgramıBekle(süreç, süreler_.Belge, al))
            at(QStringLiteral("Kitabın açılması çok uzun sürdü."));
        al();
        if (süreç.Durum() > ZipUyarısı && süreç.Durum() != ZipteYok)
            at(QStringLiteral("Kitabın bir bölümü bozuk."));
        kalan -= parça.size();
        return parça;
    });
}

std::optional<ÇevrilenBelge> Öbek::ofise(const QString& uzantı, const QByteArray& baytlar,
                                         const BelgeBilgisi& bilgi)
{
    if (!ofis_.Eksik().isEmpty())
        at(ofis_.Eksik());
    const QString ad = QStringLiteral("%1").arg(adlar_.size() + 1, 5, 10, QLatin1Char('0')) + uzantı;
    klasör_.Yaz(ofis_.GirdiYolu(ad), baytlar);
    adlar_ += ad;
    bilgiler_.push_back(bilgi);
    bayt_ += baytlar.size();
    return {};
}

void Öbek::Bitir(const ÇevrilenAlıcı& alıcı)
{
    std::size_t verilen = 0;
    const auto hazırlarıVer = [&] {
        for (; verilen < sonuçlar_.size() && sonuçlar_[verilen]; ++verilen) {
            bak_();
            alıcı(static_cast<qsizetype>(verilen), *sonuçlar_[verilen]);
            sonuçlar_[verilen]->Metin.clear();
        }
    };
    hazırlarıVer();
    ofis_.Çevir(adlar_, [&](qsizetype kaçıncı, const ÇevrilenBelge& belge) {
        sonuçlar_[verilen] = belge; // its documents come in order, and the others are there
        const BelgeBilgisi& bilinen = bilgiler_[static_cast<std::size_t>(kaçıncı)];
        if (bilinen != BelgeBilgisi())
            sonuçlar_[verilen]->Bilgi = bilinen;
        hazırlarıVer();
    });
}

} // namespace

bool BelgeleriÇevir(const QStringList& yollar, const ÇevrilenAlıcı& alıcı,
                    const std::function<bool()>& sürsün, const ÇevirmeSüreleri& süreler)
{
    const std::function<void()> bak = [&sürsün] {
        if (sürsün && !sürsün())
            throw Durduruldu();
    };
    try {
        const ÇevirmeKlasörü klasör;
        OfisÇevirici ofis(klasör, süreler, bak);
        for (qsizetype ilk = 0; ilk < yollar.size();) {
            Öbek öbek(klasör, ofis, süreler, bak);
            qsizetype sonraki = ilk;
            for (; sonraki < yollar.size() && !öbek.Dolu(); ++sonraki) {
                bak();
                öbek.Ekle(yollar[sonraki]);
            }
            öbek.Bitir([&](qsizetype kaçıncı, const ÇevrilenBelge& belge) { alıcı(ilk + kaçıncı, belge); });
            ilk = sonraki;
        }
    } catch (const Durduruldu&) {
        return false;
    }
    return true;
}
