// A command's arguments, taken apart.
#pragma once

#include <QHash>
#include <QStringList>
#include <QStringView>

#include <vector>

struct SeçenekTanımı
{
    QStringView ad;       ///< without the hyphens
    QStringView yalınAd;  ///< as it is typed without Turkish letters
    QStringView değerAdı; ///< what stands behind it; empty where nothing does
};

class Değişkenler
{
public:
    /// Throws YanlışKullanım for an unknown option and one without its value.
    /// @param değişkenler those behind the command's name; what stands behind "--" is no option
    Değişkenler(const QStringList& değişkenler, const std::vector<SeçenekTanımı>& seçenekler);

    /// What is no option, in order.
    const QStringList& Sıralı() const { return sıralı_; }
    bool Var(QStringView seçenek) const { return değerler_.contains(seçenek.toString()); }
    /// The last one counts; empty where the option wasn't given.
    QString Değer(QStringView seçenek) const { return değerler_.value(seçenek.toString()); }
    /// Whether to say only what would be done.
    bool Deneme() const { return Var(u"dene"); }

private:
    QStringList sıralı_;
    QHash<QString, QString> değerler_;
};
