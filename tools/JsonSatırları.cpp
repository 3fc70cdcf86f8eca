#include "tools/JsonSatırları.h"

#include "store/MakaleKuralları.h"
#include "tools/AraçHatası.h"
#include "tools/Durdurma.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QUtf8StringView>

#include <algorithm>

namespace {

constexpr QByteArrayView BaytSırasıİmi = "\xef\xbb\xbf";
constexpr qsizetype EnUzunAlıntı = 40; // characters of a wrong name that a message repeats

[[noreturn]] void jsonHatası(QByteArrayView satır, qsizetype bayt)
{
    throw AraçHatası(QStringLiteral("Geçerli bir JSON değil; sorun %1. karakterin yakınında.")
                         .arg(QString::fromUtf8(satır.first(bayt)).size() + 1));
}

/// The names of the line's own members in their order, as they stand. Refuses what Qt's parser takes: bare
/// control characters, and "\q" as a q, so that a path would lose its backslashes.
QByteArrayList üyeAdları(const QByteArray& satır)
{
    QByteArrayList adlar;
    int derinlik = 0;
    bool adGelir = false;
    qsizetype dizeBaşı = -1; // of the string in which we are
    for (qsizetype i = 0; i < satır.size(); ++i) {
        const char harf = satır[i];
        if (dizeBaşı < 0) {
            derinlik += (harf == '{' || harf == '[') - (harf == '}' || harf == ']');
            adGelir = derinlik == 1 && (harf == '{' || harf == ',' || (adGelir && harf != ':'));
            dizeBaşı = harf == '"' ? i : -1;
        } else if (harf == '"') {
            if (adGelir)
                adlar.append(satır.sliced(dizeBaşı, i + 1 - dizeBaşı));
            dizeBaşı = -1;
        } else if (harf == '\\') {
            if (++i < satır.size() && !QByteArrayView("\"\\/bfnrtu").contains(satır[i]))
                jsonHatası(satır, i);
        } else if (static_cast<uchar>(harf) < ' ') {
            jsonHatası(satır, i);
        }
    }
    return adlar;
}

QJsonObject nesneÇöz(QByteArray satır)
{
    if (!QUtf8StringView(satır).isValidUtf8())
        throw AraçHatası(QStringLiteral("Satır geçerli bir UTF-8 metni değil."));
    const QByteArrayList adlar = üyeAdları(satır);
    satır.replace(BaytSırasıİmi, "\\ufeff"); // Qt drops the mark from a string's beginning
    QJsonParseError hata;
    const QJsonDocument belge = QJsonDocument::fromJson(satır, &hata);
    if (hata.error != QJsonParseError::NoError)
        jsonHatası(satır, hata.offset);
    if (!belge.isObject())
        throw AraçHatası(QStringLiteral("Satır bir JSON nesnesi değil."));
    QSet<QString> görülen; // Qt keeps a doubled member's last value
    for (const QByteArray& yazılan : adlar) {
        const QString ad = QJsonDocument::fromJson('[' + yazılan + ']').array().at(0).toString();
        if (görülen.contains(ad))
            throw AraçHatası(QStringLiteral("%1 alanı birden çok kez yazılmış.").arg(ad));
        görülen.insert(ad);
    }
    return belge.object();
}

Makale makaleÇöz(const QByteArray& satır)
{
    const QJsonObject nesne = nesneÇöz(satır);
    for (const QString& ad : nesne.keys()) {
        if (std::none_of(MakaleSütunları.begin(), MakaleSütunları.end(),
                         [&ad](const SütunTanımı& tanım) { return tanım.ad == ad; })) {
            throw AraçHatası(QStringLiteral("%1 diye bir alan yok.")
                                 .arg(QString::fromUtf8(JsonDizesi(ad.left(EnUzunAlıntı)))));
        }
    }
    Makale makale;
    for (std::size_t i = 0; i < MakaleSütunları.size(); ++i) {
        const SütunTanımı& sütun = MakaleSütunları[i];
        const QJsonValue değer = nesne.value(sütun.ad);
        if (değer.isUndefined())
            throw AraçHatası(QStringLiteral("%1 alanı eksik.").arg(sütun.ad));
        if (!değer.isString())
            throw AraçHatası(QStringLiteral("%1 alanının değeri bir metin değil.").arg(sütun.ad));
        QString& alan = makale.*sütun.değer;
        alan = değer.toString().normalized(QString::NormalizationForm_C);
        if (const QString sorun = DeğerSorunu(alan, static_cast<MakaleSütunu>(i)); !sorun.isEmpty())
            throw AraçHatası(sorun);
    }
    return makale;
}

} // namespace

QByteArray JsonDizesi(const QString& metin)
{
    const QByteArray dizi = QJsonDocument(QJsonArray{metin}).toJson(QJsonDocument::Compact);
    return dizi.sliced(1, dizi.size() - 2);
}

QByteArray MakaleSatırı(const Makale& makale)
{
    QByteArray satır;
    for (const SütunTanımı& sütun : MakaleSütunları) {
        satır += (satır.isEmpty() ? "{\"" : ", \"") + sütun.ad.toUtf8() + "\": ";
        satır += JsonDizesi(makale.*sütun.değer);
    }
    return satır + "}\n";
}

std::optional<GelenMakale> JsonKaynağı::Sonraki()
{
    while (satırlar_.Oku(satır_)) {
        bekçi_.Bak();
        if (satır_.trimmed().isEmpty())
            continue;
        try {
            return GelenMakale{makaleÇöz(satır_), satırlar_.Nerede(satırlar_.SatırNo())};
        } catch (const AraçHatası& hata) {
            bekçi_.Bak(); // then it is the interruption that ended it
            satırlar_.HataVer(satırlar_.SatırNo(), hata.Açıklama());
        }
    }
    return {};
}
