#include "controls/ZenginMetinKutusu.h"

ZenginMetinKutusu::ZenginMetinKutusu(QWidget* üst) : QPlainTextEdit(üst)
{
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
}

QString ZenginMetinKutusu::Text() const
{
    return toPlainText();
}

void ZenginMetinKutusu::Text(const QString& metin)
{
    setPlainText(metin);
}

void ZenginMetinKutusu::FontName(const QString& ad)
{
    QFont yazıTipi = font();
    yazıTipi.setFamilies({ad});
    setFont(yazıTipi);
}

void ZenginMetinKutusu::FontSize(int nokta)
{
    if (nokta <= 0)
        return;
    QFont yazıTipi = font();
    yazıTipi.setPointSize(nokta);
    setFont(yazıTipi);
}

void ZenginMetinKutusu::BackColor(Renk renk)
{
    QPalette palet = palette();
    const QColor zemin = EkranRengi(renk, palet);
    palet.setColor(QPalette::Base, zemin);
    palet.setColor(QPalette::Text, OkunurYazıRengi(zemin));
    setPalette(palet);
}
