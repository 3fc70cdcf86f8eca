#include "tools/Kaynaklar.h"

#include "store/SistemHatası.h"
#include "tools/AraçHatası.h"
#include "tools/BelgeKaynağı.h"
#include "tools/CsvSatırları.h"
#include "tools/Durdurma.h"
#include "tools/JsonSatırları.h"
#include "tools/KaynakçaOkuyucu.h"

#include <QFileInfo>

#include <array>
#include <cerrno>

namespace {

enum class Tür
{
    Belge,
    Json,
    Csv,
    BibTeX,
    Ris
};

struct Uzantı
{
    QStringView ad;
    Tür tür;
};

// Of files that hold records. All others are documents.
constexpr std::array<Uzantı, 7> KayıtUzantıları = {{{u"jsonl", Tür::Json},
                                                    {u"ndjson", Tür::Json},
                                                    {u"json", Tür::Json},
                                                    {u"csv", Tür::Csv},
                                                    {u"bib", Tür::BibTeX},
                                                    {u"bibtex", Tür::BibTeX},
                                                    {u"ris", Tür::Ris}}};

constexpr qsizetype BaşBoyu = 4096; // bytes by which a file without an ending is told

Tür adındanTür(const QString& ad)
{
    const QString uzantı = QFileInfo(ad).suffix().toLower();
    for (const Uzantı& bilinen : KayıtUzantıları) {
        if (bilinen.ad == uzantı)
            return bilinen.tür;
    }
    return Tür::Belge;
}

/// For a file whose name doesn't tell.
Tür içindenTür(const QString& yol)
{
    if (!QFileInfo(yol).suffix().isEmpty())
        return Tür::Belge;
    if (const auto tür = KaynakçaTürüBul(yol)) // by what it holds
        return *tür == KaynakçaTürü::BibTeX ? Tür::BibTeX : Tür::Ris;
    QFile dosya(yol);
    if (!dosya.open(QIODevice::ReadOnly))
        return Tür::Belge;
    const QByteArray baş = dosya.read(BaşBoyu).trimmed();
    return baş.startsWith('{') && !baş.startsWith("{\\rtf") ? Tür::Json : Tür::Belge;
}

Tür türü(const QString& yol)
{
    const QFileInfo bilgi(yol);
    if (yol == u'-' || (bilgi.exists() && !bilgi.isFile() && !bilgi.isDir()))
        return Tür::Json; // a pipe
    const Tür tür = adındanTür(yol);
    return tür == Tür::Belge ? içindenTür(yol) : tür;
}

} // namespace

bool KayıtDosyasıAdı(const QString& ad)
{
    return adındanTür(ad) != Tür::Belge;
}

AçıkKaynak KaynakAç(const QString& yol, const KaynakAyarı& ayar, const DurdurmaBekçisi& bekçi)
{
    if (yol != u'-' && !QFileInfo::exists(yol))
        SistemHatasıVer(ENOENT, Erişim::Okuma, yol);
    if (QFileInfo(yol).isDir())
        return {std::make_unique<BelgeKaynağı>(BelgeleriListele(yol, bekçi), ayar, bekçi), Talep::Pencereler};
    switch (türü(yol)) {
    case Tür::Json:
        return {std::make_unique<JsonKaynağı>(yol, bekçi), Talep::Kitaplık};
    case Tür::Csv:
        return {std::make_unique<CsvKaynağı>(yol, ayar.Sütunlar, bekçi), Talep::Pencereler};
    case Tür::BibTeX:
        return {std::make_unique<KaynakçaOkuyucu>(yol, KaynakçaTürü::BibTeX, bekçi), Talep::Pencereler};
    case Tür::Ris:
        return {std::make_unique<KaynakçaOkuyucu>(yol, KaynakçaTürü::Ris, bekçi), Talep::Pencereler};
    case Tür::Belge:
        break;
    }
    return {std::make_unique<BelgeKaynağı>(std::vector<BelgeDosyası>{{yol}}, ayar, bekçi), Talep::Pencereler};
}
