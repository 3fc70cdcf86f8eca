#include "store/MakaleTablosu.h"

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
