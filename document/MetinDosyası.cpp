#include "document/MetinDosyası.h"

#include "document/KodSayfası.h"
#include "document/RtfOkuyucu.h"
#include "document/Utf8.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <new>
#include <optional>

namespace {

constexpr qsizetype EnKüçükTampon = 65'536;
constexpr qint64 Megabayt = 1'048'576;
// Some old word processors leave a control character here and there; compressed data without a NUL has one
// in ten.
constexpr qsizetype DenetimPayı = 50;
constexpr char16_t DosSonu = 0x1A; // DOS programs end a text with it

[[noreturn]] void at(const QString& neden)
{
    throw MetinOkumaHatası(neden);
}

[[noreturn]] void sistemHatası()
{
    switch (errno) {
    case ENOENT:
    case ENOTDIR:
        at(QStringLiteral("Dosya bulunamadı."));
    case EACCES:
    case EPERM:
        at(QStringLiteral("Bu dosyayı okuma izniniz yok."));
    case EIO:
        at(QStringLiteral("Disk okuma hatası."));
    case ENOMEM:
        throw std::bad_alloc();
    default:
        at(QStringLiteral("Dosya okunurken bir hata oluştu: %1.").arg(qt_error_string(errno)));
    }
}

void boyuOlmalı(qint64 boy)
{
    if (boy > MetinDosyasıSınırı)
        at(QStringLiteral("Dosya çok büyük; en çok %1 MB olabilir.").arg(MetinDosyasıSınırı / Megabayt));
}

void olağanDosyaOlmalı(const struct stat& durum)
{
    if (S_ISDIR(durum.st_mode))
        at(QStringLiteral("Bu bir klasör, dosya değil."));
    if (!S_ISREG(durum.st_mode))
        at(QStringLiteral("Bu olağan bir dosya değil."));
    boyuOlmalı(durum.st_size);
}

class AçıkDosya
{
public:
    // Looked at before it is opened, since opening can wait or do something where it is a device; and again
    // afterwards, in case it was replaced.
    explicit AçıkDosya(const QByteArray& yol)
    {
        struct stat durum = {};
        if (stat(yol.constData(), &durum) != 0)
            sistemHatası();
        olağanDosyaOlmalı(durum);
        no_ = open(yol.constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
        if (no_ < 0)
            sistemHatası();
    }
    ~AçıkDosya()
    {
        if (no_ >= 0)
            close(no_);
    }
    AçıkDosya(const AçıkDosya&) = delete;
    AçıkDosya& operator=(const AçıkDosya&) = delete;

    QByteArray oku() const
    {
        struct stat durum = {};
        if (fstat(no_, &durum) != 0)
            sistemHatası();
        olağanDosyaOlmalı(durum);
        QByteArray baytlar(durum.st_size + 1, Qt::Uninitialized); // one more, to see the end
        qsizetype dolu = 0;
        while (const qsizetype gelen = parçaOku(baytlar.data() + dolu, baytlar.size() - dolu)) {
            dolu += gelen;
            boyuOlmalı(dolu); // again, since it may grow, or not tell its size
            if (dolu == baytlar.size())
                baytlar.resize(std::max(EnKüçükTampon, 2 * dolu));
        }
        baytlar.truncate(dolu);
        return baytlar;
    }

private:
    qsizetype parçaOku(char* hedef, qsizetype boy) const
    {
        for (;;) {
            const ssize_t gelen = read(no_, hedef, static_cast<std::size_t>(boy));
            if (gelen >= 0)
                return gelen;
            if (errno != EINTR)
                sistemHatası();
        }
    }

    int no_ = -1;
};

// Letters and signs of the alphabets of Europe.
bool avrupalı(char16_t harf)
{
    return (harf >= u' ' && harf < u'\x7F') || (harf >= 0xA0 && harf < 0x530) ||
           (harf >= 0x2010 && harf <= 0x2026) || harf == u'€' || harf == u'₺' || harf == u'\t' ||
           harf == u'\n' || harf == u'\r';
}

// Whether most units of UTF-16 in this order are such letters.
bool utf16Mı(QByteArrayView baytlar, QStringDecoder::Encoding kod)
{
    const qsizetype üst = kod == QStringDecoder::Utf16BE ? 0 : 1;
    qsizetype avrupalılar = 0;
    for (qsizetype yer = 0; yer < baytlar.size(); yer += 2) {
        const auto bayt = [&](qsizetype kaçıncı) {
            return static_cast<unsigned char>(baytlar[yer + kaçıncı]);
        };
        const auto harf = static_cast<char16_t>(bayt(üst) << 8 | bayt(1 - üst));
        avrupalılar += avrupalı(harf);
    }
    return avrupalılar * 4 >= baytlar.size() / 2 * 3;
}

// The order of UTF-16 without a mark; none for other bytes.
std::optional<QStringDecoder::Encoding> işaretsizUtf16(QByteArrayView baytlar)
{
    // Its upper bytes are control characters in any other text.
    if (baytlar.size() % 2 != 0 ||
        std::none_of(baytlar.begin(), baytlar.end(), [](char bayt) { return bayt >= 0 && bayt < '\t'; }))
        return std::nullopt;
    for (const auto kod : {QStringDecoder::Utf16LE, QStringDecoder::Utf16BE})
        if (utf16Mı(baytlar, kod))
            return kod;
    return std::nullopt;
}

bool utf8Mi(QByteArrayView baytlar)
{
    Utf8Sayacı sayaç;
    sayaç.Say(baytlar);
    return sayaç.Utf8Mi();
}

// Text of which nothing but the encoding is undone.
QString harfleriAl(QByteArrayView baytlar)
{
    const auto imzalı = [baytlar](QByteArrayView imza) { return baytlar.startsWith(imza); };
    const auto utf16 = [baytlar](QStringDecoder::Encoding kod, qsizetype imzaBoyu) -> QString {
        return QStringDecoder(kod, QStringDecoder::Flag::Stateless)(baytlar.sliced(imzaBoyu));
    };
    if (imzalı("\xFF\xFE"))
        return utf16(QStringDecoder::Utf16LE, 2);
    if (imzalı("\xFE\xFF"))
        return utf16(QStringDecoder::Utf16BE, 2);
    if (const auto kod = işaretsizUtf16(baytlar))
        return utf16(*kod, 0);
    if (baytlar.contains('\0'))
        at(QStringLiteral("Bu bir metin dosyası değil."));
    if (imzalı("\xEF\xBB\xBF")) // it says so itself; wrong bytes don't make it Turkish Windows text
        return Utf8Çöz(baytlar.sliced(3));
    return utf8Mi(baytlar) ? Utf8Çöz(baytlar) : Windows1254Çöz(baytlar);
}

bool satırSonu(char16_t harf)
{
    return (harf >= u'\n' && harf <= u'\r') || harf == 0x85 || harf == QChar::LineSeparator ||
           harf == QChar::ParagraphSeparator;
}

// Makes all line ends "\n" and mends lone surrogates, in place; the text only becomes shorter.
void düzelt(QString& metin)
{
    QChar* hedef = metin.data();
    const QChar* son = metin.constData() + metin.size();
    for (const QChar* yer = metin.constData(); yer != son; ++yer) {
        const char16_t harf = yer->unicode();
        if (satırSonu(harf)) {
            if (harf == u'\r' && yer + 1 != son && yer[1] == u'\n')
                ++yer;
            *hedef++ = u'\n';
        } else if (QChar::isHighSurrogate(harf) && yer + 1 != son && yer[1].isLowSurrogate()) {
            *hedef++ = harf;
            *hedef++ = *++yer;
        } else {
            *hedef++ = QChar::isSurrogate(harf) ? QChar(QChar::ReplacementCharacter) : QChar(harf);
        }
    }
    metin.truncate(hedef - metin.constData());
}

void yazıOlmalı(const QString& metin)
{
    const auto denetim = std::count_if(metin.begin(), metin.end(), [](QChar harf) {
        return (harf < u' ' && harf != u'\t' && !satırSonu(harf.unicode())) || harf == u'\x7F';
    });
    if (metin.contains(QChar::Null) || denetim > metin.size() / DenetimPayı)
        at(QStringLiteral("Bu bir metin dosyası değil."));
}

} // namespace

BiçimliMetin MetinÇöz(QByteArrayView baytlar)
{
    if (RtfMi(baytlar))
        return RtfOku(baytlar);
    BiçimliMetin sonuç{harfleriAl(baytlar), {}};
    QString& metin = sonuç.Metin;
    while (metin.endsWith(DosSonu))
        metin.chop(1);
    yazıOlmalı(metin);
    düzelt(metin);
    return sonuç;
}

QByteArray DosyaBaytları(const QString& yol)
{
    return AçıkDosya(QFile::encodeName(yol)).oku();
}

BiçimliMetin MetinDosyasıOku(const QString& yol)
{
    QString neden;
    try {
        return MetinÇöz(DosyaBaytları(yol));
    } catch (const MetinOkumaHatası& hata) {
        neden = hata.Açıklama();
    } catch (const std::bad_alloc&) {
        neden = QStringLiteral("Dosyayı okumaya bellek yetmiyor.");
    }
    throw MetinOkumaHatası(QStringLiteral("“%1” okunamadı: %2").arg(QFileInfo(yol).fileName(), neden));
}
