#include "tools/Biçimler.h"

#include "document/RtfBelgesi.h"
#include "tools/AraçHatası.h"
#include "tools/BelgeAdları.h"
#include "tools/CsvSatırları.h"
#include "tools/Hedef.h"
#include "tools/HtmlBelgesi.h"
#include "tools/JsonSatırları.h"
#include "tools/KaynakçaYazıcı.h"
#include "tools/MetinKaydı.h"
#include "tools/PdfBelgesi.h"

#include <algorithm>
#include <array>

namespace {

/// A file of records, one behind the other.
template<class Kayıt>
void kayıtlarıYaz(const QString& hedef, const MakaleGezisi& gez, const QByteArray& baş, Kayıt&& kayıt)
{
    HedefDosya dosya(hedef, HedefDosya::Varsa::Reddet);
    dosya.Yaz(baş);
    gez([&](const Makale& makale) { dosya.Yaz(kayıt(makale)); });
    dosya.Bitir();
}

/// A folder of documents.
template<class Belge>
void belgeleriYaz(const QString& hedef, const MakaleGezisi& gez, QStringView uzantı, Belge&& belge)
{
    HedefKlasör klasör(hedef);
    BelgeAdları adlar(uzantı);
    gez([&](const Makale& makale) { klasör.Yaz(adlar.Ver(makale), belge(makale)); });
    klasör.Bitir();
}

void csvVer(const QString& hedef, const MakaleGezisi& gez)
{
    kayıtlarıYaz(hedef, gez, CsvBaşı(), [](const Makale& makale) { return CsvSatırı(makale); });
}

void jsonVer(const QString& hedef, const MakaleGezisi& gez)
{
    kayıtlarıYaz(hedef, gez, {}, MakaleSatırı);
}

void bibVer(const QString& hedef, const MakaleGezisi& gez)
{
    kayıtlarıYaz(hedef, gez, {}, [no = 0](const Makale& makale) mutable { return BibKaydı(makale, ++no); });
}

void risVer(const QString& hedef, const MakaleGezisi& gez)
{
    kayıtlarıYaz(hedef, gez, {}, RisKaydı);
}

void txtVer(const QString& hedef, const MakaleGezisi& gez)
{
    belgeleriYaz(hedef, gez, u".txt", MetinKaydı);
}

void rtfVer(const QString& hedef, const MakaleGezisi& gez)
{
    belgeleriYaz(hedef, gez, u".rtf", [](const Makale& makale) {
        BelgeBilgisi bilgi;
        bilgi.Yazar = makale.Yazar;
        bilgi.Başlık = makale.Başlık;
        bilgi.Yer = makale.Yer;
        bilgi.Tarih = makale.Tarih;
        return RtfBelgesi(makale.Metin, {}, 0, bilgi);
    });
}

constexpr std::array<VermeBiçimi, 8> biçimler = {{{u"csv", HedefTürü::Dosya, csvVer},
                                                  {u"json", HedefTürü::Dosya, jsonVer},
                                                  {u"bib", HedefTürü::Dosya, bibVer},
                                                  {u"ris", HedefTürü::Dosya, risVer},
                                                  {u"txt", HedefTürü::Klasör, txtVer},
                                                  {u"rtf", HedefTürü::Klasör, rtfVer},
                                                  {u"html", HedefTürü::Dosya, HtmlVer},
                                                  {u"pdf", HedefTürü::Dosya, PdfVer}}};

} // namespace

const VermeBiçimi& BiçimBul(const QString& ad)
{
    const auto* yer =
        std::find_if(biçimler.begin(), biçimler.end(), [&ad](const VermeBiçimi& b) { return b.Ad == ad; });
    if (yer == biçimler.end())
        throw YanlışKullanım(QStringLiteral("--biçim csv, json, bib, ris, txt, rtf, html ya da pdf olmalı."));
    return *yer;
}
