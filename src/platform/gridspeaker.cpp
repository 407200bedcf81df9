// SPDX-License-Identifier: MIT
#include "platform/gridspeaker.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <utility>

namespace {

QAccessibleInterface* currentEntry(QAbstractItemView& grid) {
    return QAccessible::queryAccessibleInterface(&grid)->focusChild();
}

} // namespace

// A tool that has told an entry does not tell it again, whatever it says by now:
// the cell gets another.
void GridSpeaker::TellCurrent() {
    if (!QAccessible::isActive() || m_arriving)
        return;
    QAccessibleInterface* entry = currentEntry(m_grid);
    if (entry == nullptr)
        return;
    const Told now{m_grid.currentIndex(), entry->text(QAccessible::Name)};
    if (now == m_told)
        return;
    if (now.cell == std::exchange(m_told, now).cell) {
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(entry));
        entry = currentEntry(m_grid);
    }
    QAccessibleEvent event(entry, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

void GridSpeaker::EndArrival() {
    m_arriving = false;
    m_told = {};
    TellCurrent();
}
