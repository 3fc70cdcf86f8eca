// The installed font families.
#pragma once

class AçılırListe;

/// Replaces a list's entries by the names of all installed font families, in the Turkish alphabet's order.
void YazıTipleriniDoldur(AçılırListe& liste);
