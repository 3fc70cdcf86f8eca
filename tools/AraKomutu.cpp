#include "app/Oturum.h"
#include "store/MakaleArama.h"
#include "store/MakaleTablosu.h"
#include "text/TürkçeArama.h"
#include "tools/AraçHatası.h"
#include "tools/Durdurma.h"
#include "tools/JsonSatırları.h"
#include "tools/KomutGövdeleri.h"
#include "tools/Künye.h"
#include "tools/Uçbirim.h"

#include <optional>

namespace {

constexpr auto VuruşBaşı = "\x1b[1;31m"; // bold and red, as the program marks words
constexpr auto VuruşSonu = "\x1b[0m";

std::vector<QStringList> aranan(const Değişkenler& değişkenler)
{
    std::vector<QStringList> sözcükler;
    for (const QString& yazılan : değişkenler.Sıralı().mid(1)) {
        const QString sözcük = yazılan.trimmed().normalized(QString::NormalizationForm_C);
        if (sözcük.isEmpty())
            throw YanlışKullanım(QStringLiteral("Aranacak sözcük boş."));
        sözcükler.push_back(değişkenler.Var(u"kök") ? KökBiçimleri(sözcük) : QStringList(sözcük));
    }
    return sözcükler;
}

QByteArray işaretliBağlam(const AramaSonucu& sonuç, bool uçbirim)
{
    QByteArray satır;
    qsizetype yazılan = 0;
    const QString bağlam = Görünür(sonuç.Bağlam);
    for (const auto& [yer, boy] : sonuç.İşaretler) {
        satır += bağlam.mid(yazılan, yer - yazılan).toUtf8();
        const QByteArray vuruş = bağlam.mid(yer, boy).toUtf8();
        satır += uçbirim ? VuruşBaşı + vuruş + VuruşSonu : vuruş;
        yazılan = yer + boy;
    }
    return satır + bağlam.mid(yazılan).toUtf8();
}

QByteArray yazıSatırı(const AramaSonucu& sonuç, bool uçbirim)
{
    const Makale& makale = sonuç.Bulunan;
    const QString künye = Sıralanmış({ListeMetni(makale), makale.Yer, makale.Tarih});
    return Görünür(künye).toUtf8() + "\n    " + işaretliBağlam(sonuç, uçbirim) + '\n';
}

QByteArray jsonSatırı(const AramaSonucu& sonuç)
{
    QByteArray satır = "{\"Puan\": " + QByteArray::number(sonuç.Puan);
    for (const SütunTanımı& sütun : MakaleSütunları) {
        if (sütun.değer != &Makale::Metin)
            satır += ", \"" + sütun.ad.toUtf8() + "\": " + JsonDizesi(sonuç.Bulunan.*sütun.değer);
    }
    return satır + ", \"Baglam\": " + JsonDizesi(sonuç.Bağlam) + "}\n";
}

std::vector<AramaSonucu> ara(const Değişkenler& değişkenler)
{
    const std::vector<QStringList> sözcükler = aranan(değişkenler);
    Oturum oturum;
    oturum.SahipOlarakAç(KlasörYolu(değişkenler.Sıralı()[0]), Oturum::Erişim::Okuma);
    const DurdurmaBekçisi bekçi;
    İlerleme ilerleme(QStringLiteral("Aranıyor"));
    return MakaleAra(*oturum.Veritabanı, sözcükler, [&, bakılan = qint64(0)]() mutable {
        bekçi.Bak();
        ilerleme.Göster(++bakılan, 0);
    });
}

} // namespace

ÇıkışDurumu AraKomutu(const Değişkenler& değişkenler)
{
    const std::vector<AramaSonucu> sonuçlar = ara(değişkenler);
    const bool json = değişkenler.Var(u"json");
    Çıktı çıktı;
    for (const AramaSonucu& sonuç : sonuçlar)
        çıktı.Yaz(json ? jsonSatırı(sonuç) : yazıSatırı(sonuç, çıktı.Uçbirim()));
    çıktı.Bitir();
    if (!json)
        Bildir(QStringLiteral("%1 makale bulundu.").arg(sonuçlar.size()));
    return Başarılı;
}
