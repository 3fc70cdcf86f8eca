// Twips and pixels.
#pragma once

/// A twip is a 1440th of a logical inch: 15 to a pixel at the usual 96 dots. Both are for places on the
/// primary screen, and round.
int Piksel(double twip);
int Twip(double piksel);
