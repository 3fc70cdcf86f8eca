// Which kind of source a path leads to.
#pragma once

#include "tools/Aktarıcı.h"
#include "tools/MakaleKaynağı.h"
#include "tools/YolKalıbı.h"

#include <memory>
#include <optional>

class DurdurmaBekçisi;

/// What was said of the sources on the command line.
struct KaynakAyarı
{
    std::optional<YolKalıbı> Kalıp;
    Makale Yoksa;     ///< what an article is given that doesn't say it itself; its title and text are empty
    QString Sütunlar; ///< of CSV files; see CsvKaynağı
};

struct AçıkKaynak
{
    std::unique_ptr<MakaleKaynağı> Kaynak;
    Talep Beklenen;
};

/// By what the source holds, and by its name's ending where that tells more. A folder, and a file that is
/// none of records, is one of documents. Throws what the sources throw when they open.
/// @param yol "-" for the standard input, which holds JSON Lines
/// @param ayar must outlive the source
AçıkKaynak KaynakAç(const QString& yol, const KaynakAyarı& ayar, const DurdurmaBekçisi& bekçi);

/// Whether a file of this name holds records, one article after the other, rather than being a document.
bool KayıtDosyasıAdı(const QString& ad);
