#include "tools/AraçHatası.h"
#include "tools/Biçimler.h"
#include "tools/Döküm.h"
#include "tools/Hedef.h"
#include "tools/JsonSatırları.h"
#include "tools/KomutGövdeleri.h"
#include "tools/Uçbirim.h"

ÇıkışDurumu DökKomutu(const Değişkenler& değişkenler)
{
    const DökümSüzgeci hepsi;
    Döküm döküm(KlasörYolu(değişkenler.Sıralı()[0]), hepsi);
    Çıktı çıktı;
    döküm.Gez(QStringLiteral("Makaleler dökülüyor"),
              [&çıktı](const Makale& makale) { çıktı.Yaz(MakaleSatırı(makale)); });
    çıktı.Bitir();
    return döküm.HesapVer();
}

ÇıkışDurumu VerKomutu(const Değişkenler& değişkenler)
{
    const VermeBiçimi& biçim = BiçimBul(değişkenler.Değer(u"biçim"));
    // The library's texts are in normal form C; what a terminal gives need not be.
    const auto değer = [&değişkenler](QStringView ad) {
        return değişkenler.Değer(ad).normalized(QString::NormalizationForm_C);
    };
    DökümSüzgeci süzgeç{değer(u"yazar"), {}};
    if (değişkenler.Var(u"sözcük"))
        süzgeç.Sözcük.emplace(QString(u'*' + değer(u"sözcük") + u'*'));
    const QString& hedef = değişkenler.Sıralı()[1];
    HedefYeniOlmalı(hedef, biçim.Hedef);

    Döküm döküm(KlasörYolu(değişkenler.Sıralı()[0]), süzgeç);
    if (değişkenler.Deneme()) {
        döküm.Gez(QStringLiteral("Makaleler okunuyor"), [](const Makale&) {});
        Bildir(DenemeMetni);
    } else {
        biçim.Ver(hedef, [&döküm](const std::function<void(const Makale&)>& al) {
            döküm.Gez(QStringLiteral("Makaleler yazılıyor"), al);
        });
    }
    Bildir(QStringLiteral("Verilen  %1").arg(döküm.Verilen()));
    return döküm.HesapVer();
}
