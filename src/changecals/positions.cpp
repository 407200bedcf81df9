// SPDX-License-Identifier: MIT
#include "changecals/positions.h"

#include "changecals/firstplaces.h"
#include "changecals/windows.h"
#include "platform/numbers.h"
#include "platform/program.h"

#include <QGuiApplication>
#include <QScreen>
#include <optional>

namespace {

struct Positions {
    Table<int, mainWindowCount> top = FormTop;
    Table<int, mainWindowCount> left = FormLeft;
};

bool isOnDesktop(const ChangeCals::Position& place) {
    const QRect desktop = QGuiApplication::primaryScreen()->virtualGeometry();
    return place.left.count < ToTwips(desktop.x() + desktop.width()).count &&
           place.top.count < ToTwips(desktop.y() + desktop.height()).count;
}

// The primary one first, as the toolkit has them.
std::vector<QRect> desksOfMonitors() {
    std::vector<QRect> desks;
    for (const QScreen* screen : QGuiApplication::screens())
        desks.push_back(screen->availableGeometry());
    return desks;
}

ChangeCals::Position firstPlace(MainWindowNumber window) {
    const WindowSizes& sizes = ChangeCals::LargestSizes();
    const QPoint place = FirstPlaces(DeskOfFirstPlaces(desksOfMonitors(), sizes), sizes)(window);
    return {ToTwips(place.x()), ToTwips(place.y())};
}

ChangeCals::Position placeNow(MainWindowNumber number, const MainWindow* window) {
    return window != nullptr ? ChangeCals::Position{window->Left(), window->Top()}
                             : ChangeCals::PlaceOf(number);
}

// False when the position does not fit in 16 bits.
bool readPosition(MainWindowNumber number, const MainWindow* window, Positions& positions) {
    if (window != nullptr && window->WindowState() == Form::Minimised)
        return true;
    const ChangeCals::Position place = placeNow(number, window);
    const std::optional<int> left = CInt(place.left.count);
    const std::optional<int> top = CInt(place.top.count);
    if (!left || !top)
        return false;
    positions.left(number) = *left;
    positions.top(number) = *top;
    return true;
}

} // namespace

ChangeCals::Position ChangeCals::PlaceOf(MainWindowNumber window) {
    const Position place{{FormLeft(window)}, {FormTop(window)}};
    const bool stored = place.left.count != noPosition && place.top.count != noPosition;
    return stored && isOnDesktop(place) ? place : firstPlace(window);
}

void ChangeCals::PlaceForm(Form& form, MainWindowNumber window) {
    QSize& size = LargestSizes()(window);
    size = size.expandedTo(form.size());
    const Position place = PlaceOf(window);
    form.Move(place.left, place.top);
}

void ChangeCals::PlaceDialog(Form& dialog) {
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    const auto between = [](int start, int room, double parts) {
        return Twips{CLng(ToTwips(start).count + ToTwips(room).count / parts).value_or(0)};
    };
    dialog.Move(between(screen.x(), screen.width() - dialog.width(), 2),
                between(screen.y(), screen.height() - dialog.height(), 3));
}

const MainWindow* ChangeCals::ReadPositions() {
    if (!HasWindowPositions())
        return nullptr;
    Positions positions;
    for (const MainWindowNumber number : mainWindows) {
        const MainWindow* window = LoadedWindow(number);
        if (!readPosition(number, window, positions))
            return window;
    }
    FormTop = positions.top;
    FormLeft = positions.left;
    return nullptr;
}
