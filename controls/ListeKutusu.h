// The list box.
#pragma once

#include "controls/TuşOlaylı.h"

#include <QListView>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <functional>
#include <memory>

/// A list of texts of which at most one is selected. Indices count from 0; -1 is no selection. Quick
/// with 100,000 entries; an entry too wide for the box is cut and shown whole as a tip.
class ListeKutusu : public TuşOlaylı<QListView>
{
public:
    explicit ListeKutusu(QWidget* üst = nullptr);
    ~ListeKutusu() override;

    /// The selected entry changed to another one, by hand or by code, or was pressed again.
    std::function<void()> Click;
    /// A key that was pressed in the list was let go; not fired by the key's repetition, nor where the press
    /// has brought the list before the user.
    std::function<void(int tuş)> KeyUp;

    int ListCount() const;
    int ListIndex() const;
    /// Selects an entry; an index outside the list selects none. Fires Click when another entry is
    /// selected than before.
    void ListIndex(int sıra);

    /// The selected entry, "" when there is none.
    QString Text() const;
    /// Selects the first entry that equals the text without regard to case, or none.
    void Text(const QString& metin);
    QString Item(int sıra) const;
    /// Puts another text in an entry's place; fires nothing.
    void Item(int sıra, const QString& metin);

    void AddItems(const QStringList& metinler);
    /// Puts an entry before another one, or at the end; fires nothing.
    /// @param sıra 0 to ListCount
    void InsertItem(int sıra, const QString& metin);
    /// Takes an entry away; where it was the selected one, none is selected then. Fires nothing.
    void RemoveItem(int sıra);
    /// Empties the list; fires nothing.
    void Clear();
    /// As if the list had been emptied and filled again with what it holds; fires nothing.
    void SeçimsizBaşaDön();

    /// Index of the first entry that begins with the text, without regard to case; -1 when none does.
    int ÖnekleBul(QStringView baş) const;

    void keyboardSearch(const QString& harf) override;

protected:
    void currentChanged(const QModelIndex& şimdiki, const QModelIndex& önceki) override;
    void mousePressEvent(QMouseEvent* olay) override;
    void keyPressEvent(QKeyEvent* olay) override;
    void keyReleaseEvent(QKeyEvent* olay) override;
    void focusInEvent(QFocusEvent* olay) override;
    bool viewportEvent(QEvent* olay) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& yer,
                                                         const QEvent* olay) const override;

private:
    class Model;

    template<class Uyar> int ilkUyan(QStringView metin, Uyar uyar) const;

    std::unique_ptr<Model> model_;
    QString aranan_;      // what was typed to find an entry
    qint64 sonArama_ = 0; // ms of the steady clock
    int basılan_ = 0;     // the key that was pressed here last
    bool sessiz_ = false; // the selection changes without Click
};
