// Fuzz target: text files of all kinds.
#include "text_check.h"

#include "document/MetinDosyası.h"
#include "document/RtfBilgisi.h"
#include "document/RtfOkuyucu.h"

#include <cstdlib>

namespace {

void kusursuzOlmalı(const char* kusur)
{
    if (kusur) {
        qCritical("%s", kusur);
        std::abort();
    }
}

template<typename Okuma> void dene(Okuma oku, QByteArrayView baytlar)
{
    try {
        kusursuzOlmalı(BilgiKusuru(RtfBilgisiOku(baytlar)));
        kusursuzOlmalı(MetinKusuru(oku(baytlar)));
    } catch (const MetinOkumaHatası&) { // damaged, as most inputs are
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* baytlar, std::size_t boy)
{
    const QByteArrayView girdi(baytlar, static_cast<qsizetype>(boy));
    dene(MetinÇöz, girdi);
    // Most inputs lack the signature; it must not be what the fuzzer spends its time on.
    if (!RtfMi(girdi))
        dene(RtfOku, "{\\rtf1 " + QByteArray(girdi.data(), girdi.size()));
    return 0;
}
