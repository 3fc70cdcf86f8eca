// The tool's own faults; those of the library and its files are VeritabanıHatası.
#pragma once

#include "base/Hata.h"

/// Ends a command. Has no number.
class AraçHatası : public Hata
{
public:
    using Hata::Hata;
};

/// The command was typed wrongly: the exit status is another.
class YanlışKullanım : public AraçHatası
{
public:
    using AraçHatası::AraçHatası;
};
