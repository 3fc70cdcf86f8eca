// The drop-down list, with or without a field to type in.
#pragma once

#include "controls/TuşOlaylı.h"

#include <QComboBox>
#include <QString>
#include <QStringList>

#include <functional>

/// Indices count from 0; -1 is no selection. What is typed is never completed and never becomes an entry; the
/// list opens at the first entry that begins with it.
class AçılırListe : public TuşOlaylı<QComboBox>
{
public:
    enum class Tür
    {
        YalnızSeçim,
        Yazılabilir
    };
    explicit AçılırListe(Tür tür, QWidget* üst = nullptr);

    /// Another entry was selected, by hand or by code.
    std::function<void()> Click;

    int ListCount() const { return count(); }
    int ListIndex() const { return currentIndex(); }
    void ListIndex(int sıra) { setCurrentIndex(sıra < ListCount() ? sıra : -1); }

    /// What stands in the field; "" when nothing is selected.
    QString Text() const { return currentText(); }
    /// Puts a text into a field to type in; else selects the first entry that equals it without regard to
    /// case, or none.
    void Text(const QString& metin);

    /// A number that goes with an entry; 0 where none was given.
    int ItemData(int sıra) const { return itemData(sıra).toInt(); }
    void ItemData(int sıra, int sayı) { setItemData(sıra, sayı); }

    void AddItems(const QStringList& metinler) { addItems(metinler); }
    void Clear() { clear(); }

    void showPopup() override;

protected:
    void wheelEvent(QWheelEvent* olay) override;

private:
    template<class Uyar> int ilkUyan(Uyar uyar) const;
};
