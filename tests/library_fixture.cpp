#include "library_fixture.h"

#include "store/Bağlantı.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>

DenemeKitaplığı::DenemeKitaplığı(const QList<Makale>& makaleler)
{
    KitaplıkKur(klasör_);
    const Database veritabanı(DosyaBağlantısı(klasör_));
    veritabanı.TekİşlemdeYap([&] { Ekle(veritabanı, makaleler); });
}

std::shared_ptr<Bağlantı> DosyaBağlantısı(const QString& klasör, int önbellek)
{
    auto bağlantı = std::make_shared<Bağlantı>(KitaplıkYolu(klasör, DosyaAdları::Kitaplık),
                                               Anahtar{AnahtarTürü::Parola, "Pelikan"}, AçmaKipi::OkuYaz);
    bağlantı->Çalıştır("PRAGMA cache_size=" + QByteArray::number(önbellek));
    return bağlantı;
}

void Ekle(const Database& veritabanı, const QList<Makale>& makaleler)
{
    Recordset kayıtlar = veritabanı.OpenRecordset(QStringLiteral("SELECT * FROM [Makaleler]"));
    for (const Makale& makale : makaleler) {
        kayıtlar.AddNew();
        makale.Yaz(kayıtlar);
        kayıtlar.Update();
    }
}

QList<Makale> Makaleler(const Database& veritabanı)
{
    QList<Makale> makaleler;
    Recordset r = veritabanı.OpenRecordset(QStringLiteral("SELECT * FROM [Makaleler] ORDER BY Kimlik"));
    for (; !r.Eof(); r.MoveNext())
        makaleler.append(Makale::Oku(r));
    return makaleler;
}

int HataNumarası(const std::function<void()>& iş)
try {
    iş();
    return 0;
} catch (const VeritabanıHatası& hata) {
    return hata.Numara();
}

QString UzunMetin(int tohum, qsizetype boy)
{
    constexpr QStringView harfler = u"abcçdefgğhıijklmnoöprsştuüvyz ABCÇDEFGĞHIİJKLMNOÖPRSŞTUÜVYZ\n";
    QRandomGenerator rastgele(static_cast<quint32>(tohum));
    QString metin(boy, Qt::Uninitialized);
    for (QChar& harf : metin)
        harf = harfler[rastgele.bounded(int(harfler.size()))];
    return metin;
}

QList<Makale> ÖrnekMakaleler()
{
    QList<Makale> makaleler;
    for (int i = 0; i < 200; ++i)
        makaleler.append({QStringLiteral("YAZAR %1").arg(i % 7), QStringLiteral("BAŞLIK %1").arg(i),
                          UzunMetin(i, i % 20 ? 10 * i : 30'000), QStringLiteral("Rize"),
                          QStringLiteral("1999")});
    return makaleler;
}

QByteArray DosyaOku(const QString& yol)
{
    QFile dosya(yol);
    return dosya.open(QIODevice::ReadOnly) ? dosya.readAll() : QByteArray();
}

void DosyaYaz(const QString& yol, const QByteArray& baytlar)
{
    QFile dosya(yol);
    if (!dosya.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || dosya.write(baytlar) != baytlar.size())
        qFatal("cannot write %s", qPrintable(yol));
}

QMap<QString, QByteArray> KlasörOku(const QString& klasör)
{
    QMap<QString, QByteArray> dosyalar;
    for (const QString& ad : QDir(klasör).entryList(QDir::Files | QDir::Hidden | QDir::System))
        dosyalar.insert(ad, DosyaOku(klasör + ad));
    return dosyalar;
}
