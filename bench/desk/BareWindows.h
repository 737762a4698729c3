#pragma once

/// The yardstick of the program's windows: the same controls and menus, with nothing behind them.

#include <QMainWindow>

#include <array>
#include <functional>
#include <memory>
#include <vector>

class QComboBox;
class QMdiArea;
class QMdiSubWindow;
class QLineEdit;
class QRadioButton;
class QTableWidget;

/// An MDI window with a selection form's controls at its left edge.
struct BareDesk
{
    BareDesk();

    QMainWindow window;
    QMdiArea* area;
    std::vector<QRadioButton*> chartTypes;
    /// The five lists of the part and the two of the axes, from top to bottom.
    std::vector<QComboBox*> lists;
};

/// Paints the surface of a bare chart window.
using PaintSurface = std::function<void(QPainter& painter)>;

/// Opens a window with a chart window's controls and menus, not shown yet.
QMdiSubWindow* AddBareChart(QMdiArea& area, const PaintSurface& paint = {});

/// A window with the search's controls: entries, and below them a table of as many cells as are seen there.
class BareFind : public QWidget
{
public:
    BareFind();

    QLineEdit* box;
    QTableWidget* table;
};

/// A window with a chart view's controls: tool bar, surface, entry, and a table of six lines.
class BareView : public QMainWindow
{
public:
    BareView();
};
