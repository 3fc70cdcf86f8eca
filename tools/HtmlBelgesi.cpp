#include "tools/HtmlBelgesi.h"

#include "tools/Hedef.h"
#include "tools/Künye.h"

#include <QXmlStreamWriter>

namespace {

const QString Biçem =
    QStringLiteral("body { max-width: 45em; margin: 2em auto; padding: 0 1em; line-height: 1.5 }"
                   " h2 { margin-top: 2.5em; margin-bottom: 0 }"
                   " p { white-space: pre-wrap; margin: 0.4em 0 }"
                   " .kunye { color: #555555; margin-bottom: 1em }");

/// XML has no form for most control characters.
QString yazılabilir(QString metin)
{
    for (QChar& harf : metin) {
        if ((harf < u' ' && harf != u'\t' && harf != u'\n' && harf != u'\r') || harf >= u'\xFFFE')
            harf = QChar::ReplacementCharacter;
    }
    return metin;
}

QString çapa(qint64 no)
{
    return QStringLiteral("makale-%1").arg(no);
}

void başıYaz(QXmlStreamWriter& xml)
{
    xml.writeStartDocument();
    xml.writeDTD(QStringLiteral("<!DOCTYPE html>"));
    xml.writeStartElement(QStringLiteral("html"));
    xml.writeDefaultNamespace(QStringLiteral("http://www.w3.org/1999/xhtml"));
    xml.writeAttribute(QStringLiteral("lang"), QStringLiteral("tr"));
    xml.writeStartElement(QStringLiteral("head"));
    xml.writeEmptyElement(QStringLiteral("meta"));
    xml.writeAttribute(QStringLiteral("charset"), QStringLiteral("utf-8"));
    xml.writeTextElement(QStringLiteral("title"), QStringLiteral("Makaleler"));
    xml.writeTextElement(QStringLiteral("style"), Biçem);
    xml.writeEndElement();
    xml.writeStartElement(QStringLiteral("body"));
    xml.writeTextElement(QStringLiteral("h1"), QStringLiteral("Makaleler"));
}

void içindekileriYaz(QXmlStreamWriter& xml, const MakaleGezisi& gez)
{
    xml.writeStartElement(QStringLiteral("ol"));
    gez([&xml, no = qint64(0)](const Makale& makale) mutable {
        xml.writeStartElement(QStringLiteral("li"));
        xml.writeStartElement(QStringLiteral("a"));
        xml.writeAttribute(QStringLiteral("href"), u'#' + çapa(++no));
        xml.writeCharacters(yazılabilir(ListeMetni(makale)));
        xml.writeEndElement();
        xml.writeEndElement();
    });
    xml.writeEndElement();
}

void makaleyiYaz(QXmlStreamWriter& xml, const Makale& makale, qint64 no)
{
    xml.writeStartElement(QStringLiteral("h2"));
    xml.writeAttribute(QStringLiteral("id"), çapa(no));
    xml.writeCharacters(yazılabilir(makale.Başlık));
    xml.writeEndElement();
    xml.writeStartElement(QStringLiteral("p"));
    xml.writeAttribute(QStringLiteral("class"), QStringLiteral("kunye"));
    xml.writeCharacters(yazılabilir(Sıralanmış({makale.Yazar, makale.Yer, makale.Tarih})));
    xml.writeEndElement();
    for (const QString& paragraf : makale.Metin.split(u'\n'))
        xml.writeTextElement(QStringLiteral("p"), yazılabilir(paragraf));
}

} // namespace

void HtmlVer(const QString& hedef, const MakaleGezisi& gez)
{
    HedefDosya dosya(hedef, HedefDosya::Varsa::Reddet);
    QXmlStreamWriter xml(&dosya.Aygıt());
    başıYaz(xml);
    içindekileriYaz(xml, gez);
    gez([&xml, no = qint64(0)](const Makale& makale) mutable { makaleyiYaz(xml, makale, ++no); });
    xml.writeEndDocument();
    dosya.Bitir();
}
