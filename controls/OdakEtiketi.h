// The caption label of the focused field is blue.
#pragma once

#include "app/Görünüm.h"

#include <QHash>
#include <QLabel>
#include <QObject>

#include <functional>

/// Watches the fields of one window; owned by it. A window that goes to the background or opens a menu
/// keeps its focused field.
class OdakEtiketi : public QObject
{
public:
    enum class Giriş
    {
        Olduğu,
        TümünüSeç
    };

    /// Ties the label to the field. With TümünüSeç the field must be a line edit or a list with one, whose
    /// whole text is selected when the focus enters it.
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
    void odakGeldi(QWidget& kontrol);

    QHash<QObject*, Bağ> bağlar_;
    QWidget* odaklı_ = nullptr;
};
