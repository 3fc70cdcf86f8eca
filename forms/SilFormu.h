// The window that deletes articles, one at a time; at least one always stays.
#pragma once

#include "controls/Düğme.h"
#include "controls/ListeKutusu.h"
#include "controls/MetinKutusu.h"
#include "controls/OdakEtiketi.h"
#include "controls/ZenginMetinKutusu.h"

#include <QDialog>
#include <QLabel>

#include <array>

class AnaPencere;

/// Modal to the main window, which it empties after each deletion.
class SilFormu : public QDialog
{
public:
    SilFormu(QWidget& sahip, AnaPencere& ana);

    /// Selects an article by its title.
    void Seç(const QString& başlık) { MakaleListesi.Text(başlık); }

private:
    void kontrolleriKur();
    void yerleştir();
    void olaylarıBağla();

    void Form_Load();
    void MakaleListesi_Click();
    void MakaleListesi_KeyUp(int tuş);
    void MakaleBulKutusu_Change();
    void SilButonu_Click();
    void KapatButonu_Click();
    bool silinsinMi();
    void sil();
    void ayrıntılarıBoşalt();
    void toplamıYaz(qint64 sayı);

    AnaPencere& ana_;
    std::array<QLabel, 6> Etiket;
    ListeKutusu MakaleListesi;
    MetinKutusu MakaleBulKutusu, YazarAdıKutusu, YayımYeriKutusu, YayımTarihiKutusu;
    ZenginMetinKutusu MakaleMetniKutusu;
    QLabel ToplamMakaleSayısı;
    Düğme SilButonu, KapatButonu;
    OdakEtiketi odakEtiketi_;
};
