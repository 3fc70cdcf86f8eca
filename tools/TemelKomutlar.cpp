#include "store/KitaplıkKlasörü.h"
#include "store/KlasörKilidi.h"
#include "store/MakaleKitaplığı.h"
#include "store/SistemHatası.h"
#include "tools/KomutGövdeleri.h"
#include "tools/Uçbirim.h"

#include <QDir>

QString KlasörYolu(const QString& klasör)
{
    YolGeçerliOlmalı(klasör);
    const QString yol = QDir(klasör).absolutePath();
    return yol.endsWith(u'/') ? yol : yol + u'/';
}

ÇıkışDurumu OluşturKomutu(const Değişkenler& değişkenler)
{
    const QString klasör = KlasörYolu(değişkenler.Sıralı()[0]);
    if (değişkenler.Deneme()) {
        KitaplıkKurulabilmeli(klasör);
        KlasörYapılabilmeli(klasör);
        Bildir(DenemeMetni);
        Bildir(QStringLiteral("Boş bir kitaplık oluşturulurdu: %1").arg(klasör));
        return Başarılı;
    }
    YeniKlasör yeni(klasör);
    const KlasörKilidi kilit(klasör);
    KitaplıkKur(klasör);
    yeni.Kalsın();
    Bildir(QStringLiteral("Boş bir kitaplık oluşturuldu: %1").arg(klasör));
    return Başarılı;
}
