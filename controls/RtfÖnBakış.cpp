#include "controls/RtfÖnBakış.h"

#include "controls/RtfSözcükleri.h"
#include "controls/RtfTabloları.h"

#include <algorithm>

QByteArrayView RtfDevamı(QByteArrayView kalan)
{
    const qsizetype boşluk = kalan.indexOf('\0'); // what lies behind is what happened to be in memory
    const QByteArrayView yazı = boşluk < 0 ? kalan : kalan.first(boşluk);
    RtfSözcükleri sözcükler(yazı);
    bool yazıVar = false;
    int derinlik = 0;
    for (;;) {
        const RtfSözcüğü söz = sözcükler.Sonraki();
        switch (söz.Tür) {
        case RtfTürü::Son:
            return {};
        case RtfTürü::GrupBaşı:
            ++derinlik;
            break;
        case RtfTürü::GrupSonu:
            if (derinlik == 0 && yazıVar)
                return yazı;
            derinlik = std::max(derinlik - 1, 0);
            break;
        case RtfTürü::Sözcük:
            if (derinlik == 0 && RtfTanımıBul(söz.Ad))
                return yazı;
            break;
        default:
            yazıVar = true;
        }
    }
}
