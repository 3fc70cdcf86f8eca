// Asks before the focus leaves a field.
#pragma once

#include <QObject>

#include <functional>

class QLineEdit;
class QMouseEvent;

/// Watches one field of a window. The question is put before anything else happens, so that a refused
/// press, key or mnemonic has no effect at all. Owned by the window; the field must live as long.
class AyrılışDenetimi : public QObject
{
public:
    enum class Karar
    {
        Serbest, ///< may go, and nobody was asked
        Onaylı,  ///< may go, as the user said
        Kalsın
    };

    /// @param sor called when the focus is about to go to another control of the window; it may show a
    ///            message box
    AyrılışDenetimi(QLineEdit& kutu, std::function<Karar()> sor);

protected:
    bool eventFilter(QObject* nesne, QEvent* olay) override;

private:
    bool basışıTut(const QMouseEvent& olay);

    QLineEdit& kutu_;
    std::function<Karar()> sor_;
};
