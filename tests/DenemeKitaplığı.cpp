#include "DenemeKitaplığı.h"

#include "store/Bağlantı.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QRandomGenerator>

namespace {

const QString TümüSql = QStringLiteral("SELECT * FROM [Makaleler]");

Database aç(DBEngine& motor, std::optional<Workspace>& alan, const QString& klasör,
            const DBEngine::İlerlemeBildirimi& bildir)
{
    motor.SystemDB(KitaplıkYolu(klasör, KitaplıkDosyaları::ÇalışmaGrubu));
    {
        Workspace sahip = SahipÇalışmaAlanı(motor);
        VeritabanınıSıkıştır(motor, klasör, bildir);
        KullanıcıHesabınıHazırla(sahip);
    }
    alan = KullanıcıÇalışmaAlanı(motor);
    return KitaplıkAç(*alan, klasör);
}

} // namespace

DenemeKitaplığı::DenemeKitaplığı(const QList<Makale>& makaleler)
    : geçici_(std::make_unique<QTemporaryDir>()), klasör_(geçici_->path() + u'/')
{
    kur(makaleler);
}

DenemeKitaplığı::DenemeKitaplığı(const QString& klasör, const QList<Makale>& makaleler) : klasör_(klasör)
{
    kur(makaleler);
}

void DenemeKitaplığı::kur(const QList<Makale>& makaleler)
{
    KitaplıkKur(klasör_);
    const Database veritabanı(DosyaBağlantısı(klasör_));
    veritabanı.TekİşlemdeYap([&] { Ekle(veritabanı, makaleler); });
}

Açılış::Açılış(const QString& klasör, const DBEngine::İlerlemeBildirimi& bildir)
    : Motor(bildir), Veritabanı(aç(Motor, Alan, klasör, bildir))
{
}

std::unique_ptr<QProcess> YardımcıSüreç(const QStringList& sözler)
{
    auto süreç = std::make_unique<QProcess>();
    süreç->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    süreç->start(QStringLiteral(ACILIS_SURECI), sözler);
    while (süreç->state() != QProcess::NotRunning && !süreç->canReadLine())
        süreç->waitForReadyRead();
    return süreç->readLine() == "hazır\n" ? std::move(süreç) : nullptr;
}

std::shared_ptr<Bağlantı> DosyaBağlantısı(const QString& klasör, int önbellek)
{
    auto bağlantı = std::make_shared<Bağlantı>(KitaplıkYolu(klasör, KitaplıkDosyaları::Veritabanı),
                                               Anahtar{AnahtarTürü::Parola, "Pelikan"}, AçmaKipi::OkuYaz);
    if (önbellek > 0)
        bağlantı->Çalıştır("PRAGMA cache_size=" + QByteArray::number(önbellek));
    return bağlantı;
}

void Ekle(const Database& veritabanı, const QList<Makale>& makaleler)
{
    Recordset kayıtlar = veritabanı.OpenRecordset(TümüSql);
    for (const Makale& makale : makaleler) {
        kayıtlar.AddNew();
        kayıtlar.Fields(u"YazarAdi").Value(makale.Yazar);
        kayıtlar.Fields(u"MakaleBasligi").Value(makale.Başlık);
        kayıtlar.Fields(u"MakaleMetni").Value(makale.Metin);
        kayıtlar.Fields(u"YayimYeri").Value(makale.Yer);
        kayıtlar.Fields(u"YayimTarihi").Value(makale.Tarih);
        kayıtlar.Update();
    }
}

QList<Makale> Makaleler(const Database& veritabanı)
{
    QList<Makale> makaleler;
    Recordset kayıtlar = veritabanı.OpenRecordset(TümüSql + QStringLiteral(" ORDER BY Kimlik"));
    for (; !kayıtlar.Eof(); kayıtlar.MoveNext()) {
        makaleler.append({kayıtlar.Fields(u"YazarAdi").Value(), kayıtlar.Fields(u"MakaleBasligi").Value(),
                          kayıtlar.Fields(u"MakaleMetni").Value(), kayıtlar.Fields(u"YayimYeri").Value(),
                          kayıtlar.Fields(u"YayimTarihi").Value()});
    }
    return makaleler;
}

QStringList Değerler(Recordset kayıtlar, QStringView sütun)
{
    QStringList değerler;
    for (; !kayıtlar.Eof(); kayıtlar.MoveNext())
        değerler.append(kayıtlar.Fields(sütun).Value());
    return değerler;
}

int HataNumarası(const std::function<void()>& iş)
{
    try {
        iş();
    } catch (const VeritabanıHatası& hata) {
        return static_cast<int>(hata.Numara());
    }
    return 0;
}

QString UzunMetin(int tohum, qsizetype boy)
{
    static const QString harfler =
        QStringLiteral("abcçdefgğhıijklmnoöprsştuüvyz ABCÇDEFGĞHIİJKLMNOÖPRSŞTUÜVYZ\n");
    QRandomGenerator rastgele(static_cast<quint32>(tohum));
    QString metin(boy, Qt::Uninitialized);
    for (QChar& harf : metin)
        harf = harfler[rastgele.bounded(int(harfler.size()))];
    return metin;
}

QString DamgalıMetin(const QString& gövde)
{
    const QByteArray özet = QCryptographicHash::hash(gövde.toUtf8(), QCryptographicHash::Sha1).toHex();
    return QString::fromLatin1(özet) + u'\n' + gövde;
}

QString MetninDamgası(const QString& damgalıMetin)
{
    const QString damga = damgalıMetin.section(u'\n', 0, 0);
    return DamgalıMetin(damgalıMetin.mid(damga.size() + 1)) == damgalıMetin ? damga : QString();
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
    const QStringList adlar = QDir(klasör).entryList(QDir::Files | QDir::Hidden | QDir::System);
    for (const QString& ad : adlar)
        dosyalar.insert(ad, DosyaOku(klasör + ad));
    return dosyalar;
}
