#include "app/HataPolitikaları.h"

#include "app/Metinler.h"
#include "app/OrtakDeğişkenlerModülü.h"
#include "app/İletiKutusu.h"
#include "store/VeritabanıHatası.h"

#include <cstdio>
#include <cstdlib>
#include <new>

namespace {

// The customary numbers of run-time errors that do not come from the store.
constexpr int YetersizBellek = 7;
constexpr int İçHata = 51;

} // namespace

ÇalışmaHatası::ÇalışmaHatası(int numara, const QString& açıklama)
    : numara_(numara), açıklama_(açıklama), bayt_(açıklama.toUtf8())
{
}

HataBilgisi ŞimdikiHata()
{
    try {
        throw;
    } catch (const VeritabanıHatası& hata) {
        return {static_cast<int>(hata.Numara()), hata.Açıklama()};
    } catch (const ÇalışmaHatası& hata) {
        return {hata.Numara(), hata.Açıklama()};
    } catch (const std::bad_alloc&) {
        return {YetersizBellek, QStringLiteral("Yetersiz bellek.")};
    } catch (const std::exception& hata) {
        return {İçHata, QStringLiteral("İç hata: %1").arg(QString::fromUtf8(hata.what()))};
    } catch (...) {
        return {İçHata, QStringLiteral("İç hata.")};
    }
}

QString HataMetni(int metin, const HataBilgisi& hata)
{
    return Paragraflar({Metin(metin), Metin(15) + u' ' + QString::number(hata.Numara),
                        Metin(20) + u' ' + hata.Açıklama});
}

void HataBildirVeÇık(const HataBilgisi& hata)
{
    std::fprintf(stderr, "belgenar: %d %s\n", hata.Numara, qUtf8Printable(hata.Açıklama));
    İletiGöster(HataMetni(10, hata), İletiSimgesi::Kritik, İletiDüğmeleri::Tamam);
    ProgramıBitir(1);
}

void ProgramıBitir(int durum)
{
    KitaplığıBırak();
    std::fflush(nullptr);
    std::_Exit(durum);
}

void HatayıGünlüğeYaz(const char* işleyici)
{
    const HataBilgisi hata = ŞimdikiHata();
    std::fprintf(stderr, "belgenar: %s: %d %s\n", işleyici ? işleyici : "-", hata.Numara,
                 qUtf8Printable(hata.Açıklama));
}
