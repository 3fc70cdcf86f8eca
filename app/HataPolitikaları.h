// What a handler does about errors. Each handler's body runs inside exactly one of these, so that no
// exception ever reaches the toolkit.
#pragma once

#include <QString>

#include <exception>
#include <utility>

struct HataBilgisi
{
    int Numara;
    QString Açıklama;
};

/// Thrown by app/ where the operating system or another program fails. Carries the customary number of
/// the run-time error and a Turkish sentence for the user.
class ÇalışmaHatası : public std::exception
{
public:
    ÇalışmaHatası(int numara, const QString& açıklama);

    int Numara() const noexcept { return numara_; }
    const QString& Açıklama() const noexcept { return açıklama_; }
    const char* what() const noexcept override { return bayt_.constData(); }

private:
    int numara_;
    QString açıklama_;
    QByteArray bayt_; // the description as UTF-8, for what()
};

/// The exception being handled; to be called inside a catch block only.
HataBilgisi ŞimdikiHata();

/// What users are told of an error: the text with this number, then the error's number and description, each
/// a paragraph.
QString HataMetni(int metin, const HataBilgisi& hata);

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
