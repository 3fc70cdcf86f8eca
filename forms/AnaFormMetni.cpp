// What the main window does with the shown text: pop-up menus, copying, printing, the word processor.
#include "forms/AnaForm.h"

#include "app/HataPolitikaları.h"
#include "app/Metinler.h"
#include "app/OrtakDeğişkenlerModülü.h"
#include "app/WordAktarımı.h"
#include "app/İletiKutusu.h"
#include "forms/ReferansFormu.h"
#include "forms/YazıcıSeçmeFormu.h"
#include "system/Yazıcılar.h"

#include <QApplication>
#include <QClipboard>
#include <QScopeGuard>

void AnaForm::metinOlaylarınıBağla()
{
    connect(&MakaleListesi, &QWidget::customContextMenuRequested, this, &AnaForm::MakaleListesi_MouseDown);
    connect(&MakaleMetniKutusu, &QWidget::customContextMenuRequested, this,
            &AnaForm::MakaleMetniKutusu_MouseUp);
    connect(&TümünüSeçMenüsü, &QAction::triggered, this, &AnaForm::TümünüSeçMenüsü_Click);
    connect(&KopyalaMenüsü, &QAction::triggered, this, &AnaForm::KopyalaMenüsü_Click);
    connect(&YazdırMenüsü, &QAction::triggered, this, &AnaForm::YazdırMenüsü_Click);
    connect(&WordeYapıştırMenüsü, &QAction::triggered, this, &AnaForm::WordeYapıştırMenüsü_Click);
}

// The right button, or the keyboard's menu key.
void AnaForm::MakaleListesi_MouseDown(const QPoint& yer)
{
    if (!MakaleListesi.Text().isEmpty())
        MakaleMenüsü.popup(MakaleListesi.viewport()->mapToGlobal(yer));
}

void AnaForm::MakaleMetniKutusu_MouseUp(const QPoint& yer)
{
    for (QAction* öğe : {&KopyalaMenüsü, &WordeYapıştırMenüsü})
        öğe->setEnabled(MakaleMetniKutusu.SelLength() != 0);
    if (!MakaleMetniKutusu.document()->isEmpty())
        MakaleMetniMenüsü.popup(MakaleMetniKutusu.viewport()->mapToGlobal(yer));
}

void AnaForm::TümünüSeçMenüsü_Click()
{
    MakaleMetniKutusu.selectAll();
}

void AnaForm::KopyalaMenüsü_Click()
{
    İlkHatadaBit([this] {
        if (!MakaleMetniKutusu.document()->isEmpty())
            QGuiApplication::clipboard()->setText(MakaleMetniKutusu.SelText());
    });
}

void AnaForm::kaynağıylaKopyala()
{
    if (MakaleMetniKutusu.SelLength() == 0)
        return;
    const bool tamam = İlkHatadaBit([this] {
        const QString kaynak = ReferansFormu::Referans(SeçiliMakale());
        QGuiApplication::clipboard()->setText(MakaleMetniKutusu.SelText() + u'\n' + kaynak);
        bildirim_.Göster(Metin(İleti::KaynağıylaKopyalandı));
    });
    if (!tamam)
        QApplication::beep();
}

// What the user has copied otherwise begins a new gathering: adding to it would mix the two.
void AnaForm::referansıTopla()
{
    const bool tamam = İlkHatadaBit([this] {
        const QString satır = ReferansFormu::Referans(SeçiliMakale());
        QClipboard& pano = *QGuiApplication::clipboard();
        if (pano.text() != toplananReferanslar_.join(u'\n'))
            toplananReferanslar_.clear();
        if (!toplananReferanslar_.contains(satır))
            toplananReferanslar_.append(satır);
        pano.setText(toplananReferanslar_.join(u'\n'));
        bildirim_.Göster(QString::number(toplananReferanslar_.size()) + u' ' + Metin(İleti::ReferansPanoda));
    });
    if (!tamam)
        QApplication::beep();
}

void AnaForm::YazdırMenüsü_Click()
{
    AdımAdım([this] { yazdır(); });
}

void AnaForm::yazdır()
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor); // the print service may take seconds to answer
    const QList<Yazıcı> yazıcılar = Yazıcılar();
    QGuiApplication::restoreOverrideCursor();
    if (yazıcılar.isEmpty()) {
        İletiGöster(Paragraflar({QStringLiteral("Bilgisayarınızda yüklü bir YAZICI yok!"),
                                 QStringLiteral("Lütfen, bir yazıcı yükleyip tekrar deneyiniz.")}),
                    İletiSimgesi::Uyarı, İletiDüğmeleri::Tamam, İletiYeri::Ekran);
        return;
    }
    YazdırmaİptalEdildi = false;
    YazıcıSeçmeFormu(yazıcılar, this).exec();
    if (bitti_ || std::exchange(YazdırmaİptalEdildi, false))
        return;
    YazdırKutusu.FontName(MakaleMetniKutusu.FontName());
    YazdırKutusu.FontSize(MakaleMetniKutusu.FontSize());
    YazdırKutusu.Text(MakaleMetniKutusu.SelLength() == 0 ? MakaleMetniKutusu.Text()
                                                         : MakaleMetniKutusu.SelText());
    const auto sonunda = qScopeGuard([this] { YazdırKutusu.Text({}); });
    const QString iş = SeçiliMakale().simplified();
    MetinYazdır(YazdırKutusu.Text(), YazdırKutusu.FontName(), YazdırKutusu.FontSize(),
                iş.isEmpty() ? Metin(İleti::ProgramAdı) : iş);
}

void AnaForm::WordeYapıştırMenüsü_Click()
{
    İlkHatadaBit(
        [this] { WordeAktar([this](WordBasic& word) { word.Insert(MakaleMetniKutusu.SelText()); }); });
}
