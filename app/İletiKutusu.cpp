#include "app/İletiKutusu.h"

#include "app/Metinler.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

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

} // namespace

QString Paragraflar(const QStringList& paragraflar)
{
    return paragraflar.join(QLatin1String("\r\n\r\n"));
}

İletiYanıtı İletiGöster(const QString& metin, İletiSimgesi simge, İletiDüğmeleri düğmeler, İletiYeri yer)
{
    QWidget* etkin = yer == İletiYeri::EtkinPencere ? QApplication::activeWindow() : nullptr;
    QMessageBox kutu(etkin);
    kutu.setObjectName(QStringLiteral("İletiKutusu"));
    kutu.setWindowTitle(Metin(İleti::ProgramAdı));
    kutu.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                        Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint);
    kutu.setTextFormat(Qt::PlainText); // file names and articles may hold anything
    kutu.setText(
        QString(metin).replace(QLatin1String("\r\n"), QLatin1String("\n"))); // the toolkit's line end
    kutu.setIcon(kutuSimgesi(simge));
    if (düğmeler == İletiDüğmeleri::Tamam) {
        kutu.setStandardButtons(QMessageBox::Ok);
    } else {
        kutu.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        kutu.setEscapeButton(QMessageBox::No);
        kutu.setDefaultButton(düğmeler == İletiDüğmeleri::EvetHayır ? QMessageBox::Yes : QMessageBox::No);
    }
    kutu.setWindowModality(Qt::ApplicationModal);

    switch (kutu.exec()) {
    case QMessageBox::Yes:
        return İletiYanıtı::Evet;
    case QMessageBox::No:
        return İletiYanıtı::Hayır;
    default:
        return düğmeler == İletiDüğmeleri::Tamam ? İletiYanıtı::Tamam : İletiYanıtı::Hayır;
    }
}
