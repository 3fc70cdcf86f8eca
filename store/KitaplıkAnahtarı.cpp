#include "store/KitaplıkAnahtarı.h"

#include <openssl/evp.h>

#include <QRandomGenerator>

#include <future>
#include <new>
#include <optional>
#include <system_error>
#include <utility>

namespace {

// Part of the file format, as is the hash.
constexpr int Tur = 64'000;
constexpr int AnahtarBoyu = 32;

QByteArray türet(const QByteArray& parola, const QByteArray& tuz)
{
    QByteArray anahtar(AnahtarBoyu, Qt::Uninitialized);
    if (PKCS5_PBKDF2_HMAC_SHA1(parola.constData(), int(parola.size()),
                               reinterpret_cast<const unsigned char*>(tuz.constData()), int(tuz.size()), Tur,
                               AnahtarBoyu, reinterpret_cast<unsigned char*>(anahtar.data())) != 1)
        throw std::bad_alloc();
    return anahtar;
}

struct Hazırlanan
{
    QByteArray Parola, Tuz;
    std::future<QByteArray> Anahtar;
};
std::optional<Hazırlanan> hazırlanan;

/// Takes what is being derived, if it is this one.
QByteArray hazırAnahtar(const QByteArray& parola, const QByteArray& tuz)
{
    auto hazır = std::exchange(hazırlanan, {});
    return hazır && hazır->Parola == parola && hazır->Tuz == tuz ? hazır->Anahtar.get() : türet(parola, tuz);
}

} // namespace

QByteArray YeniTuz()
{
    QByteArray tuz(TuzBoyu, Qt::Uninitialized);
    for (char& bayt : tuz)
        bayt = static_cast<char>(QRandomGenerator::system()->bounded(256));
    return tuz;
}

Anahtar TuzluAnahtar(const QByteArray& parola, const QByteArray& tuz)
{
    static QByteArray sonParola, sonAnahtar; // one thread works on libraries
    if (sonParola != parola || !sonAnahtar.endsWith(tuz)) {
        sonAnahtar = hazırAnahtar(parola, tuz) + tuz;
        sonParola = parola;
    }
    return {AnahtarTürü::HamAnahtar, sonAnahtar};
}

void AnahtarıHazırla(const QByteArray& parola, const QByteArray& tuz)
try {
    hazırlanan = Hazırlanan{parola, tuz, std::async(std::launch::async, &türet, parola, tuz)};
} catch (const std::system_error&) { // no further thread may be had: it is derived when it is needed
}
