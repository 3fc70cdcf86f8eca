// For the end-to-end test of printing, without the program's windows.
//   printing_driver               lists the printers, the current one first
//   printing_driver PRINTER       prints standard input; "" stands for the current printer
// Ends with 2 where the printer is the fault.
#include "system/Yazıcılar.h"
#include "system/ÇalışmaHatası.h"

#include <QApplication>
#include <QFile>

#include <cstdio>

int main(int argc, char** argv)
{
    const QApplication uygulama(argc, argv);
    const QStringList sözcükler = QCoreApplication::arguments();
    QFile dosya;
    try {
        if (sözcükler.size() < 2) {
            std::printf("%s\n", qUtf8Printable(GeçerliYazıcı()));
            const QList<Yazıcı> yazıcılar = Yazıcılar();
            for (const Yazıcı& yazıcı : yazıcılar)
                std::printf("%s\t%s\n", qUtf8Printable(yazıcı.Ad), qUtf8Printable(yazıcı.BağlantıNoktası));
        } else if (dosya.open(stdin, QIODevice::ReadOnly)) {
            GeçerliYazıcı(sözcükler[1]);
            MetinYazdır(QString::fromUtf8(dosya.readAll()), QStringLiteral("Liberation Serif"), 11,
                        QStringLiteral("Deneme"));
        }
        return 0;
    } catch (const ÇalışmaHatası& hata) {
        std::fprintf(stderr, "%d %s\n", hata.Numara(), hata.what());
        return hata.Numara() == 482 ? 2 : 1;
    }
}
