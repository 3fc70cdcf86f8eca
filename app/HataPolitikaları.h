// What a handler does about errors. Each handler's body runs inside exactly one of these, so that no
// exception ever reaches the toolkit.
#pragma once

#include <QString>

#include <utility>

struct HataBilgisi
{
    int Numara;
    QString Açıklama;
};

/// The exception being handled; to be called inside a catch block only.
HataBilgisi ŞimdikiHata();

/// Shows the error with its number and description, and ends the program. Does not return.
[[noreturn]] void HataBildirVeÇık(const HataBilgisi& hata);

/// Lets go of the library and ends the process at once; open windows vanish with it.
[[noreturn]] void ProgramıBitir(int durum);

/// Writes an error that its handler passes over to the log.
void HatayıGünlüğeYaz(const char* işleyici);

/// Runs every step; an error ends its own step only.
template<class... Adımlar> void AdımAdım(Adımlar&&... adımlar)
{
    const auto dene = [](auto&& adım) {
        try {
            adım();
        } catch (...) {
            HatayıGünlüğeYaz(nullptr);
        }
    };
    (dene(std::forward<Adımlar>(adımlar)), ...);
}

/// Runs the body; the first error ends it silently.
template<class Gövde> void İlkHatadaBit(Gövde&& gövde)
{
    AdımAdım(std::forward<Gövde>(gövde));
}

/// Runs the body; the first error is reported and ends the program.
template<class Gövde> decltype(auto) HatadaBildirVeÇık(Gövde&& gövde)
{
    try {
        return gövde();
    } catch (...) {
        HataBildirVeÇık(ŞimdikiHata());
    }
}

/// Runs a handler that declares no policy: an error ends it and is logged, and the window stays usable.
/// @return whether the body ran to its end
template<class Gövde> bool Olay(const char* işleyici, Gövde&& gövde)
{
    try {
        gövde();
        return true;
    } catch (...) {
        HatayıGünlüğeYaz(işleyici);
        return false;
    }
}
