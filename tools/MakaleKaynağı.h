// Where articles come from: a file of records, a folder of documents.
#pragma once

#include "store/Makale.h"

#include <optional>

/// An article as its source gives it; no rule but the source's own has been applied.
struct GelenMakale
{
    Makale Değer;
    QString Nerede;   ///< in the source, for messages: a file, or a file with a line
    QString Ret = {}; ///< why it can't be taken, a Turkish sentence; empty where it can
};

/// Gives its articles one by one. Made for one run through.
class MakaleKaynağı
{
public:
    MakaleKaynağı() = default;
    virtual ~MakaleKaynağı() = default;
    MakaleKaynağı(const MakaleKaynağı&) = delete;
    MakaleKaynağı& operator=(const MakaleKaynağı&) = delete;

    /// Nothing at the end. Throws AraçHatası with file and line for a source that can't be trusted, and when
    /// the work was interrupted; VeritabanıHatası where it can't be read on.
    virtual std::optional<GelenMakale> Sonraki() = 0;

    virtual qint64 Konum() const = 0; ///< how far it has come, in a unit of its own
    virtual qint64 Boy() const = 0;   ///< of all, in that unit; 0 where that isn't known
};
