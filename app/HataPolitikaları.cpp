#include "app/HataPolitikaları.h"

#include "system/ÇalışmaHatası.h"

#include <cstdio>
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

void HatayıGünlüğeYaz(const std::source_location& yer)
{
    const Hata hata = ŞimdikiHata();
    std::fprintf(stderr, "belgenar: %s: %d %s\n", yer.function_name(), hata.Numara(), hata.what());
}
