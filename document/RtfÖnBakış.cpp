#include "document/RtfÖnBakış.h"

#include "document/KodSayfası.h"
#include "document/RtfSözcükleri.h"
#include "document/RtfTabloları.h"
#include "document/Utf8.h"

#include <QByteArray>

#include <algorithm>

namespace {

bool üstte(char bayt)
{
    return static_cast<unsigned char>(bayt) >= 0x80;
}

class KodlamaSayacı
{
public:
    explicit KodlamaSayacı(QByteArrayView belge)
        : sözcükler_(belge), hamVar_(std::any_of(belge.begin(), belge.end(), üstte))
    {
    }

    RtfKodlaması say()
    {
        for (RtfSözcüğü söz = sözcükler_.Sonraki(); söz.Tür != RtfTürü::Son; söz = sözcükler_.Sonraki()) {
            if (söz.Tür == RtfTürü::Bayt && söz.Değer >= 0x80) {
                kaçışlılar_ += static_cast<char>(söz.Değer);
                continue;
            }
            kaçışlılarıSay();
            if (söz.Tür == RtfTürü::Düz)
                düz(söz.Ad);
            else if (söz.Tür == RtfTürü::Sözcük && !sözcük(söz))
                break;
        }
        kaçışlılarıSay();
        // Letters of two bytes can be those of an East Asian page by chance.
        return {ham_.Var() && ham_.Utf8Mi() && (!doğuAsya_ || ham_.UzunVar()),
                !sayfaBelli_ && kaçışlı_.Var() && kaçışlı_.Utf8Mi()};
    }

private:
    void düz(std::string_view baytlar)
    {
        const QByteArrayView görünüm(baytlar.data(), static_cast<qsizetype>(baytlar.size()));
        if (hamVar_)
            ham_.Say(görünüm, önceki_);
        önceki_ = baytlar.back();
    }
    // false when nothing is left to learn
    bool sözcük(const RtfSözcüğü& söz)
    {
        if (söz.Ad == "bin")
            sözcükler_.İkiliAtla(söz.Değer);
        if (söz.Ad != "ansicpg" || !KodSayfası::Biliniyor(söz.Değer))
            return true;
        sayfaBelli_ = söz.Değer != KodSayfası::Utf8;
        doğuAsya_ = söz.Değer == 932 || söz.Değer == 936 || söz.Değer == 949 || söz.Değer == 950;
        return hamVar_ || !sayfaBelli_;
    }
    void kaçışlılarıSay()
    {
        if (kaçışlılar_.isEmpty())
            return;
        kaçışlı_.Say(kaçışlılar_, önceki_);
        önceki_ = kaçışlılar_.back();
        kaçışlılar_.resize(0); // keeps its memory
    }

    RtfSözcükleri sözcükler_;
    bool hamVar_;
    bool sayfaBelli_ = false;
    bool doğuAsya_ = false;
    char önceki_ = '\0';
    QByteArray kaçışlılar_; // one behind the other
    Utf8Sayacı ham_;
    Utf8Sayacı kaçışlı_;
};

} // namespace

RtfKodlaması RtfKodlamasıBul(QByteArrayView belge)
{
    return KodlamaSayacı(belge).say();
}

QByteArrayView RtfDevamı(QByteArrayView kalan)
{
    const qsizetype boşluk = kalan.indexOf('\0'); // what lies behind is what happened to be in memory
    const QByteArrayView yazı = boşluk < 0 ? kalan : kalan.first(boşluk);
    RtfSözcükleri sözcükler(yazı);
    bool yazıVar = false;
    int derinlik = 0;
    for (;;) {
        const RtfSözcüğü söz = sözcükler.Sonraki();
        switch (söz.Tür) {
        case RtfTürü::Son:
            return {};
        case RtfTürü::GrupBaşı:
            ++derinlik;
            break;
        case RtfTürü::GrupSonu:
            if (derinlik == 0 && yazıVar)
                return yazı;
            derinlik = std::max(derinlik - 1, 0);
            break;
        case RtfTürü::Sözcük:
            if (derinlik == 0 && RtfTanımıBul(söz.Ad))
                return yazı;
            break;
        default:
            yazıVar = true;
        }
    }
}
