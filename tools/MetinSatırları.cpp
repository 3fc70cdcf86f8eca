#include "tools/MetinSatırları.h"

#include "store/SistemHatası.h"
#include "store/VeritabanıHatası.h"
#include "tools/AraçHatası.h"
#include "tools/Durdurma.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr QByteArrayView BaytSırasıİmi = "\xef\xbb\xbf";
constexpr qsizetype ParçaBoyu = 65536;
// Longer than any line that the library could take, unless most of it is written as escapes.
constexpr qsizetype EnUzunSatır = 1'000'000'000;

/// Not waiting for the other end of a named pipe, which reading does in its turn.
int girdiyiAç(const QString& yol)
{
    const int tanıtıcı = open(QFile::encodeName(yol).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (tanıtıcı < 0)
        SistemHatasıVer(errno, Erişim::Okuma, yol);
    return tanıtıcı;
}

} // namespace

MetinSatırları::MetinSatırları(const QString& yol, const DurdurmaBekçisi& bekçi)
    : ad_(yol == u'-' ? QStringLiteral("standart girdi") : yol), girdi_(yol == u'-'), bekçi_(bekçi)
{
    const bool açıldı = girdi_
                            ? dosya_.open(STDIN_FILENO, QIODevice::ReadOnly)
                            : dosya_.open(girdiyiAç(yol), QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    if (!açıldı)
        throw VeritabanıHatası(HataNo::DiskHatası, ad_);
}

/// Not through Qt, which goes on waiting when it is interrupted. @return false at the end
bool MetinSatırları::parçaOku()
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

bool MetinSatırları::Oku(QByteArray& satır)
{
    satır.clear();
    while (!satır.endsWith(son_) && (parçaYeri_ < parça_.size() || parçaOku())) {
        const qsizetype son = parça_.indexOf(son_, parçaYeri_);
        const qsizetype boy = (son < 0 ? parça_.size() : son + 1) - parçaYeri_;
        satır += QByteArrayView(parça_).sliced(parçaYeri_, boy);
        parçaYeri_ += boy;
        if (satır.size() > EnUzunSatır)
            HataVer(satırNo_ + 1, QStringLiteral("Satır çok uzun."));
    }
    if (satır.isEmpty())
        return false;
    if (++satırNo_ == 1 && satır.startsWith(BaytSırasıİmi)) {
        imli_ = true;
        satır.remove(0, BaytSırasıİmi.size());
    }
    return true;
}

void MetinSatırları::HataVer(qint64 satırNo, const QString& cümle) const
{
    throw AraçHatası(Nerede(satırNo) + QStringLiteral(": ") + cümle);
}

void MetinSatırları::BaşaDön()
{
    dosya_.seek(0);
    parça_.clear();
    parçaYeri_ = okunan_ = satırNo_ = 0;
}
