#include "controls/MetinKutusu.h"

QString KırpıkSatır(QString satır)
{
    for (QChar& harf : satır) {
        if (!harf.isPrint() && !harf.isSurrogate())
            harf = u' ';
    }
    return satır.trimmed();
}

MetinKutusu::MetinKutusu(QWidget* üst) : TuşOlaylı<QLineEdit>(üst)
{
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (Change)
            Change();
    });
}
