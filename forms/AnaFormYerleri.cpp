// The main window's way from one place of the word to the next in the shown article.
#include "forms/AnaForm.h"

#include "app/HataPolitikaları.h"
#include "app/Metinler.h"

#include <QApplication>

void AnaForm::yerOlaylarınıBağla()
{
    connect(&MakaleMetniKutusu, &QPlainTextEdit::textChanged, this, &AnaForm::yerlerEskidi);
    connect(&MakaleMetniKutusu, &QPlainTextEdit::cursorPositionChanged, this,
            [this] { imleçİşarette_ = false; });
}

void AnaForm::yerlerEskidi()
{
    yerler_.reset();
    imleçİşarette_ = false;
    bildirim_.hide();
}

// From the caret on, but from the text's beginning where marking has put the caret at its last mark.
std::optional<SözcükYerleri::Adım> AnaForm::yerAdımı(Yön yön)
{
    if (!yerler_)
        yerler_.emplace(MakaleMetniKutusu.Text(), BulKutusu.Text());
    MetinYeri seçili;
    if (!imleçİşarette_)
        seçili = {MakaleMetniKutusu.SelStart(), MakaleMetniKutusu.SelLength()};
    return yön == Yön::İleri ? yerler_->Sonraki(seçili) : yerler_->Önceki(seçili);
}

void AnaForm::yereGit(Yön yön)
{
    İlkHatadaBit([this, yön] {
        if (!sözcükYeterli())
            return;
        const auto adım = yerAdımı(yön);
        if (!adım || adım->Sardı)
            QApplication::beep();
        if (!adım) {
            bildirim_.Göster(Metin(İleti::YerYok));
            return;
        }
        MakaleMetniKutusu.OrtadaSeç(adım->Yer.Baş, adım->Yer.Uzunluk);
        QString yazı = QStringLiteral("%1 / %2").arg(adım->Sıra).arg(yerler_->Sayı());
        if (adım->Sardı)
            yazı += QStringLiteral(", ") + Metin(yön == Yön::İleri ? İleti::Baştan : İleti::Sondan);
        bildirim_.Göster(yazı);
    });
}
