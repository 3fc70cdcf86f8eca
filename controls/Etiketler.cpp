#include "controls/Etiketler.h"

#include "app/Metinler.h"

void EtiketiKur(QLabel& etiket, std::size_t sıra, int metin, QWidget& kontrol)
{
    etiket.setObjectName(QStringLiteral("Etiket%1").arg(sıra));
    etiket.setText(Metin(metin));
    etiket.setBuddy(&kontrol);
    kontrol.setAccessibleName(SadeMetin(metin));
}
