#include "app/Oturum.h"
#include "store/KitaplıkDenetimi.h"
#include "store/KitaplıkYapısı.h"
#include "store/KitaplıkYedeği.h"
#include "store/MakaleKuralları.h"
#include "text/TürkçeHarfler.h"
#include "tools/AraçHatası.h"
#include "tools/Durdurma.h"
#include "tools/KomutGövdeleri.h"
#include "tools/Uçbirim.h"

#include <QHash>
#include <QSet>

#include <limits>

namespace {

constexpr int HepsiKalsın = std::numeric_limits<int>::max(); // of the backups

/// A changed article's values, before and after.
struct Onarım
{
    Makale Eski, Yeni; // without their texts
};

/// Every article as it should be written, in the order of their keys. Titles that were taken get the lowest
/// number that makes them unlike all others.
class Onarıcı
{
public:
    explicit Onarıcı(const Database& kitaplık)
        : kayıtlar_(kitaplık.OpenRecordset(QStringLiteral("SELECT * FROM [Makaleler] ORDER BY [Kimlik]")))
    {
        for (; !kayıtlar_.Eof(); kayıtlar_.MoveNext())
            ++başlıklar_[Katla(YazılmışGibi(Makale::KünyesiniOku(kayıtlar_)).Başlık)];
    }

    /// @param değiştir called at each article that changes, while it is the current one
    void Gez(const std::function<void(Recordset&, const Onarım&)>& değiştir, İlerleme& ilerleme,
             const DurdurmaBekçisi& bekçi)
    {
        QSet<QString> görülen;
        kayıtlar_.MoveFirst();
        for (qint64 sıra = 0; !kayıtlar_.Eof(); kayıtlar_.MoveNext()) {
            bekçi.Bak();
            ilerleme.Göster(++sıra, kayıtlar_.RecordCount());
            Onarım onarım{Makale::KünyesiniOku(kayıtlar_), {}};
            onarım.Yeni = YazılmışGibi(onarım.Eski);
            if (görülen.contains(Katla(onarım.Yeni.Başlık)))
                onarım.Yeni.Başlık = boşBaşlık(onarım.Yeni.Başlık);
            görülen.insert(Katla(onarım.Yeni.Başlık));
            if (onarım.Yeni != onarım.Eski)
                değiştir(kayıtlar_, onarım);
            tekSözcüklü_ += onarım.Yeni.Yazar.contains(u' ') ? 0 : 1;
        }
    }

    qint64 TekSözcüklü() const { return tekSözcüklü_; } ///< authors that no rule mends

private:
    QString boşBaşlık(const QString& başlık)
    {
        for (int no = 2;; ++no) {
            const QString ek = QStringLiteral(" (%1)").arg(no);
            QString yeni = başlık.left(Tanım(MakaleSütunu::MakaleBasligi).enUzun - ek.size());
            if (!yeni.isEmpty() && yeni.back().isHighSurrogate()) // half of a letter
                yeni.chop(1);
            yeni += ek;
            if (++başlıklar_[Katla(yeni)] == 1)
                return yeni;
        }
    }

    Recordset kayıtlar_;
    QHash<QString, int> başlıklar_; // folded: how many articles have it, or will
    qint64 tekSözcüklü_ = 0;
};

QString onarımSatırı(const Onarım& onarım)
{
    QStringList değişenler;
    for (const SütunTanımı& sütun : MakaleSütunları) {
        if (onarım.Eski.*sütun.değer != onarım.Yeni.*sütun.değer)
            değişenler.append(QStringLiteral("%1: “%2” → “%3”")
                                  .arg(sütun.ad, onarım.Eski.*sütun.değer, onarım.Yeni.*sütun.değer));
    }
    return değişenler.join(QStringLiteral("; "));
}

void künyeyiYaz(Recordset& kayıtlar, const Onarım& onarım)
{
    kayıtlar.Edit();
    for (const SütunTanımı& sütun : MakaleSütunları) {
        if (onarım.Eski.*sütun.değer != onarım.Yeni.*sütun.değer)
            kayıtlar.Fields(sütun.ad).Value(onarım.Yeni.*sütun.değer);
    }
    kayıtlar.Update();
}

/// Beside the program folder, where nothing else was said.
void yedekAl(const QString& klasör, const QString& hedef, const DurdurmaBekçisi& bekçi)
{
    const QString yer = hedef.isEmpty() ? klasör.chopped(1) + QStringLiteral("-yedek") : hedef;
    YedekSonucu sonuç;
    {
        İlerleme ilerleme(QStringLiteral("Yedek alınıyor"));
        sonuç = Yedekle(klasör, yer, HepsiKalsın, YedekKipi::Yap, ilerleme.Sürdüren(bekçi));
    }
    Bildir(QStringLiteral("Yedek: %1").arg(sonuç.Yol));
}

} // namespace

ÇıkışDurumu DenetleKomutu(const Değişkenler& değişkenler)
{
    DenetimSonucu sonuç;
    {
        İlerleme ilerleme(QStringLiteral("Kitaplık denetleniyor"));
        sonuç =
            KitaplığıDenetle(KlasörYolu(değişkenler.Sıralı()[0]),
                             [&ilerleme](qint64 okunan, qint64 toplam) { ilerleme.Göster(okunan, toplam); });
    }
    Çıktı çıktı;
    for (const DenetimBulgusu& bulgu : sonuç.Bulgular)
        çıktı.Yaz(QStringLiteral("%1: %2: %3\n").arg(bulgu.Dosya).arg(int(bulgu.Numara)).arg(bulgu.Metin));
    for (const QString& not_ : sonuç.Notlar)
        çıktı.Yaz(QStringLiteral("Not: %1\n").arg(not_));
    çıktı.Yaz(sonuç.Bulgular.empty()
                  ? QStringLiteral("Kitaplık sağlam; %1 makale var.\n").arg(sonuç.MakaleSayısı)
                  : QStringLiteral("Kitaplıkta sorun var.\n"));
    çıktı.Bitir();
    return sonuç.Bulgular.empty() ? Başarılı : Başarısız;
}

ÇıkışDurumu OnarKomutu(const Değişkenler& değişkenler)
{
    const QString klasör = KlasörYolu(değişkenler.Sıralı()[0]);
    const DurdurmaBekçisi bekçi;
    if (!değişkenler.Deneme())
        yedekAl(klasör, değişkenler.Değer(u"yedek"), bekçi);
    Oturum oturum;
    YapıDurumu durum = YapıDurumu::Sağlam;
    if (değişkenler.Deneme())
        oturum.SahipOlarakAç(klasör, Oturum::Erişim::Okuma);
    else
        durum = oturum.SıkıştırıpSahipOlarakAç(klasör);
    QStringList satırlar;
    qint64 tekSözcüklü = 0;
    const auto onar = [&] {
        İlerleme ilerleme(QStringLiteral("Makaleler onarılıyor"));
        Onarıcı onarıcı(*oturum.Veritabanı);
        const auto değiştir = [&](Recordset& kayıtlar, const Onarım& onarım) {
            satırlar.append(onarımSatırı(onarım));
            if (!değişkenler.Deneme())
                künyeyiYaz(kayıtlar, onarım);
        };
        onarıcı.Gez(değiştir, ilerleme, bekçi);
        tekSözcüklü = onarıcı.TekSözcüklü();
    };
    if (değişkenler.Deneme())
        onar();
    else
        oturum.Veritabanı->TekİşlemdeYap(onar);

    Çıktı çıktı;
    if (değişkenler.Deneme())
        çıktı.Yaz(DenemeMetni + u'\n');
    if (durum == YapıDurumu::DizinBozuk)
        çıktı.Yaz(QStringLiteral("Bir dizin bozuktu; yeniden yapıldı.\n"));
    for (const QString& satır : satırlar)
        çıktı.Yaz(satır + u'\n');
    çıktı.Yaz(QStringLiteral("Değişen makale  %1\n").arg(satırlar.size()));
    çıktı.Bitir();
    if (tekSözcüklü == 0)
        return Başarılı;
    HataBildir(QStringLiteral("%1 makalenin yazar adı tek sözcük; bunları program penceresinde siz düzeltin.")
                   .arg(tekSözcüklü));
    return Başarısız;
}
