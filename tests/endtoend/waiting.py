# SPDX-License-Identifier: MIT
"""Waiting for a state by looking again and again until a deadline."""

import time

POLL_SECONDS = 0.05
USUAL_SECONDS = 10


def wait_until(condition, expectation, seconds=USUAL_SECONDS, found=None):
    """Waits until condition() is true and returns its value.

    When that does not happen in time, fails with the expectation and with what
    found() tells of the state at the end.
    """
    deadline = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise AssertionError(_message(expectation, seconds, found))
        time.sleep(POLL_SECONDS)


def _message(expectation, seconds, found):
    message = f"not within {seconds} s: {expectation}"
    return message if found is None else f"{message}; found: {found()}"
