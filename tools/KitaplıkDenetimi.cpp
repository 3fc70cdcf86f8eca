#include "tools/KitaplıkDenetimi.h"

#include "store/KitaplıkDosyası.h"
#include "store/MakaleKitaplığı.h"
#include "store/MakaleTablosu.h"
#include "store/ÇalışmaGrubu.h"
#include "tools/AraçHatası.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QUtf8StringView>

#include <optional>
#include <vector>

namespace {

constexpr qint64 EnÇokMakale = 20; // bad articles that are named one by one
constexpr qsizetype EnUzunAd = 80; // characters of a title that names one

const QString KitaplıkParolası = QStringLiteral("Pelikan");
const QString GünlükEki = QStringLiteral("-journal");

// The sum keeps the table's own order out of it, so that the keys come from an index and a damaged
// page of the table costs only its own rows.
constexpr auto KimliklerSql = "SELECT Kimlik FROM Makaleler ORDER BY Kimlik+0";
constexpr auto SatırSql = "SELECT YazarAdi, MakaleBasligi, YayimYeri, YayimTarihi, MakaleMetni"
                          " FROM Makaleler WHERE Kimlik=?1";
constexpr auto DizindenBaşlıkSql = "SELECT MakaleBasligi FROM Makaleler WHERE Kimlik+0=?1";
constexpr auto YinelenenSql =
    "SELECT count(*) FROM (SELECT 1 FROM Makaleler GROUP BY MakaleBasligi HAVING count(*)>1)";

QString numaralıCümle(HataNo numara)
{
    return QStringLiteral("%1 %2").arg(int(numara)).arg(VeritabanıHatası(numara).Açıklama());
}

class Denetçi
{
public:
    Denetçi(const QString& klasör, const DenetimBildirimi& bildir);

    void ÇalışmaGrubunuDenetle();
    void VeritabanınıDenetle();
    DenetimSonucu Sonuç() { return std::move(sonuç_); }

private:
    template<typename İş> bool dene(QStringView dosya, İş&& iş);
    void bulgu(QStringView dosya, const QString& cümle);
    void dosyaOlmalı(QStringView dosya);
    void kopyala(QStringView dosya) const;
    void sağlamGrupKur();
    QString denetlenecekKlasör();

    void yapı(Bağlantı& kitaplık);
    void satırlar(Bağlantı& kitaplık);
    QString satırSorunu(Deyim& satır, qint64 kimlik);
    QString değerSorunu(std::string_view değer, MakaleSütunu sütun);
    void notlarıYaz(Bağlantı& kitaplık);

    QString klasör_;
    QTemporaryDir geçici_; // for encrypted copies only
    QString kopyaKlasörü_;
    const DenetimBildirimi& bildir_;
    std::unique_ptr<ÇalışmaGrubu> grup_;
    DenetimSonucu sonuç_;
    qint64 kesmeİşaretli_ = 0, tekSözcüklü_ = 0;
};

Denetçi::Denetçi(const QString& klasör, const DenetimBildirimi& bildir)
    : klasör_(klasör), kopyaKlasörü_(geçici_.path() + u'/'), bildir_(bildir)
{
    if (!geçici_.isValid())
        throw AraçHatası(QStringLiteral("Geçici bir klasör oluşturulamıyor (%1).").arg(QDir::tempPath()));
}

void Denetçi::bulgu(QStringView dosya, const QString& cümle)
{
    sonuç_.Bulgular.append(QStringLiteral("%1: %2").arg(dosya, cümle));
}

// The error's own sentence may name a copy, so only its number is used.
template<typename İş> bool Denetçi::dene(QStringView dosya, İş&& iş)
{
    try {
        iş();
        return true;
    } catch (const VeritabanıHatası& hata) {
        const QString cümle = numaralıCümle(hata.Numara());
        if (!sonuç_.Bulgular.contains(QStringLiteral("%1: %2").arg(dosya, cümle)))
            bulgu(dosya, cümle);
        return false;
    }
}

void Denetçi::dosyaOlmalı(QStringView dosya)
{
    const QFileInfo bilgi(KitaplıkYolu(klasör_, dosya));
    if (!bilgi.exists())
        throw VeritabanıHatası(HataNo::DosyaYok);
    if (!bilgi.isFile())
        throw VeritabanıHatası(HataNo::KitaplıkDeğil);
    if (!bilgi.isReadable())
        throw VeritabanıHatası(HataNo::İzinYok);
    if (!bilgi.isWritable())
        sonuç_.Notlar.append(QStringLiteral("%1: Yazma izni yok; program kitaplığı açamaz.").arg(dosya));
}

void Denetçi::kopyala(QStringView dosya) const
{
    for (const QString& ek : {QString(), GünlükEki}) {
        QFile asıl(KitaplıkYolu(klasör_, dosya) + ek);
        if (!ek.isEmpty() && !asıl.exists())
            continue;
        const QString kopya = KitaplıkYolu(kopyaKlasörü_, dosya) + ek;
        if (!asıl.copy(kopya) || !QFile::setPermissions(kopya, QFile::ReadOwner | QFile::WriteOwner)) {
            throw AraçHatası(QStringLiteral("%1, denetlenmek üzere %2 içine kopyalanamıyor.")
                                 .arg(asıl.fileName(), kopyaKlasörü_));
        }
    }
}

// A copy is checked, since opening a workgroup file finishes what a crash left.
void Denetçi::ÇalışmaGrubunuDenetle()
{
    const QStringView dosya = KitaplıkDosyaları::ÇalışmaGrubu;
    dene(dosya, [&] {
        dosyaOlmalı(dosya);
        kopyala(dosya);
        DBEngine motor;
        motor.SystemDB(KitaplıkYolu(kopyaKlasörü_, dosya));
        SahipÇalışmaAlanı(motor).Users().Tümü();
        auto grup = std::make_unique<ÇalışmaGrubu>(motor.SystemDB());
        if (!grup->KitaplıkParolasıDoğru(KitaplıkParolası))
            throw VeritabanıHatası(HataNo::ParolaYanlış);
        grup_ = std::move(grup);
    });
    if (!grup_)
        sağlamGrupKur();
}

// With any sound workgroup file the library can be looked at.
void Denetçi::sağlamGrupKur()
{
    const QString yedek = kopyaKlasörü_ + QStringLiteral("yedek/");
    QDir().mkpath(yedek);
    KitaplıkKur(yedek);
    grup_ = std::make_unique<ÇalışmaGrubu>(KitaplıkYolu(yedek, KitaplıkDosyaları::ÇalışmaGrubu));
}

QString Denetçi::denetlenecekKlasör()
{
    const QStringView dosya = KitaplıkDosyaları::Veritabanı;
    dosyaOlmalı(dosya);
    if (QFileInfo(KitaplıkYolu(klasör_, dosya) + GünlükEki).size() == 0)
        return klasör_;
    kopyala(dosya);
    // Rolls back what the crash left.
    KitaplıkBağlantısı(KitaplıkYolu(kopyaKlasörü_, dosya), KitaplıkParolası, AçmaKipi::OkuYaz, *grup_);
    sonuç_.Notlar.append(QStringLiteral("%1: Yarım kalmış bir yazma var; kitaplık bir sonraki açılışta ondan "
                                        "önceki durumuna döner.")
                             .arg(dosya));
    return kopyaKlasörü_;
}

void Denetçi::VeritabanınıDenetle()
{
    const QStringView dosya = KitaplıkDosyaları::Veritabanı;
    std::unique_ptr<Bağlantı> kitaplık;
    dene(dosya, [&] {
        kitaplık = KitaplıkBağlantısı(KitaplıkYolu(denetlenecekKlasör(), dosya), KitaplıkParolası,
                                      AçmaKipi::Oku, *grup_);
    });
    if (!kitaplık)
        return;
    dene(dosya, [&] { yapı(*kitaplık); });
    dene(dosya, [&] { satırlar(*kitaplık); });
    dene(dosya, [&] { notlarıYaz(*kitaplık); });
}

void Denetçi::yapı(Bağlantı& kitaplık)
{
    const QStringView dosya = KitaplıkDosyaları::Veritabanı;
    if (QFileInfo(kitaplık.Yol()).size() >
        kitaplık.Sayı("PRAGMA page_count") * kitaplık.Sayı("PRAGMA page_size"))
        bulgu(dosya, QStringLiteral("Dosyanın sonunda kitaplığa ait olmayan baytlar var."));

    kitaplık.İlerlemeAta([this] { bildir_(0, 0); });
    bool dizinSorunu = false, başkaSorun = false;
    Deyim deyim(kitaplık, "PRAGMA integrity_check");
    while (deyim.Adım()) {
        const QString ileti = deyim.Metin(0);
        const bool dizin = ileti.contains(u"from index") || ileti.contains(u"in index");
        dizinSorunu |= dizin;
        başkaSorun |= !dizin && ileti != u"ok";
    }
    if (dizinSorunu) {
        bulgu(dosya, QStringLiteral("Bir dizin tabloyla uyuşmuyor; program dizinleri bir sonraki açılışta "
                                    "yeniden kurar."));
    }
    if (başkaSorun)
        throw VeritabanıHatası(HataNo::DosyaBozuk);
}

void Denetçi::satırlar(Bağlantı& kitaplık)
{
    std::vector<qint64> kimlikler;
    for (Deyim deyim(kitaplık, KimliklerSql); deyim.Adım();)
        kimlikler.push_back(deyim.Sayı(0));
    sonuç_.MakaleSayısı = qint64(kimlikler.size());

    qint64 okunan = 0, sorunlu = 0;
    Deyim satır(kitaplık, SatırSql);
    for (const qint64 kimlik : kimlikler) {
        const QString sorun = satırSorunu(satır, kimlik);
        if (!sorun.isEmpty() && ++sorunlu <= EnÇokMakale) {
            Deyim başlık(kitaplık, DizindenBaşlıkSql);
            const QString ad = başlık.Bağla(1, kimlik).Adım() ? başlık.Metin(0).left(EnUzunAd) : QString();
            bulgu(KitaplıkDosyaları::Veritabanı, QStringLiteral("“%1” başlıklı makale: %2").arg(ad, sorun));
        }
        bildir_(++okunan, sonuç_.MakaleSayısı);
    }
    if (sorunlu > EnÇokMakale)
        bulgu(KitaplıkDosyaları::Veritabanı, QStringLiteral("Toplam %1 makale sorunlu.").arg(sorunlu));
}

/// What is wrong with a row; the empty text where nothing is.
QString Denetçi::satırSorunu(Deyim& satır, qint64 kimlik)
{
    QString sorun;
    try {
        if (!satır.Bağla(1, kimlik).Adım())
            sorun = QStringLiteral("Dizinde var, tabloda yok.");
        for (int i = 0; sorun.isEmpty() && i < int(MakaleSütunları.size()); ++i)
            sorun = değerSorunu(satır.Baytlar(i), static_cast<MakaleSütunu>(i));
    } catch (const VeritabanıHatası& hata) {
        sorun = numaralıCümle(hata.Numara());
    }
    satır.Sıfırla();
    return sorun;
}

QString Denetçi::değerSorunu(std::string_view değer, MakaleSütunu sütun)
{
    const SütunTanımı& tanım = Tanım(sütun);
    if (değer.find('\0') != std::string_view::npos) // what a damaged page deciphers to
        return numaralıCümle(HataNo::DosyaBozuk);
    const QUtf8StringView utf8(değer.data(), qsizetype(değer.size()));
    if (!utf8.isValidUtf8())
        return QStringLiteral("%1 alanı geçerli bir UTF-8 metni değil.").arg(tanım.ad);
    const QString metin = utf8.toString();
    if (metin.size() > tanım.enUzun)
        return QStringLiteral("%1 alanı çok uzun.").arg(tanım.ad);
    if (sütun != MakaleSütunu::YazarAdi && sütun != MakaleSütunu::MakaleBasligi)
        return {};
    const QString sade = metin.simplified();
    if (sade.isEmpty())
        return QStringLiteral("%1 alanı boş.").arg(tanım.ad);
    kesmeİşaretli_ += sade.contains(u'\'') ? 1 : 0;
    tekSözcüklü_ += sütun == MakaleSütunu::YazarAdi && !sade.contains(u' ') ? 1 : 0;
    return {};
}

void Denetçi::notlarıYaz(Bağlantı& kitaplık)
{
    if (kesmeİşaretli_ > 0) {
        sonuç_.Notlar.append(
            QStringLiteral("%1 yazar adında ya da başlıkta kesme işareti (') var; program bu "
                           "makaleleri bulup gösteremez.")
                .arg(kesmeİşaretli_));
    }
    if (tekSözcüklü_ > 0)
        sonuç_.Notlar.append(QStringLiteral("%1 makalenin yazar adı tek sözcük.").arg(tekSözcüklü_));
    if (const qint64 yinelenen = kitaplık.Sayı(YinelenenSql); yinelenen > 0) {
        sonuç_.Notlar.append(
            QStringLiteral("%1 başlık birden çok makalede geçiyor; program bunların ilkini açar.")
                .arg(yinelenen));
    }
}

} // namespace

DenetimSonucu KitaplığıDenetle(const QString& klasör, const DenetimBildirimi& bildir)
{
    const KlasörKilidi kilit(klasör);
    Denetçi denetçi(klasör, bildir);
    denetçi.ÇalışmaGrubunuDenetle();
    denetçi.VeritabanınıDenetle();
    return denetçi.Sonuç();
}
