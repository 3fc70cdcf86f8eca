// Lets an interruption end long work at a point of its choice.
#pragma once

#include <array>
#include <csignal>

/// While it lives, SIGINT, SIGTERM and SIGHUP are noted instead of ending the process; a second one ends it.
/// At most one at a time.
class DurdurmaBekçisi
{
public:
    DurdurmaBekçisi();
    ~DurdurmaBekçisi();
    DurdurmaBekçisi(const DurdurmaBekçisi&) = delete;
    DurdurmaBekçisi& operator=(const DurdurmaBekçisi&) = delete;

    bool Durduruldu() const; ///< whether the work was interrupted
    /// Throws AraçHatası once it was.
    void Bak() const;
    /// Waits until something can be read from the descriptor, or its end; throws as Bak.
    void OkunurOlsun(int tanıtıcı) const;

private:
    static constexpr std::array<int, 3> İşaretler = {SIGINT, SIGTERM, SIGHUP};
    std::array<struct sigaction, 3> eskiler_ = {};
    std::array<int, 2> boru_ = {-1, -1}; // readable once the work was interrupted
};
