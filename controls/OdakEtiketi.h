// The caption label of the focused field is blue.
#pragma once

#include "controls/OdakGözcüsü.h"

#include <QLabel>

/// Colours the captions of one window; owned by it. While a modal window of the program stands before it, no
/// label is blue.
class OdakEtiketi : public QObject
{
public:
    enum class Giriş
    {
        Olduğu,
        TümünüSeç
    };

    /// Ties the label to the field, which must have its place in the window. With TümünüSeç it must be a line
    /// edit or a list with one, whose whole text is selected when the focus enters it.
    void Bağla(QWidget& kontrol, QLabel& etiket, Giriş giriş = Giriş::Olduğu);

    /// The focus counts as gone from its field, also where the system has yet to say so.
    void Ayrıl() { gözcü_.Ayrıl(); }

protected:
    bool eventFilter(QObject* nesne, QEvent* olay) override;

private:
    enum class Ton
    {
        Olağan,
        Mavi
    };
    void boya(Ton ton);

    OdakGözcüsü gözcü_;
    QLabel* etiket_ = nullptr; // of the field that has the focus
};
