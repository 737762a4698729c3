#pragma once

/// Where the main window stands on the screen as the program starts.

#include <QMargins>
#include <QObject>
#include <QRect>

class QWidget;

/// The place of a window without its frame, so that it stands in the middle of the screen's free area and its
/// frame inside: as large as it wants to be, or as fits.
QRect PlaceInside(const QRect& free, const QSize& wanted, const QMargins& frame);

/// Gives a window its first place, the same at every start. The frame that the desktop draws is known only
/// once the window is there: until then room is left for a usual one.
class StartPlace : public QObject
{
    Q_OBJECT

public:
    StartPlace(QWidget* window, const QSize& wantedSize);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Correct();

    QWidget* window;
    QSize wanted;
    QSize placed;
};
