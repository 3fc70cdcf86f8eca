// The window that chooses the printer.
#pragma once

#include "controls/AçılırListe.h"
#include "controls/Düğme.h"
#include "controls/MetinKutusu.h"
#include "system/Yazıcılar.h"

#include <QDialog>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QList>

#include <array>

/// Modal; stands in the middle of its owner. Tamam makes the selected printer the program's current one,
/// and does nothing where none is selected. İptal and Esc set YazdırmaİptalEdildi; the title bar's
/// closing changes nothing, and printing goes on with the printer that was current.
class YazıcıSeçmeFormu : public QDialog
{
public:
    /// @param yazıcılar what there is to choose from; the current one is selected
    explicit YazıcıSeçmeFormu(const QList<Yazıcı>& yazıcılar, QWidget* sahip = nullptr);

private:
    void kontrolleriKur();
    void yerleştir();
    void olaylarıBağla();

    void Form_Load();
    void YazıcıAdlarıKutusu_Click();
    void TamamDüğmesi_Click();
    void İptalDüğmesi_Click();
    /// @throw ÇalışmaHatası GeçersizDizin: none is selected
    const Yazıcı& seçiliYazıcı() const;

    const QList<Yazıcı> yazıcılar_;

    QFrame Altlık{this};
    QGroupBox Çerçeve{&Altlık};
    std::array<QLabel, 2> Etiket;
    AçılırListe YazıcıAdlarıKutusu{AçılırListe::Tür::YalnızSeçim, &Çerçeve};
    MetinKutusu BağlantıNoktasıKutusu{&Çerçeve};
    Düğme TamamDüğmesi{&Altlık}, İptalDüğmesi{&Altlık};
};
