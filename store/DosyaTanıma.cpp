#include "store/DosyaTanıma.h"

#include "store/SayfaŞifresi.h"

#include <QByteArray>
#include <QFile>

#include <algorithm>
#include <array>
#include <bitset>

namespace {

constexpr qint64 BaşBoyu = 4096;
// 4,096 random bytes hold all 256 values but for a rare one, 1,024 about 251; no text and hardly any
// structured file comes near.
constexpr qint64 AzÖrnek = 1024;
constexpr std::size_t EnAzDeğer = 200;

QByteArray dosyaBaşı(const QString& yol)
{
    QFile dosya(yol);
    return dosya.open(QIODevice::ReadOnly) ? dosya.read(BaşBoyu) : QByteArray();
}

bool tanınanİmza(const QByteArray& baş)
{
    static const std::array<QByteArray, 10> imzalar = {QByteArray("SQLite format 3"),
                                                       QByteArray("PK\3\4"),
                                                       QByteArray("%PDF"),
                                                       QByteArray("\xff\xd8\xff"),
                                                       QByteArray("\x89PNG"),
                                                       QByteArray("{\\rtf"),
                                                       QByteArray("\x1f\x8b"),
                                                       QByteArray("\x7f"
                                                                  "ELF"),
                                                       QByteArray("\xd0\xcf\x11\xe0"),
                                                       QByteArray("7z\xbc\xaf")};
    return std::any_of(imzalar.begin(), imzalar.end(),
                       [&baş](const QByteArray& imza) { return baş.startsWith(imza); });
}

std::size_t farklıDeğerSayısı(const QByteArray& baş)
{
    std::bitset<256> görülen;
    for (const char bayt : baş)
        görülen.set(static_cast<unsigned char>(bayt));
    return görülen.count();
}

bool düzYazı(const QByteArray& baş)
{
    return std::all_of(baş.begin(), baş.end(), [](char bayt) {
        const auto değer = static_cast<unsigned char>(bayt);
        return değer >= 0x20 || değer == '\n' || değer == '\r' || değer == '\t';
    });
}

bool yabancı(const QByteArray& baş)
{
    if (tanınanİmza(baş))
        return true;
    const std::size_t değerler = farklıDeğerSayısı(baş);
    if (değerler == 1 && baş.startsWith('\0')) // a page of zeros is a damaged disk's work
        return false;
    return baş.size() >= AzÖrnek ? değerler < EnAzDeğer : düzYazı(baş);
}

} // namespace

HataNo OkunamayanDosyaTanısı(const QString& yol)
{
    const QByteArray baş = dosyaBaşı(yol);
    if (baş.isEmpty())
        return HataNo::DosyaBoş;
    return yabancı(baş) ? HataNo::KitaplıkDeğil : HataNo::ParolaYanlış;
}

HataNo AnahtarDoğruysaTanı(const QString& yol, HataNo tanı)
{
    if (tanı != HataNo::ParolaYanlış)
        return tanı;
    return QFile(yol).size() % SayfaBoyu != 0 ? HataNo::DosyaYarım : HataNo::DosyaBozuk;
}

bool DüzMetinVeritabanı(const QString& yol)
{
    return dosyaBaşı(yol).startsWith("SQLite format 3");
}
