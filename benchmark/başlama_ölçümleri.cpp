#include "Ölçümler.h"

#include "app/OrtakDeğişkenlerModülü.h"
#include "program/GirişModülü.h"

#include <QApplication>
#include <QFile>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QStringListModel>
#include <QThread>
#include <QTimer>

#include <cstdio>
#include <unistd.h>

namespace {

constexpr double SüreAmacı = 1.3, BellekAmacı = 1.5;
constexpr int KüçükMakaleSayısı = 100, BüyükMakaleSayısı = 100'000;
constexpr int Tekrar = 9;
constexpr double Megabayt = 1'048'576;
const QString ProgramYolu =
    QStringLiteral("belgenar-ölçülen"); // in the library's folder, which it takes for its own

/// Bytes of memory that hold something of this process.
qint64 bellek()
{
    QFile dosya(QStringLiteral("/proc/self/statm"));
    Sağla(dosya.open(QIODevice::ReadOnly), "the size of the process");
    return dosya.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE);
}

/// What the texts of all lists need.
qint64 listelerinBaytları()
{
    constexpr qint64 biri = sizeof(QString) + 16; // a text's own header
    qint64 toplam = 0;
    for (const QWidget* pencere : QApplication::topLevelWidgets())
        for (const auto* liste : pencere->findChildren<QListView*>())
            for (int i = 0; liste->model() && i < liste->model()->rowCount(); ++i)
                toplam += biri + 2 * liste->model()->index(i, 0).data().toString().size();
    return toplam;
}

[[noreturn]] void hazır()
{
    std::printf("%lld %lld\n", qlonglong(bellek()), qlonglong(listelerinBaytları()));
    std::fflush(stdout);
    _exit(0);
}

/// As many controls of the same kinds as in the main window.
class BoşPencere : public QMainWindow
{
public:
    BoşPencere()
    {
        auto* yüzey = new QWidget(this);
        setCentralWidget(yüzey);
        int sıra = 0;
        const auto koy = [&](QWidget* kontrol) {
            kontrol->setGeometry(10 + sıra % 3 * 250, 10 + sıra / 3 * 60, 240, 50);
            ++sıra;
        };
        koy(new QFrame(yüzey));
        for (int i = 0; i < 8; ++i)
            koy(new QLabel(QStringLiteral("Etiket"), yüzey));
        for (int i = 0; i < 2; ++i) {
            auto* liste = new QListView(yüzey);
            liste->setModel(new QStringListModel(liste));
            koy(liste);
        }
        for (int i = 0; i < 3; ++i)
            koy(new QLineEdit(yüzey));
        for (int i = 0; i < 2; ++i)
            koy(new QPlainTextEdit(yüzey));
        for (int i = 0; i < 4; ++i)
            koy(new QPushButton(QStringLiteral("Düğme"), yüzey));
        for (int i = 0; i < 3; ++i)
            for (int j = 0; j < 6; ++j)
                menü(i)->addAction(QStringLiteral("Öğe"));
        resize(800, 600);
    }

private:
    QMenu* menü(int sıra)
    {
        while (menuBar()->actions().size() <= sıra)
            menuBar()->addMenu(QStringLiteral("Menü"));
        return menuBar()->actions()[sıra]->menu();
    }
};

/// Starts a process and waits until its window stands. @return the two numbers that it tells then
QList<qint64> başlat(const QString& program, Başlatılan ne)
{
    QProcess süreç;
    süreç.setStandardErrorFile(QProcess::nullDevice());
    süreç.start(program, {BaşlatmaSözü(ne)});
    Sağla(süreç.waitForFinished(-1) && süreç.exitCode() == 0, "a window");
    QList<qint64> sayılar;
    for (const QByteArray& sayı : süreç.readAllStandardOutput().trimmed().split(' '))
        sayılar.append(sayı.toLongLong());
    Sağla(sayılar.size() == 2 && sayılar[0] > 0, "the window's memory");
    return sayılar;
}

} // namespace

QString BaşlatmaSözü(Başlatılan ne)
{
    return ne == Başlatılan::Program ? QStringLiteral("--program") : QStringLiteral("--boş-pencere");
}

int PencereyleBaşla(QApplication& uygulama, Başlatılan ne)
{
    QTimer zamanlayıcı;
    QObject::connect(&zamanlayıcı, &QTimer::timeout, [] {
        if (QThread::currentThread()->loopLevel() > 0) // a start lets some events through before
            hazır();
    });
    zamanlayıcı.start(0);
    if (ne == Başlatılan::Program)
        return SubMain(uygulama);
    BoşPencere pencere;
    pencere.show();
    QCoreApplication::processEvents();
    return QApplication::exec();
}

void BaşlamayıÖlç(const KapalıOrtam& ortam)
{
    const QString program = ProgramKlasörü + ProgramYolu;
    Sağla(QFile::copy(QCoreApplication::applicationFilePath(), program), "a copy of this program");
    QList<qint64> dolu, boş;
    Ölçüm ölçüm{QStringLiteral("Pencereye dek"), [&] { dolu = başlat(program, Başlatılan::Program); },
                QStringLiteral("aynı kontrollerle boş pencere"),
                [&] { boş = başlat(program, Başlatılan::BoşPencere); }, Tekrar};
    if (ortam.Kitaplık.MakaleSayısı() <= KüçükMakaleSayısı)
        ölçüm.Hedef = Amaç{Amaç::Tür::Oran, SüreAmacı};
    ortam.Çizelge.Satır(ölçüm);
    std::optional<Amaç> bellekte;
    if (ortam.Kitaplık.MakaleSayısı() >= BüyükMakaleSayısı)
        bellekte = Amaç{Amaç::Tür::Oran, BellekAmacı};
    ortam.Çizelge.Satır(QStringLiteral("Bellek (MB), listeler dışında"),
                        {double(dolu[0] - dolu[1]) / Megabayt, double(boş[0]) / Megabayt},
                        QStringLiteral("aynı kontrollerle boş pencere"), bellekte);
    QFile::remove(program);
}
