#include "document/RtfAlanı.h"

#include "document/KodSayfası.h"
#include "document/SimgeYazıTipleri.h"

#include <QString>

namespace {

// What stands behind a switch, without its quotation marks.
QString değeri(const QString& komut, QLatin1StringView anahtar)
{
    const qsizetype yer = komut.indexOf(anahtar);
    if (yer < 0)
        return {};
    const QString kalan = komut.sliced(yer + anahtar.size()).trimmed();
    return kalan.startsWith(u'"') ? kalan.section(u'"', 1, 1) : kalan.section(u' ', 0, 0);
}

} // namespace

char16_t RtfAlanSimgesi(QStringView komut)
{
    const QString sade = komut.toString().simplified();
    if (sade.section(u' ', 0, 0) != QLatin1StringView("SYMBOL"))
        return 0;
    const uint no = sade.section(u' ', 1, 1).toUInt(nullptr, 0);
    if (no > 0xFFFF)
        return 0;
    const uint bayt = (no & 0xFF00) == 0xF000 ? no & 0xFF : no;
    if (bayt > 0xFF || sade.contains(QLatin1StringView("\\u")))
        return static_cast<char16_t>(no);
    const SimgeTablosu* simgeler = SimgeTablosuBul(değeri(sade, QLatin1StringView("\\f")));
    const char16_t simge = simgeler ? (*simgeler)[bayt] : u'\0';
    static const KodSayfası batı(KodSayfası::Windows1252);
    return simge ? simge : batı.Harf(static_cast<unsigned char>(bayt));
}
