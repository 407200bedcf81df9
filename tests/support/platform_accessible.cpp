// SPDX-License-Identifier: MIT
#include "support/platform_accessible.h"

#include "platform/flexgrid.h"
#include "support/platform_test.h"

#include <QtGui/private/qguiapplication_p.h>
#include <ostream>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>
#include <utility>

namespace {

// What an assistive tool does as it comes and goes; the toolkit is silent until
// then, and has no public name for it.
void setListening(bool listening) {
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(listening);
}

std::vector<AccessibleWatch::Told> allTold;

void keep(QAccessibleEvent* event) {
    const QAccessibleInterface* told = event->accessibleInterface();
    if (told == nullptr)
        return;
    QObject* control = told->object() != nullptr ? told->object() : told->parent()->object();
    allTold.push_back({event->type(), control, told->text(QAccessible::Name)});
}

} // namespace

AccessibleWatch::AccessibleWatch() {
    setListening(true);
    QAccessible::installUpdateHandler(keep);
    allTold.clear();
}

AccessibleWatch::~AccessibleWatch() {
    QAccessible::installUpdateHandler(nullptr);
    setListening(false);
    allTold.clear();
}

std::vector<AccessibleWatch::Told> AccessibleWatch::take(QAccessible::Event type) {
    processEvents();
    std::vector<Told> all = std::exchange(allTold, {});
    std::erase_if(all, [type](const Told& told) { return told.type != type; });
    return all;
}

void PrintTo(const AccessibleWatch::Told& told, std::ostream* out) {
    *out << "event " << told.type << " of " << qPrintable(told.control->objectName()) << " “"
         << qPrintable(told.name) << "”";
}

QAccessibleInterface& accessible(QObject& control) {
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&control);
    EXPECT_NE(told, nullptr);
    return *told;
}

QAccessibleInterface* accessibleCell(MSFlexGrid& grid, int row, int column) {
    const QModelIndex cell = grid.model()->index(row, column);
    if (!cell.isValid())
        return nullptr;
    const QPoint middle = grid.viewport()->mapToGlobal(grid.visualRect(cell).center());
    return accessible(grid).childAt(middle.x(), middle.y());
}

QString accessibleName(QObject& control) {
    return accessible(control).text(QAccessible::Name);
}
