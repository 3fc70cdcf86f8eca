#include "program_fixture.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <QTimer>

DenemeProgramı::DenemeProgramı(const QList<Makale>& makaleler) : kitaplık_(makaleler)
{
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, ayarlar_.path());
    AnaPencereBaşlığı = QStringLiteral("Tepsan Yazılım - Belgenar 1.00");
    AyarUygulamaAdı = QStringLiteral("Tepsan Yazilim\\Belgenar");
    ProgramKlasörü = kitaplık_.Klasör();
    AçıkOturum.Aç(ProgramKlasörü);
}

DenemeProgramı::~DenemeProgramı()
{
    AçıkOturum.Bırak();
}

KutuYanıtlayıcı::KutuYanıtlayıcı(Yanıt yanıt, std::function<void(QMessageBox&)> önce)
    : saat_(std::make_unique<QTimer>())
{
    QObject::connect(saat_.get(), &QTimer::timeout, saat_.get(), [this, yanıt, önce = std::move(önce)] {
        auto* kutu = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!kutu || !kutu->isVisible())
            return;
        ++Sayı;
        Metin = kutu->text();
        if (önce)
            önce(*kutu);
        if (yanıt == Yanıt::Kapat)
            kutu->close();
        else
            kutu->button(QMessageBox::StandardButton(yanıt))->click();
    });
    saat_->start(20);
}

KutuYanıtlayıcı::~KutuYanıtlayıcı() = default;

bool PencereAç(const std::function<void()>& aç, const std::function<void(QDialog&)>& kullanıcı)
{
    bool açıldı = false;
    QTimer::singleShot(0, qApp, [&] {
        auto* kutu = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!kutu)
            return;
        kutu->activateWindow(); // as a window manager does
        if (!QTest::qWaitFor([kutu] { return kutu->isActiveWindow(); }, BeklemeSınırı))
            return;
        kullanıcı(*kutu);
        açıldı = true;
        if (kutu->isVisible())
            kutu->done(0);
    });
    aç();
    return açıldı;
}

void Yaz(QWidget& kontrol, const QString& metin)
{
    for (const QChar harf : metin) {
        QKeyEvent basış(QEvent::KeyPress, harf.unicode() < 128 ? harf.toUpper().unicode() : 0, Qt::NoModifier,
                        harf);
        QApplication::sendEvent(&kontrol, &basış);
        QKeyEvent bırakış(QEvent::KeyRelease, basış.key(), Qt::NoModifier, harf);
        QApplication::sendEvent(&kontrol, &bırakış);
    }
}
