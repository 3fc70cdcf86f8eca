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
    ListIndex(ilkUyan([&aranan](const QString& öğe) { return Katla(öğe) == aranan; }));
}

template<class Uyar> int AçılırListe::ilkUyan(Uyar uyar) const
{
    int sıra = 0;
    while (sıra < ListCount() && !uyar(itemText(sıra)))
        ++sıra;
    return sıra < ListCount() ? sıra : -1;
}

void AçılırListe::showPopup()
{
    TuşOlaylı<QComboBox>::showPopup();
    const QString baş = Text().normalized(QString::NormalizationForm_C);
    if (!isEditable() || baş.isEmpty())
        return;
    const int sıra = ilkUyan([&baş](const QString& öğe) { return İleBaşlar(öğe, baş); });
    if (sıra < 0)
        return;
    const QModelIndex yer = model()->index(sıra, modelColumn(), rootModelIndex());
    view()->setCurrentIndex(yer); // of the open list only; the field keeps what was typed
    view()->scrollTo(yer, QAbstractItemView::PositionAtTop);
}

// A turn of the wheel over the closed list, meant for the window, would change what was chosen.
void AçılırListe::wheelEvent(QWheelEvent* olay)
{
    olay->ignore();
}
