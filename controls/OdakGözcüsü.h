// Which of a window's fields has the focus.
#pragma once

#include <QHash>
#include <QObject>

#include <functional>

/// Watches the fields of one window; owned by it. A window that goes to the background or opens a menu or a
/// box keeps its focused field.
class OdakGözcüsü : public QObject
{
public:
    OdakGözcüsü();

    /// Watches a field, which must have its place in the window. Either function may be empty.
    /// @param geldi called when the focus enters it
    /// @param gitti called when the focus has gone from it to another control of the window; errors are
    /// logged
    void İzle(QWidget& kontrol, std::function<void()> geldi, std::function<void()> gitti);

    /// The focus counts as gone from its field, also where the system has yet to say so.
    void Ayrıl();

private:
    struct Bağ
    {
        std::function<void()> geldi, gitti;
    };
    void odakDeğişti(QWidget* kontrol);

    QHash<QWidget*, Bağ> bağlar_;
    QWidget* pencere_ = nullptr;
    QWidget* odaklı_ = nullptr;
};
