// Text of PDF files, by poppler's programs.
#pragma once

#include "system/BelgeÇevirici.h"
#include "system/ÇevirmeKlasörü.h"

class DışProgram;

/// Waits until the program ends.
/// @param bak asked meanwhile; throws where the work is to stop
/// @param süre ms; it is ended then
/// @return whether it has ended within that time
bool ProgramıBekle(DışProgram& program, int süre, const std::function<void()>& bak);

/// @param yol of a file that begins as a PDF
/// @param bak as above
/// @throws MetinOkumaHatası why it has no text
ÇevrilenBelge PdfMetniOku(const QString& yol, const ÇevirmeKlasörü& klasör, int süre,
                          const std::function<void()>& bak);
