// The window that changes the article selected in the main window.
#pragma once

#include "forms/MakaleGirişFormu.h"

/// Modal to its owner, for one article. Reports what it saved through the shared variables
/// DeğiştirilenYazarAdı and DeğiştirilenMakaleBaşlığı.
class DeğiştirFormu : public MakaleGirişFormu
{
public:
    DeğiştirFormu(QWidget& sahip, AnaPencere& ana);

protected:
    void keyPressEvent(QKeyEvent* olay) override;

private:
    void Form_Load();
    void KaydetDüğmesi_Click();
    void VazgeçDüğmesi_Click();
    /// The selected article; the first one where several have its title.
    Recordset seçiliMakale() const;
};
