// The about window.
#pragma once

#include "forms/BilgiFormu.h"

#include <array>

/// The program's picture, name and version, and its maker's web site. Stands without an owner.
class HakkındaFormu : public BilgiFormu
{
public:
    HakkındaFormu();

private:
    void TamamButonu_Click() { accept(); }

    QLabel SimgeKutusu;
    std::array<QLabel, 2> Etiket;
    ::WebEtiketi WebEtiketi;
    Düğme TamamButonu;
};
