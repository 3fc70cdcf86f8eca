#include "app/ProgramSimgesi.h"

#include "app/Görünüm.h"

static void kaynaklarıBağla()
{
    Q_INIT_RESOURCE(simgeler); // must stand outside any namespace
}

QIcon ProgramSimgesi()
{
    kaynaklarıBağla();
    QIcon simge;
    for (const int boy : {16, 24, 32, 48, 64, 128, 256, 512})
        simge.addFile(QStringLiteral(":/belgenar/simgeler/belgenar-%1.png").arg(boy));
    return simge;
}

void ProgramResmiKoy(QLabel& kutu, int boy)
{
    const int piksel = FormPikseli(boy);
    kutu.setPixmap(ProgramSimgesi().pixmap(QSize(piksel, piksel), kutu.devicePixelRatioF()));
}
