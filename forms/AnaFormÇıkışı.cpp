// How the main window closes and the program ends.
#include "forms/AnaForm.h"

#include "app/Görünüm.h"
#include "app/HataPolitikaları.h"
#include "app/Metinler.h"
#include "app/OrtakDeğişkenlerModülü.h"
#include "app/PencereYeri.h"
#include "app/İletiKutusu.h"
#include "forms/EkleFormu.h"
#include "forms/Yardım.h"
#include "system/EkranÖlçüsü.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QScopeGuard>

void AnaForm::ÇıkışButonu_Click()
{
    Kapat(KapanışNedeni::Program);
}

// Asks before the toolkit's own closing begins, which would let a second request past the question.
bool AnaForm::Kapat(KapanışNedeni neden)
{
    if (!Form_QueryUnload(neden))
        return false;
    close();
    return true;
}

void AnaForm::closeEvent(QCloseEvent* olay)
{
    olay->setAccepted(Form_QueryUnload(KapanışNedeni::Kullanıcı));
}

bool AnaForm::Form_QueryUnload(KapanışNedeni neden)
{
    if (bitti_)
        return true;
    if (ekleFormu_ && ekleFormu_->GirişDurumunda()) { // what is being entered would be lost
        ÖneGetir();
        return false;
    }
    if (neden != KapanışNedeni::GörevYöneticisi && neden != KapanışNedeni::ÜstPencere) {
        if (soruluyor_) // one question at a time
            return false;
        soruluyor_ = true;
        const auto sorulmuyor = qScopeGuard([this] { soruluyor_ = false; });
        const İletiYeri yer = isMinimized() ? İletiYeri::Ekran : İletiYeri::EtkinPencere;
        const bool çıkılsın = İletiGöster(Metin(İleti::ÇıkılsınMı), İletiSimgesi::Soru,
                                          İletiDüğmeleri::EvetHayır, yer) == İletiYanıtı::Evet;
        if (bitti_) // the system ended the program while the question stood
            return true;
        if (!çıkılsın)
            return false;
    }
    oturumuBitir();
    return true;
}

void AnaForm::oturumuBitir()
{
    bitti_ = true;
    Yardım::Kapat();
    ++doldurma_; // a filling under way must not go on
    Sınırla.stop();
    const PencereDurumu durum = pencereDurumu();
    PencereSonu son{{}, -1, static_cast<int>(durum)};
    İlkHatadaBit([&] {
        son.YazarSırası = YazarListesi.ListIndex();
        const QPoint yer = ÇerçeveliYer(*this).topLeft();
        if (durum == PencereDurumu::Olağan)
            son.Yer = QPoint(Twip(yer.x()), Twip(yer.y()));
    });
    AçıkOturum.Kapat(son);
    QCoreApplication::exit(0);
}
