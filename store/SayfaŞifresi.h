// Enciphers and deciphers single pages of a library file, as SQLCipher does.
#pragma once

#include "store/KitaplıkAnahtarı.h"

#include <QByteArray>

#include <array>
#include <memory>

struct evp_cipher_ctx_st;
struct evp_mac_ctx_st;

/// Large pages halve the cipher's work for long texts. Part of the file format.
inline constexpr qint64 SayfaBoyu = 16384;

/// The code that each page carries: over its bytes and its number. Not thread-safe: each thread has its own.
class SayfaKodu
{
public:
    explicit SayfaKodu(const QByteArray& anahtar);
    ~SayfaKodu();
    SayfaKodu(SayfaKodu&&) noexcept;
    SayfaKodu& operator=(SayfaKodu&&) noexcept;

    static constexpr std::size_t Boy = 20;        ///< bytes
    static constexpr qint64 Yer = SayfaBoyu - 32; ///< within the page
    using Değer = std::array<unsigned char, Boy>;

    /// @param sayfa SayfaBoyu bytes
    Değer Hesapla(const char* sayfa, quint32 no);
    /// Whether the page's bytes are those that were enciphered for this number.
    bool Doğru(const char* sayfa, quint32 no);

private:
    struct Bırakıcı
    {
        void operator()(evp_mac_ctx_st* bağlam) const noexcept;
    };
    std::unique_ptr<evp_mac_ctx_st, Bırakıcı> bağlam_;
};

/// For what can't be had from SQLCipher: to try a key on any page, to look at a page's kind, and to mend a
/// file's first page. Pages count from 1. Holds the key while it lives.
class SayfaŞifresi
{
public:
    /// @param anahtar as TuzluAnahtar gives it
    explicit SayfaŞifresi(const Anahtar& anahtar);
    ~SayfaŞifresi();
    SayfaŞifresi(SayfaŞifresi&&) noexcept;
    SayfaŞifresi& operator=(SayfaŞifresi&&) noexcept;

    const Anahtar& Anahtarı() const { return anahtar_; }
    /// Another one for the same key.
    SayfaKodu Kodu() const { return SayfaKodu(özetAnahtarı_); }
    /// Whether the page's bytes are those that were enciphered with this key for this number.
    bool Doğru(const QByteArray& sayfa, quint32 no) const;
    /// The page as SQLite sees it, but for the reserved bytes at its end, which stay enciphered.
    QByteArray Çöz(const QByteArray& sayfa, quint32 no) const;
    /// The way back, with the initial vector that stands in the page's reserved bytes.
    QByteArray Şifrele(const QByteArray& düz, quint32 no) const;
    /// The first byte of another page than the first, deciphered: what kind of page it is.
    /// @param baş, sonu the page's first block and its reserved bytes
    quint8 İlkBayt(const QByteArray& baş, const QByteArray& sonu) const;

    static constexpr qsizetype Blok = 16;    ///< of the cipher
    static constexpr qsizetype Ayrılan = 48; ///< reserved bytes at a page's end

private:
    struct Bırakıcı
    {
        void operator()(evp_cipher_ctx_st* bağlam) const noexcept;
    };
    enum class Yön
    {
        Çözme,
        Şifreleme
    };

    QByteArray çevir(const QByteArray& baytlar, const QByteArray& başlangıç, Yön yön) const;
    Anahtar anahtar_;
    QByteArray özetAnahtarı_;
    std::unique_ptr<evp_cipher_ctx_st, Bırakıcı> bağlam_;
};
