#include "app/WordBasic.h"

#include "app/BelgeAktarımı.h"
#include "app/HataPolitikaları.h"
#include "app/Metinler.h"
#include "app/OrtakApilerModülü.h"
#include "app/İletiKutusu.h"
#include "document/RtfBelgesi.h"

#include <QClipboard>
#include <QCursor>
#include <QGuiApplication>
#include <QMimeData>
#include <QScopeGuard>
#include <QStandardPaths>

namespace {

constexpr int NesneOluşmadı = 429; // the customary number

QString kuruluProgram()
{
    return KayıtMetniOku(KayıtKökü::Sınıflar, QStringLiteral("Word.Document\\CurVer"), {});
}

} // namespace

WordBasic::WordBasic() : program_(QStandardPaths::findExecutable(kuruluProgram()))
{
    if (program_.isEmpty())
        throw ÇalışmaHatası(NesneOluşmadı, QStringLiteral("Word.Basic nesnesi oluşturulamadı."));
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

void WordeAktar(const std::function<void(WordBasic&)>& doldur)
{
    if (kuruluProgram().isEmpty()) {
        İletiGöster(Metin(230), İletiSimgesi::Bilgi, İletiDüğmeleri::Tamam);
        return;
    }
    try {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        const auto imleç = qScopeGuard([] { QGuiApplication::restoreOverrideCursor(); });
        WordBasic word;
        word.FileNew();
        doldur(word);
        word.AppShow();
    } catch (...) {
        İletiGöster(HataMetni(235, ŞimdikiHata()), İletiSimgesi::Kritik, İletiDüğmeleri::Tamam);
    }
}
