// A push button whose caption goes on in a second line where it is too long for one.
#pragma once

#include <QPushButton>

class Düğme : public QPushButton
{
public:
    using QPushButton::QPushButton;

protected:
    void paintEvent(QPaintEvent* olay) override;
};
