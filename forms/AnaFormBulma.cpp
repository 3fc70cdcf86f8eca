// Finding in the main window: in the lists, in the shown article, in all articles.
#include "forms/AnaForm.h"

#include "app/HataPolitikaları.h"
#include "app/Metinler.h"
#include "app/OrtakDeğişkenlerModülü.h"
#include "app/İletiKutusu.h"
#include "controls/Duyuru.h"
#include "controls/TuşSüzgeci.h"
#include "system/OrtakApilerModülü.h"
#include "text/TürkçeArama.h"

#include <QGuiApplication>
#include <QScopeGuard>

namespace {

constexpr int EnKısaSözcük = 2;
const QString İşaretlendiMetni = QStringLiteral("%1 yer işaretlendi");

} // namespace

void AnaForm::bulmaOlaylarınıBağla()
{
    YazarBulKutusu.Change = [this] { YazarBulKutusu_Change(); };
    MakaleBulKutusu.Change = [this] { MakaleBulKutusu_Change(); };
    BulKutusu.Change = [this] { BulKutusu_Change(); };
    YazarBulKutusu.KeyPress = [this](char16_t& kod) { YazarBulKutusu_KeyPress(kod); };
    MakaleBulKutusu.KeyPress = [this](char16_t& kod) { MakaleBulKutusu_KeyPress(kod); };
    BulKutusu.KeyPress = [this](char16_t& kod) { BulKutusu_KeyPress(kod); };
    YazarListesi.KeyPress = [this](char16_t& kod) { YazarListesi_KeyPress(kod); };
    MakaleListesi.KeyPress = [this](char16_t& kod) { MakaleListesi_KeyPress(kod); };
    MakaleMetniKutusu.KeyPress = [this](char16_t& kod) { MakaleMetniKutusu_KeyPress(kod); };

    using Giriş = OdakEtiketi::Giriş;
    odakEtiketi_.Bağla(YazarListesi, Etiket[0]);
    odakEtiketi_.Bağla(YazarBulKutusu, Etiket[1], Giriş::TümünüSeç);
    odakEtiketi_.Bağla(MakaleListesi, Etiket[2]);
    odakEtiketi_.Bağla(MakaleBulKutusu, Etiket[3], Giriş::TümünüSeç);
    odakEtiketi_.Bağla(MakaleMetniKutusu, Etiket[4]);
    odakEtiketi_.Bağla(BulKutusu, Etiket[5], Giriş::TümünüSeç);

    connect(&BulButonu, &QPushButton::clicked, this, &AnaForm::BulButonu_Click);
    connect(&TemizleButonu, &QPushButton::clicked, this, &AnaForm::TemizleButonu_Click);
    connect(&TümündeBulButonu, &QPushButton::clicked, this, &AnaForm::TümündeBulButonu_Click);
}

void AnaForm::YazarBulKutusu_Change()
{
    if (YazarBulKutusu.Text().isEmpty())
        return;
    const int sıra = YazarListesi.ÖnekleBul(YazarBulKutusu.Text());
    YazarListesi.ListIndex(sıra);
    if (sıra < 0)
        MakaleleriBoşalt();
}

void AnaForm::MakaleBulKutusu_Change()
{
    if (!MakaleBulKutusu.Text().isEmpty())
        MakaleListesi.ListIndex(MakaleListesi.ÖnekleBul(MakaleBulKutusu.Text()));
}

void AnaForm::BulKutusu_Change()
{
    yerlerEskidi();
    AdımAdım([this] {
        if (BulKutusu.Text().isEmpty())
            TemizleButonu_Click();
        else
            bulmaDüğmeleri(true);
    });
}

void AnaForm::YazarBulKutusu_KeyPress(char16_t& kod)
{
    BüyükHarfliKutuSüzgeci(YazarBulKutusu, kod);
}

void AnaForm::MakaleBulKutusu_KeyPress(char16_t& kod)
{
    BüyükHarfliKutuSüzgeci(MakaleBulKutusu, kod);
}

void AnaForm::YazarListesi_KeyPress(char16_t& kod)
{
    EnterSekmeOlsun(YazarListesi, kod);
}

void AnaForm::MakaleListesi_KeyPress(char16_t& kod)
{
    EnterSekmeOlsun(MakaleListesi, kod);
}

void AnaForm::MakaleMetniKutusu_KeyPress(char16_t& kod)
{
    EnterSekmeOlsun(MakaleMetniKutusu, kod);
}

void AnaForm::BulKutusu_KeyPress(char16_t& kod)
{
    AdımAdım([&kod] { KesmeAksanOlsun(kod); },
             [this, kod] {
                 if (kod == TuşKodları::Enter && !BulKutusu.Text().isEmpty())
                     BulButonu_Click();
             });
}

void AnaForm::bulmaDüğmeleri(bool açık)
{
    for (QPushButton* düğme : {&BulButonu, &TemizleButonu, &TümündeBulButonu})
        düğme->setEnabled(açık);
    // The display must not change under the marks.
    for (QAction* ayarlar : {&AyarlarMenüsü, &AyarlarMenüsü1})
        ayarlar->setEnabled(!açık);
}

void AnaForm::yazarTarafı(bool açık)
{
    for (QWidget* kontrol : std::initializer_list<QWidget*>{&Altlık, &YazarBulKutusu, &Etiket[0], &Etiket[1]})
        kontrol->setEnabled(açık);
}

// A shorter word ends both kinds of finding without a word to the user.
bool AnaForm::sözcükYeterli() const
{
    return BulKutusu.Text().size() >= EnKısaSözcük;
}

void AnaForm::BulButonu_Click()
{
    İlkHatadaBit([this] {
        if (MakaleMetniKutusu.document()->isEmpty()) {
            İletiGöster(Metin(İleti::MakaleSeçiniz), İletiSimgesi::Bilgi, İletiDüğmeleri::Tamam);
            MakaleListesi.setFocus();
            return;
        }
        if (!sözcükYeterli())
            return;
        const qsizetype işaretlenen = sözcüğüİşaretle();
        MakaleMetniKutusu.SelStart(MakaleMetniKutusu.SelStart() + 1);
        imleçİşarette_ = işaretlenen > 0;
        if (işaretlenen > 0)
            return Duyur(İşaretlendiMetni.arg(işaretlenen));
        İletiGöster(Metin(İleti::SözcükMetindeYok), İletiSimgesi::Bilgi, İletiDüğmeleri::Tamam);
        BulKutusu.setFocus();
    });
}

/// @return how many places
qsizetype AnaForm::sözcüğüİşaretle()
{
    if (!sözcükYeterli())
        return 0;
    // The library's texts are in normal form C; a pasted word need not be.
    const QString sözcük = BulKutusu.Text().normalized(QString::NormalizationForm_C);
    const MetinArayıcı arayıcı(MakaleMetniKutusu.Text(), u' ' + sözcük + u' ');
    QList<qsizetype> yerler;
    while ((AramaKonumu = arayıcı.Sonraki(AramaKonumu)) != 0)
        yerler.append(AramaKonumu - 1);
    MakaleMetniKutusu.İşaretle(yerler, sözcük.size() + 1); // the blank before it, but not the one behind
    imleçİşarette_ = !yerler.isEmpty();
    return yerler.size();
}

void AnaForm::TemizleButonu_Click()
{
    if (sonuçGörünümü()) {
        ++doldurma_;
        yazarTarafı(true);
        YazarListesi.ListIndex(-1);
        MakaleListesi.Clear();
        makaleToplamınıYaz();
    }
    ÇıkışButonu.setEnabled(true); // a search that failed has left it disabled
    bulmaDüğmeleri(false);
    bulmaEtiketi(Metin(İleti::BulunacakSözcük));
    MakaleListesi_Click();
    BulKutusu.Text({}); // fires its Change, which clears once more and finds nothing left to do
    BulKutusu.setFocus();
}

void AnaForm::TümündeBulButonu_Click()
{
    İlkHatadaBit([this] {
        if (sözcükYeterli())
            tümündeBul();
    });
}

void AnaForm::tümündeBul()
{
    ++doldurma_; // a filling under way must not go on among the results
    for (QWidget* kontrol : std::initializer_list<QWidget*>{&ÇıkışButonu, &BulButonu, &TümündeBulButonu})
        kontrol->setEnabled(false);
    yazarTarafı(false);
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    Veritabanı->İlerlemeAta([this] {
        PencereleriBoya();
        return !bitti_;
    });
    const auto sonunda = qScopeGuard([] {
        if (Veritabanı)
            Veritabanı->İlerlemeAta({});
        QGuiApplication::restoreOverrideCursor();
    });

    Recordset kayıtlar = Veritabanı->OpenRecordset(
        QStringLiteral("SELECT * FROM [Makaleler] WHERE [MakaleMetni]") + QStringLiteral(" LIKE '*") +
        BulKutusu.Text() + QStringLiteral("*'") + QStringLiteral(" ORDER BY [MakaleBasligi] ASC"));
    if (kayıtlar.Bof() && kayıtlar.Eof())
        sonuçYok();
    else
        sonuçlarıGöster(kayıtlar);
    ÇıkışButonu.setEnabled(true);
    Duyur(Etiket[5].text());
}

void AnaForm::sonuçYok()
{
    MakaleleriBoşalt();
    bulmaEtiketi(Metin(İleti::MakaleBulunamadı));
    BulKutusu.setFocus();
}

void AnaForm::sonuçlarıGöster(Recordset& kayıtlar)
{
    QStringList başlıklar;
    for (; !kayıtlar.Eof(); kayıtlar.MoveNext())
        başlıklar.append(kayıtlar.Fields(u"MakaleBasligi").Value());
    MakaleListesi.Clear();
    MakaleListesi.AddItems(başlıklar);
    bulmaEtiketi(QString::number(MakaleListesi.ListCount()) + u' ' + Metin(İleti::MakaleBulundu));
    makaleToplamınıYaz();
    MakaleListesi.setFocus();
    MakaleListesi.ListIndex(0);
}

// A large count is wider than the label's place: its letters move together then.
void AnaForm::bulmaEtiketi(const QString& yazı)
{
    QFont yazıTipi = yüzey_->font();
    const int genişlik = QFontMetrics(yazıTipi).horizontalAdvance(yazı);
    if (genişlik > Etiket[5].width())
        yazıTipi.setStretch(100 * Etiket[5].width() / genişlik);
    Etiket[5].setFont(yazıTipi);
    Etiket[5].setText(yazı);
}

// The first author that begins with the name: it may be a longer one.
void AnaForm::yazarıGöster(const QString& yazar)
{
    sonuçYazarı_ = yazar;
    YazarListesi.ListIndex(YazarListesi.ÖnekleBul(sonuçYazarı_));
}
