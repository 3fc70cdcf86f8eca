// The main window: authors on the left, their articles below, the shown article on the right.
#pragma once

#include "controls/Düğme.h"
#include "controls/KöşeBildirimi.h"
#include "controls/ListeKutusu.h"
#include "controls/MetinKutusu.h"
#include "controls/OdakEtiketi.h"
#include "controls/ZenginMetinKutusu.h"
#include "forms/AnaPencere.h"
#include "store/Recordset.h"
#include "text/SözcükYerleri.h"

#include <QAction>
#include <QFrame>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QTimer>

#include <array>
#include <functional>
#include <optional>

class EkleFormu;

/// Why the main window is asked to close.
enum class KapanışNedeni
{
    Kullanıcı = 0,
    Program = 1,
    OturumSonu = 2,
    GörevYöneticisi = 3,
    ÜstPencere = 4
};

/// Window states as the settings keep them.
enum class PencereDurumu
{
    Olağan = 0,
    Simge = 1,
    TamEkran = 2
};

/// The only main window; made by the start-up after the library was opened, lives until the program's
/// end. All its handlers run on the user-interface thread. Sizes are twips.
class AnaForm : public QMainWindow, public AnaPencere
{
public:
    /// Outer width and height that the window never goes below; more with larger letters.
    static constexpr int EnAzGenişlik = 9720;
    static constexpr int EnAzYükseklik = 7200;

    AnaForm();
    ~AnaForm() override;

    /// Loads the window and makes it visible.
    /// @param yüklendi called once the window stands
    void Göster(const std::function<void()>& yüklendi = {});

    /// Whether the exit sequence has run; the event loop need not be entered then.
    bool Bitti() const { return bitti_; }

    void YazarListesiYükle() override;
    void YazarListesiYükle(const QStringList& değişenler) override;
    QString SeçiliMakale() const override { return MakaleListesi.Text(); }
    void MakaleleriBoşalt() override;
    void GörünümüUygula() override;

    enum class Eksen
    {
        Yatay,
        Dikey
    };
    /// Where a window at this place of the axis is moved so that it stays on the screen; all in twips.
    static int SınırlıKonum(int konum, int ekran, int boy, Eksen eksen);

    /// Brings the window to the front, restored if it was minimised.
    void ÖneGetir();

    /// Closes the window for a reason of the program's or the system's.
    /// @return whether it closed
    bool Kapat(KapanışNedeni neden);

protected:
    void resizeEvent(QResizeEvent* olay) override;
    void moveEvent(QMoveEvent* olay) override;
    void closeEvent(QCloseEvent* olay) override;

private:
    // Putting together (once, by the constructor)
    void kontrolleriKur();
    void menüleriKur();
    void sekmeSırasıKur();
    void olaylarıBağla();
    void tuşlarıBağla();
    void menüTuşlarınıKur();

    // Loading and browsing
    void Form_Load();
    void başlıklarıKoy();
    void pencereDurumunuOku();
    void görünümAyarlarınıOku();
    void boşKitaplığıAnlat(bool boş);
    void sonYazarıSeç();
    void YazarListesi_Click();
    void MakaleListesi_Click();
    /// Fills the article list with the rows' titles and selects the first one, letting the window's
    /// messages through. @return false when a newer filling took over meanwhile
    bool makaleListesiniDoldur(Recordset& kayıtlar);
    void makaleyiGöster(const QString& metin);
    /// Whether the article list holds what a search in all articles found.
    bool sonuçGörünümü() const { return !Altlık.isEnabled(); }
    void yazarıYenile(const QString& yazar);
    void yazarToplamınıYaz();
    void makaleToplamınıYaz();

    // Finding
    void bulmaOlaylarınıBağla();
    void YazarBulKutusu_Change();
    void MakaleBulKutusu_Change();
    void BulKutusu_Change();
    void YazarBulKutusu_KeyPress(char16_t& kod);
    void MakaleBulKutusu_KeyPress(char16_t& kod);
    void YazarListesi_KeyPress(char16_t& kod);
    void MakaleListesi_KeyPress(char16_t& kod);
    void MakaleMetniKutusu_KeyPress(char16_t& kod);
    void BulKutusu_KeyPress(char16_t& kod);
    void BulButonu_Click();
    void TemizleButonu_Click();
    void TümündeBulButonu_Click();
    bool sözcükYeterli() const;
    void tümündeBul();
    void sonuçlarıGöster(Recordset& kayıtlar);
    void sonuçYok();
    /// Marks the word wherever it stands between two blanks. @return whether it was found
    qsizetype sözcüğüİşaretle();
    void yazarıGöster(const QString& yazar);
    void bulmaEtiketi(const QString& yazı);
    void bulmaDüğmeleri(bool açık);
    void yazarTarafı(bool açık);

    // From one place of the word to the next
    void yerOlaylarınıBağla();
    enum class Yön
    {
        İleri,
        Geri
    };
    void yereGit(Yön yön);
    std::optional<SözcükYerleri::Adım> yerAdımı(Yön yön);
    void yerlerEskidi();

    // What the menus lead to
    void menüOlaylarınıBağla();
    void MakaleEkleMenüsü_Click();
    void MakeleDeğiştirMenüsü_Click();
    void MakaleSilMenüsü_Click();
    void ReferansOluşturMenüsü_Click();
    void İçindekilerMenüsü_Click();
    void DizinMenüsü_Click();
    void HatalarıBildirinMenüsü_Click();
    void HakkındaMenüsü_Click();
    void değişeniSeç();
    void AyarlarMenüsü_Click();
    void AyarlarMenüsü1_Click();

    // What is done with the shown text
    void metinOlaylarınıBağla();
    void MakaleListesi_MouseDown(const QPoint& yer);
    void MakaleMetniKutusu_MouseUp(const QPoint& yer);
    void TümünüSeçMenüsü_Click();
    void KopyalaMenüsü_Click();
    void YazdırMenüsü_Click();
    void WordeYapıştırMenüsü_Click();
    void yazdır();
    void kaynağıylaKopyala();
    void referansıTopla();
    void menüÇubuğunaGit();
    static void sağDüğmeMenüsünüAç();

    // Layout
    void Form_Resize();
    void yerleştir(int genişlik, int yükseklik);
    void enAzBoyuUygula();
    void Sınırla_Timer();
    static QSize enAzBoy();
    PencereDurumu pencereDurumu() const;

    // Exit
    void ÇıkışButonu_Click();
    /// @return whether the window may close
    bool Form_QueryUnload(KapanışNedeni neden);
    void oturumuBitir();

    QWidget* yüzey_; // holds all controls; owned by the window
    QFrame Altlık;
    std::array<QLabel, 6> Etiket;
    ListeKutusu YazarListesi;
    QLabel ToplamYazarSayısıEtiketi;
    MetinKutusu YazarBulKutusu;
    ListeKutusu MakaleListesi;
    QLabel ToplamMakaleSayısıEtiketi;
    MetinKutusu MakaleBulKutusu;
    ZenginMetinKutusu MakaleMetniKutusu;
    KöşeBildirimi bildirim_{MakaleMetniKutusu};
    MetinKutusu BulKutusu;
    Düğme BulButonu, TemizleButonu, TümündeBulButonu, ÇıkışButonu;
    ZenginMetinKutusu YazdırKutusu;
    QTimer Sınırla;

    QMenu MakaleMenüsü{this}, MakaleMetniMenüsü{this}, YardımMenüsü{this};
    QAction MakaleEkleMenüsü{this}, MakeleDeğiştirMenüsü{this}, MakaleSilMenüsü{this},
        ReferansOluşturMenüsü{this};
    QAction TümünüSeçMenüsü{this}, KopyalaMenüsü{this}, YazdırMenüsü{this}, WordeYapıştırMenüsü{this};
    QAction AyarlarMenüsü{this}, AyarlarMenüsü1{this};
    QAction İçindekilerMenüsü{this}, DizinMenüsü{this}, HatalarıBildirinMenüsü{this}, HakkındaMenüsü{this};
    QAction MenüÇizgisi2{this}, MenüÇizgisi3{this};

    qint32 AramaKonumu = 0; // where the last place was found, counted from 1; 0 begins at the beginning
    std::optional<SözcükYerleri> yerler_; // of the word in the shown text, once they were asked for
    bool imleçİşarette_ = false;          // marking has left the caret there; the reader is elsewhere
    QStringList toplananReferanslar_;     // what was last put on the clipboard by gathering
    OdakEtiketi odakEtiketi_;
    EkleFormu* ekleFormu_ = nullptr; // while it is shown
    QString sonuçYazarı_;            // author of the shown article in the result view
    int doldurma_ = 0;               // number of the newest filling of the article list; an older one stops
    bool soruluyor_ = false;         // the exit question stands on the screen
    bool bitti_ = false;             // the exit sequence has run
    QSize yerleşen_;                 // outer size in pixels that the controls were last laid out for
};
