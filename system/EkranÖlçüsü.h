// Twips and pixels.
#pragma once

/// A twip is a 1440th of a logical inch: 15 to a pixel at the usual 96 dots. All are for places on the
/// primary screen; the first two round.
int Piksel(double twip);
int Twip(int piksel);
double KesirliTwip(int piksel);
