// An account.
#pragma once

#include <QString>

/// The data to append to a workspace's Users, or what Users tells about one (then without its password).
class User
{
public:
    explicit User(const QString& ad) : ad_(ad) {}

    const QString& Name() const { return ad_; }
    const QString& PID() const { return pid_; }
    void PID(const QString& pid) { pid_ = pid; }
    const QString& Password() const { return parola_; }
    void Password(const QString& parola) { parola_ = parola; }

private:
    QString ad_, pid_, parola_;
};
