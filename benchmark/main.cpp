// Measures how fast the program is, on libraries that it makes itself.
#include "Ölçümler.h"

#include "app/OrtakDeğişkenlerModülü.h"
#include "forms/AnaForm.h"
#include "program/GirişModülü.h"

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QTemporaryDir>

#include <array>
#include <cstdio>
#include <exception>

namespace {

constexpr std::array KapalıÖlçümler = {&AçılışıÖlç, &BaşlamayıÖlç, &AracıÖlç};
constexpr std::array PencereÖlçümleri = {&YazarListesiniÖlç, &YazarTıklamasınıÖlç, &BaşlıkTıklamasınıÖlç,
                                         &ÖnekBulmayıÖlç,    &TümündeBulmayıÖlç,   &GirişPencereleriniÖlç,
                                         &GirişiÖlç,         &KaydetmeyiÖlç,       &SilmeyiÖlç};
constexpr std::array UzunMetinÖlçümleri = {&UzunMakaleyiÖlç, &BaşlıkTıklamasınıÖlç, &İşaretlemeyiÖlç,
                                           &RtfYüklemeyiÖlç};

const QList<int> Boylar = {1'000, 10'000, 100'000};
const QList<int> KısaBoylar = {1'000, 10'000};
const QList<qsizetype> Uzunluklar = {1'000'000, 20'000'000};
constexpr int UzunlarınYanındakiler = 100;
constexpr int BaşlangıçBoyu = 10; // what a new user has

template<class Ölçümler>
void penceredeÖlç(const ÖrnekKitaplık& kitaplık, Tablo& tablo, const Ölçümler& ölçümler)
{
    AçıkOturum.Aç(ProgramKlasörü);
    {
        AnaForm pencere;
        pencere.Göster();
        for (const auto ölç : ölçümler)
            ölç({kitaplık, tablo, pencere});
    }
    AçıkOturum.Bırak();
}

/// The offscreen platform complains about what it can't do with each window.
void iletiYaz(QtMsgType, const QMessageLogContext&, const QString& ileti)
{
    if (!ileti.startsWith(QLatin1String("This plugin does not support ")))
        std::fprintf(stderr, "%s\n", qUtf8Printable(ileti));
}

/// Runs the work with a library that is deleted after it.
template<class İş>
void kitaplıkla(const QString& klasör, int makaleler, const QList<qsizetype>& uzunluklar, İş&& iş)
{
    const QTemporaryDir geçici(klasör + QStringLiteral("/XXXXXX"));
    ProgramKlasörü = geçici.path() + u'/';
    std::fprintf(stderr, "%d makalelik kitaplık hazırlanıyor...\n", makaleler);
    iş(ÖrnekKitaplık(ProgramKlasörü, makaleler, uzunluklar));
}

void ölç(const QString& klasör, const QList<int>& boylar, bool pencereyle)
{
    Tablo tablo;
    tablo.BaşlığıYaz();
    tablo.Kitaplık(QStringLiteral("başlangıç"));
    kitaplıkla(klasör, BaşlangıçBoyu, {}, [&](const ÖrnekKitaplık& kitaplık) {
        BaşlamayıÖlç({kitaplık, tablo});
    });
    for (const int boy : boylar) {
        tablo.Kitaplık(QStringLiteral("%L1 makale").arg(boy));
        kitaplıkla(klasör, boy, {}, [&](const ÖrnekKitaplık& kitaplık) {
            for (const auto ölç : KapalıÖlçümler)
                ölç({kitaplık, tablo});
            if (pencereyle)
                penceredeÖlç(kitaplık, tablo, PencereÖlçümleri);
        });
    }
    if (pencereyle) {
        tablo.Kitaplık(QStringLiteral("uzun metinli"));
        kitaplıkla(klasör, UzunlarınYanındakiler, Uzunluklar, [&tablo](const ÖrnekKitaplık& kitaplık) {
            penceredeÖlç(kitaplık, tablo, UzunMetinÖlçümleri);
        });
    }
    tablo.SonucuYaz();
}

} // namespace

/// Keeps its libraries in the folder while it runs, up to 1.5 GB.
int main(int argc, char** argv)
{
    qInstallMessageHandler(&iletiYaz);
    if (argc == 2 && QString::fromLocal8Bit(argv[1]) == BaşlatmaSözü(Başlatılan::Program))
        ErkenBaşla();
    QApplication uygulama(argc, argv);
    QStringList sözler = QCoreApplication::arguments().mid(1);
    for (const Başlatılan ne : {Başlatılan::Program, Başlatılan::BoşPencere}) {
        if (sözler == QStringList{BaşlatmaSözü(ne)})
            return PencereyleBaşla(uygulama, ne);
    }
    const bool kısa = sözler.removeAll(QStringLiteral("--kısa")) > 0;
    const bool pencereyle = sözler.removeAll(QStringLiteral("--kapalı")) == 0;
    if (sözler.size() != 1 || !QDir(sözler[0]).exists()) {
        std::fprintf(stderr, "Kullanım: belgenar_bench KLASÖR [--kısa] [--kapalı]\n");
        return 2;
    }
    QLocale::setDefault(QLocale(QLocale::Turkish, QLocale::Turkey));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(sözler[0])); // the user's settings take no part
    AyarUygulamaAdı = QStringLiteral("Belgenar\\Benchmark");
    try {
        ölç(sözler[0], kısa ? KısaBoylar : Boylar, pencereyle);
    } catch (const std::exception& hata) {
        std::fprintf(stderr, "belgenar_bench: %s\n", hata.what());
        return 1;
    }
    return 0;
}
