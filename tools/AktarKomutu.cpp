#include "app/Oturum.h"
#include "store/SistemHatası.h"
#include "tools/Aktarıcı.h"
#include "tools/AraçHatası.h"
#include "tools/CsvSatırları.h"
#include "tools/Durdurma.h"
#include "tools/Hedef.h"
#include "tools/Kaynaklar.h"
#include "tools/KomutGövdeleri.h"
#include "tools/Uçbirim.h"

#include <QFileInfo>

#include <array>

namespace {

constexpr qsizetype EnÇokÖrnek = 10; // refused articles, and such with a taken title, that are named

QString sonuçAdı(AktarımSonucu sonuç)
{
    switch (sonuç) {
    case AktarımSonucu::Alındı:
    case AktarımSonucu::AynıBaşlıklı:
        return QStringLiteral("aktarıldı");
    case AktarımSonucu::Atlandı:
        return QStringLiteral("atlandı");
    case AktarımSonucu::Reddedildi:
        break;
    }
    return QStringLiteral("reddedildi");
}

/// What is told at the end, and the report.
class AktarımHesabı
{
public:
    /// Throws where the report can't be written.
    /// @param rapor path; empty for none
    explicit AktarımHesabı(const QString& rapor)
    {
        if (rapor.isEmpty())
            return;
        rapor_.emplace(rapor, HedefDosya::Varsa::Değiştir);
        rapor_->Yaz(CsvBaşı({QStringLiteral("Sonuç"), QStringLiteral("Kaynak"), QStringLiteral("Yazar"),
                             QStringLiteral("Başlık"), QStringLiteral("Neden")}));
    }

    void Ekle(const AktarımSatırı& satır)
    {
        ++sayılar_[static_cast<std::size_t>(satır.Sonuç)];
        QString neden = satır.Neden;
        if (satır.Sonuç == AktarımSonucu::AynıBaşlıklı)
            neden = QStringLiteral("Bu başlıkta başka bir makale var; program yalnızca ilkini gösterir.");
        if (rapor_)
            rapor_->Yaz(CsvSatırı(
                QStringList{sonuçAdı(satır.Sonuç), satır.Nerede, satır.Yazar, satır.Başlık, neden}));
        QStringList* const örnekler = satır.Sonuç == AktarımSonucu::Reddedildi     ? &retler_
                                      : satır.Sonuç == AktarımSonucu::AynıBaşlıklı ? &aynılar_
                                                                                   : nullptr;
        if (örnekler && örnekler->size() < EnÇokÖrnek)
            örnekler->append(
                QStringLiteral("  %1: %2")
                    .arg(satır.Nerede, satır.Sonuç == AktarımSonucu::Reddedildi ? neden : satır.Başlık));
    }

    qint64 Toplam() const { return alınan() + sayı(AktarımSonucu::Atlandı) + reddedilen(); }

    void RaporuDiskeYaz()
    {
        if (rapor_)
            rapor_->DiskeYaz();
    }
    /// Not before what it tells of stands.
    void RaporuBitir()
    {
        if (rapor_)
            rapor_->Bitir();
    }

    /// The table, and the first of what was refused.
    ÇıkışDurumu Bildir(bool deneme) const
    {
        if (deneme)
            ::Bildir(DenemeMetni);
        ::Bildir(QStringLiteral("Aktarılan   %1").arg(alınan()));
        ::Bildir(QStringLiteral("Atlanan     %1").arg(sayı(AktarımSonucu::Atlandı)) +
                 (sayı(AktarımSonucu::Atlandı) > 0 ? QStringLiteral(" (kitaplıkta var)") : QString()));
        ::Bildir(QStringLiteral("Reddedilen  %1").arg(reddedilen()));
        örnekleriYaz(QStringLiteral("Başlığı başka bir makaleyle aynı olan (program yalnızca ilkini "
                                    "gösterir): %1"),
                     sayı(AktarımSonucu::AynıBaşlıklı), aynılar_);
        örnekleriYaz(QStringLiteral("Reddedilenler: %1"), reddedilen(), retler_);
        return reddedilen() > 0 ? Başarısız : Başarılı;
    }

private:
    static void örnekleriYaz(const QString& baş, qint64 sayı, const QStringList& örnekler)
    {
        if (sayı == 0)
            return;
        ::Bildir(baş.arg(sayı));
        for (const QString& örnek : örnekler)
            ::Bildir(örnek);
        if (sayı > örnekler.size())
            ::Bildir(
                QStringLiteral("  … ve %1 tane daha; hepsi için --rapor DOSYA.").arg(sayı - örnekler.size()));
    }
    qint64 sayı(AktarımSonucu sonuç) const { return sayılar_[static_cast<std::size_t>(sonuç)]; }
    qint64 alınan() const { return sayı(AktarımSonucu::Alındı) + sayı(AktarımSonucu::AynıBaşlıklı); }
    qint64 reddedilen() const { return sayı(AktarımSonucu::Reddedildi); }

    std::array<qint64, 4> sayılar_ = {};
    QStringList retler_, aynılar_;
    std::optional<HedefDosya> rapor_;
};

KaynakAyarı kaynakAyarı(const Değişkenler& değişkenler)
{
    KaynakAyarı ayar;
    if (değişkenler.Var(u"kalıp"))
        ayar.Kalıp.emplace(değişkenler.Değer(u"kalıp"));
    ayar.Yoksa = {.Yazar = değişkenler.Değer(u"yazar"),
                  .Başlık = {},
                  .Metin = {},
                  .Yer = değişkenler.Değer(u"yer"),
                  .Tarih = değişkenler.Değer(u"tarih")};
    ayar.Sütunlar = değişkenler.Değer(u"sütunlar");
    return ayar;
}

void kaynağıAl(const QString& yol, const KaynakAyarı& ayar, Yazım yazım, const DurdurmaBekçisi& bekçi,
               Aktarıcı& aktarıcı, AktarımHesabı& hesap)
{
    AçıkKaynak açık = KaynakAç(yol, ayar, bekçi);
    const Talep talep = yazım == Yazım::OlduğuGibi ? Talep::Kitaplık : açık.Beklenen;
    İlerleme ilerleme(QStringLiteral("Makaleler aktarılıyor"));
    while (auto gelen = açık.Kaynak->Sonraki()) {
        for (const SütunTanımı& sütun : MakaleSütunları) {
            if ((gelen->Değer.*sütun.değer).isEmpty())
                gelen->Değer.*sütun.değer = ayar.Yoksa.*sütun.değer;
        }
        hesap.Ekle(aktarıcı.Al(*gelen, talep));
        ilerleme.Göster(açık.Kaynak->Boy() > 0 ? açık.Kaynak->Konum() : hesap.Toplam(), açık.Kaynak->Boy());
    }
}

} // namespace

ÇıkışDurumu AktarKomutu(const Değişkenler& değişkenler)
{
    const KaynakAyarı ayar = kaynakAyarı(değişkenler);
    const QString rapor = değişkenler.Değer(u"rapor");
    for (const QString& kaynak : değişkenler.Sıralı().mid(1)) {
        if (!rapor.isEmpty() && QFileInfo(rapor).exists() && QFileInfo(rapor) == QFileInfo(kaynak))
            throw YanlışKullanım(QStringLiteral("Rapor, kaynağın üstüne yazılamaz: %1").arg(rapor));
    }
    const Yazım yazım = değişkenler.Var(u"olduğu-gibi") ? Yazım::OlduğuGibi : Yazım::YazılmışGibi;
    AktarımHesabı hesap(rapor);
    Oturum oturum;
    oturum.SahipOlarakAç(KlasörYolu(değişkenler.Sıralı()[0]),
                         değişkenler.Deneme() ? Oturum::Erişim::Okuma : Oturum::Erişim::Yazma);
    const DurdurmaBekçisi bekçi;
    const auto aktar = [&] {
        Aktarıcı aktarıcı(*oturum.Veritabanı, yazım, !değişkenler.Deneme());
        for (const QString& kaynak : değişkenler.Sıralı().mid(1))
            kaynağıAl(kaynak, ayar, yazım, bekçi, aktarıcı, hesap);
        hesap.RaporuDiskeYaz();
        bekçi.Bak(); // the last article may have been a long one
    };
    if (değişkenler.Deneme())
        aktar();
    else
        oturum.Veritabanı->TekİşlemdeYap(aktar);
    hesap.RaporuBitir();
    return hesap.Bildir(değişkenler.Deneme());
}
