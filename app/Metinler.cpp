#include "app/Metinler.h"

#include <QFile>
#include <QHash>

static void kaynaklarıBağla()
{
    Q_INIT_RESOURCE(metinler); // must stand outside any namespace
}

namespace {

QHash<int, QString> tabloyuOku()
{
    kaynaklarıBağla();
    QFile dosya(QStringLiteral(":/belgenar/metinler.tsv"));
    if (!dosya.open(QIODevice::ReadOnly))
        qFatal("The table of texts is missing");
    QHash<int, QString> tablo;
    const QStringList satırlar = QString::fromUtf8(dosya.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString& satır : satırlar) {
        const qsizetype ayraç = satır.indexOf(u'\t');
        tablo.insert(satır.left(ayraç).toInt(),
                     satır.mid(ayraç + 1).replace(QLatin1String("\\n"), QLatin1String("\n")));
    }
    return tablo;
}

} // namespace

QString Metin(İleti ileti)
{
    static const QHash<int, QString> tablo = tabloyuOku();
    const auto yer = tablo.constFind(static_cast<int>(ileti));
    if (yer == tablo.constEnd())
        qFatal("The table of texts has no number %d", static_cast<int>(ileti));
    return *yer;
}

QString SadeMetin(İleti ileti)
{
    QString metin = Metin(ileti);
    metin.remove(u'&');
    while (metin.endsWith(u'.'))
        metin.chop(1);
    return metin;
}

QString ToplamYazısı(qint64 sayı)
{
    return Metin(İleti::Toplam) + u' ' + QString::number(sayı);
}
