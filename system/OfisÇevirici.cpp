#include "system/OfisÇevirici.h"

#include "document/RtfBelgesi.h"
#include "document/RtfBilgisi.h"
#include "document/RtfOkuyucu.h"
#include "system/DışProgram.h"
#include "system/ÇalışmaHatası.h"

#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <new>
#include <utility>

namespace {

constexpr int EnÇokAçılış = 2; // starts without a sign of life in a row
constexpr qint64 EnBüyükRtf = qint64(1) << 30;

// Converted before the others: tells a word processor that doesn't work from a document that stops it.
QString denemeAdı()
{
    return QStringLiteral("deneme.rtf");
}

struct Ayar
{
    const char* yol;
    const char* ad;
    const char* değer;
};

constexpr char İnternet[] = "Inet/Settings";
constexpr char Güvenlik[] = "Office.Common/Security/Scripting";
// Links to pictures and sections are not followed; what the word processor fetches nevertheless (style
// sheets, backgrounds) goes to a proxy that isn't there.
constexpr Ayar Ayarlar[] = {{Güvenlik, "DisableMacrosExecution", "true"},
                            {Güvenlik, "MacroSecurityLevel", "3"},
                            {Güvenlik, "BlockUntrustedRefererLinks", "true"},
                            {"Office.Writer/Content/Update", "Link", "0"},
                            {İnternet, "ooInetProxyType", "2"},
                            {İnternet, "ooInetHTTPProxyName", "127.0.0.1"},
                            {İnternet, "ooInetHTTPProxyPort", "9"},
                            {İnternet, "ooInetHTTPSProxyName", "127.0.0.1"},
                            {İnternet, "ooInetHTTPSProxyPort", "9"},
                            {İnternet, "ooInetFTPProxyName", "127.0.0.1"},
                            {İnternet, "ooInetFTPProxyPort", "9"},
                            {İnternet, "ooInetNoProxy", ""}};

QByteArray ayarDosyası()
{
    QByteArray xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                     "<oor:items xmlns:oor=\"http://openoffice.org/2001/registry\">\n";
    for (const Ayar& ayar : Ayarlar)
        xml += "<item oor:path=\"/org.openoffice." + QByteArray(ayar.yol) + "\"><prop oor:name=\"" + ayar.ad +
               "\" oor:op=\"fuse\"><value>" + ayar.değer + "</value></prop></item>\n";
    return xml + "</oor:items>\n";
}

QString adres(const QString& yol)
{
    return QUrl::fromLocalFile(yol).toString(QUrl::FullyEncoded);
}

QProcessEnvironment ortam(const QString& geçici)
{
    QProcessEnvironment ortam = QProcessEnvironment::systemEnvironment();
    ortam.insert(QStringLiteral("TMPDIR"), geçici);
    ortam.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));        // for the paths' letters
    ortam.insert(QStringLiteral("SAL_USE_VCLPLUGIN"), QStringLiteral("svp")); // draws into memory
    for (const auto* ad : {"DISPLAY", "WAYLAND_DISPLAY", "SESSION_MANAGER"})
        ortam.remove(QString::fromLatin1(ad));
    return ortam;
}

ÇevrilenBelge neden(const QString& cümle)
{
    return {{}, {}, cümle};
}

// Not read whole into memory: pictures stand in it as digits.
ÇevrilenBelge sonuçOku(const QString& yol)
{
    QFile dosya(yol);
    if (!dosya.open(QIODevice::ReadOnly) || dosya.size() == 0)
        return neden(QStringLiteral("LibreOffice belgeyi açamadı; bozuk ya da parolalı olabilir."));
    const uchar* baytlar = dosya.size() < EnBüyükRtf ? dosya.map(0, dosya.size()) : nullptr;
    if (!baytlar)
        return neden(QStringLiteral("Belge çok büyük; içindeki resimleri çıkarıp yeniden deneyin."));
    const QByteArrayView rtf(baytlar, dosya.size());
    try {
        ÇevrilenBelge belge{RtfOku(rtf).Metin, RtfBilgisiOku(rtf), {}};
        if (belge.Metin.trimmed().isEmpty())
            return neden(QStringLiteral("Belgede metin yok; taranmış sayfalardan oluşuyor olabilir."));
        return belge;
    } catch (const MetinOkumaHatası& hata) {
        return neden(hata.Açıklama());
    } catch (const std::bad_alloc&) {
        return neden(QStringLiteral("Belgeyi okumaya bellek yetmiyor."));
    }
}

// Whether the word processor has written the file to its end.
bool tamMı(const QString& yol)
{
    QFile dosya(yol);
    return dosya.open(QIODevice::ReadOnly) && dosya.seek(std::max<qint64>(dosya.size() - 8, 0)) &&
           dosya.readAll().trimmed().endsWith('}');
}

} // namespace

enum class OfisÇevirici::TurSonu
{
    Düzgün,
    Çöktü,
    Asıldı
};

/// One process of the word processor on its way through documents. It tells which it has opened before it
/// writes the result, and, without a name, that it can't open one.
class OfisÇevirici::Tur
{
public:
    /// @param çıktı folder of the results
    Tur(QStringList adlar, QString çıktı) : adlar_(std::move(adlar)), çıktı_(std::move(çıktı)) {}

    /// Reads what it has put out.
    void Oku(const QByteArray& baytlar);
    /// The process has ended.
    void Kapat();

    /// How many documents are done with, whether there is a result or not.
    int Biten() const { return biten_; }
    bool Başladı() const { return biten_ > 0 || açık_; }
    /// Whether the process has ended over the document behind those. It may also have ended over the last one
    /// when it was done with it; then that document is given a process of its own.
    bool SuçluBelli() const { return biten_ > 0 && biten_ < adlar_.size() && (belli_ || biten_ == 1); }
    QString Sonuç(int kaçıncı) const
    {
        return çıktı_ + u'/' + QFileInfo(adlar_[kaçıncı]).completeBaseName() + QStringLiteral(".rtf");
    }

private:
    void satır(const QByteArray& satır);

    QStringList adlar_;
    QString çıktı_;
    QByteArray yarım_; // begun line
    int biten_ = 0;
    bool açık_ = false;  // the document behind those was opened
    bool belli_ = false; // that document was begun, and not finished
};

void OfisÇevirici::Tur::Oku(const QByteArray& baytlar)
{
    QList<QByteArray> satırlar = (yarım_ + baytlar).split('\n');
    yarım_ = satırlar.takeLast();
    for (const QByteArray& s : std::as_const(satırlar))
        satır(s);
}

void OfisÇevirici::Tur::satır(const QByteArray& satır)
{
    if (satır.startsWith("Error: source file could not be loaded")) {
        biten_ = std::min(biten_ + (açık_ ? 2 : 1), static_cast<int>(adlar_.size()));
        açık_ = false;
        belli_ = true;
    } else if (satır.startsWith("convert ")) {
        for (int i = biten_; i < adlar_.size(); ++i) {
            if (satır.contains('/' + adlar_[i].toUtf8() + ' ')) {
                biten_ = i;
                açık_ = true;
                belli_ = false;
                return;
            }
        }
    }
}

void OfisÇevirici::Tur::Kapat()
{
    // Goes by the results, too, in case another version of the word processor tells something else.
    int son = static_cast<int>(adlar_.size()) - 1;
    while (son >= biten_ && !tamMı(Sonuç(son)))
        --son;
    if (son >= biten_) {
        biten_ = son + 1;
        belli_ = false;
    } else {
        belli_ = belli_ || açık_;
    }
    açık_ = false;
}

QString OfisÇevirici::suç(TurSonu son) const
{
    switch (son) {
    case TurSonu::Asıldı:
        return QStringLiteral("LibreOffice belgeyi %1 saniyede çeviremedi.")
            .arg((süreler_.Belge + 999) / 1000);
    case TurSonu::Çöktü:
        return QStringLiteral("LibreOffice bu belgede çöktü; belge bozuk olabilir.");
    case TurSonu::Düzgün:
        break;
    }
    return QStringLiteral("LibreOffice belgeyi açamadı; bozuk ya da parolalı olabilir.");
}

OfisÇevirici::OfisÇevirici(const ÇevirmeKlasörü& klasör, ÇevirmeSüreleri süreler, std::function<void()> bak)
    : klasör_(klasör), süreler_(süreler), bak_(std::move(bak)),
      program_(DışProgram::Bul({QStringLiteral("soffice"), QStringLiteral("libreoffice")})),
      girdi_(klasör.AltKlasör(QStringLiteral("girdi"))), çıktı_(klasör.AltKlasör(QStringLiteral("cikti"))),
      geçici_(klasör.AltKlasör(QStringLiteral("gecici")))
{
    if (program_.isEmpty())
        eksik_ = QStringLiteral(
            "Bu belgeyi okumak için libreoffice-writer ya da libreoffice-writer-nogui paketini kurun.");
    else
        profilKur();
}

OfisÇevirici::~OfisÇevirici()
{
    boruyuSil();
}

void OfisÇevirici::profilKur()
{
    boruyuSil();
    const QString ad = QStringLiteral("profil%1").arg(++profilNo_);
    const QString kullanıcı = klasör_.AltKlasör(ad + QStringLiteral("/user"));
    klasör_.Yaz(kullanıcı + QStringLiteral("/registrymodifications.xcu"), ayarDosyası());
    profil_ = adres(klasör_.Yol(ad));
}

// The socket by which its processes find each other, outside of the folder. One that was killed leaves it.
void OfisÇevirici::boruyuSil() const
{
    if (profil_.isEmpty())
        return;
    const QByteArray anahtar(reinterpret_cast<const char*>(profil_.utf16()), profil_.size() * 2);
    QByteArray yol = "/tmp/OSL_PIPE_" + QByteArray::number(getuid()) + "_SingleOfficeIPC_";
    for (const char bayt : QCryptographicHash::hash(anahtar, QCryptographicHash::Md5))
        yol += QByteArray::number(static_cast<unsigned char>(bayt), 16); // one digit where that is enough
    struct stat durum = {};
    if (lstat(yol.constData(), &durum) == 0 && S_ISSOCK(durum.st_mode))
        unlink(yol.constData());
}

QStringList OfisÇevirici::argümanlar(const QStringList& adlar) const
{
    // As HTML a page would open in a module of its own, which can't write the target format.
    QStringList sonuç = {QStringLiteral("--headless"),
                         QStringLiteral("--norestore"),
                         QStringLiteral("-env:UserInstallation=") + profil_,
                         QStringLiteral("--writer"),
                         QStringLiteral("--convert-to"),
                         QStringLiteral("rtf"),
                         QStringLiteral("--outdir"),
                         çıktı_};
    for (const QString& ad : adlar)
        sonuç += GirdiYolu(ad);
    return sonuç;
}

OfisÇevirici::TurSonu OfisÇevirici::çalıştır(Tur& tur, const QStringList& adlar,
                                             const std::function<void()>& ilerledi) const
{
    for (const QString& klasör : {çıktı_, geçici_}) // what a process before has left
        for (const QFileInfo& kalan : QDir(klasör).entryInfoList(QDir::AllEntries | QDir::Hidden |
                                                                 QDir::System | QDir::NoDotAndDotDot))
            kalan.isDir() ? QDir(kalan.filePath()).removeRecursively() : QFile::remove(kalan.filePath());
    klasör_.Yaz(GirdiYolu(denemeAdı()), RtfBelgesi(QStringLiteral("deneme")));
    DışProgram süreç(program_, argümanlar(adlar), ortam(geçici_), DışProgram::Çıktılar::Birlikte);
    QElapsedTimer saat;
    saat.start();
    bool asıldı = false;
    for (bool bitti = false; !bitti && !asıldı;) {
        bitti = süreç.Bekle();
        bak_();
        if (const QByteArray gelen = süreç.Çıktı(); !gelen.isEmpty()) {
            tur.Oku(gelen);
            ilerledi();
            saat.restart();
        }
        asıldı = !bitti && saat.hasExpired(tur.Başladı() ? süreler_.Belge : süreler_.Açılış);
    }
    süreç.Öldür();
    tur.Kapat();
    ilerledi();
    return asıldı ? TurSonu::Asıldı : süreç.Başarılı() ? TurSonu::Düzgün : TurSonu::Çöktü;
}

void OfisÇevirici::Çevir(const QStringList& adlar, const Alıcı& alıcı)
{
    int verilen = 0, boşAçılış = 0;
    const auto ver = [&](const ÇevrilenBelge& belge) {
        QFile::remove(GirdiYolu(adlar[verilen]));
        const bool diskten = !belge.Okundu() && eksik_.isEmpty() && klasör_.DiskDolu();
        alıcı(verilen++, diskten ? neden(QStringLiteral("Geçici klasörün diskinde yer kalmadı.")) : belge);
    };
    while (verilen < adlar.size()) {
        if (!eksik_.isEmpty()) {
            ver(neden(eksik_));
            continue;
        }
        const QStringList turdakiler = QStringList(denemeAdı()) + adlar.mid(verilen);
        Tur tur(turdakiler, çıktı_);
        const int önce = verilen;
        const auto bitenleriVer = [&] {
            while (önce + tur.Biten() - 1 > verilen) {
                const QString yol = tur.Sonuç(verilen - önce + 1);
                ver(QFileInfo(yol).size() == 0 || tamMı(yol)
                        ? sonuçOku(yol)
                        : neden(QStringLiteral("LibreOffice belgeyi yarım çevirdi.")));
                QFile::remove(yol);
            }
        };
        const TurSonu son = çalıştır(tur, turdakiler, bitenleriVer);
        if (tur.SuçluBelli())
            ver(neden(suç(son)));
        boşAçılış = tur.Biten() > 0 ? 0 : boşAçılış + 1;
        if (boşAçılış > 0)
            profilKur();
        if (boşAçılış == EnÇokAçılış)
            eksik_ = QStringLiteral("LibreOffice çalıştırılamadı.");
    }
}
