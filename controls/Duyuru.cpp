#include "controls/Duyuru.h"

#include <QApplication>
#include <QWidget>

void Duyur(const QString& metin)
{
    QWidget* const odaktaki = QApplication::focusWidget();
    if (!odaktaki)
        return;
    odaktaki->setAccessibleDescription({}); // the same one would not be told
    odaktaki->setAccessibleDescription(metin);
}
