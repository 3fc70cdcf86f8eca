// The library file's table: names, limits and statements that the format fixes.
#pragma once

#include "store/Makale.h"

#include <QByteArray>
#include <QString>
#include <QStringView>

#include <array>

/// The five columns in the order of the table.
enum class MakaleSütunu
{
    YazarAdi,
    MakaleBasligi,
    YayimYeri,
    YayimTarihi,
    MakaleMetni
};

struct SütunTanımı
{
    QStringView ad;
    qsizetype enUzun;      ///< UTF-16 units; a longer value is refused
    qsizetype yazılabilen; ///< as many can be typed in the entry windows
    QString Makale::*değer;
};

/// The text stands last, so that a row's short columns are read without it. Its limit keeps the UTF-8
/// form below what SQLite can hold (1,000,000,000 bytes).
inline constexpr std::array<SütunTanımı, 5> MakaleSütunları = {{
    {u"YazarAdi", 1'000, 1'000, &Makale::Yazar},
    {u"MakaleBasligi", 1'000, 255, &Makale::Başlık},
    {u"YayimYeri", 1'000, 50, &Makale::Yer},
    {u"YayimTarihi", 1'000, 20, &Makale::Tarih},
    {u"MakaleMetni", 300'000'000, 300'000'000, &Makale::Metin},
}};

constexpr const SütunTanımı& Tanım(MakaleSütunu sütun)
{
    return MakaleSütunları[static_cast<std::size_t>(sütun)];
}

/// Author and title name an article and can't be blank.
constexpr bool AdSütunu(MakaleSütunu sütun)
{
    return sütun == MakaleSütunu::YazarAdi || sütun == MakaleSütunu::MakaleBasligi;
}

/// Written into the file's header; a file of a higher version is refused.
inline constexpr int KitaplıkSürümü = 1;

/// The statement that has an empty database keep account of its pages, and what PRAGMA auto_vacuum then says.
QByteArray BudanırSql(const QByteArray& veritabanı);
inline constexpr int BudanırKipi = 2;

/// The statement that creates the table in the named attached database.
QByteArray TabloSql(const QByteArray& veritabanı);
inline constexpr std::array<const char*, 2> DizinAdları = {"YazarDizini", "BaslikDizini"};
/// The statements that create the indices.
std::array<QByteArray, 2> DizinSql(const QByteArray& veritabanı);

/// Statements for Bağlantı::SayfalarıTabloSay, by which a page is taken for one of the table or of an index,
/// under that name. An index's rows are read by what DizinSayfasıSorgusu gives: key, author (null on a page
/// of the index of titles) and title.
QByteArray TabloSayfası(const QByteArray& ad);
QByteArray DizinSayfası(const QByteArray& ad);
QByteArray DizinSayfasıSorgusu(const QByteArray& ad);
