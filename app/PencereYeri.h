// Where windows open, and how large at most.
#pragma once

#include <QObject>
#include <QPoint>
#include <QRect>
#include <QSize>

#include <functional>

class QCoreApplication;
class QWidget;

/// Top left corner of a box of this size (pixels) centred over a rectangle; halves go to the even number.
QPoint OrtalıYer(const QRect& üst, const QSize& kutu);

/// Where a window stands with its frame; pixels. The widget's own answer may be one from the time when the
/// window manager was putting the frame around it.
QRect ÇerçeveliYer(const QWidget& pencere);

/// Puts a window that is about to be shown at a place that depends on its size with the frame, which is
/// known only once the window stands on the screen: it is guessed before, and put right then. A window
/// larger than the free area of its screen is made as small as that.
/// @param yer the frame's top left corner for a size with the frame; pixels
void PencereyiKoy(QWidget& pencere, std::function<QPoint(const QSize& boy)> yer);

/// Places the program's dialogs and message boxes when they open, as long as it lives; one for the
/// program. They stand centred over their owner, those without one on the screen, and nowhere outside the
/// desktop where they fit into it.
class PencereYerleştirici : public QObject
{
public:
    explicit PencereYerleştirici(QCoreApplication& uygulama);

protected:
    bool eventFilter(QObject* nesne, QEvent* olay) override;
};
