#include "store/KitaplıkAnahtarı.h"

#include <openssl/evp.h>

#include <QRandomGenerator>

#include <new>

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
        sonAnahtar = türet(parola, tuz) + tuz;
        sonParola = parola;
    }
    return {AnahtarTürü::HamAnahtar, sonAnahtar};
}
