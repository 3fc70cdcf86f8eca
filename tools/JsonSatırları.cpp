#include "tools/JsonSatırları.h"

#include "store/KitaplıkDenetimi.h"
#include "store/SistemHatası.h"
#include "store/VeritabanıHatası.h"
#include "tools/AraçHatası.h"
#include "tools/Durdurma.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QUtf8StringView>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr QByteArrayView BaytSırasıİmi = "\xef\xbb\xbf";
constexpr qsizetype ParçaBoyu = 65536;
// Longer than any line that the library could take, unless most of it is written as escapes.
constexpr qsizetype EnUzunSatır = 1'000'000'000;
constexpr qsizetype EnUzunAlıntı = 40; // characters of a wrong name that a message repeats

/// The text as a JSON string with its quotes.
QByteArray jsonDizesi(const QString& metin)
{
    const QByteArray dizi = QJsonDocument(QJsonArray{metin}).toJson(QJsonDocument::Compact);
    return dizi.sliced(1, dizi.size() - 2);
}

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
                                 .arg(QString::fromUtf8(jsonDizesi(ad.left(EnUzunAlıntı)))));
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

/// Not waiting for the other end of a named pipe, which reading does in its turn.
int girdiyiAç(const QString& yol)
{
    const int tanıtıcı = open(QFile::encodeName(yol).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (tanıtıcı < 0)
        SistemHatasıVer(errno, Erişim::Okuma, yol);
    return tanıtıcı;
}

} // namespace

QByteArray MakaleSatırı(const Makale& makale)
{
    QByteArray satır;
    for (const SütunTanımı& sütun : MakaleSütunları) {
        satır += (satır.isEmpty() ? "{\"" : ", \"") + sütun.ad.toUtf8() + "\": ";
        satır += jsonDizesi(makale.*sütun.değer);
    }
    return satır + "}\n";
}

JsonSatırları::JsonSatırları(const QString& yol, const DurdurmaBekçisi& bekçi)
    : ad_(yol == u'-' ? QStringLiteral("standart girdi") : yol), girdi_(yol == u'-'), bekçi_(bekçi)
{
    const bool açıldı = girdi_
                            ? dosya_.open(STDIN_FILENO, QIODevice::ReadOnly)
                            : dosya_.open(girdiyiAç(yol), QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    if (!açıldı)
        throw VeritabanıHatası(HataNo::DiskHatası, ad_);
}

/// Not through Qt, which goes on waiting when it is interrupted. @return false at the end
bool JsonSatırları::parçaOku()
{
    parça_.resize(ParçaBoyu);
    parçaYeri_ = 0;
    ssize_t boy = 0;
    do {
        bekçi_.OkunurOlsun(dosya_.handle());
        boy = read(dosya_.handle(), parça_.data(), std::size_t(ParçaBoyu));
    } while (boy < 0 && (errno == EINTR || errno == EAGAIN));
    if (boy < 0)
        SistemHatasıVer(errno, Erişim::Okuma, ad_);
    parça_.resize(boy);
    okunan_ += boy;
    return boy > 0;
}

bool JsonSatırları::satırOku()
{
    satır_.clear();
    while (!satır_.endsWith('\n') && (parçaYeri_ < parça_.size() || parçaOku())) {
        const qsizetype son = parça_.indexOf('\n', parçaYeri_);
        const qsizetype boy = (son < 0 ? parça_.size() : son + 1) - parçaYeri_;
        satır_ += QByteArrayView(parça_).sliced(parçaYeri_, boy);
        parçaYeri_ += boy;
        if (satır_.size() > EnUzunSatır)
            throw AraçHatası(
                QStringLiteral("%1, %2. satır: Satır çok uzun.").arg(ad_, QString::number(satırNo_ + 1)));
    }
    if (satır_.isEmpty())
        return false;
    if (++satırNo_ == 1 && satır_.startsWith(BaytSırasıİmi))
        satır_.remove(0, BaytSırasıİmi.size());
    return true;
}

std::optional<Makale> JsonSatırları::Sonraki()
{
    while (satırOku()) {
        bekçi_.Bak();
        if (satır_.trimmed().isEmpty())
            continue;
        try {
            return makaleÇöz(satır_);
        } catch (const AraçHatası& hata) {
            bekçi_.Bak(); // then it is the interruption that ended it
            throw AraçHatası(
                QStringLiteral("%1, %2. satır: %3").arg(ad_, QString::number(satırNo_), hata.Açıklama()));
        }
    }
    return {};
}

void JsonSatırları::BaşaDön()
{
    dosya_.seek(0);
    parça_.clear();
    parçaYeri_ = okunan_ = satırNo_ = 0;
}
