#include "program/GirişModülü.h"

#include "app/Dil.h"
#include "app/Görünüm.h"
#include "app/HataBildirimi.h"
#include "app/Metinler.h"
#include "app/OrtakDeğişkenlerModülü.h"
#include "app/PencereYeri.h"
#include "app/ProgramSimgesi.h"
#include "app/İletiKutusu.h"
#include "forms/AnaForm.h"
#include "forms/KarşılamaFormu.h"
#include "forms/Yardım.h"
#include "store/MakaleKitaplığı.h"
#include "store/VeritabanıHatası.h"
#include "system/BelgeAktarımı.h"
#include "system/KapatmaSinyalleri.h"
#include "system/OrtakApilerModülü.h"
#include "system/TekÖrnek.h"
#include "text/TürkçeHarfler.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <QSessionManager>

#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>

namespace {

[[noreturn]] void reddet(İleti metin)
{
    İletiGöster(Metin(metin), İletiSimgesi::Kritik, İletiDüğmeleri::Tamam);
    ProgramıBitir(1);
}

void sürümüDenetle()
{
    const auto sürüm = SürümBilgisiAl();
    NTPlatformu = sürüm && sürüm->Platform == 2;
    switch (SürümüDeğerlendir(sürüm)) {
    case SürümDurumu::Uygun:
        return;
    case SürümDurumu::YanıtYok:
        reddet(İleti::SürümÖğrenilemedi);
    case SürümDurumu::Eski:
        reddet(İleti::SürümEski);
    }
}

/// The toolkit can't name a folder whose bytes are no UTF-8: without this the library would seem missing.
void yolGeçerliOlmalı()
{
    const std::string yol = std::filesystem::read_symlink("/proc/self/exe").string();
    if (!QUtf8StringView(yol.data(), qsizetype(yol.size())).isValidUtf8())
        throw VeritabanıHatası(HataNo::YolGeçersiz, QString::fromUtf8(yol.data(), qsizetype(yol.size())));
}

/// What in the folder tells why the file isn't there; the refusal itself has a fixed text.
void yokluğuYaz(QStringView ad)
{
    std::fprintf(stderr, "belgenar: %s: %s yok.\n", qUtf8Printable(ProgramKlasörü),
                 qUtf8Printable(ad.toString()));
    const QStringList dosyalar =
        QDir(ProgramKlasörü).entryList({QStringLiteral("?akale.*")}, QDir::Files | QDir::Hidden);
    for (const QString& dosya : dosyalar) {
        const bool benzer = Katla(dosya) == Katla(ad.toString());
        std::fprintf(stderr, "belgenar: klasörde %s var%s\n", qUtf8Printable(dosya),
                     benzer ? "; adın büyük ve küçük harfleri de aynı olmalı." : ".");
    }
}

void dosyaOlmalı(QStringView ad, İleti yokluğu)
{
    if (DosyaVar(KitaplıkYolu(ProgramKlasörü, ad)))
        return;
    yokluğuYaz(ad);
    reddet(yokluğu);
}

void dosyalarıDenetle()
{
    yolGeçerliOlmalı();
    dosyaOlmalı(DosyaAdları::Kitaplık, İleti::VeritabanıYok);
    dosyaOlmalı(DosyaAdları::Grup, İleti::GerekliDosyaYok);
}

/// What a second start brings forward while there is no main window: the box that waits for the user.
void kutuyuÖneGetir()
{
    if (QWidget* kutu = QApplication::activeModalWidget()) {
        kutu->raise();
        kutu->activateWindow();
    }
}

/// The session's end asks like the user's own wish to close; a No stops it.
void oturumSonunuBağla(QApplication& uygulama, AnaForm& form)
{
    QObject::connect(&uygulama, &QGuiApplication::commitDataRequest, &uygulama,
                     [&form](QSessionManager& oturum) {
                         if (oturum.allowsInteraction() && !form.Kapat(KapanışNedeni::OturumSonu))
                             oturum.cancel();
                     });
}

} // namespace

void ErkenBaşla()
try {
    const std::string klasör = std::filesystem::read_symlink("/proc/self/exe").parent_path().string();
    KitaplığıHazırla(SonaAyraçEkle(QFile::decodeName(klasör.c_str())));
} catch (const std::filesystem::filesystem_error&) { // the start itself tells what is wrong
}

int SubMain(QApplication& uygulama)
{
    // They outlive an error report: a second start brings it forward, F1 explains it, and the splash stays
    // behind it.
    std::optional<TekÖrnek> tekÖrnek;
    std::optional<KarşılamaFormu> karşılama;
    std::optional<Yardım> yardım;
    return HatadaÇık([&] {
        DiliKur();
        FormÖlçüsünüKur(uygulama.font(), {AnaForm::EnAzGenişlik, AnaForm::EnAzYükseklik});
        uygulama.setFont(FormYazıTipi());
        const PencereYerleştirici yerleştirici(uygulama);
        yardım.emplace(uygulama);
        uygulama.setQuitOnLastWindowClosed(false); // the exit sequence ends the program
        AnaPencereBaşlığı =
            QStringLiteral("Tepsan Yazılım - ") + Metin(İleti::ProgramAdı) + u' ' + SürümMetni();
        tekÖrnek.emplace(AnaPencereBaşlığı);
        if (tekÖrnek->BaşkasıVar())
            return 0;
        tekÖrnek->ÖneÇağrıldı = &kutuyuÖneGetir;
        AyarUygulamaAdı = QStringLiteral("Tepsan Yazilim\\") + Metin(İleti::ProgramAdı);
        ProgramKlasörü = SonaAyraçEkle(QCoreApplication::applicationDirPath());
        uygulama.setWindowIcon(ProgramSimgesi());

        karşılama.emplace().show();
        PencereleriBoya();
        sürümüDenetle();
        dosyalarıDenetle();
        AçıkOturum.Aç(ProgramKlasörü, [&karşılama] {
            karşılama->İlerle(SıkıştırmaOranı(ProgramKlasörü));
            PencereleriBoya();
        });
        EskiBelgeleriSil();

        AnaForm form;
        tekÖrnek->ÖneÇağrıldı = [&form] { form.ÖneGetir(); };
        const auto formsuz = qScopeGuard([&tekÖrnek] { tekÖrnek->ÖneÇağrıldı = &kutuyuÖneGetir; });
        const KapatmaSinyalleri sinyaller([&form] { form.Kapat(KapanışNedeni::GörevYöneticisi); });
        oturumSonunuBağla(uygulama, form);
        form.Göster([&karşılama] { karşılama.reset(); });
        return form.Bitti() ? 0 : QApplication::exec();
    });
}
