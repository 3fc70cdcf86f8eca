// Libraries to measure with: made-up articles that are the same in every run.
#pragma once

#include "store/Makale.h"
#include "store/Recordset.h"

#include <QList>
#include <QRandomGenerator>
#include <QString>
#include <QStringList>

/// Makes words, sentences and names that look Turkish: vowel harmony, all letters of the alphabet, few
/// words often and many seldom.
class MetinÜreteci
{
public:
    explicit MetinÜreteci(quint32 tohum);

    /// @param boy the least length in UTF-16 units; the last sentence is finished
    QString Metin(qsizetype boy);
    /// In capitals; unequal for unequal numbers.
    QString Başlık(int sıra);
    /// Two words in capitals; unequal for numbers below SözcükSayısı.
    QString YazarAdı(int sıra) const;
    /// A number from 0 to below the bound.
    int Sayı(int sınır) { return static_cast<int>(rastgele_.bounded(sınır)); }

    static constexpr int SözcükSayısı = 8'000;

private:
    QString yeniSözcük();
    const QString& sözcük();
    void tümceEkle(QString& metin);

    QRandomGenerator rastgele_;
    QStringList sözcükler_;
};

/// A library in a folder of its own, closed. Its authors have about 50 articles each, but for one who has
/// every other article, though at most 10,000. Titles are unique.
class ÖrnekKitaplık
{
public:
    static constexpr QStringView ÇokYazan = u"ÇOK YAZAN";
    static constexpr QStringView UzunYazan = u"UZUN YAZAN"; ///< has the long articles

    /// Writes the library into the folder, which must be empty.
    /// @param klasör with a separator at its end
    /// @param uzunluklar articles to add, by their lengths in UTF-16 units
    ÖrnekKitaplık(const QString& klasör, int makaleSayısı, const QList<qsizetype>& uzunluklar = {});

    const QString& Klasör() const { return klasör_; }
    int MakaleSayısı() const { return makaleSayısı_; }
    int ÇokYazanınMakaleleri() const { return çokYazanınMakaleleri_; }
    const QList<qsizetype>& Uzunluklar() const { return uzunluklar_; }
    /// Title of the long article with this place in Uzunluklar.
    static QString UzunBaşlık(qsizetype sıra) { return QStringLiteral("UZUN MAKALE %1").arg(sıra + 1); }

private:
    void doldur() const;
    Makale makale(MetinÜreteci& üreteç, int sıra) const;

    QString klasör_;
    int makaleSayısı_;
    int çokYazanınMakaleleri_;
    QList<qsizetype> uzunluklar_;
};

/// Appends an article to the rows of the whole table.
void KaydıEkle(Recordset& kayıtlar, const Makale& makale);
