#include "controls/Duyuru.h"

#include <QAccessibleObject>
#include <QApplication>
#include <QPointer>

namespace {

/// What was announced last, as screen readers see it: a notice without a place in any window.
class DuyuruErişimi : public QAccessibleObject
{
public:
    explicit DuyuruErişimi(QObject& duyuru) : QAccessibleObject(&duyuru) {}

    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(qApp); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override { return {}; }
    QString text(QAccessible::Text tür) const override
    {
        return tür == QAccessible::Name ? object()->objectName() : QString();
    }
};

} // namespace

void Duyur(const QString& metin)
{
    static QPointer<QObject> duyuru;
    if (!duyuru) {
        duyuru = new QObject(qApp);
        QAccessible::registerAccessibleInterface(new DuyuruErişimi(*duyuru));
    }
    duyuru->setObjectName(metin);
    QAccessibleEvent göründü(duyuru, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&göründü);
}
