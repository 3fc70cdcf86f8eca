// The caption label of the focused field is blue.
#pragma once

#include "app/Görünüm.h"

#include <QHash>
#include <QLabel>
#include <QObject>

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

    /// Ties the label to the field. With TümünüSeç the field must be a line edit, whose whole text is
    /// selected when the focus enters it.
    void Bağla(QWidget& kontrol, QLabel& etiket, Giriş giriş = Giriş::Olduğu);

protected:
    bool eventFilter(QObject* nesne, QEvent* olay) override;

private:
    struct Bağ
    {
        QLabel* etiket;
        Giriş giriş;
    };
    void odakGeldi(QWidget& kontrol);
    void odakGitti();

    QHash<QObject*, Bağ> bağlar_;
    QWidget* odaklı_ = nullptr;
};
