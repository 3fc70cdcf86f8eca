#include "text/TürkçeSıralama.h"

#include <QtGlobal>

#include <memory>
#include <unicode/ucol.h>

namespace {

struct Kapatıcı
{
    void operator()(UCollator* sıralayıcı) const noexcept { ucol_close(sıralayıcı); }
};

const UCollator* sıralayıcı()
{
    static const std::unique_ptr<UCollator, Kapatıcı> tek = [] {
        UErrorCode durum = U_ZERO_ERROR;
        std::unique_ptr<UCollator, Kapatıcı> yeni(ucol_open("tr", &durum));
        if (U_FAILURE(durum))
            qFatal("ICU has no Turkish collation: %s", u_errorName(durum));
        ucol_setStrength(yeni.get(), UCOL_SECONDARY);
        return yeni;
    }();
    return tek.get();
}

} // namespace

int TürkçeKarşılaştır(std::string_view a, std::string_view b) noexcept
{
    if (a == b)
        return 0;
    UErrorCode durum = U_ZERO_ERROR;
    return ucol_strcollUTF8(sıralayıcı(), a.data(), static_cast<int32_t>(a.size()), b.data(),
                            static_cast<int32_t>(b.size()), &durum);
}

int TürkçeKarşılaştır(const QString& a, const QString& b)
{
    const QByteArray bir = a.toUtf8(), öteki = b.toUtf8();
    return TürkçeKarşılaştır(std::string_view(bir.constData(), std::size_t(bir.size())),
                             std::string_view(öteki.constData(), std::size_t(öteki.size())));
}

std::string SıralamaSürümü()
{
    UVersionInfo sürüm = {};
    ucol_getVersion(sıralayıcı(), sürüm);
    return {sürüm, sürüm + U_MAX_VERSION_LENGTH};
}
