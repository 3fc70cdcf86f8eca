#include "ÖrnekKitaplık.h"

#include "app/Oturum.h"
#include "store/MakaleKitaplığı.h"
#include "text/TürkçeHarfler.h"

#include <QSet>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr quint32 Tohum = 20030215;
constexpr int EnÇokMakale = 10'000; // of one author
constexpr int YazarBaşınaMakale = 50;
constexpr qsizetype MetinBoyu = 3'000;

constexpr QStringView Ünsüzler = u"bcçdfgğhjklmnprsştvyz";
constexpr std::array<QStringView, 2> Ünlüler = {u"aıou", u"eiöü"}; // back and front; a word has one kind

} // namespace

MetinÜreteci::MetinÜreteci(quint32 tohum) : rastgele_(tohum)
{
    QSet<QString> görülen;
    while (sözcükler_.size() < SözcükSayısı) {
        const QString yeni = yeniSözcük();
        if (görülen.contains(yeni))
            continue;
        görülen.insert(yeni);
        sözcükler_.append(yeni);
    }
}

QString MetinÜreteci::yeniSözcük()
{
    const QStringView ünlüler = Ünlüler[static_cast<std::size_t>(Sayı(2))];
    const auto birHarf = [this](QStringView harfler) {
        return harfler[Sayı(static_cast<int>(harfler.size()))];
    };
    QString yeni;
    for (int hece = 1 + Sayı(4); hece > 0; --hece) {
        if (!yeni.isEmpty() || Sayı(4) > 0)
            yeni += birHarf(Ünsüzler);
        yeni += birHarf(ünlüler);
        if (Sayı(3) == 0)
            yeni += birHarf(Ünsüzler);
    }
    return yeni;
}

const QString& MetinÜreteci::sözcük()
{
    const double yer = std::pow(rastgele_.generateDouble(), 3); // the first words come up most
    return sözcükler_[static_cast<int>(yer * SözcükSayısı)];
}

void MetinÜreteci::tümceEkle(QString& metin)
{
    const qsizetype baş = metin.size();
    for (int kalan = 5 + Sayı(10); kalan > 0; --kalan) {
        metin += sözcük();
        if (kalan > 1)
            metin += Sayı(9) == 0 ? QStringLiteral(", ") : QStringLiteral(" ");
    }
    metin[baş] = QChar(BüyükHarf(metin[baş].unicode()));
    metin += u'.';
}

QString MetinÜreteci::Metin(qsizetype boy)
{
    QString metin;
    metin.reserve(boy + MetinBoyu);
    while (true) {
        tümceEkle(metin);
        if (metin.size() >= boy)
            return metin;
        metin += Sayı(5) == 0 ? u'\n' : u' ';
    }
}

QString MetinÜreteci::Başlık(int sıra)
{
    QString başlık;
    for (int kalan = 3 + Sayı(4); kalan > 0; --kalan)
        başlık += sözcük() + u' ';
    return BüyükHarfeÇevir(başlık + QString::number(sıra + 1));
}

QString MetinÜreteci::YazarAdı(int sıra) const
{
    const int ad = (sıra * 37 + 11) % SözcükSayısı;
    return BüyükHarfeÇevir(sözcükler_[ad] + u' ' + sözcükler_[sıra]);
}

ÖrnekKitaplık::ÖrnekKitaplık(const QString& klasör, int makaleSayısı, const QList<qsizetype>& uzunluklar)
    : klasör_(klasör), makaleSayısı_(makaleSayısı),
      çokYazanınMakaleleri_(std::min(makaleSayısı / 2, EnÇokMakale)), uzunluklar_(uzunluklar)
{
    KitaplıkKur(klasör_);
    doldur();
}

void ÖrnekKitaplık::doldur() const
{
    Oturum oturum;
    oturum.SahipOlarakAç(klasör_, Oturum::Erişim::Yazma);
    Recordset kayıtlar = oturum.Veritabanı->OpenRecordset(QStringLiteral("SELECT * FROM [Makaleler]"));
    const auto ekle = [&kayıtlar](const Makale& makale) { KaydıEkle(kayıtlar, makale); };
    oturum.Veritabanı->TekİşlemdeYap([&] {
        MetinÜreteci üreteç(Tohum);
        for (int i = 0; i < makaleSayısı_; ++i)
            ekle(makale(üreteç, i));
        for (qsizetype i = 0; i < uzunluklar_.size(); ++i)
            ekle({UzunYazan.toString(), UzunBaşlık(i), üreteç.Metin(uzunluklar_[i])});
    });
}

Makale ÖrnekKitaplık::makale(MetinÜreteci& üreteç, int sıra) const
{
    static const QStringList yerler = {QStringLiteral("Ankara"), QStringLiteral("İstanbul"),
                                       QStringLiteral("İzmir"), QStringLiteral("Diyarbakır"), QString()};
    static const QStringList aylar = {QStringLiteral("Ocak"), QStringLiteral("Şubat"),
                                      QStringLiteral("Ağustos"), QStringLiteral("Kasım")};
    const bool çokYazan = sıra % (makaleSayısı_ / çokYazanınMakaleleri_) == 0;
    const int yazarlar = std::max(1, makaleSayısı_ / YazarBaşınaMakale);
    Makale makale;
    makale.Yazar = çokYazan ? ÇokYazan.toString() : üreteç.YazarAdı(üreteç.Sayı(yazarlar));
    makale.Başlık = üreteç.Başlık(sıra);
    makale.Yer = yerler[üreteç.Sayı(static_cast<int>(yerler.size()))];
    makale.Tarih =
        aylar[üreteç.Sayı(static_cast<int>(aylar.size()))] + u' ' + QString::number(1950 + üreteç.Sayı(70));
    makale.Metin = üreteç.Metin(MetinBoyu);
    return makale;
}

void KaydıEkle(Recordset& kayıtlar, const Makale& makale)
{
    kayıtlar.AddNew();
    makale.Yaz(kayıtlar);
    kayıtlar.Update();
}
