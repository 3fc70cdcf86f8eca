#include "document/KodSayfası.h"

#include <iconv.h>
#include <unicode/ucnv.h>

#include <algorithm>
#include <iterator>
#include <new>
#include <stdexcept>

namespace {

constexpr int Johab = 1361; // ICU has no table for it, the C library has

struct Sayfa
{
    int no;
    const char* ad; // for the converter
};

// The numbers are those of Windows, the names ICU's. Where ICU has several tables of a number, the one that
// is named in full maps as Windows does. Some pages of the Macintosh are not in ICU; what stands for them
// has the same letters at the same places, but not all signs.
constexpr Sayfa Sayfalar[] = {
    {437, "ibm-437"},
    {708, "ISO-8859-6"},
    {720, "ibm-720"},
    {737, "ibm-737"},
    {775, "ibm-775"},
    {850, "ibm-850"},
    {852, "ibm-852"},
    {855, "ibm-855"},
    {857, "ibm-857"},
    {858, "ibm-858"},
    {860, "ibm-860"},
    {861, "ibm-861"},
    {862, "ibm-862"},
    {863, "ibm-863"},
    {864, "ibm-864"},
    {865, "ibm-865"},
    {866, "ibm-866"},
    {869, "ibm-869"},
    {874, "windows-874-2000"},
    {932, "ibm-943_P15A-2003"},
    {936, "windows-936-2000"},
    {949, "windows-949-2000"},
    {950, "windows-950-2000"},
    {1250, "ibm-5346_P100-1998"},
    {1251, "ibm-5347_P100-1998"},
    {1252, "ibm-5348_P100-1997"},
    {1253, "ibm-5349_P100-1998"},
    {1254, "ibm-5350_P100-1998"},
    {1255, "ibm-9447_P100-2002"},
    {1256, "ibm-9448_X100-2005"},
    {1257, "ibm-9449_P100-2002"},
    {1258, "ibm-5354_P100-1998"},
    {Johab, "JOHAB"},
    {10000, "macintosh"},
    {10001, "ibm-943_P15A-2003"},
    {10002, "windows-950-2000"},
    {10003, "windows-949-2000"},
    {10004, "ISO-8859-6"},
    {10005, "ISO-8859-8"},
    {10006, "x-mac-greek"},
    {10007, "x-mac-cyrillic"},
    {10008, "windows-936-2000"},
    {10021, "windows-874-2000"},
    {10029, "x-mac-centraleurroman"},
    {10081, "x-mac-turkish"},
    {20866, "KOI8-R"},
    {21866, "KOI8-U"},
    {28591, "ISO-8859-1"},
    {28592, "ISO-8859-2"},
    {28595, "ISO-8859-5"},
    {28597, "ISO-8859-7"},
    {28599, "ISO-8859-9"},
    {28605, "ISO-8859-15"},
    {54936, "windows-936-2000"},
    {KodSayfası::Utf8, "UTF-8"},
};

const Sayfa* sayfaBul(int no)
{
    const auto* yer = std::lower_bound(std::begin(Sayfalar), std::end(Sayfalar), no,
                                       [](const Sayfa& sayfa, int aranan) { return sayfa.no < aranan; });
    return yer != std::end(Sayfalar) && yer->no == no ? yer : nullptr;
}

quint8 utf8Boyu(int baş)
{
    if (baş >= 0xF0 && baş <= 0xF4)
        return 4;
    if (baş >= 0xE0 && baş <= 0xEF)
        return 3;
    return baş >= 0xC2 && baş <= 0xDF ? 2 : 1;
}

quint8 harfBoyu(int no, int baş)
{
    const auto arada = [baş](int ilk, int son) { return baş >= ilk && baş <= son; };
    switch (no) {
    case KodSayfası::Utf8:
        return utf8Boyu(baş);
    case 932:
    case 10001:
        return arada(0x81, 0x9F) || arada(0xE0, 0xFC) ? 2 : 1;
    case 936:
    case 949:
    case 950:
    case Johab:
    case 10002:
    case 10003:
    case 10008:
    case 54936:
        return arada(0x81, 0xFE) ? 2 : 1;
    default:
        return 1;
    }
}

} // namespace

class KodSayfası::Çevirici
{
public:
    explicit Çevirici(const Sayfa& sayfa)
    {
        if (sayfa.no == Johab) {
            iconv_ = iconv_open("UTF-16LE", sayfa.ad);
            return; // where the system lacks the table, its bytes give U+FFFD
        }
        UErrorCode hata = U_ZERO_ERROR;
        icu_ = ucnv_open(sayfa.ad, &hata);
        ucnv_setToUCallBack(icu_, UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &hata);
        if (hata == U_MEMORY_ALLOCATION_ERROR)
            throw std::bad_alloc();
        if (U_FAILURE(hata))
            throw std::runtime_error(sayfa.ad);
    }
    ~Çevirici()
    {
        if (icu_)
            ucnv_close(icu_);
        if (iconv_ != Yok)
            iconv_close(iconv_);
    }
    Çevirici(const Çevirici&) = delete;
    Çevirici& operator=(const Çevirici&) = delete;

    QString çevir(std::string_view baytlar)
    {
        std::array<UChar, 8> harfler{};
        const qsizetype boy = icu_ ? icuİle(baytlar, harfler) : iconvİle(baytlar, harfler);
        return QString(reinterpret_cast<const QChar*>(harfler.data()), boy);
    }

private:
    static inline const iconv_t Yok = reinterpret_cast<iconv_t>(-1);

    qsizetype icuİle(std::string_view baytlar, std::array<UChar, 8>& harfler)
    {
        UErrorCode hata = U_ZERO_ERROR;
        const int32_t boy = ucnv_toUChars(icu_, harfler.data(), static_cast<int32_t>(harfler.size()),
                                          baytlar.data(), static_cast<int32_t>(baytlar.size()), &hata);
        return U_SUCCESS(hata) ? boy : 0;
    }
    qsizetype iconvİle(std::string_view baytlar, std::array<UChar, 8>& harfler)
    {
        if (iconv_ == Yok)
            return 0;
        char* kaynak = const_cast<char*>(baytlar.data()); // only read; the C interface knows no const
        char* hedef = reinterpret_cast<char*>(harfler.data());
        std::size_t kalan = baytlar.size();
        std::size_t boş = sizeof harfler;
        iconv(iconv_, nullptr, nullptr, nullptr, nullptr);
        if (iconv(iconv_, &kaynak, &kalan, &hedef, &boş) == static_cast<std::size_t>(-1))
            return 0;
        return static_cast<qsizetype>((sizeof harfler - boş) / sizeof(UChar));
    }

    UConverter* icu_ = nullptr;
    iconv_t iconv_ = Yok;
};

bool KodSayfası::Biliniyor(int no)
{
    return sayfaBul(no) != nullptr;
}

KodSayfası::KodSayfası(int no)
{
    const Sayfa* sayfa = sayfaBul(no);
    if (!sayfa)
        sayfa = sayfaBul(Windows1252);
    çevirici_ = std::make_unique<Çevirici>(*sayfa);
    int enUzun = 1;
    for (int bayt = 0; bayt < 256; ++bayt) {
        const auto yer = static_cast<std::size_t>(bayt);
        boylar_[yer] = harfBoyu(sayfa->no, bayt);
        enUzun = std::max<int>(enUzun, boylar_[yer]);
        const char tek = static_cast<char>(bayt);
        const QString harf = boylar_[yer] == 1 ? çevirici_->çevir({&tek, 1}) : QString();
        harfler_[yer] = harf.size() == 1 ? harf[0].unicode() : char16_t(QChar::ReplacementCharacter);
    }
    if (enUzun == 1)
        çevirici_.reset();
}

KodSayfası::~KodSayfası() = default;

QString KodSayfası::Harf(std::string_view baytlar) const
{
    return çevirici_ ? çevirici_->çevir(baytlar) : QString();
}

QString Windows1254Çöz(QByteArrayView baytlar)
{
    const KodSayfası sayfa(KodSayfası::Windows1254);
    QString metin(baytlar.size(), Qt::Uninitialized);
    std::transform(baytlar.begin(), baytlar.end(), metin.data(),
                   [&sayfa](char bayt) { return QChar(sayfa.Harf(static_cast<unsigned char>(bayt))); });
    return metin;
}
