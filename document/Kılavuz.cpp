#include "document/Kılavuz.h"

#include "text/TürkçeHarfler.h"
#include "text/TürkçeSıralama.h"

#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace {

/// What readers see of a line: without the marks of bold and code, and of links their text.
QString yalın(const QString& satır)
{
    static const QRegularExpression bağlantı(QStringLiteral(R"(!?\[([^\]]*)\]\([^)]*\))"));
    return QString(satır)
        .replace(bağlantı, QStringLiteral("\\1"))
        .remove(QStringLiteral("**"))
        .remove(u'`')
        .trimmed();
}

/// As web sites that show Markdown make it: small letters, hyphens for blanks, no punctuation.
QString çapa(const QString& başlık)
{
    QString sonuç;
    for (const QChar harf : başlık) {
        if (harf.isLetterOrNumber() || harf == u'-' || harf == u'_')
            sonuç += QChar(KüçükHarf(harf.unicode()));
        else if (harf == u' ')
            sonuç += u'-';
    }
    return sonuç;
}

/// The cells of a table's row; a sign behind a backslash is no border.
QStringList hücreler(const QString& satır)
{
    static const QRegularExpression sınır(QStringLiteral(R"((?<!\\)\|)"));
    QStringList sonuç = satır.split(sınır);
    return sonuç.size() > 2 ? sonuç.mid(1, sonuç.size() - 2) : QStringList();
}

bool sayıMı(const QString& yazı)
{
    return !yazı.isEmpty() &&
           std::all_of(yazı.begin(), yazı.end(), [](QChar harf) { return harf.isDigit(); });
}

bool cümleMi(const QString& yazı)
{
    return yazı.contains(u' ') && (yazı.endsWith(u'.') || yazı.endsWith(u'!') || yazı.endsWith(u'?'));
}

} // namespace

Kılavuz::Kılavuz(QStringView markdown)
{
    static const QRegularExpression başlık(QStringLiteral("^(#{1,6}) +(.+)$"));
    QString paragraf;
    QStringList satırlar; // of a table
    const auto bitir = [&] {
        paragrafıOku(std::exchange(paragraf, {}));
        tabloyuOku(std::exchange(satırlar, {}));
    };
    for (const QStringView satır : markdown.split(u'\n')) {
        const QString yazı = satır.toString();
        if (const auto eşleşen = başlık.match(yazı); eşleşen.hasMatch()) {
            bitir();
            const QString ad = yalın(eşleşen.captured(2));
            bölümler_.append({static_cast<int>(eşleşen.capturedLength(1)), ad, çapa(ad)});
            ekle(ad);
        } else if (satır.startsWith(u'|')) {
            satırlar.append(yazı);
        } else if (satır.isEmpty()) {
            bitir();
        } else if (paragraf.isEmpty() && satır.startsWith(u"    ")) {
            komutuOku(yazı);
        } else {
            paragraf += u' ' + yazı;
        }
    }
    bitir();
    std::stable_sort(terimler_.begin(), terimler_.end(), [](const Terim& bir, const Terim& iki) {
        return TürkçeKarşılaştır(bir.Yazı, iki.Yazı) < 0;
    });
}

void Kılavuz::paragrafıOku(const QString& yazı)
{
    static const QRegularExpression kalın(QStringLiteral(R"(\*\*([^*]+)\*\*)")),
        kod(QStringLiteral("`([^`]+)`"));
    for (const auto& eşleşen : kalın.globalMatch(yazı)) {
        QString ad = yalın(eşleşen.captured(1));
        while (ad.endsWith(u':') || ad.endsWith(u'.'))
            ad.chop(1);
        if (!ad.isEmpty() && ad[0].isUpper()) // else it is stressed, and no name
            ekle(ad);
    }
    for (const auto& eşleşen : kod.globalMatch(yazı))
        ekle(eşleşen.captured(1));
}

// The first two rows are the columns' names and a line.
void Kılavuz::tabloyuOku(const QStringList& satırlar)
{
    for (const QString& satır : satırlar.mid(2)) {
        const QStringList hücre = hücreler(satır);
        if (hücre.size() < 2)
            continue;
        const QString ilk = yalın(hücre[0]);
        ekle(ilk, sayıMı(ilk) ? yalın(hücre[1]) : QString());
        paragrafıOku(satır);
    }
}

// A program named by its path, and its first argument.
void Kılavuz::komutuOku(const QString& yazı)
{
    static const QRegularExpression komut(QStringLiteral(R"(^ {4}(?:(\./\S+(?: \S+)?)|\w+/(\S+ \S+)))"));
    if (const auto eşleşen = komut.match(yazı); eşleşen.hasMatch())
        ekle(eşleşen.captured(eşleşen.lastCapturedIndex()));
}

void Kılavuz::ekle(const QString& yazı, const QString& ek)
{
    const int bölüm = static_cast<int>(bölümler_.size()) - 1;
    const bool var = std::any_of(terimler_.begin(), terimler_.end(), [&](const Terim& terim) {
        return terim.Bölüm == bölüm && Katla(terim.Yazı) == Katla(yazı);
    });
    if (bölüm >= 0 && !yazı.isEmpty() && !var)
        terimler_.append({yazı, ek, bölüm});
}

int Kılavuz::BölümBul(QStringView çapa) const
{
    const auto yer = std::find_if(bölümler_.begin(), bölümler_.end(),
                                  [&](const Bölüm& bölüm) { return bölüm.Çapa == çapa; });
    return yer == bölümler_.end() ? -1 : static_cast<int>(yer - bölümler_.begin());
}

const Kılavuz::Terim* Kılavuz::NumaraBul(int numara) const
{
    const QString yazı = QString::number(numara);
    const auto yer = std::find_if(terimler_.begin(), terimler_.end(), [&](const Terim& terim) {
        return terim.Yazı == yazı && !terim.Ek.isEmpty();
    });
    return yer == terimler_.end() ? nullptr : &*yer;
}

// Of two that fit the longer one: it says more of the message.
const Kılavuz::Terim* Kılavuz::İletiBul(const QString& ileti) const
{
    const QString aranan = Katla(ileti.simplified());
    const Terim* bulunan = nullptr;
    for (const Terim& terim : terimler_) {
        if (cümleMi(terim.Yazı) && aranan.contains(Katla(terim.Yazı)) &&
            (!bulunan || bulunan->Yazı.size() < terim.Yazı.size()))
            bulunan = &terim;
    }
    return bulunan;
}
