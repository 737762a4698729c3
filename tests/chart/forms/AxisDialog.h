#pragma once

/// The dialog for the axis ranges of a chart, and hands that fill its boxes.

#include "tests/frame/Desk.h"

#include <QDialog>
#include <QLineEdit>

#include <array>
#include <functional>

/// Opens the dialog of the active chart and does something there; what is left open is closed by Escape.
void InDialog(Desk& desk, const std::function<void(QDialog&)>& act);

QLineEdit* Box(const QDialog& dialog, const QString& name);

/// What stands in the boxes: X from and to, Y from and to.
QStringList Boxes(const QDialog& dialog);

/// Fills all four boxes, going from one to the next by Tab.
void Fill(QDialog& dialog, const QStringList& texts);

void Enter(QDialog& dialog);

/// Highest X and Y, lowest X and Y.
std::array<float, 4> RangeOf(const frmGraph* chart);

/// One line of each kind of chart, each with part 0 of its list.
frmGraph* PlotKind(Desk& desk, int type, const QString& x, const QString& y);

frmGraph* PlotCapacitance(Desk& desk);
