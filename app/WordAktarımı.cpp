#include "app/WordAktarımı.h"

#include "app/HataBildirimi.h"
#include "app/Metinler.h"
#include "app/İletiKutusu.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScopeGuard>

void WordeAktar(const std::function<void(WordBasic&)>& doldur)
{
    if (!WordBasic::Kurulu()) {
        İletiGöster(Metin(İleti::WordKuruluDeğil), İletiSimgesi::Bilgi, İletiDüğmeleri::Tamam);
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
        İletiGöster(HataMetni(İleti::WordBaşlatılamadı, ŞimdikiHata()), İletiSimgesi::Kritik,
                    İletiDüğmeleri::Tamam);
    }
}
