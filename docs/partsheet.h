// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <vector>

class QWidget;

/// Parts of a window that a picture points at, with their numbers beside an edge
/// of the window. Each is a control by its object name.
struct PartsBeside {
    Qt::Edge edge;
    std::vector<const char*> controls;
};

/// A window as it is on the screen, with a thin frame around it. Nothing in it
/// has the focus.
QImage WindowSheet(QWidget& window);

/// The same with its parts numbered from 1 in their order. A control that the
/// window does not have ends the program with a message.
QImage PartsSheet(QWidget& window, const std::vector<PartsBeside>& parts);

/// Several sheets side by side, their upper edges in a row.
QImage RowOfSheets(const std::vector<QImage>& sheets);
