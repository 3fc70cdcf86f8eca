#include "tools/Aktarıcı.h"

#include "store/Database.h"
#include "text/TürkçeHarfler.h"

#include <QCryptographicHash>

namespace {

// None of the library's rows: what is appended needs no look at what is there.
const QString EklemeSorgusu = QStringLiteral("SELECT * FROM [Makaleler] WHERE 1=0");

QString sorguDeğeri(QString değer)
{
    return u'\'' + değer.replace(u'\'', QStringLiteral("''")) + u'\'';
}

QByteArray özet(const QString& metin)
{
    return QCryptographicHash::hash(
        QByteArrayView(reinterpret_cast<const char*>(metin.utf16()), metin.size() * qsizetype(sizeof(QChar))),
        QCryptographicHash::Blake2b_256);
}

QString eksikCümlesi(MakaleEksiği eksik)
{
    switch (eksik) {
    case MakaleEksiği::YazarAdıBoş:
        return QStringLiteral("Yazar adı yok.");
    case MakaleEksiği::YazarAdıTekSözcük:
        return QStringLiteral("Yazar adı tek sözcük.");
    case MakaleEksiği::BaşlıkBoş:
        return QStringLiteral("Başlık yok.");
    case MakaleEksiği::YerBoş:
        return QStringLiteral("Yayım yeri yok.");
    case MakaleEksiği::MetinBoş:
        return QStringLiteral("Metin yok.");
    case MakaleEksiği::Yok:
        break;
    }
    return {};
}

} // namespace

QString RetNedeni(const Makale& makale, Talep talep)
{
    if (talep == Talep::Pencereler) {
        if (const MakaleEksiği eksik = EksiğiBul(makale); eksik != MakaleEksiği::Yok)
            return eksikCümlesi(eksik);
    }
    return DeğerSorunu(makale);
}

Aktarıcı::Aktarıcı(const Database& kitaplık, Yazım yazım, bool yaz)
    : kitaplık_(kitaplık), yazım_(yazım), yaz_(yaz), kayıtlar_(kitaplık.OpenRecordset(EklemeSorgusu))
{
}

/// Each author and title is looked up once, however many articles have them.
Aktarıcı::Özetler& Aktarıcı::aynıAdlılar(const Makale& makale)
{
    const QString anahtar = Katla(makale.Yazar) + QChar(u'\0') + Katla(makale.Başlık);
    const auto yer = metinler_.find(anahtar);
    if (yer != metinler_.end())
        return *yer;
    Özetler& özetler = metinler_[anahtar];
    Recordset bulunanlar = kitaplık_.OpenRecordset(
        QStringLiteral("SELECT * FROM [Makaleler] WHERE [YazarAdi]=%1 AND [MakaleBasligi]=%2")
            .arg(sorguDeğeri(makale.Yazar), sorguDeğeri(makale.Başlık)));
    for (; !bulunanlar.Eof(); bulunanlar.MoveNext())
        özetler.insert(özet(Makale::MetniniOku(bulunanlar)));
    return özetler;
}

bool Aktarıcı::başlıkVar(const QString& başlık)
{
    const QString anahtar = Katla(başlık);
    if (başlıklar_.contains(anahtar))
        return true;
    başlıklar_.insert(anahtar);
    return !kitaplık_
                .OpenRecordset(QStringLiteral("SELECT 1 FROM [Makaleler] WHERE [MakaleBasligi]=%1 LIMIT 1")
                                   .arg(sorguDeğeri(başlık)))
                .Eof();
}

AktarımSatırı Aktarıcı::Al(const GelenMakale& gelen, Talep talep)
{
    Makale makale = yazım_ == Yazım::YazılmışGibi ? YazılmışGibi(gelen.Değer) : gelen.Değer;
    for (const SütunTanımı& sütun : MakaleSütunları)
        makale.*sütun.değer = (makale.*sütun.değer).normalized(QString::NormalizationForm_C);
    AktarımSatırı satır{AktarımSonucu::Reddedildi, gelen.Nerede, makale.Yazar, makale.Başlık, gelen.Ret};
    if (satır.Neden.isEmpty())
        satır.Neden = RetNedeni(makale, talep);
    if (!satır.Neden.isEmpty())
        return satır;

    Özetler& özetler = aynıAdlılar(makale);
    const QByteArray yeni = özet(makale.Metin);
    if (özetler.contains(yeni)) {
        satır.Sonuç = AktarımSonucu::Atlandı;
        return satır;
    }
    özetler.insert(yeni);
    satır.Sonuç = başlıkVar(makale.Başlık) ? AktarımSonucu::AynıBaşlıklı : AktarımSonucu::Alındı;
    if (yaz_) {
        kayıtlar_.AddNew();
        makale.Yaz(kayıtlar_);
        kayıtlar_.Update();
    }
    return satır;
}
