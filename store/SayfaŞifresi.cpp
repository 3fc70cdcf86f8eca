#include "store/SayfaŞifresi.h"

#include <openssl/core_names.h>
#include <openssl/evp.h>
#include <openssl/params.h>

#include <QtEndian>

#include <algorithm>
#include <new>

namespace {

// A page: what is enciphered, the initial vector, the code over both and the page's number, bytes that mean
// nothing. In front of the first one's stands the salt, where SQLite has a text that never changes.
constexpr int AnahtarBoyu = 32;
constexpr qsizetype VektörBoyu = 16, VektörYeri = SayfaBoyu - SayfaŞifresi::Ayrılan;
static_assert(SayfaKodu::Yer == VektörYeri + VektörBoyu);
constexpr int ÖzetTuru = 2;            // of deriving the code's key from the cipher's
constexpr char ÖzetTuzuMaskesi = 0x3a; // and what its salt differs by
const QByteArray DüzBaş("SQLite format 3\0", TuzBoyu);

const unsigned char* baytlar(const QByteArray& dizi)
{
    return reinterpret_cast<const unsigned char*>(dizi.constData());
}

unsigned char* baytlar(QByteArray& dizi)
{
    return reinterpret_cast<unsigned char*>(dizi.data());
}

void olmalı(bool tamam) // these fail only where memory runs out
{
    if (!tamam)
        throw std::bad_alloc();
}

qsizetype başı(quint32 no)
{
    return no == 1 ? TuzBoyu : 0;
}

} // namespace

void SayfaKodu::Bırakıcı::operator()(evp_mac_ctx_st* bağlam) const noexcept
{
    EVP_MAC_CTX_free(bağlam);
}

SayfaKodu::SayfaKodu(const QByteArray& anahtar)
{
    const std::unique_ptr<EVP_MAC, decltype(&EVP_MAC_free)> hmac(EVP_MAC_fetch(nullptr, "HMAC", nullptr),
                                                                 &EVP_MAC_free);
    olmalı(hmac != nullptr);
    bağlam_.reset(EVP_MAC_CTX_new(hmac.get()));
    char özet[] = "SHA1"; // the call wants it writable
    const OSSL_PARAM seçenekler[] = {OSSL_PARAM_construct_utf8_string(OSSL_MAC_PARAM_DIGEST, özet, 0),
                                     OSSL_PARAM_construct_end()};
    olmalı(bağlam_ && EVP_MAC_init(bağlam_.get(), baytlar(anahtar), std::size_t(anahtar.size()),
                                   static_cast<const OSSL_PARAM*>(seçenekler)) == 1);
}

SayfaKodu::~SayfaKodu() = default;
SayfaKodu::SayfaKodu(SayfaKodu&&) noexcept = default;
SayfaKodu& SayfaKodu::operator=(SayfaKodu&&) noexcept = default;

SayfaKodu::Değer SayfaKodu::Hesapla(const char* sayfa, quint32 no)
{
    const quint32 küçükten = qToLittleEndian(no);
    Değer kod = {};
    std::size_t boy = 0;
    olmalı(EVP_MAC_init(bağlam_.get(), nullptr, 0, nullptr) == 1 && // with the key that it has
           EVP_MAC_update(bağlam_.get(), reinterpret_cast<const unsigned char*>(sayfa) + başı(no),
                          std::size_t(Yer - başı(no))) == 1 &&
           EVP_MAC_update(bağlam_.get(), reinterpret_cast<const unsigned char*>(&küçükten),
                          sizeof küçükten) == 1 &&
           EVP_MAC_final(bağlam_.get(), kod.data(), &boy, kod.size()) == 1 && boy == kod.size());
    return kod;
}

bool SayfaKodu::Doğru(const char* sayfa, quint32 no)
{
    const Değer kod = Hesapla(sayfa, no);
    return std::equal(kod.begin(), kod.end(), reinterpret_cast<const unsigned char*>(sayfa) + Yer);
}

void SayfaŞifresi::Bırakıcı::operator()(evp_cipher_ctx_st* bağlam) const noexcept
{
    EVP_CIPHER_CTX_free(bağlam);
}

SayfaŞifresi::SayfaŞifresi(const Anahtar& anahtar)
    : anahtar_(anahtar), özetAnahtarı_(AnahtarBoyu, Qt::Uninitialized), bağlam_(EVP_CIPHER_CTX_new())
{
    olmalı(bağlam_ != nullptr);
    QByteArray tuz = anahtar.değer.mid(AnahtarBoyu);
    for (char& bayt : tuz)
        bayt = static_cast<char>(bayt ^ ÖzetTuzuMaskesi);
    olmalı(PKCS5_PBKDF2_HMAC_SHA1(anahtar.değer.constData(), AnahtarBoyu, baytlar(tuz), int(tuz.size()),
                                  ÖzetTuru, AnahtarBoyu, baytlar(özetAnahtarı_)) == 1);
}

SayfaŞifresi::~SayfaŞifresi() = default;
SayfaŞifresi::SayfaŞifresi(SayfaŞifresi&&) noexcept = default;
SayfaŞifresi& SayfaŞifresi::operator=(SayfaŞifresi&&) noexcept = default;

QByteArray SayfaŞifresi::çevir(const QByteArray& girdi, const QByteArray& başlangıç, Yön yön) const
{
    QByteArray çıktı(girdi.size(), Qt::Uninitialized);
    int boy = 0;
    olmalı(EVP_CipherInit_ex(bağlam_.get(), EVP_aes_256_cbc(), nullptr, baytlar(anahtar_.değer),
                             baytlar(başlangıç), yön == Yön::Şifreleme ? 1 : 0) == 1 &&
           EVP_CIPHER_CTX_set_padding(bağlam_.get(), 0) == 1 &&
           EVP_CipherUpdate(bağlam_.get(), baytlar(çıktı), &boy, baytlar(girdi), int(girdi.size())) == 1 &&
           boy == girdi.size());
    return çıktı;
}

bool SayfaŞifresi::Doğru(const QByteArray& sayfa, quint32 no) const
{
    return sayfa.size() == SayfaBoyu && Kodu().Doğru(sayfa.constData(), no);
}

QByteArray SayfaŞifresi::Çöz(const QByteArray& sayfa, quint32 no) const
{
    const QByteArray gizli = sayfa.mid(başı(no), VektörYeri - başı(no));
    return DüzBaş.left(başı(no)) + çevir(gizli, sayfa.mid(VektörYeri, VektörBoyu), Yön::Çözme) +
           sayfa.mid(VektörYeri);
}

QByteArray SayfaŞifresi::Şifrele(const QByteArray& düz, quint32 no) const
{
    QByteArray sayfa =
        anahtar_.değer.mid(AnahtarBoyu).left(başı(no)) +
        çevir(düz.mid(başı(no), VektörYeri - başı(no)), düz.mid(VektörYeri, VektörBoyu), Yön::Şifreleme) +
        düz.mid(VektörYeri);
    const SayfaKodu::Değer kod = Kodu().Hesapla(sayfa.constData(), no);
    return sayfa.replace(SayfaKodu::Yer, kod.size(), reinterpret_cast<const char*>(kod.data()), kod.size());
}

quint8 SayfaŞifresi::İlkBayt(const QByteArray& baş, const QByteArray& sonu) const
{
    return static_cast<quint8>(çevir(baş.left(Blok), sonu.left(VektörBoyu), Yön::Çözme).at(0));
}
