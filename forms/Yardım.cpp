#include "forms/Yardım.h"

#include "app/HataPolitikaları.h"
#include "app/Metinler.h"

#include <QApplication>
#include <QHash>
#include <QKeyEvent>
#include <QMessageBox>
#include <QRegularExpression>

namespace {

Yardım* geçerli = nullptr;

/// Sections by the names of windows and of the main window's own controls.
const QHash<QString, QString>& konular()
{
    static const QHash<QString, QString> tablo = {
        {QStringLiteral("AnaForm"), QStringLiteral("göz-atma")},
        {QStringLiteral("YazarBulKutusu"), QStringLiteral("listelerde")},
        {QStringLiteral("BulKutusu"), QStringLiteral("gösterilen-makalede")},
        {QStringLiteral("BulButonu"), QStringLiteral("gösterilen-makalede")},
        {QStringLiteral("TümündeBulButonu"), QStringLiteral("tüm-makalelerde")},
        {QStringLiteral("EkleFormu"), QStringLiteral("makale-ekleme")},
        {QStringLiteral("QFileDialog"), QStringLiteral("metnin-alınması")},
        {QStringLiteral("DeğiştirFormu"), QStringLiteral("makale-değiştirme")},
        {QStringLiteral("SilFormu"), QStringLiteral("makale-silme")},
        {QStringLiteral("ReferansFormu"), QStringLiteral("referans-bilgisi")},
        {QStringLiteral("AyarlarFormu"), QStringLiteral("görünüm-ayarları")},
        {QStringLiteral("YazıcıSeçmeFormu"), QStringLiteral("yazdırma")},
        {QStringLiteral("HakkındaFormu"), QStringLiteral("yardım-menüsü")},
        {QStringLiteral("HataBildirmeFormu"), QStringLiteral("yardım-menüsü")},
    };
    return tablo;
}

} // namespace

Yardım::Yardım(QCoreApplication& uygulama)
{
    geçerli = this;
    uygulama.installEventFilter(this);
}

Yardım::~Yardım()
{
    geçerli = nullptr;
}

QStringList Yardım::Konular()
{
    return konular().values();
}

QString Yardım::Konu(const QWidget& kontrol)
{
    for (const QWidget* parça = &kontrol; parça; parça = parça->parentWidget()) {
        if (const auto yer = konular().constFind(parça->objectName()); yer != konular().constEnd())
            return *yer;
    }
    return {};
}

void Yardım::İçindekileriAç()
{
    if (geçerli)
        geçerli->form().İçindekileriGöster();
}

void Yardım::DiziniAç()
{
    if (geçerli)
        geçerli->form().DiziniGöster();
}

// Only hidden: a box that stands over it, on some caller's stack, must not go with it.
void Yardım::Kapat()
{
    if (geçerli && geçerli->form_)
        geçerli->form_->hide();
}

YardımFormu& Yardım::form()
{
    if (!form_)
        form_ = std::make_unique<YardımFormu>();
    return *form_;
}

bool Yardım::eventFilter(QObject* nesne, QEvent* olay)
{
    if (olay->type() != QEvent::KeyPress || !nesne->isWidgetType())
        return false;
    const auto* tuş = static_cast<QKeyEvent*>(olay);
    if (tuş->key() != Qt::Key_F1 || tuş->modifiers() != Qt::NoModifier)
        return false;
    const auto& kontrol = static_cast<const QWidget&>(*nesne);
    if (form_ && kontrol.window() == form_.get())
        return true;
    while (QWidget* açılan = QApplication::activePopupWidget()) // a menu would keep mouse and keyboard
        açılan->close();
    İlkHatadaBit([&] { konuyuAç(kontrol); });
    return true;
}

void Yardım::konuyuAç(const QWidget& kontrol)
{
    const auto* kutu = qobject_cast<const QMessageBox*>(kontrol.window());
    if (kutu && iletiyiAç(*kutu))
        return;
    if (const int bölüm = form().Yapı().BölümBul(Konu(kontrol)); bölüm >= 0)
        form().BölümüGöster(bölüm);
    else
        form().İçindekileriGöster();
}

bool Yardım::iletiyiAç(const QMessageBox& kutu)
{
    static const QRegularExpression numara(QRegularExpression::escape(Metin(İleti::HataKodu)) +
                                           QStringLiteral(" (\\d+)"));
    const Kılavuz& kılavuz = form().Yapı();
    const auto kod = numara.match(kutu.text());
    const Kılavuz::Terim* terim = kod.hasMatch() ? kılavuz.NumaraBul(kod.captured(1).toInt()) : nullptr;
    if (!terim)
        terim = kılavuz.İletiBul(kutu.text());
    if (terim)
        form().TerimiGöster(*terim);
    return terim;
}
