// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <random>
#include <sstream>
#include <string>
#include <vector>

class ComboBox;
class Controls;
class Expected;
class Form;
class MSFlexGrid;
class MessageWatch;
class QWidget;
struct GridPlace;

/// A list as the user finds it: how many entries, which of them is chosen, and what
/// follows from choosing one by its position.
struct ListInUse {
    ComboBox& box;
    int entries;
    int chosen;
    std::function<void(int position)> choose;
    int firstNumber = -1; ///< with which its first entry begins; none where that is below 0
};

/// The hand of a user who does things by chance: mouse and keys, and a memory of
/// what was done last and of what should have come of it.
class Hand {
public:
    Hand(std::uint32_t seed, Expected& expected, Controls& controls, MessageWatch& messages)
        : expected(expected), controls(controls), messages(messages), m_random(seed) {}

    Expected& expected;
    Controls& controls;
    MessageWatch& messages;

    int Below(int n) { return static_cast<int>(m_random() % static_cast<std::uint32_t>(n)); }
    bool OneIn(int n) { return Below(n) == 0; }

    template <typename T, std::size_t size>
    T AnyOf(const T (&all)[size]) {
        return all[Below(static_cast<int>(size))];
    }

    template <typename T>
    T AnyOf(const std::vector<T>& all) {
        return all[static_cast<std::size_t>(Below(static_cast<int>(all.size())))];
    }

    /// Remembers what is being done, for the message of a failure.
    template <typename... Parts>
    void Say(const Parts&... parts) {
        std::ostringstream text;
        (text << ... << parts);
        m_said.push_back(text.str());
        if (m_said.size() > remembered)
            m_said.pop_front();
    }

    /// The last actions, the latest last.
    std::string Said() const;

    /// Gives a window the keyboard.
    static void Activate(Form& window);

    static void Key(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {});

    /// A key for the whole window, whichever of its controls has the focus.
    static void CommandKey(Form& window, Qt::Key key);

    void Press(Form& window, const QString& button, Qt::MouseButton with = Qt::LeftButton);

    /// The moon button that is in front: it opens the moon window.
    void PressMoon(Form& window);

    /// Presses a cell of a grid.
    static void PressCell(MSFlexGrid& grid, GridPlace cell, Qt::MouseButton button);

    /// A cell of a grid that can be pressed.
    GridPlace AnyCell(const MSFlexGrid& grid);

    /// Moves the current cell of a grid a few times in any direction.
    void MoveAbout(MSFlexGrid& grid);

    /// Presses the current cell of a grid by a key.
    void PressByKey(MSFlexGrid& grid);

    /// Goes on to the next control or back to the one before.
    void GoOn(Form& window);

    /// Uses a list in any way: by keys, a typed number or letter, the wheel or its popup.
    /// A wheel that is turned before the list has the focus does nothing.
    void Use(const ListInUse& list);

private:
    void moveInList(const ListInUse& list);
    void typeNumber(const ListInUse& list);
    void typeLetter(const ListInUse& list);
    void turnWheelOn(const ListInUse& list);
    void chooseInPopup(const ListInUse& list);

    static constexpr std::size_t remembered = 12;

    std::mt19937 m_random;
    std::deque<std::string> m_said;
};
