#include "controls/MetinKutusu.h"

QString KırpıkSatır(QString satır)
{
    for (QChar& harf : satır) {
        const QChar::Category tür = harf.category();
        if (tür == QChar::Other_Control || tür == QChar::Separator_Line || tür == QChar::Separator_Paragraph)
            harf = u' ';
    }
    if (!satır.isEmpty() && satır.back().isHighSurrogate()) // the field's limit fell between the two halves
        satır.chop(1);
    return satır.trimmed();
}

MetinKutusu::MetinKutusu(QWidget* üst) : TuşOlaylı<QLineEdit>(üst)
{
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (Change)
            Change();
    });
}
