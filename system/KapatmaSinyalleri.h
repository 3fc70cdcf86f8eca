// Ends the program in an orderly way when the system asks for it by a signal.
#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>

/// Turns TERM, INT and HUP into a call on the user-interface thread. One object for the whole program.
class KapatmaSinyalleri
{
public:
    explicit KapatmaSinyalleri(std::function<void()> kapat);
    ~KapatmaSinyalleri();
    KapatmaSinyalleri(const KapatmaSinyalleri&) = delete;
    KapatmaSinyalleri& operator=(const KapatmaSinyalleri&) = delete;

private:
    std::unique_ptr<QSocketNotifier> bildirim_;
};
