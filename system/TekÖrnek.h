// One running instance per user and caption.
#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QString>

#include <functional>
#include <memory>

/// Lives as long as the program. The lock decides who is first and is void when its owner has died; the
/// socket carries the second start's request to come to the front.
class TekÖrnek
{
public:
    /// @param başlık the main window's caption
    explicit TekÖrnek(const QString& başlık);
    ~TekÖrnek();

    /// Whether another instance runs already; it has been asked to come to the front then.
    bool BaşkasıVar() const { return başkasıVar_; }

    /// Called when a second start asks this instance to come to the front.
    std::function<void()> ÖneÇağrıldı;

private:
    bool kilitle();
    void dinle();
    bool çağır() const;

    QString yol_;
    QLockFile kilit_;
    std::unique_ptr<QLocalServer> sunucu_;
    bool başkasıVar_ = false;
};
