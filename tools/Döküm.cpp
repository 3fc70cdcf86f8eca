#include "tools/Döküm.h"

#include "store/MakaleKuralları.h"
#include "text/TürkçeHarfler.h"
#include "tools/Künye.h"
#include "tools/Uçbirim.h"

Döküm::Döküm(const QString& klasör, const DökümSüzgeci& süzgeç) : süzgeç_(süzgeç)
{
    oturum_.SahipOlarakAç(klasör, Oturum::Erişim::Okuma);
    İlerleme ilerleme(QStringLiteral("Makaleler aranıyor"));
    oturum_.Veritabanı->İlerlemeAta([&] {
        ilerleme.Göster(0, 0);
        return !bekçi_.Durduruldu();
    });
    okuyucu_.emplace(*oturum_.Veritabanı);
    oturum_.Veritabanı->İlerlemeAta({});
}

/// An article whose author can't be read may be one that is asked for.
bool Döküm::istenen(const MakaleKünyesi& künye) const
{
    if (süzgeç_.Yazar.isEmpty() || künye.YazarAdi.isNull())
        return true;
    Makale aranan;
    aranan.Yazar = süzgeç_.Yazar;
    const QString yazar = Katla(künye.YazarAdi);
    return yazar == Katla(aranan.Yazar) || yazar == Katla(YazılmışGibi(aranan).Yazar);
}

void Döküm::Gez(const QString& iş, const std::function<void(const Makale&)>& al)
{
    İlerleme ilerleme(iş);
    verilen_ = 0;
    for (qint64 sayı = 0; const MakaleKünyesi& künye : okuyucu_->Künyeler()) {
        bekçi_.Bak();
        ilerleme.Göster(++sayı, qint64(okuyucu_->Künyeler().size()));
        if (!istenen(künye))
            continue;
        const auto makale = okuyucu_->Oku(künye);
        if (!makale) {
            eksikler_.insert(künye.Kimlik);
        } else if (!süzgeç_.Sözcük || süzgeç_.Sözcük->Uyar(makale->Metin)) {
            al(*makale);
            ++verilen_;
        }
    }
}

ÇıkışDurumu Döküm::HesapVer() const
{
    const YapıDurumu durum = okuyucu_->Durum();
    for (const MakaleKünyesi& künye : okuyucu_->Künyeler()) {
        if (eksikler_.contains(künye.Kimlik))
            HataBildir(QStringLiteral("Eksik makale: ") + KünyeMetni(künye));
    }
    if (eksikler_.empty() && durum == YapıDurumu::DizinBozuk)
        HataBildir(QStringLiteral("Not: Kitaplığın bir dizini bozuk; makalelerin hepsi yazıldı."));
    if (eksikler_.empty() && durum <= YapıDurumu::DizinBozuk)
        return Başarılı;
    QString cümle = QStringLiteral("Kitaplık bozuk: %1 makale yazıldı, %2 makale eksik.")
                        .arg(verilen_)
                        .arg(eksikler_.size());
    if (okuyucu_->BilinmeyenOlabilir())
        cümle += QStringLiteral(" Adı bilinmeyen başka eksikler de olabilir.");
    if (durum > YapıDurumu::Okunamıyor)
        cümle += QStringLiteral(" Yazılanların bir bölümü eski ya da karışık olabilir.");
    HataBildir(cümle);
    return Başarısız;
}
