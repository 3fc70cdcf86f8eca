#include "system/OrtakApilerModülü.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>
#include <QUrl>
#include <QWidget>

#include <sys/utsname.h>

namespace {

constexpr quint32 NT = 2;
constexpr quint32 NTSürümü = 4;

} // namespace

std::optional<SürümBilgisi> SürümBilgisiAl()
{
    utsname ad = {};
    if (uname(&ad) != 0)
        return {};
    SürümBilgisi sürüm; // platform 0: not NT
    const QString metin = QString::fromLocal8Bit(ad.release);
    sürüm.Ana = metin.section(u'.', 0, 0).toUInt();
    sürüm.Alt = metin.section(u'.', 1, 1).toUInt();
    return sürüm;
}

SürümDurumu SürümüDeğerlendir(const std::optional<SürümBilgisi>& sürüm)
{
    if (!sürüm)
        return SürümDurumu::YanıtYok;
    if (sürüm->Platform != NT || sürüm->Ana > NTSürümü)
        return SürümDurumu::Uygun;
    const QString paket = sürüm->ServisPaketi.section(QChar(u'\0'), 0, 0);
    const bool eski = sürüm->Ana < NTSürümü || paket == QLatin1String("Service Pack 1") ||
                      paket == QLatin1String("Service Pack 2");
    return eski ? SürümDurumu::Eski : SürümDurumu::Uygun;
}

bool DosyaVar(const QString& yol)
{
    return QFileInfo::exists(yol);
}

QString SonaAyraçEkle(const QString& yol)
{
    const QChar ayraç = QDir::separator();
    return yol.endsWith(ayraç) ? yol : yol + ayraç;
}

QString KayıtMetniOku(KayıtKökü kök, const QString& anahtarYolu, const QString& değerAdı)
{
    if (kök != KayıtKökü::Sınıflar || anahtarYolu != QLatin1String("Word.Document\\CurVer") ||
        !değerAdı.isEmpty())
        return {};
    for (const QString& program : {QStringLiteral("soffice"), QStringLiteral("libreoffice")}) {
        if (!QStandardPaths::findExecutable(program).isEmpty())
            return program;
    }
    return {};
}

// Files and scripts are not opened: an address may come from a stored state.
void AdresAç(const QString& adres)
{
    const QUrl url(adres, QUrl::StrictMode);
    const QString şema = url.scheme(); // in lower case
    const bool site =
        (şema == QLatin1String("http") || şema == QLatin1String("https")) && !url.host().isEmpty();
    const bool posta = şema == QLatin1String("mailto") && !url.path().isEmpty();
    if (url.isValid() && (site || posta))
        QDesktopServices::openUrl(url);
}

void PencereleriBoya()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void TürkçeKarakterKümesiUygula(QWidget& pencere)
{
    const QLocale türkçe(QLocale::Turkish, QLocale::Turkey);
    pencere.setLocale(türkçe);
    const auto kontroller = pencere.findChildren<QWidget*>();
    for (QWidget* kontrol : kontroller)
        kontrol->setLocale(türkçe);
}
