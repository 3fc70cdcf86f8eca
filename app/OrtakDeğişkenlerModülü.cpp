#include "app/OrtakDeğişkenlerModülü.h"

QString AnaPencereBaşlığı;
QString AyarUygulamaAdı;
QString ProgramKlasörü;
bool NTPlatformu = false;

Oturum AçıkOturum;
std::optional<Workspace>& ÇalışmaAlanı = AçıkOturum.ÇalışmaAlanı;
std::optional<Database>& Veritabanı = AçıkOturum.Veritabanı;

QString DeğiştirilenYazarAdı;
QString DeğiştirilenMakaleBaşlığı;

QString MakaleYazıTipi;
qint16 YazıBoyutuSırası = 2;
qint16 ZeminRengiSırası = 0;

bool YazdırmaİptalEdildi = false;

QStringList SütunuOku(const QString& sorgu, QStringView sütun)
{
    Recordset kayıtlar = Veritabanı->OpenRecordset(sorgu);
    QStringList değerler;
    if (kayıtlar.Bof() && kayıtlar.Eof())
        return değerler;
    for (kayıtlar.MoveFirst(); !kayıtlar.Eof(); kayıtlar.MoveNext())
        değerler.append(kayıtlar.Fields(sütun).Value());
    return değerler;
}

Recordset MakaleyiAç(const QString& başlık)
{
    return Veritabanı->OpenRecordset(QStringLiteral("SELECT * FROM [Makaleler] WHERE [MakaleBasligi]='") +
                                     başlık + u'\'');
}

QString SürümMetni()
{
    return QStringLiteral("%1.%2%3").arg(BELGENAR_ANA_SÜRÜM).arg(BELGENAR_ALT_SÜRÜM).arg(BELGENAR_DÜZELTME);
}

QString SürümYazısı()
{
    return QStringLiteral("Sürüm ") + SürümMetni();
}
