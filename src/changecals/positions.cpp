// SPDX-License-Identifier: MIT
#include "changecals/positions.h"

#include "changecals/firstplaces.h"
#include "changecals/windows.h"
#include "platform/numbers.h"
#include "platform/program.h"
#include "platform/twips.h"
#include "shared/settings.h"

#include <QGuiApplication>
#include <QScreen>
#include <optional>

namespace {

struct Positions {
    Table<int, mainWindowCount> top = FormTop;
    Table<int, mainWindowCount> left = FormLeft;
};

bool isOnDesktop(int left, int top) {
    const QRect desktop = QGuiApplication::primaryScreen()->virtualGeometry();
    return left < ToTwips(desktop.x() + desktop.width()) &&
           top < ToTwips(desktop.y() + desktop.height());
}

// The primary one first, as the toolkit has them.
std::vector<QRect> desksOfMonitors() {
    std::vector<QRect> desks;
    for (const QScreen* screen : QGuiApplication::screens())
        desks.push_back(screen->availableGeometry());
    return desks;
}

ChangeCals::Position firstPlace(int number) {
    const WindowSizes& sizes = ChangeCals::LargestSizes();
    const QPoint place = FirstPlaces(DeskOfFirstPlaces(desksOfMonitors(), sizes), sizes)(number);
    return {ToTwips(place.x()), ToTwips(place.y())};
}

ChangeCals::Position placeNow(int number, const MainWindow* window) {
    return window != nullptr ? ChangeCals::Position{window->Left(), window->Top()}
                             : ChangeCals::PlaceOf(number);
}

// False when the position does not fit in 16 bits.
bool readPosition(int number, const MainWindow* window, Positions& positions) {
    if (window != nullptr && window->WindowState() == Form::Minimised)
        return true;
    const ChangeCals::Position place = placeNow(number, window);
    const std::optional<int> left = CInt(place.left);
    const std::optional<int> top = CInt(place.top);
    if (!left || !top)
        return false;
    positions.left(number) = *left;
    positions.top(number) = *top;
    return true;
}

} // namespace

ChangeCals::Position ChangeCals::PlaceOf(int number) {
    const int top = FormTop(number);
    const int left = FormLeft(number);
    const bool stored = top != noPosition && left != noPosition;
    return stored && isOnDesktop(left, top) ? Position{left, top} : firstPlace(number);
}

void ChangeCals::PlaceForm(Form& form, int number) {
    QSize& size = LargestSizes()(number);
    size = size.expandedTo(form.size());
    const Position place = PlaceOf(number);
    form.Move(place.left, place.top);
}

void ChangeCals::PlaceDialog(Form& dialog) {
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    const int freeWidth = ToTwips(screen.width()) - ToTwips(dialog.width());
    const int freeHeight = ToTwips(screen.height()) - ToTwips(dialog.height());
    dialog.Move(CLng(ToTwips(screen.x()) + freeWidth / 2.0).value_or(0),
                CLng(ToTwips(screen.y()) + freeHeight / 3.0).value_or(0));
}

const MainWindow* ChangeCals::ReadPositions() {
    if (!HasWindowPositions())
        return nullptr;
    Positions positions;
    for (int number = 1; number <= mainWindowCount; ++number) {
        const MainWindow* window = LoadedWindow(number);
        if (!readPosition(number, window, positions))
            return window;
    }
    FormTop = positions.top;
    FormLeft = positions.left;
    return nullptr;
}
