// A letter that a control's caption and an entry of the menu bar both have underlined.
#pragma once

#include <QObject>

class QAction;
class QLabel;
class QMenuBar;
class QWidget;

/// The toolkit would turn to the two by turns, from where it stopped long ago. With this the letter leads to
/// the control; pressed once more at once, it opens the entry. Owned by the menu bar.
class OrtakHarf : public QObject
{
public:
    /// @param kontrol goes first; the label is its caption
    OrtakHarf(QMenuBar& çubuk, QAction& öğe, QLabel& etiket, QWidget& kontrol);

protected:
    bool eventFilter(QObject* nesne, QEvent* olay) override;

private:
    QAction& öğe_;
    QWidget& kontrol_;
    bool geldi_ = false; // the letter led to the control, and nothing happened there since
};
