// The places of a word in a text, and the way from one to the next.
#pragma once

#include <QList>
#include <QString>
#include <QStringView>

#include <optional>

/// A stretch of a text in UTF-16 units, counted from 0.
struct MetinYeri
{
    qint32 Baş = 0, Uzunluk = 0;

    bool operator==(const MetinYeri&) const = default;
};

/// Finds all places once, also inside longer words, by Turkish rules without regard to case; places don't
/// overlap. The word is taken as it was typed. Only where that stands nowhere, the signs of finding in all
/// articles have their meaning; then each piece between two * has places of its own.
class SözcükYerleri
{
public:
    SözcükYerleri(QStringView metin, const QString& sözcük);

    struct Adım
    {
        MetinYeri Yer;
        qsizetype Sıra; ///< of the place among all, counted from 1
        bool Sardı;     ///< it lies on the other side of the text's end
    };
    /// The place behind the selected stretch, where that is a place itself; else the first one that begins in
    /// or behind it. An empty stretch is a caret. Nothing where there are no places.
    std::optional<Adım> Sonraki(MetinYeri seçili) const;
    /// The last place that begins before the stretch.
    std::optional<Adım> Önceki(MetinYeri seçili) const;

    qsizetype Sayı() const { return yerler_.size(); }

private:
    void yazıldığıGibi(QStringView metin, const QString& sözcük);
    void işaretleriyle(QStringView metin, const QString& sözcük);

    /// Index of the first place that does not begin before this unit.
    qsizetype ilkBaşlayan(qint32 baş) const;

    QList<MetinYeri> yerler_; // ascending
};
