#include "app/HataBildirimi.h"

#include "app/Metinler.h"
#include "app/OrtakDeğişkenlerModülü.h"
#include "app/İletiKutusu.h"

#include <cstdio>
#include <cstdlib>

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
    AçıkOturum.Bırak();
    std::fflush(nullptr);
    std::_Exit(durum);
}
