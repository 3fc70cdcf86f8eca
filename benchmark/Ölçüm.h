// Timing, and the table that it is printed in.
#pragma once

#include <QHash>
#include <QString>

#include <functional>
#include <optional>

/// An upper bound that a measurement should stay below.
struct Amaç
{
    enum class Tür
    {
        Oran,
        Süre,
        Büyüme
    } tür;
    double üstSınır; ///< of Süre in ms
};

/// Something to be measured beside something to compare it with. Both run by turns, so that whatever
/// else the machine does meanwhile meets both.
struct Ölçüm
{
    QString Ad;
    std::function<void()> İş;
    QString TabanAdı;
    std::function<void()> Taban;
    int Tekrar; ///< runs of each, after one that is not counted; at least 1
    std::optional<Amaç> Hedef = {};
    std::function<void()> İşHazırlığı = {}; ///< before each run; takes no part in the time
    std::function<void()> TabanHazırlığı = {};
};

/// Medians in ms.
struct Sonuç
{
    double İş, Taban;
};

Sonuç Ölç(const Ölçüm& ölçüm);

/// The table on standard output; a row is printed as soon as it is measured.
class Tablo
{
public:
    void BaşlığıYaz() const;
    /// Names the library that the next rows are about.
    void Kitaplık(const QString& ad) { kitaplık_ = ad; }
    /// Measures and prints. Growth counts from the first row with the same name.
    void Satır(const Ölçüm& ölçüm);
    /// The same for what is no time, in the unit that its name tells.
    void Satır(const QString& ad, const Sonuç& sonuç, const QString& tabanAdı,
               const std::optional<Amaç>& hedef);
    /// How many bounds were kept and how many were not.
    void SonucuYaz() const;

private:
    QString kitaplık_;
    QHash<QString, double> ilkler_; // ms by name
    int tutan_ = 0;
    int tutmayan_ = 0;
};

/// Writes a line of UTF-8 to standard output at once.
void SatırYaz(const QString& satır);
