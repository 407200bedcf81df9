# SPDX-License-Identifier: MIT
"""Loaded by the screen reader into itself: what it would say is written down instead,
a line of JSON each, and whoever asks is told when all that has happened so far has
been said. The folder of this file holds the two pipes' ends: "said" and "asked"."""

import json
import os
import pathlib

import pyatspi
from gi.repository import GLib
from orca import event_manager, speech

FOLDER = pathlib.Path(os.environ["ORVALEN_HEARING"])
SAID = open(FOLDER / "said", "a", buffering=1, encoding="utf-8")


def write(**line):
    SAID.write(json.dumps(line) + "\n")


# An answer comes over the same connection as the events that were sent before it.
def ask_programs():
    for program in pyatspi.Registry.getDesktop(0):
        if program is not None:
            program.clearCache()
            program.childCount


def is_busy():
    manager = event_manager.getManager()
    return bool(manager._gidleId) or not manager._eventQueue.empty()


def answer(number, idle):
    if is_busy():
        idle = 0
    if idle < 2:
        GLib.idle_add(answer, number, idle + 1, priority=GLib.PRIORITY_LOW)
    else:
        write(answered=number)
    return False


def hear_question(pipe, _condition):
    for number in os.read(pipe, 1024).split():
        ask_programs()
        GLib.idle_add(answer, int(number), 0, priority=GLib.PRIORITY_LOW)
    return True


def ignore(*_arguments, **_options):
    return None


speech._speak = lambda text, _voice, _interrupt: write(said=text)
speech.speakKeyEvent = speech.speakCharacter = ignore
speech.init = speech.shutdown = speech.stop = speech.checkSpeechSetting = ignore
GLib.io_add_watch(os.open(FOLDER / "asked", os.O_RDWR), GLib.IO_IN, hear_question)
