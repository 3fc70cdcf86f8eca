// The tool's own faults; those of the library and its files are VeritabanıHatası.
#pragma once

#include <QString>

#include <exception>

/// Ends a command. Carries a Turkish sentence for the user; has no number.
class AraçHatası : public std::exception
{
public:
    explicit AraçHatası(const QString& açıklama) : açıklama_(açıklama), bayt_(açıklama.toUtf8()) {}

    const QString& Açıklama() const noexcept { return açıklama_; }
    const char* what() const noexcept override { return bayt_.constData(); }

private:
    QString açıklama_;
    QByteArray bayt_; // the sentence as UTF-8, for what()
};
