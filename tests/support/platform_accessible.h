// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>
#include <vector>

class MSFlexGrid;

/// Listens in the place of an assistive tool while it lives.
class AccessibleWatch {
public:
    struct Told {
        QAccessible::Event type;
        QObject* control;
        QString name; ///< of the control, or of what was told in it

        bool operator==(const Told& other) const = default;
    };

    AccessibleWatch();
    ~AccessibleWatch();

    /// What has been told of this kind since the last call, once queued events
    /// have run.
    std::vector<Told> take(QAccessible::Event type);
};

/// For the messages of tests.
void PrintTo(const AccessibleWatch::Told& told, std::ostream* out);

/// The interface of a control.
QAccessibleInterface& accessible(QObject& control);

/// The entry of a cell of a grid, nullptr where it has none.
QAccessibleInterface* accessibleCell(MSFlexGrid& grid, int row, int column);

/// A text as an assistive tool reads it.
QString accessibleName(QObject& control);
