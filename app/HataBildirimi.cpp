#include "app/HataBildirimi.h"

#include "app/Metinler.h"
#include "app/OrtakDeğişkenlerModülü.h"
#include "app/İletiKutusu.h"

#include <cstdio>
#include <cstdlib>

QString HataMetni(İleti metin, const Hata& hata)
{
    return Paragraflar({Metin(metin), Metin(İleti::HataKodu) + u' ' + QString::number(hata.Numara()),
                        Metin(İleti::HataMesajı) + u' ' + hata.Açıklama()});
}

void HataBildirVeÇık(const Hata& hata)
{
    std::fprintf(stderr, "belgenar: %d %s\n", hata.Numara(), hata.what());
    İletiGöster(HataMetni(İleti::ProgramDevamEdemiyor, hata), İletiSimgesi::Kritik, İletiDüğmeleri::Tamam);
    ProgramıBitir(1);
}

void ProgramıBitir(int durum)
{
    AçıkOturum.Bırak();
    std::fflush(nullptr);
    std::_Exit(durum);
}
