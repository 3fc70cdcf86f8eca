#include "tools/Uçbirim.h"

#include "store/VeritabanıHatası.h"
#include "tools/AraçHatası.h"

#include <algorithm>
#include <cstdio>
#include <unistd.h>

namespace {

constexpr qint64 ÇubukBoyu = 30;        // columns
constexpr qint64 GöstermeAralığı = 200; // ms
constexpr auto SatırıSil = "\r\x1b[K";

void yaz(std::FILE* akış, const QByteArray& baytlar)
{
    std::fwrite(baytlar.constData(), 1, static_cast<std::size_t>(baytlar.size()), akış);
    std::fflush(akış);
}

} // namespace

Çıktı::Çıktı() : uçbirim_(isatty(STDOUT_FILENO) == 1)
{
    if (!dosya_.open(STDOUT_FILENO, QIODevice::WriteOnly))
        hataVer();
}

void Çıktı::hataVer() const
{
    if (dosya_.error() == QFileDevice::ResourceError) // Qt's name for a full disk
        throw VeritabanıHatası(HataNo::DiskDolu, QStringLiteral("standart çıktı"));
    throw AraçHatası(QStringLiteral("Standart çıktıya yazılamıyor."));
}

void Çıktı::Yaz(const QByteArray& baytlar)
{
    if (dosya_.write(baytlar) != baytlar.size())
        hataVer();
}

void Çıktı::Bitir()
{
    if (!dosya_.flush())
        hataVer();
}

QString Görünür(QString metin)
{
    for (QChar& harf : metin) {
        if (harf.category() == QChar::Other_Control && harf != u'\n' && harf != u'\t')
            harf = QChar::ReplacementCharacter;
    }
    return metin;
}

void Bildir(const QString& cümle)
{
    yaz(stdout, Görünür(cümle).toUtf8() + '\n');
}

void HataBildir(const QString& cümle)
{
    yaz(stderr, "belgenar-kitaplik: " + Görünür(cümle).toUtf8() + '\n');
}

İlerleme::İlerleme(const QString& iş) : iş_(iş), uçbirim_(isatty(STDERR_FILENO) == 1)
{
    saat_.start();
}

İlerleme::~İlerleme()
{
    if (yazıldı_)
        yaz(stderr, SatırıSil);
}

void İlerleme::Göster(qint64 yapılan, qint64 toplam)
{
    if (!uçbirim_ || saat_.elapsed() < GöstermeAralığı)
        return;
    saat_.restart();
    yazıldı_ = true;
    QString satır = iş_ + u'…';
    if (toplam > 0) {
        const qint64 dolu = std::clamp<qint64>(yapılan * ÇubukBoyu / toplam, 0, ÇubukBoyu);
        satır += QStringLiteral(" [") + QString(dolu, u'#') + QString(ÇubukBoyu - dolu, u'.') +
                 QStringLiteral("] %%1").arg(yapılan * 100 / toplam);
    } else if (yapılan > 0) {
        satır += QStringLiteral(" %1").arg(yapılan);
    }
    yaz(stderr, SatırıSil + satır.toUtf8());
}
