// The main window's keys beside those that its captions underline.
#include "forms/AnaForm.h"

#include <QShortcut>

void AnaForm::tuşlarıBağla()
{
    const auto bağla = [this](const QKeySequence& tuş, auto iş) {
        auto* kısayol = new QShortcut(tuş, this);
        connect(kısayol, &QShortcut::activated, this, iş);
    };
    bağla(Qt::Key_F3, [this] { yereGit(Yön::İleri); });
    bağla(Qt::ShiftModifier | Qt::Key_F3, [this] { yereGit(Yön::Geri); });
}
