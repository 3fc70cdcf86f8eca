#include "controls/TuşSüzgeci.h"

#include "app/HataPolitikaları.h"
#include "controls/TuşOlaylı.h"
#include "text/TürkçeHarfler.h"

#include <QCoreApplication>
#include <QWidget>

void EnterSekmeOlsun(QWidget& kontrol, char16_t& kod)
{
    if (kod != TuşKodları::Enter)
        return;
    kod = 0;
    QKeyEvent basış(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier, QStringLiteral("\t"));
    QCoreApplication::sendEvent(&kontrol, &basış);
}

void KesmeAksanOlsun(char16_t& kod)
{
    kod = YazılanHarf(kod);
}

void HarfBüyüsün(char16_t& kod)
{
    kod = BüyükHarf(kod);
}

void KutuSüzgeci(QWidget& kontrol, char16_t& kod)
{
    AdımAdım([&] { EnterSekmeOlsun(kontrol, kod); }, [&] { KesmeAksanOlsun(kod); });
}

void BüyükHarfliKutuSüzgeci(QWidget& kontrol, char16_t& kod)
{
    KutuSüzgeci(kontrol, kod);
    AdımAdım([&] { HarfBüyüsün(kod); });
}
