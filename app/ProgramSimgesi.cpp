#include "app/ProgramSimgesi.h"

#include "app/Görünüm.h"

#include <algorithm>
#include <array>

namespace {

// Widths and heights of the pictures that there are, in pixels. Reading the largest ones takes as long as all
// the rest of a window: only a picture that is shown needs them.
constexpr std::array Boylar = {16, 24, 32, 48, 64, 128, 256, 512};
constexpr int EnBüyükSimge = 128;

/// @param boy one of Boylar
QPixmap resim(int boy)
{
    // With the kind told, no further readers of pictures are loaded.
    return QPixmap(QStringLiteral(":/belgenar/simgeler/belgenar-%1.png").arg(boy), "PNG");
}

} // namespace

static void kaynaklarıBağla()
{
    Q_INIT_RESOURCE(simgeler); // must stand outside any namespace
}

QIcon ProgramSimgesi()
{
    kaynaklarıBağla();
    QIcon simge;
    for (const int boy : Boylar) {
        if (boy <= EnBüyükSimge)
            simge.addPixmap(resim(boy));
    }
    return simge;
}

void ProgramResmiKoy(QLabel& kutu, int boy)
{
    kaynaklarıBağla();
    const double oran = kutu.devicePixelRatioF();
    const int piksel = qRound(FormPikseli(boy) * oran);
    const auto yeten = std::lower_bound(Boylar.begin(), Boylar.end(), piksel);
    QPixmap konan = resim(yeten == Boylar.end() ? Boylar.back() : *yeten);
    if (konan.width() > piksel)
        konan = konan.scaled(piksel, piksel, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    konan.setDevicePixelRatio(oran);
    kutu.setPixmap(konan);
}
