// Bytes of a code page made into letters.
#pragma once

#include <QByteArrayView>
#include <QString>

#include <array>
#include <memory>
#include <string_view>

/// One code page, opened once and asked for many bytes. Numbers are those of Windows. Unassigned bytes give
/// U+FFFD.
class KodSayfası
{
public:
    static constexpr int Windows1252 = 1252;
    static constexpr int Windows1254 = 1254;
    static constexpr int Utf8 = 65001;

    static bool Biliniyor(int no);
    /// @param no a known page; Windows-1252 stands for any other
    explicit KodSayfası(int no);
    ~KodSayfası();
    KodSayfası(const KodSayfası&) = delete;
    KodSayfası& operator=(const KodSayfası&) = delete;

    /// How many bytes a letter that begins with this one has, 1 to 4.
    int Boy(unsigned char baş) const { return boylar_[baş]; }
    /// The letter of a byte that stands alone.
    char16_t Harf(unsigned char bayt) const { return harfler_[bayt]; }
    /// The letter of several bytes, in one or two units; empty when they aren't one.
    QString Harf(std::string_view baytlar) const;

private:
    class Çevirici;

    std::unique_ptr<Çevirici> çevirici_; // none once the table says all
    std::array<char16_t, 256> harfler_{};
    std::array<quint8, 256> boylar_{};
};

/// A whole text of Windows-1254.
QString Windows1254Çöz(QByteArrayView baytlar);
