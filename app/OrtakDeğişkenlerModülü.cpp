#include "app/OrtakDeğişkenlerModülü.h"

#include "store/KitaplıkYapısı.h"
#include "store/MakaleKitaplığı.h"

#include <cstdio>

namespace {

const QString DizinOnarıldıMetni =
    QStringLiteral("Bir dizin bozuktu; tablodan yeniden yapıldı. Makaleler tamam.");

} // namespace

QString AnaPencereBaşlığı;
QString AyarUygulamaAdı;
QString ProgramKlasörü;
bool NTPlatformu = false;

std::optional<DBEngine> Motor;
std::optional<Workspace> ÇalışmaAlanı;
std::optional<Database> Veritabanı;

QString DeğiştirilenYazarAdı;
QString DeğiştirilenMakaleBaşlığı;

QString MakaleYazıTipi;
qint16 YazıBoyutuSırası = 2;
qint16 ZeminRengiSırası = 0;

bool YazdırmaİptalEdildi = false;

void KitaplığıAç(const DBEngine::İlerlemeBildirimi& bildir)
{
    Motor.emplace(bildir);
    Motor->SystemDB(KitaplıkYolu(ProgramKlasörü, KitaplıkDosyaları::ÇalışmaGrubu));
    ÇalışmaAlanı = SahipÇalışmaAlanı(*Motor);
    if (VeritabanınıSıkıştır(*Motor, ProgramKlasörü, bildir) != YapıDurumu::Sağlam)
        std::fprintf(stderr, "belgenar: Makale.mde: %s\n", qUtf8Printable(DizinOnarıldıMetni));
    KullanıcıHesabınıHazırla(*ÇalışmaAlanı);
    ÇalışmaAlanı->Close();
    ÇalışmaAlanı = KullanıcıÇalışmaAlanı(*Motor);
    Veritabanı = KitaplıkAç(*ÇalışmaAlanı, ProgramKlasörü);
}

void KitaplığıBırak()
{
    Veritabanı.reset();
    ÇalışmaAlanı.reset();
    Motor.reset();
}

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
