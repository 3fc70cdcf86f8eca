// Asks before the focus leaves a field.
#pragma once

#include <QObject>

#include <functional>

class QLineEdit;
class QMouseEvent;
class QWidget;

/// Watches one field of a window. Where a press, a key or a mnemonic is about to take the focus away, the
/// question is put before anything else happens, so that a refused one has no effect at all. Where the focus
/// is gone already (code or a screen reader has set it), it comes back first, and goes where it was wanted
/// once the user lets it. Another window, a menu or a list that opens is no leaving. Owned by the window; the
/// field must live as long.
class AyrılışDenetimi : public QObject
{
public:
    /// @param uygun whether the field holds what may stay there unasked; may tidy it up
    /// @param sor asks the user, with a message box, whether it may stay all the same
    AyrılışDenetimi(QLineEdit& kutu, std::function<bool()> uygun, std::function<bool()> sor);

    /// Gives the focus to a control of the window that something pressed without it, as screen readers do.
    /// @return whether the field let go; false as well while the question stands
    bool OdağıVer(QWidget& hedef);

protected:
    bool eventFilter(QObject* nesne, QEvent* olay) override;

private:
    enum class Karar
    {
        Serbest, // may go, and nobody was asked now
        Onaylı,  // may go, as the user just said
        Kalsın
    };
    Karar karar();
    /// Whether the window's focus is the field's, the window being active or not.
    bool odakta() const;
    bool basışıTut(const QMouseEvent& olay);
    bool gidişiTut(QWidget& hedef);

    QLineEdit& kutu_;
    std::function<bool()> uygun_;
    std::function<bool()> sor_;
    bool izinli_ = false;    // the user let stay what is there; until the focus has gone, or it is edited
    bool içeride_ = false;   // the focus came into the field and has not been seen elsewhere
    bool soruluyor_ = false; // the question stands
};
