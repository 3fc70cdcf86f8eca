#include "tools/JsonSatırları.h"

#include "store/KitaplıkDenetimi.h"
#include "store/VeritabanıHatası.h"
#include "tools/AraçHatası.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdio>

namespace {

constexpr QByteArrayView BaytSırasıİmi = "\xef\xbb\xbf";
constexpr qint64 ParçaBoyu = 65536;
// Longer than any line that the library could take, unless most of it is written as escapes.
constexpr qsizetype EnUzunSatır = 1'000'000'000;
constexpr qsizetype EnUzunAlıntı = 40; // characters of a wrong name that a message repeats

/// The text as a JSON string with its quotes.
QByteArray jsonDizesi(const QString& metin)
{
    const QByteArray dizi = QJsonDocument(QJsonArray{metin}).toJson(QJsonDocument::Compact);
    return dizi.sliced(1, dizi.size() - 2);
}

[[noreturn]] void jsonHatası(const QByteArray& satır, qsizetype bayt)
{
    throw AraçHatası(QStringLiteral("Geçerli bir JSON değil; sorun %1. karakterin yakınında.")
                         .arg(QString::fromUtf8(satır.left(bayt)).size() + 1));
}

// Qt's parser takes bare control characters and makes a q of "\q", so that a path would lose its backslashes.
void dizeleriDenetle(const QByteArray& satır)
{
    bool dizede = false;
    for (qsizetype i = 0; i < satır.size(); ++i) {
        if (satır[i] == '"') {
            dizede = !dizede;
        } else if (dizede && satır[i] == '\\') {
            if (++i < satır.size() && !QByteArrayView("\"\\/bfnrtu").contains(satır[i]))
                jsonHatası(satır, i);
        } else if (dizede && static_cast<uchar>(satır[i]) < ' ') {
            jsonHatası(satır, i);
        }
    }
}

QJsonObject nesneÇöz(QByteArray satır)
{
    if (!QUtf8StringView(satır).isValidUtf8())
        throw AraçHatası(QStringLiteral("Satır geçerli bir UTF-8 metni değil."));
    dizeleriDenetle(satır);
    satır.replace(BaytSırasıİmi, "\\ufeff"); // Qt drops the mark from a string's beginning
    QJsonParseError hata;
    const QJsonDocument belge = QJsonDocument::fromJson(satır, &hata);
    if (hata.error != QJsonParseError::NoError)
        jsonHatası(satır, hata.offset);
    if (!belge.isObject())
        throw AraçHatası(QStringLiteral("Satır bir JSON nesnesi değil."));
    return belge.object();
}

HataNo açmaHatası(const QFile& dosya)
{
    if (!dosya.exists())
        return HataNo::DosyaYok;
    return dosya.error() == QFileDevice::PermissionsError ? HataNo::İzinYok : HataNo::DiskHatası;
}

} // namespace

Makale MakaleÇöz(const QByteArray& satır)
{
    const QJsonObject nesne = nesneÇöz(satır);
    for (const QString& ad : nesne.keys()) {
        if (std::none_of(MakaleSütunları.begin(), MakaleSütunları.end(),
                         [&ad](const SütunTanımı& tanım) { return tanım.ad == ad; })) {
            throw AraçHatası(QStringLiteral("%1 diye bir alan yok.")
                                 .arg(QString::fromUtf8(jsonDizesi(ad.left(EnUzunAlıntı)))));
        }
    }
    Makale makale;
    for (std::size_t i = 0; i < makale.size(); ++i) {
        const QStringView ad = MakaleSütunları[i].ad;
        const QJsonValue değer = nesne.value(ad);
        if (değer.isUndefined())
            throw AraçHatası(QStringLiteral("%1 alanı eksik.").arg(ad));
        if (!değer.isString())
            throw AraçHatası(QStringLiteral("%1 alanının değeri bir metin değil.").arg(ad));
        makale[i] = değer.toString().normalized(QString::NormalizationForm_C);
        if (const QString sorun = DeğerSorunu(makale[i], static_cast<MakaleSütunu>(i)); !sorun.isEmpty())
            throw AraçHatası(sorun);
    }
    return makale;
}

QByteArray MakaleSatırı(const Makale& makale)
{
    QByteArray satır = "{";
    for (std::size_t i = 0; i < makale.size(); ++i) {
        satır += (i == 0 ? "\"" : ", \"") + MakaleSütunları[i].ad.toUtf8() + "\": ";
        satır += jsonDizesi(makale[i]);
    }
    return satır + "}\n";
}

JsonSatırları::JsonSatırları(const QString& yol)
    : ad_(yol == u'-' ? QStringLiteral("standart girdi") : yol), girdi_(yol == u'-'), dosya_(yol)
{
    const bool açıldı = girdi_ ? dosya_.open(stdin, QIODevice::ReadOnly) : dosya_.open(QIODevice::ReadOnly);
    if (!açıldı)
        throw VeritabanıHatası(açmaHatası(dosya_), ad_);
}

bool JsonSatırları::satırOku()
{
    satır_.clear();
    do {
        const QByteArray parça = dosya_.readLine(ParçaBoyu);
        if (parça.isEmpty() && dosya_.error() != QFileDevice::NoError)
            throw VeritabanıHatası(HataNo::DiskHatası, ad_);
        if (parça.isEmpty())
            break;
        satır_ += parça;
        if (satır_.size() > EnUzunSatır)
            throw AraçHatası(
                QStringLiteral("%1, %2. satır: Satır çok uzun.").arg(ad_, QString::number(satırNo_ + 1)));
    } while (!satır_.endsWith('\n'));
    if (satır_.isEmpty())
        return false;
    if (++satırNo_ == 1 && satır_.startsWith(BaytSırasıİmi))
        satır_.remove(0, BaytSırasıİmi.size());
    return true;
}

std::optional<Makale> JsonSatırları::Sonraki()
{
    while (satırOku()) {
        if (satır_.trimmed().isEmpty())
            continue;
        try {
            return MakaleÇöz(satır_);
        } catch (const AraçHatası& hata) {
            throw AraçHatası(
                QStringLiteral("%1, %2. satır: %3").arg(ad_, QString::number(satırNo_), hata.Açıklama()));
        }
    }
    return {};
}

void JsonSatırları::BaşaDön()
{
    dosya_.seek(0);
    satırNo_ = 0;
}
