// Errors that the user is told.
#pragma once

#include "app/HataPolitikaları.h"
#include "app/Metinler.h"

/// What users are told of an error: this text, then the error's number and description, each
/// a paragraph.
QString HataMetni(İleti metin, const Hata& hata);

/// Shows the error with its number and description, and ends the program. Does not return.
[[noreturn]] void HataBildirVeÇık(const Hata& hata);

/// Lets go of the library and ends the process at once; open windows vanish with it.
[[noreturn]] void ProgramıBitir(int durum);

/// Runs the body; the first error is reported and ends the program.
template<class Gövde> decltype(auto) HatadaÇık(Gövde&& gövde)
{
    try {
        return std::forward<Gövde>(gövde)();
    } catch (...) {
        HataBildirVeÇık(ŞimdikiHata());
    }
}
