#include "forms/DeğiştirFormu.h"

#include "app/HataPolitikaları.h"
#include "app/OrtakDeğişkenlerModülü.h"
#include "forms/AnaPencere.h"

#include <QKeyEvent>

namespace {

// An imported title may be longer than what can be typed; it must not be cut.
void sığdır(MetinKutusu& kutu, const QString& metin)
{
    kutu.setMaxLength(std::max(kutu.maxLength(), static_cast<int>(metin.size())));
    kutu.Text(metin);
    kutu.setCursorPosition(0);
}

} // namespace

DeğiştirFormu::DeğiştirFormu(QWidget& sahip, AnaPencere& ana)
    : MakaleGirişFormu(&sahip, ana,
                       {.Pencere = QStringLiteral("DeğiştirFormu"),
                        .Başlık = İleti::DeğiştirmeBaşlığı,
                        .Kaydet = QStringLiteral("KaydetDüğmesi"),
                        .Vazgeç = QStringLiteral("VazgeçDüğmesi"),
                        .Yapıştır = QStringLiteral("YapıştırDüğmesi"),
                        .DosyaYükle = QStringLiteral("DosyaYükleDüğmesi"),
                        .KaydetYazısı = İleti::Kaydet,
                        .VazgeçYazısı = İleti::Vazgeç})
{
    basılınca(kaydet_, [this] { KaydetDüğmesi_Click(); });
    basılınca(vazgeç_, [this] { VazgeçDüğmesi_Click(); });
    Form_Load();
}

void DeğiştirFormu::Form_Load()
{
    İlkHatadaBit([this] {
        yazarlarıYükle(QStringLiteral("SELECT DISTINCT YazarAdi FROM Makaleler"));
        Recordset kayıtlar = seçiliMakale();
        const Makale makale = Makale::KünyesiniOku(kayıtlar);
        YazarAdıListesi.Text(makale.Yazar);
        sığdır(MakaleBaşlığıKutusu, makale.Başlık);
        sığdır(YayımYeriKutusu, makale.Yer);
        sığdır(YayımTarihiKutusu, makale.Tarih); // "" where there is no date
        MakaleMetniKutusu.Text(Makale::MetniniOku(kayıtlar));
    });
}

Recordset DeğiştirFormu::seçiliMakale() const
{
    return Veritabanı->OpenRecordset(QStringLiteral("SELECT * FROM Makaleler WHERE MakaleBasligi= '") +
                                     ana_.SeçiliMakale() + u'\'');
}

void DeğiştirFormu::KaydetDüğmesi_Click()
{
    if (!alanlarTamam())
        return;
    Recordset kayıtlar = seçiliMakale();
    const QString eskiYazar = Makale::KünyesiniOku(kayıtlar).Yazar;
    const Makale makale = girilen();
    kayıtlar.Edit();
    makale.Yaz(kayıtlar);
    kayıtlar.Update();
    kayıtlar.Close();
    ana_.YazarListesiYükle({eskiYazar, makale.Yazar});
    DeğiştirilenYazarAdı = YazarAdıListesi.Text();
    DeğiştirilenMakaleBaşlığı = MakaleBaşlığıKutusu.Text();
    accept();
}

void DeğiştirFormu::VazgeçDüğmesi_Click()
{
    reject();
}

// Esc must not throw changes away: it leads to the button that does.
void DeğiştirFormu::keyPressEvent(QKeyEvent* olay)
{
    if (olay->key() == Qt::Key_Escape)
        vazgeç_.setFocus();
    else
        MakaleGirişFormu::keyPressEvent(olay);
}
