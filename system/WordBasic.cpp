#include "system/WordBasic.h"

#include "document/RtfBelgesi.h"
#include "system/BelgeAktarımı.h"
#include "system/OrtakApilerModülü.h"
#include "system/ÇalışmaHatası.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QStandardPaths>

namespace {

QString kuruluProgram()
{
    return KayıtMetniOku(KayıtKökü::Sınıflar, QStringLiteral("Word.Document\\CurVer"), {});
}

} // namespace

bool WordBasic::Kurulu()
{
    return !kuruluProgram().isEmpty();
}

WordBasic::WordBasic() : program_(QStandardPaths::findExecutable(kuruluProgram()))
{
    if (program_.isEmpty())
        throw ÇalışmaHatası(ÇalışmaHataNo::NesneOluşmadı,
                            QStringLiteral("Word.Basic nesnesi oluşturulamadı."));
}

void WordBasic::FileNew()
{
    metin_.clear();
    rtf_.clear();
}

void WordBasic::Insert(const QString& metin)
{
    metin_ += metin;
}

void WordBasic::EditPaste()
{
    const QMimeData* pano = QGuiApplication::clipboard()->mimeData();
    if (!pano)
        return;
    const QStringList biçimler = pano->formats(); // one question to the owner
    for (const QString& biçim : {QStringLiteral("text/rtf"), QStringLiteral("application/rtf")}) {
        const QByteArray rtf = biçimler.contains(biçim) ? pano->data(biçim) : QByteArray();
        if (rtf.startsWith("{\\rtf")) {
            rtf_ = rtf;
            return;
        }
    }
    if (biçimler.contains(QStringLiteral("text/plain")))
        metin_ += pano->text();
}

void WordBasic::AppShow()
{
    BelgeAktar(program_, rtf_.isEmpty() ? RtfBelgesi(metin_) : rtf_);
}
