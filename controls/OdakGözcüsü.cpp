#include "controls/OdakGözcüsü.h"

#include "app/HataPolitikaları.h"

#include <QApplication>
#include <QMenuBar>

#include <utility>

OdakGözcüsü::OdakGözcüsü()
{
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget*, QWidget* kontrol) { odakDeğişti(kontrol); });
}

void OdakGözcüsü::İzle(QWidget& kontrol, std::function<void()> geldi, std::function<void()> gitti)
{
    bağlar_.insert(&kontrol, {std::move(geldi), std::move(gitti)});
    pencere_ = kontrol.window();
}

// Once the window is back, the focus may be elsewhere than it was when it went.
void OdakGözcüsü::odakDeğişti(QWidget* kontrol)
{
    if (!kontrol || kontrol->window() != pencere_ || kontrol == odaklı_ || qobject_cast<QMenuBar*>(kontrol))
        return;
    Ayrıl();
    const auto bağ = bağlar_.constFind(kontrol);
    if (bağ == bağlar_.constEnd())
        return;
    odaklı_ = kontrol;
    if (bağ->geldi)
        bağ->geldi();
}

void OdakGözcüsü::Ayrıl()
{
    const auto bağ = bağlar_.constFind(std::exchange(odaklı_, nullptr));
    if (bağ != bağlar_.constEnd() && bağ->gitti)
        İlkHatadaBit(bağ->gitti);
}
