// The push button.
#pragma once

#include <QPushButton>

/// Its caption goes on in a second line where it is too long for one. Enter presses the button that has the
/// focus; elsewhere in a window it presses only one that was made the window's default. A mnemonic takes the
/// focus along, as the mouse does, so that the field that is left sees it go; where that field keeps the
/// focus, nothing is pressed.
class Düğme : public QPushButton
{
public:
    explicit Düğme(QWidget* üst = nullptr);

    QSize sizeHint() const override;

protected:
    bool event(QEvent* olay) override;
    void keyPressEvent(QKeyEvent* olay) override;
    void paintEvent(QPaintEvent* olay) override;
};
