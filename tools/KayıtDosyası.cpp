#include "tools/KayıtDosyası.h"

#include "document/KodSayfası.h"
#include "document/Utf8.h"
#include "tools/AraçHatası.h"
#include "tools/Durdurma.h"

KayıtDosyası::KayıtDosyası(const QString& yol, const DurdurmaBekçisi& bekçi, QByteArrayView utf8İmi)
    : bekçi_(bekçi), satırlar_(yol, bekçi)
{
    if (satırlar_.BirKezOkunur())
        throw AraçHatası(QStringLiteral("%1: Bu kayıtlar olağan bir dosyadan okunur.").arg(Ad()));
    yazısınıTanı(utf8İmi);
    satırlar_.BaşaDön();
    satırlar_.SonuAta(son_);
}

void KayıtDosyası::yazısınıTanı(QByteArrayView utf8İmi)
{
    Utf8Sayacı sayaç;
    QByteArray satır;
    bool kesin = false; // pairs that could be Turkish letters of Windows-1254 don't deceive then
    while (satırlar_.Oku(satır)) {
        bekçi_.Bak();
        if (satır.contains('\0'))
            HataVer(SatırNo(), QStringLiteral("Burada UTF-16 ya da metin olmayan baytlar var; dosyayı UTF-8 "
                                              "olarak kaydedip yeniden deneyin."));
        sayaç.Say(satır, '\n');
        kesin = kesin || (!utf8İmi.isEmpty() && satır.contains(utf8İmi));
        if (SatırNo() == 1 && !satır.endsWith('\n') && satır.contains('\r'))
            son_ = '\r';
    }
    utf8_ = kesin || satırlar_.İmli() || sayaç.Utf8Mi();
}

bool KayıtDosyası::Oku(QByteArray& satır)
{
    if (!satırlar_.Oku(satır))
        return false;
    bekçi_.Bak();
    if (satır.endsWith(son_))
        satır.back() = '\n';
    if (!utf8_)
        satır = Windows1254Çöz(satır).toUtf8();
    return true;
}

void KayıtDosyası::HataVer(qint64 satırNo, const QString& cümle) const
{
    satırlar_.HataVer(satırNo, cümle);
}
