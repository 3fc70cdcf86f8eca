// The base of every error that the program's own code throws.
#pragma once

#include <QByteArray>
#include <QString>

#include <exception>

/// Carries a Turkish sentence for the user and, where there is one, a number that never changes.
class Hata : public std::exception
{
public:
    static constexpr int Numarasız = 0;

    /// @param açıklama the sentence
    explicit Hata(const QString& açıklama, int numara = Numarasız)
        : numara_(numara), açıklama_(açıklama), bayt_(açıklama.toUtf8())
    {
    }

    int Numara() const noexcept { return numara_; }
    const QString& Açıklama() const noexcept { return açıklama_; }
    /// The sentence as UTF-8.
    const char* what() const noexcept override { return bayt_.constData(); }

private:
    int numara_;
    QString açıklama_;
    QByteArray bayt_; // for what()
};
