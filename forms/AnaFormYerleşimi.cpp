// The main window's size and the places of its controls. All measures are twips; those of the controls grow
// with the letters.
#include "forms/AnaForm.h"

#include "app/Görünüm.h"
#include "app/HataPolitikaları.h"
#include "app/PencereYeri.h"
#include "forms/AnaFormDüzeni.h"
#include "system/EkranÖlçüsü.h"

#include <QMoveEvent>
#include <QResizeEvent>
#include <QScreen>

namespace {

constexpr int SağTaşmaPayı = 100; // how far the window may stick out of the screen

void koy(QWidget& kontrol, const Kutu& kutu)
{
    kontrol.setGeometry(FormPikseli(kutu.sol), FormPikseli(kutu.üst), FormPikseli(kutu.genişlik),
                        FormPikseli(kutu.yükseklik));
}

/// A label ends where its control begins, also where both are rounded.
void etiketiKoy(QLabel& etiket, const Kutu& kutu)
{
    etiket.setGeometry(
        QRect(QPoint(FormPikseli(kutu.sol), FormPikseli(kutu.üst)),
              QPoint(FormPikseli(kutu.sol + kutu.genişlik) - 1, FormPikseli(kutu.üst + kutu.yükseklik) - 1)));
}

} // namespace

void AnaForm::yerleştir(int genişlik, int yükseklik)
{
    const AnaFormDüzeni düzen = AnaFormDüzeni::Hesapla(genişlik, yükseklik);
    koy(Altlık, düzen.Altlık);
    koy(YazarListesi, düzen.YazarListesi);
    koy(YazarBulKutusu, düzen.YazarBulKutusu);
    koy(MakaleListesi, düzen.MakaleListesi);
    koy(MakaleBulKutusu, düzen.MakaleBulKutusu);
    koy(MakaleMetniKutusu, düzen.MakaleMetniKutusu);
    koy(BulKutusu, düzen.BulKutusu);
    koy(BulButonu, düzen.BulButonu);
    koy(TemizleButonu, düzen.TemizleButonu);
    koy(TümündeBulButonu, düzen.TümündeBulButonu);
    koy(ÇıkışButonu, düzen.ÇıkışButonu);
    etiketiKoy(ToplamYazarSayısıEtiketi, düzen.ToplamYazarSayısıEtiketi);
    etiketiKoy(ToplamMakaleSayısıEtiketi, düzen.ToplamMakaleSayısıEtiketi);
    for (std::size_t i = 0; i < Etiket.size(); ++i)
        etiketiKoy(Etiket[i], düzen.Etiket[i]);
}

QSize AnaForm::enAzBoy()
{
    return {FormPikseli(EnAzGenişlik), FormPikseli(EnAzYükseklik)};
}

PencereDurumu AnaForm::pencereDurumu() const
{
    if (isMinimized())
        return PencereDurumu::Simge;
    return isMaximized() || isFullScreen() ? PencereDurumu::TamEkran : PencereDurumu::Olağan;
}

void AnaForm::Form_Resize()
{
    yerleşen_ = ÇerçeveliYer(*this).size();
    if (enAzBoy().boundedTo(yerleşen_) == enAzBoy())
        AdımAdım([this] { yerleştir(FormTwipi(yerleşen_.width()), FormTwipi(yerleşen_.height())); });
    enAzBoyuUygula();
}

// Given to the toolkit as the minimum of the inner size, so that the window manager stops there too; the
// toolkit itself enlarges a window that is smaller.
void AnaForm::enAzBoyuUygula()
{
    const QSize çerçeve = ÇerçeveliYer(*this).size() - size();
    setMinimumSize(enAzBoy() - çerçeve);
}

void AnaForm::resizeEvent(QResizeEvent* olay)
{
    QMainWindow::resizeEvent(olay);
    Form_Resize();
}

void AnaForm::moveEvent(QMoveEvent* olay)
{
    QMainWindow::moveEvent(olay);
    if (ÇerçeveliYer(*this).size() != yerleşen_) // the frame has come or gone
        Form_Resize();
}

void AnaForm::Sınırla_Timer()
{
    if (pencereDurumu() != PencereDurumu::Olağan)
        return;
    AdımAdım([this] {
        const QSize ekran = screen()->virtualGeometry().size();
        const QRect yer = ÇerçeveliYer(*this);
        const QPoint uygun(
            Piksel(SınırlıKonum(Twip(yer.x()), Twip(ekran.width()), Twip(yer.width()), Eksen::Yatay)),
            Piksel(SınırlıKonum(Twip(yer.y()), Twip(ekran.height()), Twip(yer.height()), Eksen::Dikey)));
        if (uygun != yer.topLeft())
            setGeometry(geometry().translated(uygun - yer.topLeft()));
    });
}

int AnaForm::SınırlıKonum(int konum, int ekran, int boy, Eksen eksen)
{
    const auto başaÇek = [&konum] { konum = std::max(konum, 0); };
    // A window larger than the screen ends with its right edge, but with its top, at the screen's.
    if (eksen == Eksen::Yatay)
        başaÇek();
    if (konum > ekran - boy + SağTaşmaPayı)
        konum = ekran - boy;
    if (eksen == Eksen::Dikey)
        başaÇek();
    return konum;
}
