// The window that adds articles, one after another.
#pragma once

#include "forms/MakaleGirişFormu.h"

#include <optional>

/// Locked until the user begins an entry; then a new record is pending, and the window does not close.
class EkleFormu : public MakaleGirişFormu
{
public:
    explicit EkleFormu(AnaPencere& ana);

    /// Whether an entry has been begun and neither saved nor given up.
    bool GirişDurumunda() const { return YazarAdıListesi.isEnabled(); }

    void reject() override;

private:
    void Form_Load();
    void EkleKaydetButonu_Click();
    void İptalKapatButonu_Click();
    void dosyaYüklendi() override;
    void girişeBaşla();
    void kaydet();
    void yeniKayıt();
    void düğmeleriKilitle();
    void alanlarıAç();
    void alanlarıBoşalt();
    void alanlarıKilitle();

    std::optional<Recordset> eklenen_; // the pending record; only in the entry state
};
