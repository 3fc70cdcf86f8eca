#include "app/OrtakDeğişkenlerModülü.h"

QString AnaPencereBaşlığı;
QString AyarUygulamaAdı;
QString ProgramKlasörü;
bool NTPlatformu = false;

std::optional<DBEngine> Motor;
std::optional<Workspace> ÇalışmaAlanı;
std::optional<Database> Veritabanı;

QString MakaleYazıTipi;
qint16 YazıBoyutuSırası = 2;
qint16 ZeminRengiSırası = 0;

QString SürümMetni()
{
    return QStringLiteral("%1.%2%3").arg(BELGENAR_ANA_SÜRÜM).arg(BELGENAR_ALT_SÜRÜM).arg(BELGENAR_DÜZELTME);
}
