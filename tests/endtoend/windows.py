# SPDX-License-Identifier: MIT
"""The program's windows: where their controls are and how they are used. All
places are pixels from the upper left corner of a window's contents."""

from picture import RED
from waiting import wait_until

CALENDARS = ("Julian", "Gregorian", "Jewish", "Moslem")
YEAR_TITLES = {name: f"{name} calendar" for name in CALENDARS}
MONTHLY_TITLE = "Monthly calendars"
MOON_TITLE = "Moon"
OPTIONS_TITLE = "Options"
ABOUT_TITLE = "About Orvalen Years Calendar"
SPOKEN_ABOUT_TITLE = f"{ABOUT_TITLE}, Version 1.1.0"
PROGRAM_TITLE = "Orvalen Years Calendar"

LEFT_BUTTON = 1
RIGHT_BUTTON = 3
BUTTON_SIDE = 30
CLICK_INTERVAL = 60  # milliseconds between the presses of a double click
KEY_INTERVAL = 12    # milliseconds


class Window:
    def __init__(self, program, managed):
        self.program = program
        self.desktop = program.desktop
        self.number = managed.number
        self._title = managed.title

    def is_open(self):
        """On the screen or minimised."""
        return self._managed() is not None

    def is_shown(self):
        managed = self._managed()
        return managed is not None and managed.state == "Normal"

    def is_minimised(self):
        managed = self._managed()
        return managed is not None and managed.state == "Iconic"

    def is_in_front(self):
        return self.desktop.front_window() == self.number

    def wait_until_in_front(self):
        self._wait(self.is_in_front, "is in front")

    def wait_until_gone(self):
        self._wait(lambda: not self.is_open(), "is gone")

    def bring_to_front(self):
        if not self.is_in_front():
            self.desktop.xdotool("windowactivate", self.number)
            self.wait_until_in_front()

    def click(self, place, button=LEFT_BUTTON):
        self.bring_to_front()
        self.desktop.xdotool("mousemove", "--window", self.number, *place, "click", button)

    def double_click(self, place):
        self.bring_to_front()
        self.desktop.xdotool("mousemove", "--window", self.number, *place,
                             "click", "--repeat", 2, "--delay", CLICK_INTERVAL, LEFT_BUTTON)

    def press_right_button_until_exit(self, place):
        """Presses and lets go only when the program has ended; its exit status."""
        self.bring_to_front()
        self.desktop.xdotool("mousemove", "--window", self.number, *place,
                             "mousedown", RIGHT_BUTTON)
        try:
            return self.program.wait_for_exit()
        finally:
            self.desktop.xdotool("mouseup", RIGHT_BUTTON)

    def press_key(self, key):
        self.bring_to_front()
        self.desktop.xdotool("key", key)

    def close_by_frame(self):
        self.press_key("alt+F4")

    def minimise(self):
        self.desktop.xdotool("windowminimize", self.number)
        self._wait(self.is_minimised, "is minimised")

    def move_frame_to(self, left, top):
        self.desktop.xdotool("windowmove", self.number, left, top)
        self.wait_until_frame_is_at(left, top)

    def wait_until_frame_is_at(self, left, top):
        wait_until(lambda: self.frame_position() == (left, top),
                   f"the frame of “{self._title}” is at {(left, top)}",
                   found=self.frame_position)

    def frame_position(self):
        return self.desktop.frame_position(self.number)

    def size(self):
        return self.desktop.contents_rectangle(self.number)[2:]

    def picture(self):
        self.bring_to_front()
        return self.desktop.picture_of(self.number)

    def _managed(self):
        for window in self.program.managed_windows():
            if window.number == self.number:
                return window
        return None

    def _wait(self, condition, state):
        wait_until(condition, f"“{self._title}” {state}",
                   found=self.program.describe_windows)


class MessageBox(Window):
    def accept(self):
        self.press_key("Return")


class MonthlyWindow(Window):
    """Four panes, each with three lists, a month grid and two lists; below them
    a row with the moon button and, at its right end, the commands."""

    PANE_LEFTS = (20, 176, 332, 488)
    PANE_WIDTH = 148
    PANE_TOP = 48
    GRID_WIDTH = 121
    COLUMN_WIDTH = 17
    FIRST_ROW_HEIGHT = 23
    ROW_HEIGHT = 20
    ROWS = 7
    COLUMNS = 7
    COMMANDS = ("years", "today", "options", "about", "close")
    COMMANDS_RIGHT = 636
    COMMAND_GAP = 6
    ROW_ABOVE_BOTTOM = 28  # middle of the row of commands
    MOON_MIDDLE = 200

    def press(self, command):
        self.click(self.command_place(command))

    def choose_language(self, name):
        """In the options, and applies them."""
        self.press("options")
        options = self.program.options_window()
        options.wait_until_in_front()
        options.choose_language(name)
        options.apply()
        options.wait_until_gone()

    def exit_by_right_press(self):
        return self.press_right_button_until_exit(self.command_place("close"))

    def press_moon(self):
        self.click((self.MOON_MIDDLE, self._row_middle()))

    def press_day(self, calendar, row, column):
        self.click(self._cell_middle(calendar, row, column))

    def open_year_by_double_click(self, calendar):
        self.double_click(self._cell_middle(calendar, 3, 0))

    def open_all_years(self):
        """The year windows by calendar; the first pane's comes up last."""
        self.press("years")
        years = {calendar: self.program.year_window(calendar) for calendar in CALENDARS}
        years[CALENDARS[0]].wait_until_in_front()
        return years

    def marked_cells(self):
        """For each calendar the cells, as (row, column), that are marked red."""
        picture = self.picture()
        return {calendar: self._marked_cells_of(picture, calendar) for calendar in CALENDARS}

    def command_place(self, command):
        from_right = len(self.COMMANDS) - 1 - self.COMMANDS.index(command)
        step = BUTTON_SIDE + self.COMMAND_GAP
        return self.COMMANDS_RIGHT - BUTTON_SIDE // 2 - from_right * step, self._row_middle()

    def _row_middle(self):
        return self.size()[1] - self.ROW_ABOVE_BOTTOM

    def _marked_cells_of(self, picture, calendar):
        cells = [(row, column) for row in range(self.ROWS) for column in range(self.COLUMNS)]
        return [cell for cell in cells if self._is_marked(picture, calendar, *cell)]

    def _is_marked(self, picture, calendar, row, column):
        left, top, height = self._cell(calendar, row, column)
        area = self.COLUMN_WIDTH * height
        return picture.count(RED, left, top, self.COLUMN_WIDTH, height) > area / 3

    def _cell_middle(self, calendar, row, column):
        left, top, height = self._cell(calendar, row, column)
        return left + self.COLUMN_WIDTH // 2, top + height // 2

    def _cell(self, calendar, row, column):
        pane = self.PANE_LEFTS[CALENDARS.index(calendar)]
        left = pane + (self.PANE_WIDTH - self.GRID_WIDTH) // 2 + 1 + column * self.COLUMN_WIDTH
        top = self._grid_top() + 1
        if row == 0:
            return left, top, self.FIRST_ROW_HEIGHT
        return (left, top + self.FIRST_ROW_HEIGHT + (row - 1) * self.ROW_HEIGHT, self.ROW_HEIGHT)

    # Each of a pane's five lists takes up the same part of the window's height,
    # which depends on the font; 295 pixels do not.
    def _grid_top(self):
        list_height = (self.size()[1] - 295) // 5
        return self.PANE_TOP + 3 * (list_height + 4) + 4


class YearWindow(Window):
    """A row of controls above the grid of a year."""

    CONTROLS = ("previous", "next", "today", "moon", "other1", "other2", "other3", "options",
                "about", "close")
    FIRST_CONTROL_LEFT = 72
    GROUP_STARTS = (3, 7)  # of CONTROLS, behind a gap
    GROUP_GAP = 6
    CONTROLS_HEIGHT = 52
    GRID_LEFT = 2
    GRID_TOP = 52
    TITLE_HEIGHT = 24
    ROW_HEIGHT = 13
    WEEKDAY_WIDTH = 23
    COLUMN_WIDTH = 20
    ROWS = 32
    COLUMNS = 19
    ROWS_OF_BAND = 8

    def __init__(self, program, managed, calendar):
        super().__init__(program, managed)
        self.calendar = calendar

    def press(self, control):
        self.click(self.control_place(control))

    def press_other_calendar(self, calendar):
        others = [name for name in CALENDARS if name != self.calendar]
        self.press(f"other{others.index(calendar) + 1}")

    def exit_by_right_press(self):
        return self.press_right_button_until_exit(self.control_place("close"))

    def open_monthly_by_double_click(self):
        """On the name of a weekday, so that the chosen day stays."""
        self.double_click(self._cell_middle(3, 0))

    def press_day(self, row, column):
        self.click(self._cell_middle(row, column))

    def marked_cells(self):
        picture = self.picture()
        cells = [(row, column) for row in range(self.ROWS) for column in range(1, self.COLUMNS)]
        return [cell for cell in cells if self._is_marked(picture, *cell)]

    def control_place(self, control):
        index = self.CONTROLS.index(control)
        gaps = sum(index >= start for start in self.GROUP_STARTS)
        left = self.FIRST_CONTROL_LEFT + index * BUTTON_SIDE + gaps * self.GROUP_GAP
        return left + BUTTON_SIDE // 2, self.CONTROLS_HEIGHT // 2

    def _is_marked(self, picture, row, column):
        left, top, width, height = self._cell(row, column)
        return picture.count(RED, left, top, width, height) > width * height / 3

    def _cell_middle(self, row, column):
        left, top, width, height = self._cell(row, column)
        return left + width // 2, top + height // 2

    def _cell(self, row, column):
        titles = (row + self.ROWS_OF_BAND - 1) // self.ROWS_OF_BAND
        top = self.GRID_TOP + titles * self.TITLE_HEIGHT + (row - titles) * self.ROW_HEIGHT
        height = self.TITLE_HEIGHT if row % self.ROWS_OF_BAND == 0 else self.ROW_HEIGHT
        if column == 0:
            return self.GRID_LEFT, top, self.WEEKDAY_WIDTH, height
        left = self.GRID_LEFT + self.WEEKDAY_WIDTH + (column - 1) * self.COLUMN_WIDTH
        return left, top, self.COLUMN_WIDTH, height


class MoonWindow(Window):
    """Nothing but a picture."""

    def middle(self):
        width, height = self.size()
        return width // 2, height // 2


class OptionsWindow(Window):
    """The commands stand at the lower right, the list of languages above them."""

    MARGIN = 11
    COMMAND_GAP = 6
    LIST_ABOVE_BOTTOM = 157

    def choose_language(self, name):
        width, height = self.size()
        self.click((3 * width // 4, height - self.LIST_ABOVE_BOTTOM))
        self._wait(self._has_list, "has its list of languages open")
        self.desktop.xdotool("type", "--delay", KEY_INTERVAL, name)
        self.desktop.xdotool("key", "Return")
        self._wait(lambda: not self._has_list(), "has closed its list of languages")

    def apply(self):
        from_right = self.MARGIN + BUTTON_SIDE + self.COMMAND_GAP + BUTTON_SIDE // 2
        width, height = self.size()
        self.click((width - from_right, height - self.MARGIN - BUTTON_SIDE // 2))

    def _has_list(self):
        return self.desktop.has_popup(self.program.pid())
