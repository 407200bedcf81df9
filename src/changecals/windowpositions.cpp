// SPDX-License-Identifier: MIT
#include "changecals/windowpositions.h"

#include "changecals/firstplaces.h"
#include "changecals/windows.h"
#include "platform/numbers.h"
#include "platform/program.h"
#include "shared/settings.h"

#include <QGuiApplication>
#include <QScreen>
#include <optional>

namespace {

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

const MainWindow* ChangeCals::ReadPositions() {
    if (!HasWindowPositions())
        return nullptr;
    auto tops = FormTop;
    auto lefts = FormLeft;
    for (const MainWindowNumber number : mainWindows) {
        const MainWindow* window = LoadedWindow(number);
        if (window != nullptr && window->WindowState() == Form::Minimised)
            continue;
        const Position place = placeNow(number, window);
        const std::optional<int> top = CInt(place.top.count);
        const std::optional<int> left = CInt(place.left.count);
        if (!top || !left)
            return window;
        tops(number) = *top;
        lefts(number) = *left;
    }
    FormTop = tops;
    FormLeft = lefts;
    return nullptr;
}
