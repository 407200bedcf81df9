# SPDX-License-Identifier: MIT
"""Changes of names: the enumerator beside the one that is meant, another signal of
the same sender."""

import functools
import pathlib
import re

SOURCES = pathlib.Path(__file__).resolve().parents[2] / "src"
ENUMERATION = re.compile(r"\benum\b(?: class)?[^;{]*\{([^}]*)\}")
CLASS = re.compile(r"^class (\w+)[^;{]*\{(.*?)^\};", re.M | re.S)
SIGNALS = re.compile(r"^Q_SIGNALS:\n(.*?)(?=^\S|\Z)", re.M | re.S)
SIGNAL = re.compile(r"^\s+void (\w+)\(", re.M)
# What the toolkit offers in place of each that we use.
TOOLKITS = {
    "clicked": "pressed", "activated": "highlighted", "currentTextChanged": "editTextChanged",
    "textEdited": "textChanged", "toggled": "clicked", "focusChanged": "aboutToQuit",
    "focusWindowChanged": "lastWindowClosed",
}
TOOLKIT_ENUMERATORS = [
    ["Key_Left", "Key_Right"], ["Key_Up", "Key_Down"], ["Key_PageUp", "Key_PageDown"],
    ["Key_Home", "Key_End"], ["LeftToRight", "RightToLeft"], ["Horizontal", "Vertical"],
    ["LeftButton", "RightButton"], ["ShiftModifier", "ControlModifier"],
    ["AlignLeft", "AlignRight"], ["AlignTop", "AlignBottom"], ["AlignHCenter", "AlignVCenter"],
    ["TabFocus", "ClickFocus", "StrongFocus"], ["FontChange", "StyleChange", "PaletteChange"],
    ["Window", "Base", "Button"], ["WindowText", "Text", "ButtonText"], ["Active", "Disabled"],
]


def without_comments(text):
    return re.sub(r"//[^\n]*", "", text)


@functools.cache
def texts():
    return [without_comments(path.read_text(encoding="utf-8")) for path in sorted(SOURCES.rglob("*.h"))] + \
        [without_comments(path.read_text(encoding="utf-8")) for path in sorted(SOURCES.rglob("*.cpp"))]


def in_a_row(names):
    """Each name with the next, the last with the one before."""
    return dict(zip(names, [*names[1:], *names[-2:-1]]))


@functools.cache
def neighbours():
    lists = [re.findall(r"(?:^|,)\s*(\w+)", body) for text in texts() for body in ENUMERATION.findall(text)]
    found = {}
    for names in [*lists, *TOOLKIT_ENUMERATORS]:
        found |= in_a_row(names)
    return found


@functools.cache
def other_signals():
    found = dict(TOOLKITS)
    for text in texts():
        for _, body in CLASS.findall(text):
            names = [name for part in SIGNALS.findall(body) for name in SIGNAL.findall(part)]
            found |= in_a_row(names) if len(names) > 1 else {}
    return found


def declared_in(source):
    """The places of the enumerations themselves."""
    return [match.span(1) for match in ENUMERATION.finditer(source)]


def enumerators(source, tokens):
    declared = declared_in(source)
    for before, token in zip(tokens, tokens[1:]):
        inside = any(start <= token.start < end for start, end in declared)
        if token.kind == "word" and token.text in neighbours() and not inside and \
                before.text not in (".", "->", "&", "class"):
            yield token.start, token.end, neighbours()[token.text], "enumerator"


def signals(_source, tokens):
    """&Class::Signal, as the sender's part of a connection has it."""
    for i in range(3, len(tokens)):
        row = [token.text for token in tokens[i - 3:i + 1]]
        if row[0] == "&" and row[2] == "::" and row[3] in other_signals() and is_senders(tokens, i - 3):
            yield tokens[i].start, tokens[i].end, other_signals()[row[3]], "signal"


def is_senders(tokens, i):
    """Whether the argument that begins at i is the second of a connection."""
    commas, depth = 0, 0
    for token in reversed(tokens[:i]):
        depth += (token.text in (")", "]", "}")) - (token.text in ("(", "[", "{"))
        if depth < 0:
            break
        commas += token.text == "," and depth == 0
    return commas == 1


def changes(source, tokens):
    for kind in (enumerators, signals):
        yield from kind(source, tokens)
