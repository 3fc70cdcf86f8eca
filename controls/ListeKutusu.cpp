#include "controls/ListeKutusu.h"

#include "text/TürkçeHarfler.h"

#include <QAbstractListModel>
#include <QApplication>
#include <QDateTime>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QToolTip>

#include <utility>

namespace {

constexpr int SatırBoşluğu = 3; // pixels between two lines of text

} // namespace

class ListeKutusu::Model : public QAbstractListModel
{
public:
    explicit Model(const ListeKutusu& liste) : liste_(liste) {}

    int rowCount(const QModelIndex& üst = {}) const override
    {
        return üst.isValid() ? 0 : static_cast<int>(metinler_.size());
    }
    QVariant data(const QModelIndex& yer, int rol) const override
    {
        if (!yer.isValid()) // the view asks so for what to copy when nothing is chosen
            return {};
        if (rol == Qt::DisplayRole)
            return metinler_[yer.row()];
        if (rol == Qt::SizeHintRole) // no width of its own: entries are as wide as the box, and cut there
            return QSize(1, liste_.fontMetrics().height() + SatırBoşluğu);
        return {};
    }
    void ekle(const QStringList& yeni)
    {
        if (yeni.isEmpty())
            return;
        const int ilk = static_cast<int>(metinler_.size());
        beginInsertRows({}, ilk, ilk + static_cast<int>(yeni.size()) - 1);
        metinler_ += yeni;
        endInsertRows();
    }
    void arayaKoy(int sıra, const QString& metin)
    {
        beginInsertRows({}, sıra, sıra);
        metinler_.insert(sıra, metin);
        endInsertRows();
    }
    void değiştir(int sıra, const QString& metin)
    {
        metinler_[sıra] = metin;
        emit dataChanged(index(sıra), index(sıra));
    }
    void çıkar(int sıra)
    {
        beginRemoveRows({}, sıra, sıra);
        metinler_.removeAt(sıra);
        endRemoveRows();
    }
    void boşalt()
    {
        beginResetModel();
        metinler_.clear();
        endResetModel();
    }
    const QStringList& metinler() const { return metinler_; }

private:
    const ListeKutusu& liste_;
    QStringList metinler_;
};

ListeKutusu::ListeKutusu(QWidget* üst) : TuşOlaylı<QListView>(üst), model_(std::make_unique<Model>(*this))
{
    setModel(model_.get());
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
}

ListeKutusu::~ListeKutusu()
{
    sessiz_ = true;
    setModel(nullptr);
}

int ListeKutusu::ListCount() const
{
    return static_cast<int>(model_->metinler().size());
}

int ListeKutusu::ListIndex() const
{
    const QModelIndex yer = currentIndex();
    return yer.isValid() ? yer.row() : -1;
}

void ListeKutusu::ListIndex(int sıra)
{
    setCurrentIndex(sıra >= 0 && sıra < ListCount() ? model_->index(sıra) : QModelIndex());
    if (ListIndex() < 0)
        clearSelection();
}

QString ListeKutusu::Text() const
{
    return Item(ListIndex());
}

QString ListeKutusu::Item(int sıra) const
{
    return model_->metinler().value(sıra);
}

void ListeKutusu::Item(int sıra, const QString& metin)
{
    if (sıra >= 0 && sıra < ListCount())
        model_->değiştir(sıra, metin);
}

void ListeKutusu::AddItems(const QStringList& metinler)
{
    model_->ekle(metinler);
}

void ListeKutusu::InsertItem(int sıra, const QString& metin)
{
    model_->arayaKoy(sıra, metin);
}

void ListeKutusu::RemoveItem(int sıra)
{
    if (sıra < 0 || sıra >= ListCount())
        return;
    if (sıra == ListIndex()) // else the view would go on to a neighbour
        ListIndex(-1);
    const QScopedValueRollback sessiz(sessiz_, true);
    model_->çıkar(sıra);
}

void ListeKutusu::Clear()
{
    sessiz_ = true;
    model_->boşalt();
    sessiz_ = false;
}

void ListeKutusu::SeçimsizBaşaDön()
{
    const QScopedValueRollback sessiz(sessiz_, true);
    ListIndex(-1);
    scrollToTop();
}

// The entries are in normal form C; a pasted text need not be.
template<class Uyar> int ListeKutusu::ilkUyan(QStringView metin, Uyar uyar) const
{
    const QStringList& metinler = model_->metinler();
    const QString aranan = metin.toString().normalized(QString::NormalizationForm_C);
    const auto yer =
        std::find_if(metinler.begin(), metinler.end(), [&](const QString& öğe) { return uyar(öğe, aranan); });
    return yer == metinler.end() ? -1 : static_cast<int>(yer - metinler.begin());
}

void ListeKutusu::Text(const QString& metin)
{
    ListIndex(ilkUyan(metin, [](const QString& öğe, const QString& aranan) {
        return öğe.size() == aranan.size() && İleBaşlar(öğe, aranan);
    }));
}

int ListeKutusu::ÖnekleBul(QStringView baş) const
{
    return ilkUyan(baş, [](const QString& öğe, const QString& aranan) { return İleBaşlar(öğe, aranan); });
}

// The view's own search doesn't know Turkish letters.
void ListeKutusu::keyboardSearch(const QString& harf)
{
    const qint64 an = QDateTime::currentMSecsSinceEpoch();
    if (an - sonArama_ > QApplication::keyboardInputInterval())
        aranan_.clear();
    sonArama_ = an;
    aranan_ += harf;
    if (const int sıra = ÖnekleBul(aranan_); sıra >= 0)
        ListIndex(sıra);
}

void ListeKutusu::currentChanged(const QModelIndex& şimdiki, const QModelIndex& önceki)
{
    if (hasFocus())
        QListView::currentChanged(şimdiki, önceki);
    else // without telling screen readers that the entry has the focus
        QAbstractItemView::currentChanged(şimdiki, önceki); // NOLINT(bugprone-parent-virtual-call)
    if (!sessiz_ && şimdiki.isValid() && Click)
        Click();
}

void ListeKutusu::mousePressEvent(QMouseEvent* olay)
{
    const int önceki = ListIndex();
    const bool yine = olay->button() == Qt::LeftButton && indexAt(olay->position().toPoint()).row() == önceki;
    {
        const QScopedValueRollback sessiz(sessiz_, true);
        QListView::mousePressEvent(olay);
    }
    // Only now, since the handler may let messages through: the view is done with this press.
    if (ListIndex() >= 0 && (ListIndex() != önceki || yine) && Click)
        Click();
}

void ListeKutusu::keyPressEvent(QKeyEvent* olay)
{
    if (!olay->isAutoRepeat())
        basılan_ = olay->key();
    TuşOlaylı<QListView>::keyPressEvent(olay);
}

void ListeKutusu::keyReleaseEvent(QKeyEvent* olay)
{
    QListView::keyReleaseEvent(olay);
    if (!olay->isAutoRepeat() && std::exchange(basılan_, 0) == olay->key() && KeyUp)
        KeyUp(olay->key());
}

// The view would make the first entry current; coming here with the Tab key must not choose anything.
void ListeKutusu::focusInEvent(QFocusEvent* olay)
{
    QAbstractScrollArea::focusInEvent(olay); // NOLINT(bugprone-parent-virtual-call)
    viewport()->update();
}

// Nothing takes the selection away from the current entry.
QItemSelectionModel::SelectionFlags ListeKutusu::selectionCommand(const QModelIndex& yer,
                                                                  const QEvent* olay) const
{
    const auto komut = QListView::selectionCommand(yer, olay);
    return komut & (QItemSelectionModel::Deselect | QItemSelectionModel::Toggle)
               ? QItemSelectionModel::ClearAndSelect
               : komut;
}

bool ListeKutusu::viewportEvent(QEvent* olay)
{
    if (olay->type() == QEvent::ToolTip) {
        const auto* yardım = static_cast<QHelpEvent*>(olay);
        const QModelIndex yer = indexAt(yardım->pos());
        const QString metin = yer.isValid() ? Item(yer.row()) : QString();
        const bool kesik = fontMetrics().horizontalAdvance(metin) > viewport()->width() - 2 * SatırBoşluğu;
        QToolTip::showText(yardım->globalPos(),
                           kesik ? metin.toHtmlEscaped().prepend(QLatin1String("<p>")) : QString(),
                           viewport());
        return true;
    }
    return QListView::viewportEvent(olay);
}
