#include "controls/OdakEtiketi.h"

#include "app/Görünüm.h"

#include <QComboBox>
#include <QEvent>
#include <QLineEdit>

namespace {

QLineEdit& yazıKutusu(QWidget& kontrol)
{
    const auto* liste = qobject_cast<QComboBox*>(&kontrol);
    return liste ? *liste->lineEdit() : static_cast<QLineEdit&>(kontrol);
}

} // namespace

void OdakEtiketi::Bağla(QWidget& kontrol, QLabel& etiket, Giriş giriş)
{
    gözcü_.İzle(
        kontrol,
        [this, &kontrol, &etiket, giriş] {
            etiket_ = &etiket;
            boya(Ton::Mavi);
            if (giriş == Giriş::TümünüSeç) // after the press that brought the focus has placed the caret
                QMetaObject::invokeMethod(
                    &kontrol, [&kontrol] { yazıKutusu(kontrol).selectAll(); }, Qt::QueuedConnection);
        },
        [this] {
            boya(Ton::Olağan);
            etiket_ = nullptr;
        });
    kontrol.window()->installEventFilter(this);
}

bool OdakEtiketi::eventFilter(QObject*, QEvent* olay)
{
    if (olay->type() == QEvent::WindowBlocked)
        boya(Ton::Olağan);
    else if (olay->type() == QEvent::WindowUnblocked)
        boya(Ton::Mavi);
    return false;
}

void OdakEtiketi::boya(Ton ton)
{
    if (!etiket_)
        return;
    QPalette palet;
    if (ton == Ton::Mavi) {
        palet = etiket_->palette();
        const QColor mavi = OkunurTon(EkranRengi(OdakMavisi, palet), palet.color(QPalette::Window));
        palet.setColor(QPalette::Active, QPalette::WindowText, mavi);
        palet.setColor(QPalette::Inactive, QPalette::WindowText, mavi);
    }
    etiket_->setPalette(palet);
}
