// What a handler does about errors. Each handler's body runs inside exactly one of these, so that no
// exception ever reaches the toolkit.
#pragma once

#include "base/Hata.h"

#include <source_location>
#include <utility>

/// The exception being handled, as an error that can be told; to be called inside a catch block only.
Hata ŞimdikiHata();

/// Writes the exception being handled, which its handler passes over, to the log.
/// @param yer in the handler
void HatayıGünlüğeYaz(const std::source_location& yer);

/// Runs the body; the first error ends it, is logged, and leaves the window usable.
/// @return whether the body ran to its end
template<class Gövde>
bool İlkHatadaBit(Gövde&& gövde, const std::source_location& yer = std::source_location::current())
{
    try {
        std::forward<Gövde>(gövde)();
        return true;
    } catch (...) {
        HatayıGünlüğeYaz(yer);
        return false;
    }
}

/// Runs every step; an error ends its own step only. To be used as a function: it is a class so that the
/// caller's place can stand behind any number of steps.
template<class... Adımlar> struct AdımAdım
{
    explicit AdımAdım(Adımlar&&... adımlar, const std::source_location& yer = std::source_location::current())
    {
        static_assert(sizeof...(Adımlar) > 0, "AdımAdım(name) declares a variable: call İlkHatadaBit(name)");
        (İlkHatadaBit(std::forward<Adımlar>(adımlar), yer), ...);
    }
};
template<class... Adımlar> AdımAdım(Adımlar&&...) -> AdımAdım<Adımlar...>;
