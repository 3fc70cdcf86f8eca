// The window that tells where to report faults.
#pragma once

#include "forms/BilgiFormu.h"

#include <array>

/// Two links: to the maker's mail address and to the page for messages. Stands without an owner.
class HataBildirmeFormu : public BilgiFormu
{
public:
    HataBildirmeFormu();

private:
    void KapatButonu_Click() { accept(); }

    std::array<QLabel, 3> Etiket;
    std::array<::WebEtiketi, 2> WebEtiketi; // mail, message page
    Düğme KapatButonu;
};
