#include "controls/MetinKutusu.h"

MetinKutusu::MetinKutusu(QWidget* üst) : TuşOlaylı<QLineEdit>(üst)
{
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (Change)
            Change();
    });
}
