// The caption label of the focused field is blue.
#pragma once

#include "app/Görünüm.h"

#include <QHash>
#include <QLabel>
#include <QObject>

#include <functional>

/// Watches the fields of one window; owned by it. A window that goes to the background or opens a menu
/// keeps its focused field; while a modal window of the program stands before it, no label is blue.
class OdakEtiketi : public QObject
{
public:
    OdakEtiketi();

    enum class Giriş
    {
        Olduğu,
        TümünüSeç
    };

    /// Ties the label to the field, which must have its place in the window. With TümünüSeç it must be a line
    /// edit or a list with one, whose whole text is selected when the focus enters it.
    /// @param çıkış called when the focus has gone from it to another control of the window
    void Bağla(QWidget& kontrol, QLabel& etiket, Giriş giriş = Giriş::Olduğu,
               std::function<void()> çıkış = {});

    /// The focus counts as gone from its field, also where the system has yet to say so.
    void Ayrıl();

protected:
    bool eventFilter(QObject* nesne, QEvent* olay) override;

private:
    struct Bağ
    {
        QLabel* etiket;
        Giriş giriş;
        std::function<void()> çıkış;
    };
    enum class Ton
    {
        Olağan,
        Mavi
    };
    void odakDeğişti(QWidget* kontrol);
    void odakGeldi(QWidget& kontrol);
    void boya(Ton ton);

    QHash<QWidget*, Bağ> bağlar_;
    QWidget* pencere_ = nullptr;
    QWidget* odaklı_ = nullptr;
};
