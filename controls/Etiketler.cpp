#include "controls/Etiketler.h"

#include "app/Metinler.h"

void EtiketiKur(QLabel& etiket, std::size_t sıra, const QString& yazı)
{
    etiket.setObjectName(QStringLiteral("Etiket%1").arg(sıra));
    etiket.setText(yazı);
}

void EtiketiKur(QLabel& etiket, std::size_t sıra, int metin, QWidget& kontrol)
{
    EtiketiKur(etiket, sıra, Metin(metin));
    etiket.setBuddy(&kontrol);
    kontrol.setAccessibleName(SadeMetin(metin));
}
