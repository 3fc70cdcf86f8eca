#include "tools/BelgeKaynağı.h"

#include "document/MetinDosyası.h"
#include "document/RtfBilgisi.h"
#include "document/RtfOkuyucu.h"
#include "tools/AraçHatası.h"
#include "tools/Durdurma.h"
#include "tools/MetinKaydı.h"
#include "tools/Uçbirim.h"

#include <QFileInfo>

#include <algorithm>
#include <array>
#include <new>

namespace {

// What other programs must read; all others are read here, whatever they are named.
constexpr std::array<QStringView, 8> ÇevrilenUzantılar = {u"doc",  u"docx",  u"odt",  u"htm",
                                                          u"html", u"xhtml", u"epub", u"pdf"};

bool çevrilir(const QString& yol)
{
    const QString uzantı = QFileInfo(yol).suffix().toLower();
    return std::find(ÇevrilenUzantılar.begin(), ÇevrilenUzantılar.end(), uzantı) != ÇevrilenUzantılar.end();
}

/// The first that says something.
QString ilkDolu(std::initializer_list<QString> değerler)
{
    for (const QString& değer : değerler) {
        if (!değer.trimmed().isEmpty())
            return değer.trimmed();
    }
    return {};
}

} // namespace

BelgeKaynağı::BelgeKaynağı(std::vector<BelgeDosyası> belgeler, const KaynakAyarı& ayar,
                           const DurdurmaBekçisi& bekçi)
    : belgeler_(std::move(belgeler)), ayar_(ayar), bekçi_(bekçi)
{
    çevir();
}

/// All at once, since one process of the word processor does them all.
void BelgeKaynağı::çevir()
{
    QStringList yollar;
    for (const BelgeDosyası& belge : belgeler_) {
        if (belge.Ret.isEmpty() && çevrilir(belge.Yol))
            yollar.append(QFileInfo(belge.Yol).absoluteFilePath());
    }
    if (yollar.isEmpty())
        return;
    İlerleme ilerleme(QStringLiteral("Belgeler çevriliyor"));
    BelgeleriÇevir(
        yollar,
        [&](qsizetype kaçıncı, const ÇevrilenBelge& belge) {
            çevrilenler_.insert(yollar[kaçıncı], belge);
            ilerleme.Göster(kaçıncı + 1, yollar.size());
        },
        [this] {
            bekçi_.Bak();
            return true;
        });
}

Makale BelgeKaynağı::oku(const QString& yol) const
{
    const QByteArray baytlar = DosyaBaytları(yol);
    if (const auto kayıt = MetinKaydıÇöz(baytlar))
        return *kayıt;
    ÇevrilenBelge belge{.Metin = MetinÇöz(baytlar).Metin.trimmed(), .Bilgi = {}, .Neden = {}};
    if (RtfMi(baytlar))
        belge.Bilgi = RtfBilgisiOku(baytlar);
    return künyele(yol, std::move(belge));
}

Makale BelgeKaynağı::künyele(const QString& yol, ÇevrilenBelge belge) const
{
    const Makale yoldan = ayar_.Kalıp ? ayar_.Kalıp->Uygula(QFileInfo(yol).absoluteFilePath()) : Makale();
    const BelgeBilgisi& bilgi = belge.Bilgi;
    return {.Yazar = ilkDolu({bilgi.Yazar, yoldan.Yazar}),
            .Başlık = ilkDolu({bilgi.Başlık, yoldan.Başlık}),
            .Metin = std::move(belge.Metin),
            .Yer = ilkDolu({bilgi.Yer, yoldan.Yer}),
            .Tarih = ilkDolu({bilgi.Tarih, yoldan.Tarih, ayar_.Yoksa.Tarih, bilgi.OluşturmaTarihi})};
}

std::optional<GelenMakale> BelgeKaynağı::Sonraki()
{
    bekçi_.Bak();
    if (sıra_ == belgeler_.size())
        return {};
    const BelgeDosyası& belge = belgeler_[sıra_++];
    GelenMakale gelen{{}, belge.Yol, belge.Ret};
    if (gelen.Ret.isEmpty() && belgeler_.size() > 1 && KayıtDosyasıAdı(belge.Yol))
        gelen.Ret = QStringLiteral("Bu bir kayıt dosyası; kendisini kaynak olarak verin.");
    if (!gelen.Ret.isEmpty())
        return gelen;
    try {
        const QString yol = QFileInfo(belge.Yol).absoluteFilePath();
        if (!çevrilenler_.contains(yol)) {
            gelen.Değer = oku(belge.Yol);
        } else {
            ÇevrilenBelge çevrilen = çevrilenler_.take(yol);
            gelen.Ret = çevrilen.Neden;
            gelen.Değer = künyele(belge.Yol, std::move(çevrilen));
        }
    } catch (const MetinOkumaHatası& hata) {
        gelen.Ret = hata.Açıklama();
    } catch (const std::bad_alloc&) {
        gelen.Ret = QStringLiteral("Dosyayı okumaya bellek yetmiyor.");
    }
    return gelen;
}
