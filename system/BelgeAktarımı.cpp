#include "system/BelgeAktarımı.h"

#include "system/DosyaGözcüsü.h"
#include "system/OrtakApilerModülü.h"
#include "system/ÇalışmaHatası.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <memory>
#include <optional>
#include <unistd.h>
#include <vector>

namespace {

// In ms. A word processor that is whole opens the file half a second after its start, a tenth when it runs
// already; a broken one ends as fast. Slow disks take seconds.
constexpr int EnUzunBekleme = 5000;
constexpr int OkuduktanSonra = 1000; // one that ends with an error after it opened the document still failed
constexpr int BakışAralığı = 20;

// When the file may go, in ms. The program opens it a few times within half a second and then loads it,
// for a minute where it is of 20 MB; what it holds open it can read although the file is gone, and what it
// shows is a copy of its own. It may also wait with a question before it opens anything, for as long as the
// user likes: a file that was never opened stays while the program runs, and a while after that.
constexpr int DenetimAralığı = 2000;
constexpr int OkunmuşDinlenme = 5000;
constexpr int OkunmamışBekleme = 120'000;

QString klasörKalıbı()
{
    return QStringLiteral("belgenar-belge-");
}

/// One document on its way. Its file goes with it; the program goes on.
class Aktarım
{
public:
    explicit Aktarım(const QByteArray& belge)
        : klasör_(QDir::temp().filePath(klasörKalıbı() + QStringLiteral("XXXXXX"))),
          süreç_(std::make_unique<QProcess>())
    {
        belgeyiYaz(belge);
        gözcü_.emplace(yol());
    }
    ~Aktarım()
    {
        if (bitti())
            return;
        // Never destroyed: it would take the programs with it.
        static auto* const kalanlar = new QObject; // NOLINT(bugprone-unhandled-exception-at-new)
        QProcess* kalan = süreç_.release();
        kalan->setParent(kalanlar);
        QObject::connect(kalan, &QProcess::finished, kalan, &QObject::deleteLater);
    }
    Aktarım(const Aktarım&) = delete;
    Aktarım& operator=(const Aktarım&) = delete;

    void Başlat(const QString& program);
    /// Waits until the program has the document.
    void Bekle();

    const QString& Klasör() const { return klasörYolu_; }
    bool Silinebilir();
    /// Leaves the file to a later run where the program may still want it.
    void ProgramBiterkenBırak()
    {
        gözcü_->Bak();
        klasör_.setAutoRemove(gözcü_->Okundu(OkuduktanSonra) || bitti());
    }

private:
    QString yol() const { return klasör_.filePath(QStringLiteral("belge.rtf")); }
    bool bitti() const { return süreç_->state() == QProcess::NotRunning; }
    void belgeyiYaz(const QByteArray& belge);

    QTemporaryDir klasör_; // for this user only; removed with its content by the destructor
    QString klasörYolu_ = klasör_.path();
    std::optional<DosyaGözcüsü> gözcü_;
    std::unique_ptr<QProcess> süreç_;
    QElapsedTimer bittiğinden_;
};

void Aktarım::belgeyiYaz(const QByteArray& belge)
{
    QFile dosya(yol());
    const bool yazıldı =
        klasör_.isValid() &&
        dosya.open(QIODevice::WriteOnly | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner) &&
        dosya.write(belge) == belge.size() && dosya.flush();
    if (yazıldı)
        return;
    throw ÇalışmaHatası(ÇalışmaHataNo::DosyaErişimi,
                        QStringLiteral("Belge geçici klasöre yazılamadı: %1")
                            .arg(klasör_.isValid() ? dosya.errorString() : klasör_.errorString()));
}

void Aktarım::Başlat(const QString& program)
{
    // Pipes to this program would end the other one with it, and so would a shared terminal's signals.
    süreç_->setStandardInputFile(QProcess::nullDevice());
    süreç_->setStandardOutputFile(QProcess::nullDevice());
    süreç_->setStandardErrorFile(QProcess::nullDevice());
    süreç_->setChildProcessModifier([] { setsid(); });
    süreç_->start(program, {QStringLiteral("--writer"), QStringLiteral("-n"), yol()});
    if (!süreç_->waitForStarted())
        throw ÇalışmaHatası(
            ÇalışmaHataNo::NesneOluşmadı,
            QStringLiteral("Kelime işlemci başlatılamadı: %1 (%2)").arg(program, süreç_->errorString()));
}

void Aktarım::Bekle()
{
    QElapsedTimer baştan, açıldığından;
    baştan.start();
    while (!baştan.hasExpired(EnUzunBekleme) &&
           !(açıldığından.isValid() && açıldığından.hasExpired(OkuduktanSonra))) {
        if (bitti() || süreç_->waitForFinished(BakışAralığı))
            break;
        PencereleriBoya();
        gözcü_->Bak();
        if (gözcü_->Açıldı() && !açıldığından.isValid())
            açıldığından.start();
    }
    if (!bitti() || (süreç_->exitStatus() == QProcess::NormalExit && süreç_->exitCode() == 0))
        return;
    throw ÇalışmaHatası(ÇalışmaHataNo::Otomasyon,
                        süreç_->exitStatus() == QProcess::NormalExit
                            ? QStringLiteral("Kelime işlemci belgeyi göstermeden kapandı. Çıkış durumu: %1")
                                  .arg(süreç_->exitCode())
                            : QStringLiteral("Kelime işlemci belgeyi göstermeden çöktü."));
}

bool Aktarım::Silinebilir()
{
    gözcü_->Bak();
    if (bitti() && !bittiğinden_.isValid())
        bittiğinden_.start();
    return gözcü_->Okundu(OkunmuşDinlenme) ||
           (bittiğinden_.isValid() && bittiğinden_.hasExpired(OkunmamışBekleme));
}

/// All documents whose file is still there.
class Aktarımlar
{
public:
    Aktarımlar()
    {
        denetim_.setInterval(DenetimAralığı);
        QObject::connect(&denetim_, &QTimer::timeout, &denetim_, [this] {
            std::erase_if(liste_, [](const auto& aktarım) { return aktarım->Silinebilir(); });
            if (liste_.empty())
                denetim_.stop();
        });
    }
    ~Aktarımlar()
    {
        for (const auto& aktarım : liste_)
            aktarım->ProgramBiterkenBırak();
    }
    Aktarımlar(const Aktarımlar&) = delete;
    Aktarımlar& operator=(const Aktarımlar&) = delete;

    void Ekle(std::unique_ptr<Aktarım> aktarım)
    {
        liste_.push_back(std::move(aktarım));
        denetim_.start();
    }

    /// Removes what runs that were killed have left behind.
    void EskileriSil() const
    {
        const QDateTime sınır = QDateTime::currentDateTime().addMSecs(-OkunmamışBekleme);
        const QFileInfoList klasörler =
            QDir::temp().entryInfoList({klasörKalıbı() + u'*'}, QDir::Dirs | QDir::NoSymLinks | QDir::Hidden);
        for (const QFileInfo& klasör : klasörler) {
            const bool bizim = std::any_of(liste_.begin(), liste_.end(), [&](const auto& aktarım) {
                return aktarım->Klasör() == klasör.filePath();
            });
            if (!bizim && klasör.ownerId() == getuid() && klasör.lastModified() < sınır)
                QDir(klasör.filePath()).removeRecursively();
        }
    }

private:
    std::vector<std::unique_ptr<Aktarım>> liste_;
    QTimer denetim_;
};

Aktarımlar& aktarımlar()
{
    static std::unique_ptr<Aktarımlar> hepsi;
    if (!hepsi) {
        hepsi = std::make_unique<Aktarımlar>();
        qAddPostRoutine([] { hepsi.reset(); });
    }
    return *hepsi;
}

} // namespace

void EskiBelgeleriSil()
{
    aktarımlar().EskileriSil();
    QTimer::singleShot(OkunmamışBekleme, qApp, [] { aktarımlar().EskileriSil(); });
}

void BelgeAktar(const QString& program, const QByteArray& belge)
{
    aktarımlar().EskileriSil();
    auto aktarım = std::make_unique<Aktarım>(belge);
    aktarım->Başlat(program);
    aktarım->Bekle();
    aktarımlar().Ekle(std::move(aktarım));
}
