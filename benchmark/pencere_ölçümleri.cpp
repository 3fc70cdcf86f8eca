#include "Ölçümler.h"

#include "app/OrtakDeğişkenlerModülü.h"
#include "controls/ListeKutusu.h"
#include "forms/AnaForm.h"
#include "store/MakaleKitaplığı.h"

#include <QCoreApplication>
#include <QPlainTextEdit>

namespace {

constexpr double TıklamaAmacı = 100; // ms
constexpr double BüyümeAmacı = 3;
constexpr int AmaçlıBaşlıkSayısı = 10'000;
constexpr int Tekrar = 15;
constexpr int TıklamaTekrarı = 101;

const QString YazarlarSql =
    QStringLiteral("SELECT DISTINCT [YazarAdi] FROM [Makaleler] ORDER BY [YazarAdi] ASC");
const QString YazarınMakaleleriSql = QStringLiteral("SELECT * FROM [Makaleler] WHERE [YazarAdi]='%1'");

ListeKutusu& liste(const PencereOrtamı& ortam, const QString& ad)
{
    auto* bulunan = static_cast<ListeKutusu*>(ortam.Pencere.findChild<QListView*>(ad));
    Sağla(bulunan != nullptr, "a list box of that name");
    return *bulunan;
}

ListeKutusu& yazarListesi(const PencereOrtamı& ortam)
{
    return liste(ortam, QStringLiteral("YazarListesi"));
}

ListeKutusu& makaleListesi(const PencereOrtamı& ortam)
{
    return liste(ortam, QStringLiteral("MakaleListesi"));
}

QPlainTextEdit& metinKutusu(const PencereOrtamı& ortam)
{
    auto* bulunan = ortam.Pencere.findChild<QPlainTextEdit*>(QStringLiteral("MakaleMetniKutusu"));
    Sağla(bulunan != nullptr, "the text box");
    return *bulunan;
}

/// What is measured ends when the window shows it.
void boya()
{
    QCoreApplication::processEvents();
}

void tıkla(ListeKutusu& liste, int sıra)
{
    liste.ListIndex(sıra);
    boya();
}

/// A visible text box outside the window, as large as the window's, that shows a text and does nothing else.
class ÇıplakMetinKutusu
{
public:
    explicit ÇıplakMetinKutusu(const QPlainTextEdit& örnek)
    {
        kutu_.setFont(örnek.font());
        kutu_.resize(örnek.size());
        kutu_.show();
        boya();
    }
    void Göster(const QByteArray& utf8)
    {
        kutu_.setPlainText(QString::fromUtf8(utf8));
        boya();
    }

private:
    QPlainTextEdit kutu_;
};

int değerleriOku(const QString& sql, QStringView sütun)
{
    int satır = 0;
    qsizetype uzunluk = 0;
    Recordset kayıtlar = Veritabanı->OpenRecordset(sql);
    for (; !kayıtlar.Eof(); kayıtlar.MoveNext(), ++satır)
        uzunluk += kayıtlar.Fields(sütun).Value().size();
    Sağla(uzunluk > 0, "values");
    return satır;
}

/// Nothing of the library is in memory any more.
void kitaplığıTazele()
{
    Veritabanı = KitaplıkAç(*ÇalışmaAlanı, ProgramKlasörü);
}

/// Shows the articles of the author.
void yazarıSeç(const PencereOrtamı& ortam, QStringView yazar)
{
    ListeKutusu& yazarlar = yazarListesi(ortam);
    const int sıra = yazarlar.ÖnekleBul(yazar);
    Sağla(sıra >= 0, "the author in the list");
    tıkla(yazarlar, sıra);
}

} // namespace

void YazarListesiniÖlç(const PencereOrtamı& ortam)
{
    const int yazarlar = yazarListesi(ortam).ListCount();
    Ölçüm ölçüm{QStringLiteral("Yazar listesini doldurma"),
                [&ortam] {
                    ortam.Pencere.YazarListesiYükle();
                    boya();
                },
                QStringLiteral("sorgu ve değerlerini okuma"),
                [yazarlar] { Sağla(değerleriOku(YazarlarSql, u"YazarAdi") == yazarlar, "all authors"); },
                Tekrar};
    ölçüm.İşHazırlığı = ölçüm.TabanHazırlığı = &kitaplığıTazele;
    ortam.Çizelge.Satır(ölçüm);
}

void YazarTıklamasınıÖlç(const PencereOrtamı& ortam)
{
    ListeKutusu& yazarlar = yazarListesi(ortam);
    const int başlıklar = ortam.Kitaplık.ÇokYazanınMakaleleri();
    const int sıra = yazarlar.ÖnekleBul(ÖrnekKitaplık::ÇokYazan);
    const QString sql = YazarınMakaleleriSql.arg(ÖrnekKitaplık::ÇokYazan);
    Ölçüm ölçüm{QStringLiteral("%L1 başlıklı yazara tıklama").arg(başlıklar),
                [&yazarlar, sıra] { tıkla(yazarlar, sıra); }, QStringLiteral("sorgu ve başlıklarını okuma"),
                [&sql, başlıklar] { Sağla(değerleriOku(sql, u"MakaleBasligi") == başlıklar, "all titles"); },
                Tekrar};
    ölçüm.İşHazırlığı = [&yazarlar, sıra] {
        tıkla(yazarlar, sıra == 0 ? 1 : 0);
        kitaplığıTazele();
    };
    ölçüm.TabanHazırlığı = &kitaplığıTazele;
    if (başlıklar >= AmaçlıBaşlıkSayısı)
        ölçüm.Hedef = Amaç{Amaç::Tür::Süre, TıklamaAmacı};
    ortam.Çizelge.Satır(ölçüm);
    Sağla(makaleListesi(ortam).ListCount() == başlıklar, "a full list of titles");
}

void BaşlıkTıklamasınıÖlç(const PencereOrtamı& ortam)
{
    yazarıSeç(ortam, ÖrnekKitaplık::ÇokYazan);
    ListeKutusu& başlıklar = makaleListesi(ortam);
    QPlainTextEdit& kutu = metinKutusu(ortam);
    ÇıplakMetinKutusu çıplak(kutu);
    QRandomGenerator rastgele(1);
    int sıra = 0;
    QByteArray gösterilen;
    Ölçüm ölçüm{QStringLiteral("Başlığa tıklama"),
                [&] { tıkla(başlıklar, sıra); },
                QStringLiteral("aynı metni yalnız gösterme"),
                [&] { çıplak.Göster(gösterilen); },
                TıklamaTekrarı,
                Amaç{Amaç::Tür::Büyüme, BüyümeAmacı}};
    ölçüm.İşHazırlığı = [&] {
        sıra = (sıra + 1 + rastgele.bounded(başlıklar.ListCount() - 1)) % başlıklar.ListCount();
    };
    ölçüm.TabanHazırlığı = [&] {
        const QByteArray yeni = kutu.toPlainText().toUtf8();
        Sağla(!yeni.isEmpty() && yeni != gösterilen, "another article");
        gösterilen = yeni;
    };
    ortam.Çizelge.Satır(ölçüm);
}

void UzunMakaleyiÖlç(const PencereOrtamı& ortam)
{
    yazarıSeç(ortam, ÖrnekKitaplık::UzunYazan);
    ListeKutusu& başlıklar = makaleListesi(ortam);
    QPlainTextEdit& kutu = metinKutusu(ortam);
    const QList<qsizetype>& uzunluklar = ortam.Kitaplık.Uzunluklar();
    for (qsizetype i = 0; i < uzunluklar.size(); ++i) {
        const int sıra = başlıklar.ÖnekleBul(ÖrnekKitaplık::UzunBaşlık(i));
        tıkla(başlıklar, sıra);
        const QByteArray metin = kutu.toPlainText().toUtf8();
        Sağla(metin.size() >= uzunluklar[i], "the long article");
        ÇıplakMetinKutusu çıplak(kutu);
        Ölçüm ölçüm{QStringLiteral("%L1 MB'lik makaleyi gösterme").arg(uzunluklar[i] / 1'000'000),
                    [&] { tıkla(başlıklar, sıra); }, QStringLiteral("aynı metni yalnız gösterme"),
                    [&] { çıplak.Göster(metin); }, Tekrar};
        ölçüm.İşHazırlığı = [&] {
            başlıklar.ListIndex(-1);
            kutu.clear();
            kitaplığıTazele();
        };
        ölçüm.TabanHazırlığı = [&] { çıplak.Göster({}); };
        ortam.Çizelge.Satır(ölçüm);
    }
}
