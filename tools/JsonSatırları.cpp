#include "tools/JsonSatırları.h"

#include "store/KitaplıkDenetimi.h"
#include "store/SistemHatası.h"
#include "store/Utf8Denetimi.h"
#include "store/VeritabanıHatası.h"
#include "tools/AraçHatası.h"
#include "tools/Durdurma.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QStringDecoder>

#include <algorithm>
#include <cctype>
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

/// Takes one line apart. Qt's parser won't do: it takes a doubled member's last value, bare control
/// characters and "\q", drops a mark from a string's beginning, and can't be interrupted.
class SatırÇözücü
{
public:
    SatırÇözücü(QByteArrayView satır, const DurdurmaBekçisi& bekçi) : satır_(satır), bekçi_(bekçi) {}

    /// Throws AraçHatası, which says what is wrong but not where the line stands.
    Makale Çöz();

private:
    void alanıOku(std::array<std::optional<QString>, MakaleSütunları.size()>& alanlar);
    QString dize();
    void düzParça(QString& metin);
    char16_t kaçış();
    char16_t onaltılık();

    void boşluğuGeç();
    bool bitti() const { return yer_ == satır_.size(); }
    char sıradaki() const { return bitti() ? '\0' : satır_[yer_]; }
    void geç(char harf);
    [[noreturn]] void hata() const;

    QByteArrayView satır_;
    qsizetype yer_ = 0;
    const DurdurmaBekçisi& bekçi_;
};

void SatırÇözücü::hata() const
{
    throw AraçHatası(QStringLiteral("Geçerli bir JSON değil; sorun %1. karakterin yakınında.")
                         .arg(QString::fromUtf8(satır_.first(yer_)).size() + 1));
}

void SatırÇözücü::boşluğuGeç()
{
    while (!bitti() && QByteArrayView(" \t\r\n").contains(sıradaki()))
        ++yer_;
}

/// Blanks, the character, blanks.
void SatırÇözücü::geç(char harf)
{
    boşluğuGeç();
    if (bitti() || sıradaki() != harf)
        hata();
    ++yer_;
    boşluğuGeç();
}

char16_t SatırÇözücü::onaltılık()
{
    constexpr qsizetype Haneler = 4;
    const QByteArrayView haneler = satır_.sliced(yer_, std::min(Haneler, satır_.size() - yer_));
    const bool uyar = haneler.size() == Haneler && std::all_of(haneler.begin(), haneler.end(), [](char harf) {
                          return std::isxdigit(static_cast<unsigned char>(harf));
                      });
    if (!uyar)
        hata();
    yer_ += Haneler;
    return static_cast<char16_t>(haneler.toByteArray().toUInt(nullptr, 16));
}

/// What stands behind a backslash.
char16_t SatırÇözücü::kaçış()
{
    constexpr QByteArrayView Yazılan = "\"\\/bfnrt", Anlamı = "\"\\/\b\f\n\r\t";
    const char harf = sıradaki();
    const qsizetype sıra = Yazılan.indexOf(harf);
    if (bitti() || (sıra < 0 && harf != 'u'))
        hata();
    ++yer_;
    return sıra < 0 ? onaltılık() : static_cast<char16_t>(Anlamı[sıra]);
}

/// Up to the next quote, backslash or control character, piece by piece.
void SatırÇözücü::düzParça(QString& metin)
{
    QStringDecoder çözücü(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    bool sürer = true;
    while (sürer) {
        bekçi_.Bak();
        const auto baş = satır_.begin() + yer_, enSon = baş + std::min(ParçaBoyu, satır_.size() - yer_);
        const auto son = std::find_if(baş, enSon, [](char harf) {
            return harf == '"' || harf == '\\' || static_cast<unsigned char>(harf) < ' ';
        });
        metin += çözücü(QByteArrayView(baş, son));
        yer_ += son - baş;
        sürer = son == enSon && !bitti();
    }
}

QString SatırÇözücü::dize()
{
    if (sıradaki() != '"')
        hata();
    ++yer_;
    QString metin;
    while (true) {
        düzParça(metin);
        const char harf = sıradaki();
        if (harf != '"' && harf != '\\')
            hata();
        ++yer_;
        if (harf == '"')
            return metin;
        metin += QChar(kaçış());
    }
}

void SatırÇözücü::alanıOku(std::array<std::optional<QString>, MakaleSütunları.size()>& alanlar)
{
    const QString ad = dize();
    const auto tanım = std::find_if(MakaleSütunları.begin(), MakaleSütunları.end(),
                                    [&ad](const SütunTanımı& sütun) { return sütun.ad == ad; });
    if (tanım == MakaleSütunları.end()) {
        throw AraçHatası(QStringLiteral("%1 diye bir alan yok.")
                             .arg(QString::fromUtf8(jsonDizesi(ad.left(EnUzunAlıntı)))));
    }
    std::optional<QString>& alan = alanlar[std::size_t(tanım - MakaleSütunları.begin())];
    if (alan)
        throw AraçHatası(QStringLiteral("%1 alanı birden çok kez yazılmış.").arg(ad));
    geç(':');
    if (!bitti() && QByteArrayView("{[-0123456789tfn").contains(sıradaki()))
        throw AraçHatası(QStringLiteral("%1 alanının değeri bir metin değil.").arg(ad));
    alan = dize();
    boşluğuGeç();
}

Makale SatırÇözücü::Çöz()
{
    if (!Utf8Geçerli({satır_.data(), std::size_t(satır_.size())}))
        throw AraçHatası(QStringLiteral("Satır geçerli bir UTF-8 metni değil."));
    boşluğuGeç();
    if (!bitti() && QByteArrayView("[\"-0123456789tfn").contains(sıradaki()))
        throw AraçHatası(QStringLiteral("Satır bir JSON nesnesi değil."));
    geç('{');
    std::array<std::optional<QString>, MakaleSütunları.size()> alanlar;
    if (sıradaki() != '}')
        alanıOku(alanlar);
    while (sıradaki() == ',') {
        geç(',');
        alanıOku(alanlar);
    }
    geç('}');
    if (!bitti())
        hata();
    Makale makale;
    for (std::size_t i = 0; i < makale.size(); ++i) {
        bekçi_.Bak();
        if (!alanlar[i])
            throw AraçHatası(QStringLiteral("%1 alanı eksik.").arg(MakaleSütunları[i].ad));
        makale[i] = alanlar[i]->normalized(QString::NormalizationForm_C);
        if (const QString sorun = DeğerSorunu(makale[i], static_cast<MakaleSütunu>(i)); !sorun.isEmpty())
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
    QByteArray satır = "{";
    for (std::size_t i = 0; i < makale.size(); ++i) {
        satır += (i == 0 ? "\"" : ", \"") + MakaleSütunları[i].ad.toUtf8() + "\": ";
        satır += jsonDizesi(makale[i]);
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
            return SatırÇözücü(satır_, bekçi_).Çöz();
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
