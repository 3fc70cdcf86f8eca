#include "tools/PdfBelgesi.h"

#include "system/SayfaDökümü.h"
#include "tools/Hedef.h"
#include "tools/Künye.h"

#include <QGuiApplication>
#include <QPageSize>
#include <QPdfWriter>

namespace {

constexpr double KenarBoşluğu = 20; // mm
constexpr int YazıBoyu = 10;        // points
constexpr int BaşlıkBoyu = 13;
const QString YazıTipi = QStringLiteral("Liberation Serif");

/// Takes what is written and keeps nothing: what a document is laid out on to learn its pages.
class BoşAygıt : public QIODevice
{
protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char*, qint64 boy) override { return boy; }
};

/// The toolkit needs an application for its fonts, but no screen, of whose lack it would complain.
class YazıTipiOrtamı
{
public:
    YazıTipiOrtamı()
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        uygulama_.emplace(sayı_, değişkenler_.data());
    }

private:
    int sayı_ = 1;
    QByteArray ad_ = "belgenar-kitaplik";
    std::array<char*, 2> değişkenler_ = {ad_.data(), nullptr};
    std::optional<QGuiApplication> uygulama_;
};

QFont yazı(int boy, bool kalın = false)
{
    QFont yazıTipi(YazıTipi, boy);
    yazıTipi.setBold(kalın);
    return yazıTipi;
}

/// What the contents need to know of an article.
struct İçindekilerSatırı
{
    QString Künye;
    int Sayfa = 0;
};

class PdfBelgesi
{
public:
    explicit PdfBelgesi(QIODevice& aygıt) : yazıcı_(&aygıt)
    {
        yazıcı_.setPageSize(QPageSize(QPageSize::A4));
        yazıcı_.setPageMargins({KenarBoşluğu, KenarBoşluğu, KenarBoşluğu, KenarBoşluğu},
                               QPageLayout::Millimeter);
        yazıcı_.setTitle(QStringLiteral("Makaleler"));
        yazıcı_.setCreator(QStringLiteral("Belgenar"));
        döküm_.emplace(yazıcı_, yazı(YazıBoyu), [] {});
        döküm_->NumaralarıYaz();
    }

    void İçindekiler(const std::vector<İçindekilerSatırı>& satırlar)
    {
        başlık(QStringLiteral("İçindekiler"));
        for (const İçindekilerSatırı& satır : satırlar)
            döküm_->Satır(satır.Künye, QString::number(satır.Sayfa));
    }

    /// @return the page on which it begins
    int Ekle(const Makale& makale)
    {
        döküm_->YeniSayfa();
        const int sayfa = döküm_->Sayfa();
        başlık(makale.Başlık);
        döküm_->Metin(Sıralanmış({makale.Yazar, makale.Yer, makale.Tarih}) + QStringLiteral("\n\n"));
        döküm_->Metin(makale.Metin);
        return sayfa;
    }

    void Bitir() { döküm_->Bitir(); }

private:
    void başlık(const QString& metin)
    {
        döküm_->YazıTipi(yazı(BaşlıkBoyu, true));
        döküm_->Metin(metin);
        döküm_->YazıTipi(yazı(YazıBoyu));
    }

    QPdfWriter yazıcı_;
    std::optional<SayfaDökümü> döküm_;
};

} // namespace

/// Laid out twice: the contents, which stand in front, need the pages of what stands behind.
void PdfVer(const QString& hedef, const MakaleGezisi& gez)
{
    HedefDosya dosya(hedef, HedefDosya::Varsa::Reddet);
    const YazıTipiOrtamı ortam;
    std::vector<İçindekilerSatırı> satırlar;
    gez([&satırlar](const Makale& makale) { satırlar.push_back({ListeMetni(makale)}); });
    BoşAygıt boş;
    boş.open(QIODevice::WriteOnly);
    PdfBelgesi taslak(boş);
    taslak.İçindekiler(satırlar);
    gez([&, sıra = std::size_t(0)](const Makale& makale) mutable {
        if (sıra == satırlar.size()) // what could not be read before may be readable now
            satırlar.push_back({ListeMetni(makale)});
        satırlar[sıra++].Sayfa = taslak.Ekle(makale);
    });
    taslak.Bitir();

    PdfBelgesi belge(dosya.Aygıt());
    belge.İçindekiler(satırlar);
    gez([&belge](const Makale& makale) { belge.Ekle(makale); });
    belge.Bitir();
    dosya.Bitir();
}
