// The help window.
#pragma once

#include "controls/Düğme.h"
#include "controls/KılavuzKutusu.h"
#include "controls/ListeKutusu.h"
#include "controls/MetinKutusu.h"
#include "document/Kılavuz.h"

#include <QLabel>
#include <QSplitter>
#include <QTabWidget>
#include <QTreeWidget>
#include <QWidget>

#include <array>

/// The user's guide with its contents and its index. Not modal, and usable while a modal window is up: it
/// then belongs to that one. Closing it hides it.
class YardımFormu : public QWidget
{
public:
    YardımFormu();

    const Kılavuz& Yapı() const { return kılavuz_; }

    /// Each brings the window up and to the front.
    void İçindekileriGöster();
    void DiziniGöster();
    void BölümüGöster(int bölüm);
    void TerimiGöster(const Kılavuz::Terim& terim);

protected:
    bool event(QEvent* olay) override;

private:
    void kontrolleriKur();
    void yerleştir();
    void olaylarıBağla();
    void kısayol(const QKeySequence& tuş, std::function<void()> iş);
    void içindekileriDoldur();

    void İçindekilerAğacı_Click();
    void DizinKutusu_Change();
    void DizinListesi_Click();
    void BulKutusu_Change();
    void GeriButonu_Click() { geçmişteGit(-1); }
    void İleriButonu_Click() { geçmişteGit(1); }

    void aç();
    void engeleBağlan();
    void git(int yer, int uzunluk = 0);
    void terimeGit(const Kılavuz::Terim& terim);
    void geçmişteGit(int adım);
    void düğmeleriAyarla();
    void bölümüİşaretle();
    void sonrakiniBul(int adım);
    void bulunanıSöyle(const QString& yazı);
    QString terimYazısı(const Kılavuz::Terim& terim) const;

    Kılavuz kılavuz_;
    QSplitter Bölme;
    QTabWidget Sayfalar;
    QWidget dizinSayfası_;
    QTreeWidget İçindekilerAğacı;
    QList<QTreeWidgetItem*> dallar_; // one for each section; the tree's
    MetinKutusu DizinKutusu;
    ListeKutusu DizinListesi;
    QList<int> dizin_; // indices of the terms that are listed
    std::array<QLabel, 3> Etiket;
    MetinKutusu BulKutusu;
    Düğme GeriButonu, İleriButonu, SonrakiButonu;
    ::KılavuzKutusu KılavuzKutusu;
    QList<int> geçmiş_; // places that were at the top
    qsizetype geçmişSırası_ = -1;
    QList<int> bulunanlar_;
    qsizetype bulunanSırası_ = -1;
};
