// How the main window closes and the program ends.
#include "forms/AnaForm.h"

#include "app/Ayarlar.h"
#include "app/Görünüm.h"
#include "app/HataPolitikaları.h"
#include "app/Metinler.h"
#include "app/OrtakDeğişkenlerModülü.h"
#include "app/İletiKutusu.h"
#include "store/MakaleKitaplığı.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QScopeGuard>

void AnaForm::ÇıkışButonu_Click()
{
    Kapat(KapanışNedeni::Program);
}

bool AnaForm::Kapat(KapanışNedeni neden)
{
    if (soruluyor_) // the window is closing already; the toolkit would pass over a second close
        return Form_QueryUnload(neden);
    kapanışNedeni_ = neden;
    const auto geri = qScopeGuard([this] { kapanışNedeni_ = KapanışNedeni::Kullanıcı; });
    return close();
}

void AnaForm::closeEvent(QCloseEvent* olay)
{
    olay->setAccepted(Form_QueryUnload(kapanışNedeni_));
}

bool AnaForm::Form_QueryUnload(KapanışNedeni neden)
{
    if (bitti_)
        return true;
    if (neden != KapanışNedeni::GörevYöneticisi && neden != KapanışNedeni::ÜstPencere) {
        if (soruluyor_) // one question at a time
            return false;
        soruluyor_ = true;
        const auto sorulmuyor = qScopeGuard([this] { soruluyor_ = false; });
        const İletiYeri yer = isMinimized() ? İletiYeri::Ekran : İletiYeri::EtkinPencere;
        const bool çıkılsın =
            İletiGöster(Metin(200), İletiSimgesi::Soru, İletiDüğmeleri::EvetHayır, yer) == İletiYanıtı::Evet;
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
    ++doldurma_; // a filling under way must not go on
    Sınırla.stop();
    AdımAdım(
        [] {
            Veritabanı.reset();
            ÇalışmaAlanı.reset();
        },
        [] {
            Workspace sahip = SahipÇalışmaAlanı(Motor.value());
            KullanıcıHesabınıSil(sahip);
            sahip.Close();
        },
        [this] {
            if (pencereDurumu() == PencereDurumu::Olağan) {
                AyarYaz(u"Sol", QString::number(Twip(pos().x())));
                AyarYaz(u"Ust", QString::number(Twip(pos().y())));
            }
        },
        [this] {
            // The first author is where a start without this setting begins, too.
            if (YazarListesi.ListIndex() > 0)
                AyarYaz(u"Son Yazar", QString::number(YazarListesi.ListIndex()));
        },
        [this] { AyarYaz(u"Tam Ekran", QString::number(static_cast<int>(pencereDurumu()))); });
    QCoreApplication::exit(0);
}
