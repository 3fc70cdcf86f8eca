// The measurements. A new one is a function here and a line in main.cpp's lists.
#pragma once

#include "Ölçüm.h"
#include "ÖrnekKitaplık.h"

class AnaForm;
class QApplication;

/// What a process of its own shows: the program as it starts, or a window to compare it with.
enum class Başlatılan
{
    Program,
    BoşPencere
};
/// The argument by which this program is told so.
QString BaşlatmaSözü(Başlatılan ne);
/// Shows it; ends the process as soon as it can be used.
int PencereyleBaşla(QApplication& uygulama, Başlatılan ne);

/// What the measurements of a closed library work on.
struct KapalıOrtam
{
    const ÖrnekKitaplık& Kitaplık;
    Tablo& Çizelge;
};

/// What the measurements of the main window work on; the library is open in the shared variables.
struct PencereOrtamı
{
    const ÖrnekKitaplık& Kitaplık;
    Tablo& Çizelge;
    AnaForm& Pencere;
};

// On a closed library; it is closed again when they return.
void AçılışıÖlç(const KapalıOrtam& ortam);
void BaşlamayıÖlç(const KapalıOrtam& ortam);
void AracıÖlç(const KapalıOrtam& ortam);

// In the main window.
void YazarListesiniÖlç(const PencereOrtamı& ortam);
void YazarTıklamasınıÖlç(const PencereOrtamı& ortam);
void BaşlıkTıklamasınıÖlç(const PencereOrtamı& ortam);
void TümündeBulmayıÖlç(const PencereOrtamı& ortam);
void ÖnekBulmayıÖlç(const PencereOrtamı& ortam);
void GirişPencereleriniÖlç(const PencereOrtamı& ortam);
void GirişiÖlç(const PencereOrtamı& ortam);
/// These two leave the library as it was, but its file with some free pages: the last ones of a library.
void KaydetmeyiÖlç(const PencereOrtamı& ortam);
void SilmeyiÖlç(const PencereOrtamı& ortam);
/// For libraries with long articles.
void UzunMakaleyiÖlç(const PencereOrtamı& ortam);
void İşaretlemeyiÖlç(const PencereOrtamı& ortam);
void RtfYüklemeyiÖlç(const PencereOrtamı& ortam);

/// Copies a file and waits for the disk: what work on whole libraries is compared with.
void DosyayıKopyala(const QString& kaynak, const QString& hedef);

/// Throws when a measurement did not do what it is named after.
void Sağla(bool doğru, const char* beklenen);
