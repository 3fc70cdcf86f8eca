#include "app/İletiKutusu.h"

#include "app/Metinler.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

#include <cmath>

namespace {

QMessageBox::Icon kutuSimgesi(İletiSimgesi simge)
{
    switch (simge) {
    case İletiSimgesi::Bilgi:
        return QMessageBox::Information;
    case İletiSimgesi::Soru:
        return QMessageBox::Question;
    case İletiSimgesi::Uyarı:
        return QMessageBox::Warning;
    case İletiSimgesi::Kritik:
        break;
    }
    return QMessageBox::Critical;
}

QRect üstDikdörtgen(const QWidget* pencere)
{
    return pencere ? pencere->frameGeometry() : QGuiApplication::primaryScreen()->geometry();
}

} // namespace

QPoint OrtalıYer(const QRect& üst, const QSize& kutu)
{
    const auto orta = [](int başlangıç, int uzunluk, int boy) {
        return static_cast<int>(std::nearbyint(başlangıç + uzunluk / 2.0 - boy / 2.0));
    };
    return {orta(üst.x(), üst.width(), kutu.width()), orta(üst.y(), üst.height(), kutu.height())};
}

İletiYanıtı İletiGöster(const QString& metin, İletiSimgesi simge, İletiDüğmeleri düğmeler, İletiYeri yer)
{
    QWidget* etkin = yer == İletiYeri::EtkinPencere ? QApplication::activeWindow() : nullptr;
    QMessageBox kutu(etkin);
    kutu.setObjectName(QStringLiteral("İletiKutusu"));
    kutu.setWindowTitle(Metin(5));
    kutu.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                        Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint);
    kutu.setTextFormat(Qt::PlainText); // file names and articles may hold anything
    kutu.setText(metin);
    kutu.setIcon(kutuSimgesi(simge));
    if (düğmeler == İletiDüğmeleri::Tamam) {
        kutu.setStandardButtons(QMessageBox::Ok);
    } else {
        kutu.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        kutu.setEscapeButton(QMessageBox::No);
        kutu.setDefaultButton(düğmeler == İletiDüğmeleri::EvetHayır ? QMessageBox::Yes : QMessageBox::No);
    }
    kutu.setWindowModality(Qt::ApplicationModal);

    // The frame's size is known only once the box is on the screen: place it before by its own size, so
    // that it does not jump, and again then.
    const QRect üst = üstDikdörtgen(etkin);
    kutu.ensurePolished();
    kutu.adjustSize();
    kutu.move(OrtalıYer(üst, kutu.sizeHint()));
    QTimer::singleShot(0, &kutu, [&kutu, üst] { kutu.move(OrtalıYer(üst, kutu.frameGeometry().size())); });

    switch (kutu.exec()) {
    case QMessageBox::Yes:
        return İletiYanıtı::Evet;
    case QMessageBox::No:
        return İletiYanıtı::Hayır;
    default:
        return düğmeler == İletiDüğmeleri::Tamam ? İletiYanıtı::Tamam : İletiYanıtı::Hayır;
    }
}
