#include "controls/AçılırListe.h"

#include "text/TürkçeHarfler.h"

#include <QListView>
#include <QWheelEvent>

namespace {

constexpr int EnAzHarf = 12; // letters that the closed list shows at least
constexpr int AçıkSatır = 12;

} // namespace

AçılırListe::AçılırListe(Tür tür, QWidget* üst) : TuşOlaylı<QComboBox>(üst)
{
    // As wide as its layout makes it: measuring 10,000 entries would hold the window up.
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(EnAzHarf);
    setMaxVisibleItems(AçıkSatır);
    setFocusPolicy(Qt::StrongFocus);                    // not by the wheel
    setStyleSheet(QStringLiteral("combobox-popup: 0")); // else some styles open it over the whole screen
    auto* görünüm = new QListView(this);
    görünüm->setUniformItemSizes(true);
    görünüm->setTextElideMode(Qt::ElideRight);
    setView(görünüm);
    if (tür == Tür::Yazılabilir) {
        setEditable(true);
        setCompleter(nullptr);
        setInsertPolicy(NoInsert);
    }
    connect(this, &QComboBox::currentIndexChanged, this, [this](int sıra) {
        if (sıra >= 0 && Click)
            Click();
    });
}

void AçılırListe::Text(const QString& metin)
{
    if (isEditable()) {
        setCurrentIndex(-1);
        setEditText(metin);
        return;
    }
    const QString aranan = Katla(metin.normalized(QString::NormalizationForm_C));
    int sıra = 0;
    while (sıra < ListCount() && Katla(itemText(sıra)) != aranan)
        ++sıra;
    ListIndex(sıra);
}

// A turn of the wheel over the closed list, meant for the window, would change what was chosen.
void AçılırListe::wheelEvent(QWheelEvent* olay)
{
    olay->ignore();
}
