// What the windows for adding and for changing an article share: the five fields and their rules.
#pragma once

#include "app/Metinler.h"
#include "controls/AyrılışDenetimi.h"
#include "controls/AçılırListe.h"
#include "controls/Düğme.h"
#include "controls/MetinKutusu.h"
#include "controls/OdakEtiketi.h"
#include "controls/ZenginMetinKutusu.h"
#include "store/Makale.h"
#include "store/Recordset.h"

#include <QDialog>
#include <QLabel>

#include <array>
#include <functional>

class AnaPencere;

/// A modal window with the fields, two buttons that fill the article text, and two that end the entry;
/// what those do is the derived window's. Lives while it is shown.
class MakaleGirişFormu : public QDialog
{
protected:
    /// Object names and captions of what the two windows call differently.
    struct Adlar
    {
        QString Pencere;
        İleti Başlık;
        QString Kaydet, Vazgeç, Yapıştır, DosyaYükle;
        İleti KaydetYazısı, VazgeçYazısı;
    };
    MakaleGirişFormu(QWidget* sahip, AnaPencere& ana, const Adlar& adlar);

    /// Ties a button to what it does, whoever presses it: a hand, or a screen reader, which leaves the focus
    /// where it is. An error ends it silently.
    void basılınca(Düğme& düğme, std::function<void()> iş);
    /// Adds the authors that the query gives to the author list.
    void yazarlarıYükle(const QString& sorgu);
    /// Checks the fields in their order; the first that is not filled as it must be is told and gets the
    /// focus.
    bool alanlarTamam();
    /// What the five fields hold.
    Makale girilen() const;
    /// A file has been loaded into the article text.
    virtual void dosyaYüklendi() {}
    /// The five fields in the order of their labels.
    std::array<QWidget*, 5> alanlar();

    AnaPencere& ana_;
    std::array<QLabel, 5> Etiket;
    AçılırListe YazarAdıListesi{AçılırListe::Tür::Yazılabilir};
    MetinKutusu MakaleBaşlığıKutusu, YayımYeriKutusu, YayımTarihiKutusu;
    ZenginMetinKutusu MakaleMetniKutusu;
    Düğme yapıştır_, dosyaYükle_, kaydet_, vazgeç_;

private:
    void kontrolleriKur(const Adlar& adlar);
    void yerleştir();
    void tuşlarıBağla();
    void odaklarıBağla();
    /// Replaces the article text by the clipboard's.
    void panodanYapıştır();
    /// Lets the user choose a file and loads it into the article text, which stays as it was when the file
    /// can't be read.
    void dosyadanYükle();
    /// Trims a field's text and brings it into its form; done when the focus leaves the field.
    void alanıDüzelt(QWidget& alan);
    /// Trims the date and tells whether it needs no question.
    bool tarihUygun();
    /// @return whether the user keeps a date that is none
    static bool tarihiSor();

    OdakEtiketi odakEtiketi_;
    OdakGözcüsü odakGözcüsü_;
    AyrılışDenetimi tarihDenetimi_{YayımTarihiKutusu, [this] { return tarihUygun(); }, &tarihiSor};
};
