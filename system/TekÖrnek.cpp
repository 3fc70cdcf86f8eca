#include "system/TekÖrnek.h"

#include <QCryptographicHash>
#include <QFile>
#include <QLocalSocket>
#include <QStandardPaths>

#include <unistd.h>

namespace {

constexpr int YanıtBekleme = 2000; // ms; a first instance that is still opening its library answers late

QString soketYolu(const QString& başlık)
{
    const QString klasör = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    const QByteArray kimlik = (başlık + u'\n' + QString::number(getuid())).toUtf8();
    const QByteArray özet = QCryptographicHash::hash(kimlik, QCryptographicHash::Sha256).toHex().left(16);
    return klasör + QStringLiteral("/belgenar-") + QString::fromLatin1(özet);
}

} // namespace

TekÖrnek::TekÖrnek(const QString& başlık) : yol_(soketYolu(başlık)), kilit_(yol_ + QStringLiteral(".lock"))
{
    kilit_.setStaleLockTime(0); // only the owner's death makes it void, not its age
    if (kilitle())
        dinle();
    else
        başkasıVar_ = kilit_.error() == QLockFile::LockFailedError;
}

TekÖrnek::~TekÖrnek() = default;

bool TekÖrnek::kilitle()
{
    if (kilit_.tryLock(0))
        return true;
    if (kilit_.error() != QLockFile::LockFailedError || çağır())
        return false;
    // Nobody answers, and a lock that names no owner (a crash came between making and writing it) would
    // never count as void.
    qint64 süreç = 0;
    QString makine, ad;
    return !kilit_.getLockInfo(&süreç, &makine, &ad) && QFile::remove(yol_ + QStringLiteral(".lock")) &&
           kilit_.tryLock(0);
}

void TekÖrnek::dinle()
{
    sunucu_ = std::make_unique<QLocalServer>();
    QLocalServer::removeServer(yol_); // the lock is ours: what is there was left by a crash
    if (!sunucu_->listen(yol_)) {
        qWarning("belgenar: no socket for a second start: %s", qUtf8Printable(sunucu_->errorString()));
        return;
    }
    QObject::connect(sunucu_.get(), &QLocalServer::newConnection, sunucu_.get(), [this] {
        while (QLocalSocket* soket = sunucu_->nextPendingConnection()) {
            soket->write("1");
            soket->flush();
            QObject::connect(soket, &QLocalSocket::disconnected, soket, &QObject::deleteLater);
            if (ÖneÇağrıldı)
                ÖneÇağrıldı();
        }
    });
}

bool TekÖrnek::çağır() const
{
    QLocalSocket soket;
    soket.connectToServer(yol_);
    return soket.waitForConnected(YanıtBekleme) && soket.waitForReadyRead(YanıtBekleme);
}
