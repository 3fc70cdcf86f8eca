// Fuzz target: text files of all kinds.
#include "text_check.h"

#include "document/MetinDosyası.h"
#include "document/RtfOkuyucu.h"

#include <cstdlib>

namespace {

template<typename Okuma> void dene(Okuma oku, QByteArrayView baytlar)
{
    try {
        if (const char* kusur = MetinKusuru(oku(baytlar))) {
            qCritical("%s", kusur);
            std::abort();
        }
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
