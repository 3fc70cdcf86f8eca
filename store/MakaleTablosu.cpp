#include "store/MakaleTablosu.h"

QByteArray BudanırSql(const QByteArray& veritabanı)
{
    return "PRAGMA " + veritabanı + ".auto_vacuum=" + QByteArray::number(BudanırKipi);
}

QByteArray TabloSql(const QByteArray& veritabanı)
{
    return "CREATE TABLE " + veritabanı +
           ".Makaleler("
           "Kimlik INTEGER PRIMARY KEY, "
           "YazarAdi TEXT NOT NULL COLLATE TURKCE, "
           "MakaleBasligi TEXT NOT NULL COLLATE TURKCE, "
           "YayimYeri TEXT NOT NULL COLLATE TURKCE, "
           "YayimTarihi TEXT NOT NULL COLLATE TURKCE, "
           "MakaleMetni TEXT NOT NULL)";
}

std::array<QByteArray, 2> DizinSql(const QByteArray& veritabanı)
{
    return {"CREATE INDEX " + veritabanı + ".YazarDizini ON Makaleler(YazarAdi, MakaleBasligi)",
            "CREATE INDEX " + veritabanı + ".BaslikDizini ON Makaleler(MakaleBasligi)"};
}

QByteArray TabloSayfası(const QByteArray& ad)
{
    return "CREATE TABLE " + ad +
           "(Kimlik INTEGER PRIMARY KEY, YazarAdi TEXT, MakaleBasligi TEXT, YayimYeri TEXT, YayimTarihi TEXT,"
           " MakaleMetni TEXT)";
}

QByteArray DizinSayfası(const QByteArray& ad)
{
    // The index of titles has one column less.
    return "CREATE TABLE " + ad + "(Bir, Iki, Uc, PRIMARY KEY(Bir, Iki, Uc)) WITHOUT ROWID";
}

QByteArray DizinSayfasıSorgusu(const QByteArray& ad)
{
    return "SELECT ifnull(Uc, Iki), CASE WHEN Uc IS NOT NULL THEN Bir END,"
           " CASE WHEN Uc IS NULL THEN Bir ELSE Iki END FROM " +
           ad;
}
