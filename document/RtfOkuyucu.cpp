#include "document/RtfOkuyucu.h"

#include "document/RtfAlanı.h"
#include "document/RtfBaşlığı.h"
#include "document/RtfDurumu.h"
#include "document/RtfHarfleri.h"
#include "document/RtfMaddeleri.h"
#include "document/RtfSatırı.h"
#include "document/RtfSözcükleri.h"
#include "document/RtfTabloları.h"
#include "document/RtfÇıktısı.h"
#include "document/RtfÖnBakış.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

constexpr int EnUzunKomut = 128;                       // the one for a sign is shorter
constexpr qsizetype EnBüyükBelge = qsizetype(1) << 30; // the text's positions are ints
constexpr QByteArrayView İmza("{\\rtf");

[[noreturn]] void bozuk()
{
    throw MetinOkumaHatası(QStringLiteral("RTF belgesi bozuk."));
}

// The signature's place; -1 when there is none.
qsizetype imzaYeri(QByteArrayView baytlar)
{
    qsizetype yer = baytlar.startsWith(QByteArrayView("\xEF\xBB\xBF")) ? 3 : 0;
    while (yer < baytlar.size() && QByteArrayView(" \t\r\n\v\f").contains(baytlar[yer]))
        ++yer;
    return baytlar.sliced(yer).startsWith(İmza) ? yer : -1;
}

class Okuyucu
{
public:
    explicit Okuyucu(QByteArrayView belge)
        : sözcükler_(belge), harfler_(başlık_, [this](char16_t h) { harf(h); })
    {
        harfler_.Varsay(RtfKodlamasıBul(belge));
    }

    BiçimliMetin oku();

private:
    bool işle(const RtfSözcüğü& söz); // false at the document's end
    void grupAç();
    void grupKapat();
    void grupSonu(const RtfDurumu& biten);
    bool sürüyor();
    bool kapanmamışHedef() const;
    void sözcük(const RtfSözcüğü& söz);
    void yapı(const RtfTanımı& tanım, const RtfSözcüğü& söz);
    void yeniSatır(RtfEylemi eylem);
    void biçim(const RtfTanımı& tanım, const RtfSözcüğü& söz);
    void başlık(const RtfTanımı& tanım, int değer);
    void hedef(const RtfTanımı& tanım);
    void içMetin(RtfKapanışı kapanış);
    void simge(int işaret);
    void unicode(int değer);
    void düz(std::string_view baytlar);
    void harf(char16_t harf);
    void metinHarfi(char16_t harf);
    void biçimiBildir();
    void paragrafBaşı();

    // Place of the font that letters are in.
    int yazıTipi() const
    {
        return durum_.Hedef == RtfHedefi::YazıTipleri ? başlık_.YazılanYazıTipi() : durum_.YazıTipi;
    }
    RtfSatırı& satır() { return durum_.İçMetin ? içSatır_ : satır_; }

    RtfSözcükleri sözcükler_;
    RtfÇıktısı çıktı_;
    RtfDurumu durum_;
    std::vector<RtfDurumu> dıştakiler_; // states of the groups around
    int fazlaGrup_ = 0;                 // groups that are too deep to have a state
    bool devamında_ = false;            // behind a brace that seemed to end the document
    bool biçimEski_ = false;
    int atlanacak_ = 0; // characters that only stand in for a Unicode one

    RtfBaşlığı başlık_;
    RtfHarfleri harfler_;
    RtfSatırı satır_;
    RtfSatırı içSatır_; // of a table in a footnote or a text box, or within a cell
    RtfMaddeleri maddeler_;
    QString alanKomutu_;
    bool listeBaşında_ = false; // nothing but blanks was read of a list text
    QString listeBoşluğu_;      // those; headings without a number have nothing else
};

BiçimliMetin Okuyucu::oku()
{
    while (işle(sözcükler_.Sonraki())) {
    }
    return çıktı_.Bitir();
}

bool Okuyucu::işle(const RtfSözcüğü& söz)
{
    switch (söz.Tür) {
    case RtfTürü::Son:
        harfler_.Kes();
        if (çıktı_.Boş() && durum_.Hedef != RtfHedefi::Metin)
            bozuk();
        fazlaGrup_ = 0;
        while (!dıştakiler_.empty())
            grupKapat();
        return false;
    case RtfTürü::GrupBaşı:
        grupAç();
        return true;
    case RtfTürü::GrupSonu:
        grupKapat();
        return !dıştakiler_.empty() || sürüyor();
    case RtfTürü::Sözcük:
        sözcük(söz);
        return true;
    case RtfTürü::Simge:
        simge(söz.Değer);
        return true;
    case RtfTürü::Bayt:
    case RtfTürü::Düz:
        break;
    }
    durum_.Yeni = false;
    if (durum_.Atlanıyor())
        return true;
    harfler_.YazıTipi(yazıTipi());
    if (söz.Tür == RtfTürü::Düz)
        düz(söz.Ad);
    else if (atlanacak_ > 0)
        --atlanacak_;
    else
        harfler_.Bayt(static_cast<unsigned char>(söz.Değer), RtfHarfleri::Yazılış::Kaçışlı);
    return true;
}

void Okuyucu::grupAç()
{
    durum_.Yeni = false;
    if (dıştakiler_.size() >= RtfSınırı::Derinlik) {
        ++fazlaGrup_;
        return;
    }
    dıştakiler_.push_back(durum_);
    durum_ = durum_.İçGrup();
    atlanacak_ = 0;
}

void Okuyucu::grupKapat()
{
    if (dıştakiler_.empty())
        return;
    if (fazlaGrup_ > 0) {
        --fazlaGrup_;
        return;
    }
    if (durum_.Kapanış != RtfKapanışı::Yok || dıştakiler_.size() == 1)
        harfler_.Kes();
    if (durum_.Kapanış == RtfKapanışı::Alan && çıktı_.Boy() == durum_.AlanBaşı)
        harf(durum_.AlanSimgesi);
    const RtfDurumu biten = std::exchange(durum_, dıştakiler_.back());
    dıştakiler_.pop_back();
    grupSonu(biten);
    atlanacak_ = 0;
    biçimEski_ = true;
}

void Okuyucu::grupSonu(const RtfDurumu& biten)
{
    switch (biten.Kapanış) {
    case RtfKapanışı::Dipnot:
        çıktı_.DipnotSonu();
        çıktı_.ListeMetniVar(biten.ListeMetniVardı);
        break;
    case RtfKapanışı::Kutu:
        çıktı_.SatırBaşı();
        çıktı_.ListeMetniVar(biten.ListeMetniVardı);
        break;
    case RtfKapanışı::AlanKomutu:
        durum_.AlanSimgesi = RtfAlanSimgesi(alanKomutu_);
        break;
    case RtfKapanışı::Madde:
        durum_.Madde = maddeler_.Bitir();
        if (durum_.Madde >= 0 && çıktı_.ListeMetniVar())
            maddeler_.Say(durum_.Madde);
        break;
    case RtfKapanışı::Yok:
    case RtfKapanışı::Alan:
        break;
    }
}

// Whether the document goes on behind the brace of its first group.
bool Okuyucu::sürüyor()
{
    if (devamında_)
        return true;
    const QByteArrayView devam = RtfDevamı(sözcükler_.Kalan());
    sözcükler_ = RtfSözcükleri(devam);
    devamında_ = !devam.isEmpty();
    return devamında_;
}

// Whether this is a destination's own group, and one that can't hold paragraphs.
bool Okuyucu::kapanmamışHedef() const
{
    return (durum_.Hedef == RtfHedefi::Atlanan || durum_.Hedef == RtfHedefi::YazıTipleri ||
            durum_.Hedef == RtfHedefi::Renkler) &&
           !dıştakiler_.empty() && dıştakiler_.back().Hedef == RtfHedefi::Metin;
}

void Okuyucu::sözcük(const RtfSözcüğü& söz)
{
    if (söz.Ad == "pard" && kapanmamışHedef()) // its brace is missing; the text would be lost
        durum_.Hedef = RtfHedefi::Metin;
    if (durum_.Atlanıyor()) { // only raw bytes could be taken for something else
        if (söz.Ad == "bin")
            sözcükler_.İkiliAtla(söz.Değer);
        return;
    }
    const RtfTanımı* tanım = RtfTanımıBul(söz.Ad);
    const bool yıldızlı = std::exchange(durum_.Yıldızlı, false);
    const bool başta = std::exchange(durum_.Yeni, false);
    const bool ikili = tanım && tanım->Eylem == RtfEylemi::İkili;
    if (ikili)
        sözcükler_.İkiliAtla(söz.Değer);
    if (atlanacak_ > 0) {
        if (ikili || (tanım && tanım->Eylem == RtfEylemi::Harf)) {
            --atlanacak_;
            return;
        }
        atlanacak_ = 0; // no word processor lets other words stand in; some forget the character
    }
    if (tanım && HedefMi(tanım->Eylem)) {
        // Amid the document's own group a destination would swallow the rest.
        if (başta || dıştakiler_.size() > 1)
            hedef(*tanım);
    } else if (yıldızlı) {
        durum_.Hedef = RtfHedefi::AtlananMetin;
    } else if (tanım && tanım->Eylem <= RtfEylemi::Unicode) {
        yapı(*tanım, söz);
    } else if (tanım && tanım->Eylem <= RtfEylemi::TabloDerinliği) {
        biçim(*tanım, söz);
    } else if (tanım) {
        başlık(*tanım, söz.Değer);
    }
}

void Okuyucu::yapı(const RtfTanımı& tanım, const RtfSözcüğü& söz)
{
    if (tanım.Eylem == RtfEylemi::Unicode) {
        if (söz.Değerli)
            unicode(söz.Değer);
        return;
    }
    if (tanım.Eylem == RtfEylemi::Harf) {
        harf(static_cast<char16_t>(tanım.Değer));
        return;
    }
    if (durum_.Hedef != RtfHedefi::Metin)
        return;
    harfler_.Kes();
    switch (tanım.Eylem) {
    case RtfEylemi::SatırTanımı:
        satır().Tanımla();
        break;
    case RtfEylemi::HücreTanımı:
        satır().HücreTanımla();
        break;
    case RtfEylemi::BirleşikHücre:
        satır().Birleştir();
        break;
    case RtfEylemi::Hücre:
        biçimiBildir();
        if (satır().HücreBitir() == RtfSatırı::Sonraki::Sürer)
            çıktı_.YeniSatır(true);
        else
            çıktı_.Hücre();
        break;
    case RtfEylemi::İçHücre:
        biçimiBildir();
        çıktı_.Hücre();
        break;
    case RtfEylemi::Satır:
        satır().Bitir();
        [[fallthrough]];
    case RtfEylemi::İçSatır:
        biçimiBildir();
        çıktı_.TabloSatırı(tanım.Eylem == RtfEylemi::İçSatır);
        break;
    default:
        if (durum_.Yazılıyor())
            yeniSatır(tanım.Eylem);
    }
}

void Okuyucu::yeniSatır(RtfEylemi eylem)
{
    biçimiBildir();
    const bool listeMetniVar = çıktı_.ListeMetniVar();
    çıktı_.YeniSatır(durum_.Tabloda);
    if (eylem == RtfEylemi::YeniSatır) // the item goes on
        çıktı_.ListeMetniVar(listeMetniVar);
}

void Okuyucu::biçim(const RtfTanımı& tanım, const RtfSözcüğü& söz)
{
    if (tanım.Eylem == RtfEylemi::YazıTipi && durum_.Hedef == RtfHedefi::YazıTipleri) {
        başlık_.YazıTipiBaşı(söz.Değer);
        return;
    }
    durum_.Biçimle(tanım, söz, başlık_);
    biçimEski_ = true;
}

void Okuyucu::başlık(const RtfTanımı& tanım, int değer)
{
    if (tanım.Eylem == RtfEylemi::YedekBoyu)
        durum_.YedekBoyu = static_cast<quint8>(std::clamp(değer, 0, RtfSınırı::Yedek));
    else if (durum_.Hedef == RtfHedefi::Madde)
        maddeler_.Sözcük(tanım, değer);
    else {
        başlık_.Sözcük(tanım, değer, durum_.Hedef == RtfHedefi::YazıTipleri);
        harfler_.Unut();
    }
}

void Okuyucu::hedef(const RtfTanımı& tanım)
{
    const RtfEylemi eylem = tanım.Eylem;
    const bool iskelette = durum_.Hedef == RtfHedefi::İskelet;
    switch (eylem) {
    case RtfEylemi::Atlanan:
        durum_.Hedef = tanım.Değer == RtfAtlanan::Paragraflı ? RtfHedefi::AtlananMetin : RtfHedefi::Atlanan;
        break;
    case RtfEylemi::İskelet:
        if (!iskelette)
            durum_.İskelettekiHedef = std::exchange(durum_.Hedef, RtfHedefi::İskelet);
        break;
    case RtfEylemi::MetinKutusu:
    case RtfEylemi::İskeletMetni:
        if (iskelette)
            durum_.Hedef = durum_.İskelettekiHedef;
        if (eylem == RtfEylemi::MetinKutusu && durum_.Hedef == RtfHedefi::Metin) {
            çıktı_.SatırBaşı();
            içMetin(RtfKapanışı::Kutu);
        }
        break;
    case RtfEylemi::İçTabloTanımı:
        durum_.İçMetin = true;
        break;
    case RtfEylemi::Dipnot:
        if (durum_.Hedef == RtfHedefi::Metin && durum_.Kapanış == RtfKapanışı::Yok) {
            çıktı_.DipnotBaşı(durum_.Tabloda);
            içMetin(RtfKapanışı::Dipnot);
        }
        break;
    case RtfEylemi::ListeMetni:
        if (durum_.Hedef != RtfHedefi::Metin)
            break;
        if (!çıktı_.ListeMetniGerek()) {
            durum_.Hedef = RtfHedefi::Atlanan;
            break;
        }
        if (durum_.Madde >= 0)
            maddeler_.Say(durum_.Madde);
        durum_.ListeMetninde = true;
        listeBaşında_ = true;
        listeBoşluğu_.clear();
        break;
    case RtfEylemi::Madde:
        if (durum_.Hedef == RtfHedefi::Metin && durum_.Kapanış == RtfKapanışı::Yok) {
            durum_.Hedef = RtfHedefi::Madde;
            durum_.Kapanış = RtfKapanışı::Madde;
            maddeler_.Başla();
        }
        break;
    case RtfEylemi::MaddeÖnü:
    case RtfEylemi::MaddeArdı:
        if (durum_.Hedef == RtfHedefi::Madde)
            durum_.Hedef = eylem == RtfEylemi::MaddeÖnü ? RtfHedefi::MaddeÖnü : RtfHedefi::MaddeArdı;
        else if (durum_.Hedef == RtfHedefi::Metin)
            durum_.Hedef = RtfHedefi::Atlanan;
        break;
    case RtfEylemi::Alan:
        if (durum_.Hedef == RtfHedefi::Metin && durum_.Kapanış == RtfKapanışı::Yok) {
            durum_.Kapanış = RtfKapanışı::Alan;
            durum_.AlanBaşı = çıktı_.Boy();
            durum_.AlanSimgesi = 0;
        }
        break;
    case RtfEylemi::AlanKomutu:
        if (durum_.Hedef == RtfHedefi::Metin && durum_.Kapanış == RtfKapanışı::Yok) {
            durum_.Kapanış = RtfKapanışı::AlanKomutu;
            alanKomutu_.clear();
        }
        durum_.Hedef = RtfHedefi::AlanKomutu;
        break;
    case RtfEylemi::YazıTipleri:
    case RtfEylemi::Renkler:
        durum_.Hedef = eylem == RtfEylemi::Renkler ? RtfHedefi::Renkler : RtfHedefi::YazıTipleri;
        break;
    default: // text as before
        break;
    }
}

// Text with paragraphs of its own amid a paragraph.
void Okuyucu::içMetin(RtfKapanışı kapanış)
{
    durum_.Kapanış = kapanış;
    durum_.İçMetin = true;
    durum_.ListeMetniVardı = çıktı_.ListeMetniVar();
    çıktı_.ListeMetniVar(false);
}

void Okuyucu::simge(int işaret)
{
    if (işaret == '*') {
        durum_.Yıldızlı = durum_.Yeni;
        return;
    }
    durum_.Yeni = false;
    if (atlanacak_ > 0)
        --atlanacak_;
    else if (işaret == '~')
        harf(QChar::Nbsp);
    else if (işaret == '_')
        harf(0x2011);
}

void Okuyucu::unicode(int değer)
{
    harfler_.YazıTipi(yazıTipi());
    harfler_.Unicode(değer);
    atlanacak_ = durum_.YedekBoyu;
}

void Okuyucu::düz(std::string_view baytlar)
{
    harfler_.YedekAtla(baytlar, atlanacak_);
    const auto ascii = [](char bayt) { return static_cast<unsigned char>(bayt) < 0x80; };
    while (!baytlar.empty()) {
        if (!durum_.Yazılıyor() || durum_.ListeMetninde || !ascii(baytlar.front()) || !harfler_.Ascii()) {
            harfler_.Bayt(static_cast<unsigned char>(baytlar.front()), RtfHarfleri::Yazılış::Ham);
            baytlar.remove_prefix(1);
            continue;
        }
        const auto son = std::find_if_not(baytlar.begin(), baytlar.end(), ascii);
        const auto boy = static_cast<std::size_t>(son - baytlar.begin());
        biçimiBildir();
        paragrafBaşı();
        çıktı_.Dizi(baytlar.substr(0, boy));
        baytlar.remove_prefix(boy);
    }
}

void Okuyucu::metinHarfi(char16_t harf)
{
    const bool listede = durum_.ListeMetninde;
    if (listede && listeBaşında_ && (harf == u'\t' || harf == u' ')) {
        listeBoşluğu_ += QChar(harf);
        return;
    }
    biçimiBildir();
    paragrafBaşı();
    if (listede && std::exchange(listeBaşında_, false))
        for (const QChar boşluk : listeBoşluğu_)
            çıktı_.Harf(boşluk.unicode());
    const bool fontsuzİm = listede && (harf & 0xFF00) == 0xF000; // some programs forget to name the font
    çıktı_.Harf(fontsuzİm ? u'•' : harf);
}

void Okuyucu::harf(char16_t harf)
{
    harfler_.Kes();
    switch (durum_.Hedef) {
    case RtfHedefi::Metin:
        if (durum_.Yazılıyor() && harf != 0)
            metinHarfi(harf);
        break;
    case RtfHedefi::YazıTipleri:
        başlık_.YazıTipiHarfi(harf);
        break;
    case RtfHedefi::Renkler:
        if (harf == u';')
            başlık_.RenkSonu();
        break;
    case RtfHedefi::AlanKomutu:
        if (alanKomutu_.size() < EnUzunKomut)
            alanKomutu_ += QChar(harf);
        break;
    case RtfHedefi::MaddeÖnü:
        maddeler_.Harf(RtfEylemi::MaddeÖnü, harf);
        break;
    case RtfHedefi::MaddeArdı:
        maddeler_.Harf(RtfEylemi::MaddeArdı, harf);
        break;
    case RtfHedefi::Atlanan:
    case RtfHedefi::AtlananMetin:
    case RtfHedefi::İskelet:
    case RtfHedefi::Madde:
        break;
    }
}

void Okuyucu::biçimiBildir()
{
    if (std::exchange(biçimEski_, false))
        çıktı_.Biçimle(durum_.Biçim(başlık_));
}

// Before each letter: the first one of an item stands behind its number or bullet.
void Okuyucu::paragrafBaşı()
{
    if (durum_.İçMetin)
        return;
    if (durum_.Madde < 0)
        maddeler_.Kes();
    else if (çıktı_.ListeMetniGerek())
        for (const QChar h : maddeler_.Say(durum_.Madde))
            çıktı_.Harf(h.unicode());
}

} // namespace

bool RtfMi(QByteArrayView baytlar)
{
    return imzaYeri(baytlar) >= 0;
}

BiçimliMetin RtfOku(QByteArrayView baytlar)
{
    const qsizetype yer = imzaYeri(baytlar);
    if (yer < 0 || baytlar.size() > EnBüyükBelge)
        bozuk();
    return Okuyucu(baytlar.sliced(yer)).oku();
}
