#include "controls/Etiketler.h"

#include "app/Metinler.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>

namespace {

constexpr int EtiketPayı = 2; // pixels; the last letter may be wider than its advance

} // namespace

void EtiketiKur(QLabel& etiket, std::size_t sıra, const QString& yazı)
{
    etiket.setObjectName(QStringLiteral("Etiket%1").arg(sıra));
    etiket.setText(yazı);
    // The underlined letter is drawn apart from its neighbours: a width with kerning would be too small.
    if (yazı.contains(u'&')) {
        QFont yazıTipi;
        yazıTipi.setKerning(false);
        etiket.setFont(yazıTipi);
    }
}

void EtiketiKur(QLabel& etiket, std::size_t sıra, İleti metin, QWidget& kontrol)
{
    EtiketiKur(etiket, sıra, Metin(metin));
    etiket.setBuddy(&kontrol);
    etiket.setContentsMargins(0, 0, EtiketPayı, 0);
    kontrol.setAccessibleName(SadeMetin(metin));
    if (auto* liste = qobject_cast<QComboBox*>(&kontrol)) { // its parts take the focus themselves
        liste->view()->setAccessibleName(kontrol.accessibleName());
        if (liste->lineEdit())
            liste->lineEdit()->setAccessibleName(kontrol.accessibleName());
    }
}
