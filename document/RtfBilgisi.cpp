#include "document/RtfBilgisi.h"

#include "document/RtfBaşlığı.h"
#include "document/RtfHarfleri.h"
#include "document/RtfOkuyucu.h"
#include "document/RtfSözcükleri.h"
#include "document/RtfTabloları.h"
#include "document/RtfÖnBakış.h"

#include <QString>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

constexpr qsizetype EnUzunDeğer = 8192; // before it is trimmed

enum class Hedef : quint8
{
    Yok,
    YazıTipleri,
    Bilgi,
    Özellikler,
    Başlık,
    Yazar,
    Oluşturma,
    ÖzellikAdı,
    ÖzellikDeğeri,
    Atlanan
};

// A group begins with its surrounding group's state, and its end restores that.
struct Durum
{
    Hedef hedef = Hedef::Yok;
    int yazıTipi = -1;
    int yedekBoyu = 1;  // how many characters stand in for a Unicode one
    bool çift = false;  // in what stands twice, the second time in Unicode: that one counts
    bool sahip = false; // the group began the value that it is in
};

class BilgiOkuyucu
{
public:
    explicit BilgiOkuyucu(QByteArrayView belge)
        : sözcükler_(belge), harfler_(başlık_, [this](char16_t h) { harf(h); })
    {
        harfler_.Varsay(RtfKodlamasıBul(belge));
    }

    BelgeBilgisi oku()
    {
        for (RtfSözcüğü söz = sözcükler_.Sonraki(); söz.Tür != RtfTürü::Son; söz = sözcükler_.Sonraki())
            işle(söz);
        while (!dıştakiler_.empty()) // a value whose end is missing
            grupKapat();
        return bilgi_;
    }

private:
    void işle(const RtfSözcüğü& söz);
    void grupAç();
    void grupKapat();
    void sözcük(const RtfSözcüğü& söz);
    bool hedefSözcüğü(std::string_view ad);
    void hedef(Hedef yeni);
    void tarih(const RtfSözcüğü& söz);
    void başlık(const RtfTanımı& tanım, const RtfSözcüğü& söz);
    void simge(int işaret);
    void unicode(int değer);
    void harf(char16_t harf);
    void düz(std::string_view baytlar);
    void değeriBırak();
    void bitir(Hedef biten);

    bool harfGerek() const
    {
        return durum_.hedef == Hedef::YazıTipleri || durum_.hedef == Hedef::Başlık ||
               durum_.hedef == Hedef::Yazar || durum_.hedef == Hedef::ÖzellikAdı ||
               durum_.hedef == Hedef::ÖzellikDeğeri;
    }
    int yazıTipi() const
    {
        return durum_.hedef == Hedef::YazıTipleri ? başlık_.YazılanYazıTipi() : durum_.yazıTipi;
    }

    RtfSözcükleri sözcükler_;
    RtfBaşlığı başlık_;
    RtfHarfleri harfler_;
    Durum durum_;
    std::vector<Durum> dıştakiler_;
    std::size_t fazlaGrup_ = 0;
    int atlanacak_ = 0;
    bool yıldızlı_ = false; // \* stands before the next word
    QString değer_;         // that is read
    QString özellikAdı_;
    int yıl_ = 0;
    int ay_ = 0;
    int gün_ = 0;
    BelgeBilgisi bilgi_;
};

void BilgiOkuyucu::işle(const RtfSözcüğü& söz)
{
    switch (söz.Tür) {
    case RtfTürü::GrupBaşı:
        grupAç();
        return;
    case RtfTürü::GrupSonu:
        grupKapat();
        return;
    case RtfTürü::Sözcük:
        sözcük(söz);
        return;
    case RtfTürü::Simge:
        simge(söz.Değer);
        return;
    default:
        break;
    }
    if (!harfGerek())
        return;
    harfler_.YazıTipi(yazıTipi());
    if (söz.Tür == RtfTürü::Düz)
        düz(söz.Ad);
    else if (atlanacak_ > 0)
        --atlanacak_;
    else
        harfler_.Bayt(static_cast<unsigned char>(söz.Değer), RtfHarfleri::Yazılış::Kaçışlı);
}

void BilgiOkuyucu::simge(int işaret)
{
    if (işaret == '*')
        yıldızlı_ = true;
    else if (atlanacak_ > 0)
        --atlanacak_;
    else if (işaret == '~')
        harf(QChar::Nbsp);
    else if (işaret == '_')
        harf(0x2011);
}

void BilgiOkuyucu::düz(std::string_view baytlar)
{
    harfler_.YedekAtla(baytlar, atlanacak_);
    for (const char bayt : baytlar)
        harfler_.Bayt(static_cast<unsigned char>(bayt), RtfHarfleri::Yazılış::Ham);
}

void BilgiOkuyucu::grupAç()
{
    atlanacak_ = 0;
    if (dıştakiler_.size() >= RtfSınırı::Derinlik) {
        ++fazlaGrup_;
        return;
    }
    dıştakiler_.push_back(durum_);
    durum_.sahip = false;
}

void BilgiOkuyucu::grupKapat()
{
    if (fazlaGrup_ > 0) {
        --fazlaGrup_;
        return;
    }
    if (dıştakiler_.empty())
        return;
    değeriBırak();
    atlanacak_ = 0;
    durum_ = dıştakiler_.back();
    dıştakiler_.pop_back();
}

void BilgiOkuyucu::sözcük(const RtfSözcüğü& söz)
{
    const RtfTanımı* tanım = RtfTanımıBul(söz.Ad);
    const bool yıldızlı = std::exchange(yıldızlı_, false);
    const bool ikili = tanım && tanım->Eylem == RtfEylemi::İkili;
    if (ikili)
        sözcükler_.İkiliAtla(söz.Değer);
    const bool harfMi = tanım && tanım->Eylem == RtfEylemi::Harf;
    if (const int atlanacak = std::exchange(atlanacak_, 0); atlanacak > 0 && (ikili || harfMi)) {
        atlanacak_ = atlanacak - 1;
        return;
    }
    if (söz.Ad == "pard") // a brace is missing: the text begins
        değeriBırak();
    else if (durum_.hedef == Hedef::Oluşturma)
        tarih(söz);
    else if (harfMi)
        harf(static_cast<char16_t>(tanım->Değer));
    else if (hedefSözcüğü(söz.Ad))
        return;
    else if (tanım)
        başlık(*tanım, söz);
    else if (yıldızlı && harfGerek())
        durum_.hedef = Hedef::Atlanan;
}

void BilgiOkuyucu::değeriBırak()
{
    if (durum_.sahip)
        bitir(durum_.hedef);
    durum_.sahip = false;
    durum_.hedef = Hedef::Yok;
}

// Whether the word begins what text of its own stands in.
bool BilgiOkuyucu::hedefSözcüğü(std::string_view ad)
{
    const bool bilgide = durum_.hedef == Hedef::Bilgi || durum_.hedef == Hedef::Başlık ||
                         durum_.hedef == Hedef::Yazar; // whose brace may be missing
    const bool özelliklerde = durum_.hedef == Hedef::Özellikler;
    if (ad == "fonttbl" && durum_.hedef == Hedef::Yok)
        durum_.hedef = Hedef::YazıTipleri;
    else if (ad == "info" && !dıştakiler_.empty())
        durum_.hedef = Hedef::Bilgi;
    else if (ad == "userprops" && !dıştakiler_.empty())
        durum_.hedef = Hedef::Özellikler;
    else if (ad == "upr")
        durum_.çift = true;
    else if (ad == "ud")
        durum_.çift = false;
    else if (bilgide && ad == "title")
        hedef(Hedef::Başlık);
    else if (bilgide && ad == "author")
        hedef(Hedef::Yazar);
    else if (bilgide && ad == "creatim")
        hedef(Hedef::Oluşturma);
    else if (özelliklerde && ad == "propname")
        hedef(Hedef::ÖzellikAdı);
    else if (özelliklerde && ad == "staticval")
        hedef(Hedef::ÖzellikDeğeri);
    else if (const RtfTanımı* tanım = RtfTanımıBul(ad);
             tanım && tanım->Eylem == RtfEylemi::Atlanan && (bilgide || özelliklerde || harfGerek()))
        durum_.hedef = Hedef::Atlanan; // another one of the kind
    else
        return false;
    return true;
}

void BilgiOkuyucu::hedef(Hedef yeni)
{
    bitir(durum_.hedef); // its brace is missing
    durum_.hedef = durum_.çift ? Hedef::Atlanan : yeni;
    durum_.sahip = !durum_.çift;
    yıl_ = ay_ = gün_ = 0;
}

void BilgiOkuyucu::tarih(const RtfSözcüğü& söz)
{
    if (söz.Ad == "yr")
        yıl_ = söz.Değer;
    else if (söz.Ad == "mo")
        ay_ = söz.Değer;
    else if (söz.Ad == "dy")
        gün_ = söz.Değer;
}

void BilgiOkuyucu::başlık(const RtfTanımı& tanım, const RtfSözcüğü& söz)
{
    switch (tanım.Eylem) {
    case RtfEylemi::Unicode:
        if (söz.Değerli && harfGerek())
            unicode(söz.Değer);
        break;
    case RtfEylemi::YedekBoyu:
        durum_.yedekBoyu = std::clamp(söz.Değer, 0, RtfSınırı::Yedek);
        break;
    case RtfEylemi::YazıTipi:
        if (durum_.hedef == Hedef::YazıTipleri)
            başlık_.YazıTipiBaşı(söz.Değer);
        else
            durum_.yazıTipi = başlık_.YazıTipiYeri(söz.Değer);
        break;
    case RtfEylemi::Paragraf:
    case RtfEylemi::YeniSatır:
        harf(u' ');
        break;
    default:
        başlık_.Sözcük(tanım, söz.Değer, durum_.hedef == Hedef::YazıTipleri);
        harfler_.Unut();
    }
}

void BilgiOkuyucu::unicode(int değer)
{
    harfler_.YazıTipi(yazıTipi());
    harfler_.Unicode(değer);
    atlanacak_ = durum_.yedekBoyu;
}

void BilgiOkuyucu::harf(char16_t harf)
{
    harfler_.Kes();
    if (durum_.hedef == Hedef::YazıTipleri)
        başlık_.YazıTipiHarfi(harf);
    else if (harfGerek() && değer_.size() < EnUzunDeğer)
        değer_ += QChar(harf);
}

void BilgiOkuyucu::bitir(Hedef biten)
{
    harfler_.Kes();
    const QString değer = BelgeÖzelliği(std::exchange(değer_, {}));
    const auto ilkinde = [&değer](QString& yer) {
        if (yer.isEmpty()) // some programs write the last one who saved as a second author
            yer = değer;
    };
    if (biten == Hedef::Başlık)
        ilkinde(bilgi_.Başlık);
    else if (biten == Hedef::Yazar)
        ilkinde(bilgi_.Yazar);
    else if (biten == Hedef::Oluşturma && bilgi_.OluşturmaTarihi.isEmpty())
        bilgi_.OluşturmaTarihi = BelgeTarihi(QDate(yıl_, ay_, gün_));
    else if (biten == Hedef::ÖzellikAdı)
        özellikAdı_ = değer;
    else if (biten == Hedef::ÖzellikDeğeri)
        BelgeÖzelliğiEkle(bilgi_, özellikAdı_, değer);
}

} // namespace

BelgeBilgisi RtfBilgisiOku(QByteArrayView baytlar)
{
    return RtfMi(baytlar) ? BilgiOkuyucu(baytlar).oku() : BelgeBilgisi();
}
