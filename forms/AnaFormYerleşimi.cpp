// The main window's size and the places of its controls. All measures are twips; those of the controls grow
// with the letters.
#include "forms/AnaForm.h"

#include "app/Görünüm.h"
#include "app/HataPolitikaları.h"
#include "app/PencereYeri.h"
#include "system/EkranÖlçüsü.h"

#include <QMoveEvent>
#include <QResizeEvent>
#include <QScreen>

namespace {

// Design places of what does not move, and sizes of what does.
constexpr int SolKenar = 300;
constexpr int ÜstKenar = 180;
constexpr int EtiketYüksekliği = 255;
constexpr int EtiketGenişliği = 1695;
constexpr int KutuYüksekliği = 345;
constexpr int ListeÜstü = 465;
constexpr int YazarListesiYüksekliği = 1305; // five whole entries
constexpr int YazarBulEtiketiÜstü = 1800;
constexpr int YazarBulKutusuÜstü = 2055;
constexpr int MakaleEtiketiÜstü = 2445;
constexpr int MakaleListesiÜstü = 2715;
constexpr int ToplamGenişliği = 1155 + SolKenar; // ends where the list ends
constexpr int BulKutusuGenişliği = 1690;
constexpr int BulButonuGenişliği = 1140;
constexpr int TümündeBulGenişliği = 1365;
constexpr int ÇıkışGenişliği = 1115;
constexpr int DüğmeYüksekliği = 345;
constexpr int YüksekDüğmeYüksekliği = 400 + DüğmeYüksekliği;

constexpr int SağTaşmaPayı = 100; // how far the window may stick out of the screen

struct Kutu
{
    int sol, üst, genişlik, yükseklik;
};

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
    Kutu etiket[6] = {{SolKenar, ÜstKenar, EtiketGenişliği, EtiketYüksekliği},
                      {SolKenar, YazarBulEtiketiÜstü, EtiketGenişliği, EtiketYüksekliği},
                      {SolKenar, MakaleEtiketiÜstü, EtiketGenişliği, EtiketYüksekliği},
                      {SolKenar, 0, EtiketGenişliği, EtiketYüksekliği},
                      {0, ÜstKenar, EtiketGenişliği, EtiketYüksekliği},
                      {0, 0, EtiketGenişliği, EtiketYüksekliği}};
    Kutu yazarListesi = {0, 0, 0, YazarListesiYüksekliği}; // within Altlık
    Kutu altlık = {SolKenar, ListeÜstü, 0, YazarListesiYüksekliği};
    Kutu yazarBul = {SolKenar, YazarBulKutusuÜstü, 0, KutuYüksekliği};
    Kutu makaleBul = {SolKenar, 0, 0, KutuYüksekliği};
    Kutu metin = {0, ListeÜstü, 0, 0};
    Kutu makaleListesi = {SolKenar, MakaleListesiÜstü, 0, 0};
    Kutu bulKutusu = {0, 0, BulKutusuGenişliği, KutuYüksekliği};
    Kutu bul = {0, 0, BulButonuGenişliği, DüğmeYüksekliği};
    Kutu temizle = {0, 0, BulButonuGenişliği, DüğmeYüksekliği};
    Kutu tümünde = {0, 0, TümündeBulGenişliği, YüksekDüğmeYüksekliği};
    Kutu çıkış = {0, 0, ÇıkışGenişliği, YüksekDüğmeYüksekliği};
    Kutu yazarToplamı = {0, ÜstKenar, ToplamGenişliği, EtiketYüksekliği};
    Kutu makaleToplamı = {0, MakaleEtiketiÜstü, ToplamGenişliği, EtiketYüksekliği};

    yazarListesi.genişlik = genişlik / 3;
    altlık.genişlik = yazarListesi.genişlik;
    yazarBul.genişlik = yazarListesi.genişlik;
    etiket[3].üst = yükseklik - 1790;
    makaleBul.üst = etiket[3].üst + 300;
    makaleBul.genişlik = yazarBul.genişlik;
    metin.genişlik = genişlik - (yazarListesi.genişlik + 940);
    metin.sol = yazarListesi.genişlik + 495;
    makaleListesi.genişlik = genişlik / 3;
    makaleListesi.yükseklik = yükseklik - 4605;
    metin.yükseklik = makaleListesi.yükseklik + 2250;
    etiket[4].sol = metin.sol;
    etiket[5].sol = etiket[4].sol;
    bulKutusu.sol = etiket[5].sol;
    etiket[5].üst = etiket[3].üst;
    bulKutusu.üst = makaleBul.üst;
    bul.sol = etiket[5].sol + 1780;
    bul.üst = etiket[5].üst + 40;
    temizle.sol = bul.sol;
    temizle.üst = bul.üst + 400;
    tümünde.sol = bul.sol + 1220;
    tümünde.üst = bul.üst;
    çıkış.sol = genişlik - 1560;
    çıkış.üst = tümünde.üst;
    yazarToplamı.sol = yazarListesi.genişlik - 1155;
    makaleToplamı.sol = yazarToplamı.sol;

    koy(Altlık, altlık);
    koy(YazarListesi, yazarListesi);
    koy(YazarBulKutusu, yazarBul);
    koy(MakaleListesi, makaleListesi);
    koy(MakaleBulKutusu, makaleBul);
    koy(MakaleMetniKutusu, metin);
    koy(BulKutusu, bulKutusu);
    koy(BulButonu, bul);
    koy(TemizleButonu, temizle);
    koy(TümündeBulButonu, tümünde);
    koy(ÇıkışButonu, çıkış);
    etiketiKoy(ToplamYazarSayısıEtiketi, yazarToplamı);
    etiketiKoy(ToplamMakaleSayısıEtiketi, makaleToplamı);
    for (std::size_t i = 0; i < Etiket.size(); ++i)
        etiketiKoy(Etiket[i], etiket[i]);
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
