// Reads a library's articles for giving them out, whatever is damaged.
#pragma once

#include "app/Oturum.h"
#include "store/BenzerDeseni.h"
#include "store/MakaleOkuyucu.h"
#include "tools/Durdurma.h"
#include "tools/Komutlar.h"

#include <functional>
#include <optional>
#include <set>

/// Which articles are asked for; all where nothing is said.
struct DökümSüzgeci
{
    QString Yazar;                      ///< without regard to case; empty for every author
    std::optional<BenzerDeseni> Sözcük; ///< that the text must hold, by the rules of finding
};

/// An open library from which articles are given out, and the account of it.
class Döküm
{
public:
    /// Opens the library, also one that can't be written, and looks for its articles. Throws what opening
    /// throws.
    Döküm(const QString& klasör, const DökümSüzgeci& süzgeç);

    /// Hands over each article that is asked for, in the order of authors and titles; may be called again.
    /// Throws what the work throws, and AraçHatası when interrupted.
    /// @param iş what is being done, for the bar on the terminal
    void Gez(const QString& iş, const std::function<void(const Makale&)>& al);

    /// Says on the standard error what a damaged library didn't give.
    ÇıkışDurumu HesapVer() const;
    qint64 Verilen() const { return verilen_; } ///< in the last call of Gez

private:
    bool istenen(const MakaleKünyesi& künye) const;

    Oturum oturum_;
    DurdurmaBekçisi bekçi_;
    const DökümSüzgeci& süzgeç_;
    std::optional<MakaleOkuyucu> okuyucu_;
    std::set<qint64> eksikler_; // keys
    qint64 verilen_ = 0;
};
