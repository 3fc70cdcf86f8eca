#include "store/Makale.h"

#include "store/MakaleTablosu.h"
#include "store/Recordset.h"

Makale Makale::Oku(Recordset& kayıtlar)
{
    Makale makale = KünyesiniOku(kayıtlar);
    makale.Metin = MetniniOku(kayıtlar);
    return makale;
}

Makale Makale::KünyesiniOku(Recordset& kayıtlar)
{
    Makale makale;
    for (const SütunTanımı& sütun : MakaleSütunları) {
        if (sütun.değer != &Makale::Metin)
            makale.*sütun.değer = kayıtlar.Fields(sütun.ad).Value();
    }
    return makale;
}

QString Makale::MetniniOku(Recordset& kayıtlar)
{
    return kayıtlar.Fields(Tanım(MakaleSütunu::MakaleMetni).ad).Value();
}

void Makale::Yaz(Recordset& kayıtlar) const
{
    for (const SütunTanımı& sütun : MakaleSütunları)
        kayıtlar.Fields(sütun.ad).Value(this->*sütun.değer);
}
