#include "system/PdfMetni.h"

#include "document/MetinDosyası.h"
#include "system/DışProgram.h"

#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>

namespace {

constexpr int İzinYok = 3; // status of pdftotext

QProcessEnvironment ortam()
{
    QProcessEnvironment ortam = QProcessEnvironment::systemEnvironment();
    ortam.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    return ortam;
}

[[noreturn]] void at(const QString& neden)
{
    throw MetinOkumaHatası(neden);
}

void metniÇıkar(const QString& yol, const QString& hedef, int süre, const std::function<void()>& bak)
{
    const QString program = DışProgram::Bul({QStringLiteral("pdftotext")});
    if (program.isEmpty())
        at(QStringLiteral("PDF dosyalarını okumak için poppler-utils paketini kurun."));
    DışProgram süreç(program, {QStringLiteral("-enc"), QStringLiteral("UTF-8"), yol, hedef}, ortam());
    if (!ProgramıBekle(süreç, süre, bak))
        at(QStringLiteral("PDF dosyasının okunması çok uzun sürdü."));
    if (süreç.Başarılı())
        return;
    if (süreç.Durum() == İzinYok || süreç.Yakınma().contains("password"))
        at(QStringLiteral("PDF dosyası parolayla korunuyor."));
    at(QStringLiteral("PDF dosyası okunamadı; bozuk olabilir."));
}

// Letters that fonts join are letters of their own for a search.
QString harfleriAyır(const QString& metin)
{
    static constexpr QStringView bağlar[] = {u"ff", u"fi", u"fl", u"ffi", u"ffl", u"st", u"st"};
    QString sonuç;
    sonuç.reserve(metin.size());
    for (const QChar harf : metin) {
        if (harf >= u'\uFB00' && harf <= u'\uFB06')
            sonuç += bağlar[harf.unicode() - 0xFB00];
        else
            sonuç += harf;
    }
    return sonuç;
}

QString metinOku(const QString& yol)
{
    QByteArray baytlar = DosyaBaytları(yol);
    // What a font without names for its signs leaves.
    baytlar.removeIf([](char bayt) { return (bayt >= 0 && bayt < '\t') || (bayt > '\r' && bayt < ' '); });
    if (baytlar.trimmed().isEmpty())
        at(QStringLiteral("PDF dosyasında metin yok; taranmış sayfalardan oluşuyor olabilir."));
    static const QRegularExpression imler(QStringLiteral("^[\\x{F000}-\\x{F0FF}](?=\\s)"),
                                          QRegularExpression::MultilineOption);
    return harfleriAyır(MetinÇöz("\xEF\xBB\xBF" + baytlar).Metin).replace(imler, QStringLiteral("•"));
}

// Empty where it can't be had: the text is what counts.
BelgeBilgisi bilgiOku(const QString& yol, int süre, const std::function<void()>& bak)
{
    BelgeBilgisi bilgi;
    const QString program = DışProgram::Bul({QStringLiteral("pdfinfo")});
    if (program.isEmpty())
        return bilgi;
    DışProgram süreç(program,
                     {QStringLiteral("-custom"), QStringLiteral("-isodates"), QStringLiteral("-enc"),
                      QStringLiteral("UTF-8"), yol},
                     ortam());
    if (!ProgramıBekle(süreç, süre, bak) || !süreç.Başarılı())
        return bilgi;
    const QStringList satırlar = QString::fromUtf8(süreç.Çıktı()).split(u'\n');
    for (const QString& satır : satırlar) {
        const QString ad = satır.section(u':', 0, 0), değer = satır.section(u':', 1);
        if (ad == u"Title")
            bilgi.Başlık = BelgeÖzelliği(değer);
        else if (ad == u"Author")
            bilgi.Yazar = BelgeÖzelliği(değer);
        else if (ad == u"CreationDate")
            bilgi.OluşturmaTarihi = BelgeTarihi(QDate::fromString(değer.trimmed().left(10), Qt::ISODate));
        else
            BelgeÖzelliğiEkle(bilgi, ad, değer);
    }
    return bilgi;
}

} // namespace

bool ProgramıBekle(DışProgram& program, int süre, const std::function<void()>& bak)
{
    QElapsedTimer saat;
    saat.start();
    while (!program.Bekle()) {
        bak();
        if (saat.hasExpired(süre)) {
            program.Öldür();
            return false;
        }
    }
    return true;
}

ÇevrilenBelge PdfMetniOku(const QString& yol, const ÇevirmeKlasörü& klasör, int süre,
                          const std::function<void()>& bak)
{
    const QString metin = klasör.Yol(QStringLiteral("pdf.txt"));
    metniÇıkar(yol, metin, süre, bak);
    ÇevrilenBelge belge{metinOku(metin), bilgiOku(yol, süre, bak), {}};
    QFile::remove(metin);
    return belge;
}
