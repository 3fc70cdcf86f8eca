#include "app/HataPolitikaları.h"

#include "app/Metinler.h"
#include "app/OrtakDeğişkenlerModülü.h"
#include "app/İletiKutusu.h"
#include "system/ÇalışmaHatası.h"

#include <cstdio>
#include <cstdlib>
#include <new>

Hata ŞimdikiHata()
{
    try {
        throw;
    } catch (const Hata& hata) {
        return hata;
    } catch (const std::bad_alloc&) {
        return ÇalışmaHatası(ÇalışmaHataNo::YetersizBellek, QStringLiteral("Yetersiz bellek."));
    } catch (const std::exception& hata) {
        return ÇalışmaHatası(ÇalışmaHataNo::İçHata,
                             QStringLiteral("İç hata: %1").arg(QString::fromUtf8(hata.what())));
    } catch (...) {
        return ÇalışmaHatası(ÇalışmaHataNo::İçHata, QStringLiteral("İç hata."));
    }
}

QString HataMetni(int metin, const Hata& hata)
{
    return Paragraflar({Metin(metin), Metin(15) + u' ' + QString::number(hata.Numara()),
                        Metin(20) + u' ' + hata.Açıklama()});
}

void HatayıBildirVeBit(const Hata& hata)
{
    std::fprintf(stderr, "belgenar: %d %s\n", hata.Numara(), hata.what());
    İletiGöster(HataMetni(10, hata), İletiSimgesi::Kritik, İletiDüğmeleri::Tamam);
    ProgramıBitir(1);
}

void ProgramıBitir(int durum)
{
    KitaplığıBırak();
    std::fflush(nullptr);
    std::_Exit(durum);
}

void HatayıGünlüğeYaz(const std::source_location& yer)
{
    const Hata hata = ŞimdikiHata();
    std::fprintf(stderr, "belgenar: %s: %d %s\n", yer.function_name(), hata.Numara(), hata.what());
}
