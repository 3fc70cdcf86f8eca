// The window that composes an article's bibliographic reference.
#pragma once

#include "controls/Düğme.h"
#include "controls/ZenginMetinKutusu.h"
#include "store/Makale.h"

#include <QDialog>
#include <QLabel>

/// Modal, without an owner; composed anew at every opening.
class ReferansFormu : public QDialog
{
public:
    /// @param başlık title of the article, the first one that has it
    explicit ReferansFormu(const QString& başlık);

    /// "Given Names Surname, "Title", Place, Date". The surname is the last word of the author's name; a
    /// name of one word stands alone. Without a date the line ends with the place.
    static QString Referans(const Makale& makale);
    /// The reference of the first article with this title; throws where there is none.
    static QString Referans(const QString& başlık);

private:
    void kontrolleriKur();
    void yerleştir();
    void Form_Load(const QString& başlık);
    void KopyalaButonu_Click();
    void WordeYapıştırButonu_Click();
    void KapatButonu_Click();

    ZenginMetinKutusu ReferansBilgisiKutusu;
    QLabel SimgeKutusu;
    Düğme KopyalaButonu, WordeYapıştırButonu, KapatButonu;
};
