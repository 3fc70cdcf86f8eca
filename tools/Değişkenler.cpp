#include "tools/Değişkenler.h"

#include "tools/AraçHatası.h"

#include <QCommandLineParser>

namespace {

/// A terminal may give a letter and its mark apart.
QStringList bitişik(const QStringList& değişkenler)
{
    QStringList sonuç;
    bool seçenekOlabilir = true;
    for (const QString& değişken : değişkenler) {
        seçenekOlabilir = seçenekOlabilir && değişken != u"--";
        const qsizetype ad = değişken.indexOf(u'=');
        sonuç.append(seçenekOlabilir && değişken.startsWith(u"--")
                         ? değişken.left(ad).normalized(QString::NormalizationForm_C) +
                               (ad < 0 ? QString() : değişken.mid(ad))
                         : değişken);
    }
    return sonuç;
}

} // namespace

Değişkenler::Değişkenler(const QStringList& değişkenler, const std::vector<SeçenekTanımı>& seçenekler)
{
    QCommandLineParser çözücü;
    for (const SeçenekTanımı& tanım : seçenekler) {
        QStringList adlar = {tanım.ad.toString(), tanım.yalınAd.toString()};
        adlar.removeDuplicates();
        çözücü.addOption({adlar, {}, tanım.değerAdı.toString()});
    }
    if (!çözücü.parse(QStringList(QString()) + bitişik(değişkenler))) {
        const QStringList yabancı = çözücü.unknownOptionNames();
        throw YanlışKullanım(yabancı.isEmpty()
                                 ? QStringLiteral("Bir seçeneğin değeri eksik ya da fazla.")
                                 : QStringLiteral("“%1” diye bir seçenek yok.").arg(yabancı.first()));
    }
    sıralı_ = çözücü.positionalArguments();
    for (const SeçenekTanımı& tanım : seçenekler) {
        const QString ad = tanım.ad.toString();
        if (!çözücü.isSet(ad))
            continue;
        değerler_.insert(ad, çözücü.value(ad));
        if (!tanım.değerAdı.isEmpty() && çözücü.value(ad).isEmpty())
            throw YanlışKullanım(QStringLiteral("--%1 seçeneğinin değeri boş.").arg(ad));
    }
}
