#include "document/EpubKitabı.h"

#include "document/MetinDosyası.h"

#include <QDir>
#include <QHash>
#include <QUrl>
#include <QXmlStreamReader>

namespace {

/// What the package document tells.
struct Paket
{
    QHash<QString, QString> dosyalar; // by id
    QStringList sıra;                 // ids
    QStringList yazarlar;
    BelgeBilgisi bilgi;
};

QString özellik(const QXmlStreamReader& xml, QLatin1StringView ad)
{
    return xml.attributes().value(ad).toString();
}

QString paketYolu(const QByteArray& kap)
{
    QXmlStreamReader xml(kap);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == u"rootfile")
            return özellik(xml, QLatin1StringView("full-path"));
    }
    return {};
}

QString tarih(const QString& yazılan)
{
    const QString gün = BelgeTarihi(QDate::fromString(yazılan.left(10), Qt::ISODate));
    return gün.isEmpty() ? yazılan : gün;
}

void bilgiOku(QXmlStreamReader& xml, Paket& paket)
{
    const QString ad = xml.name().toString();
    const bool yayım = !xml.attributes().hasAttribute(QLatin1StringView("opf:event")) ||
                       özellik(xml, QLatin1StringView("opf:event")).contains(u"publication");
    const QString değer = BelgeÖzelliği(xml.readElementText(QXmlStreamReader::IncludeChildElements));
    if (ad == u"title" && paket.bilgi.Başlık.isEmpty())
        paket.bilgi.Başlık = değer;
    else if (ad == u"creator" && !değer.isEmpty())
        paket.yazarlar += değer;
    else if (ad == u"date" && yayım && paket.bilgi.Tarih.isEmpty())
        paket.bilgi.Tarih = tarih(değer);
}

bool sayfaMı(const QXmlStreamReader& xml)
{
    const QString tür = özellik(xml, QLatin1StringView("media-type"));
    const bool içindekiler = özellik(xml, QLatin1StringView("properties")).split(u' ').contains(u"nav");
    return !içindekiler && (tür.isEmpty() || tür.contains(u"html"));
}

Paket paketOku(const QByteArray& baytlar)
{
    Paket paket;
    QXmlStreamReader xml(baytlar);
    while (!xml.atEnd()) { // a damaged end leaves what was read before
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.namespaceUri() == u"http://purl.org/dc/elements/1.1/")
            bilgiOku(xml, paket);
        else if (xml.name() == u"item" && sayfaMı(xml))
            paket.dosyalar.insert(özellik(xml, QLatin1StringView("id")),
                                  özellik(xml, QLatin1StringView("href")));
        else if (xml.name() == u"itemref")
            paket.sıra += özellik(xml, QLatin1StringView("idref"));
    }
    paket.bilgi.Yazar = BelgeÖzelliği(paket.yazarlar.join(QStringLiteral(", ")));
    return paket;
}

[[noreturn]] void okunamadı()
{
    throw MetinOkumaHatası(
        QStringLiteral("Kitabın bölümleri okunamadı; kopyalamaya karşı korunuyor olabilir."));
}

// The body of a page. Its head would end the book: a title that XML may leave empty goes on for HTML.
QString gövde(const QString& sayfa)
{
    const qsizetype baş = sayfa.indexOf(u"<body");
    const qsizetype içi = baş < 0 ? -1 : sayfa.indexOf(u'>', baş);
    const qsizetype son = sayfa.lastIndexOf(u"</body");
    if (içi < 0)
        okunamadı();
    return sayfa.mid(içi + 1, son < içi ? -1 : son - içi - 1);
}

QByteArray bölüm(const QByteArray& baytlar)
{
    if (baytlar.isEmpty())
        throw MetinOkumaHatası(QStringLiteral("Kitabın bir bölümü eksik."));
    try {
        return gövde(MetinÇöz(baytlar).Metin).toUtf8();
    } catch (const MetinOkumaHatası&) {
        okunamadı();
    }
}

} // namespace

EpubKitabı EpubOku(const std::function<QByteArray(const QString& ad)>& parça)
{
    const QString yol = paketYolu(parça(QStringLiteral("META-INF/container.xml")));
    const Paket paket = paketOku(yol.isEmpty() ? QByteArray() : parça(yol));
    const QString klasör = yol.contains(u'/') ? yol.left(yol.lastIndexOf(u'/') + 1) : QString();
    EpubKitabı kitap{"\xEF\xBB\xBF<html><head><meta charset=\"utf-8\"></head><body>", paket.bilgi};
    bool var = false;
    for (const QString& no : paket.sıra) {
        const QString href = QUrl::fromPercentEncoding(paket.dosyalar.value(no).section(u'#', 0, 0).toUtf8());
        if (href.isEmpty())
            continue;
        kitap.Html += "\n<div>" + bölüm(parça(QDir::cleanPath(klasör + href))) + "</div>";
        var = true;
    }
    if (!var)
        throw MetinOkumaHatası(QStringLiteral("Bu bir EPUB kitabı değil, ya da bölümleri bulunamadı."));
    kitap.Html += "</body></html>";
    return kitap;
}
