#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Usage: screenshot.sh PROGRAM PICTURE
# Starts the program on a virtual display with a window manager, waits for its
# window, saves a picture of it and ends all of them. The user's settings are
# neither read nor written.
set -euo pipefail
program=$1
picture=$2

work=$(mktemp -d)
started=()
finish() {
    for process in "${started[@]}"; do
        kill "$process" 2>/dev/null || true
        wait "$process" 2>/dev/null || true
    done
    rm -rf "$work"
}
trap finish EXIT

# Polls a command until it succeeds, for 20 seconds at the most.
wait_for() {
    local tries
    for tries in $(seq 200); do
        "$@" >/dev/null 2>&1 && return
        sleep 0.1
    done
    echo "No answer from: $*" >&2
    return 1
}

mkfifo "$work/number"
Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3>"$work/number" 2>/dev/null &
started+=($!)
read -r number <"$work/number"
export DISPLAY=:$number
unset WAYLAND_DISPLAY

openbox --sm-disable >/dev/null 2>&1 &
started+=($!)
wait_for xprop -root _NET_SUPPORTING_WM_CHECK

XDG_CONFIG_HOME="$work" XDG_RUNTIME_DIR="$work" QT_QPA_PLATFORM=xcb "$program" &
started=($! "${started[@]}")
wait_for xdotool search --onlyvisible --name '^Monthly calendars$'
window=$(xdotool search --onlyvisible --name '^Monthly calendars$' | head -n 1)
# The window is painted when its picture has stopped changing.
before=
while now=$(import -window "$window" rgb:- | md5sum) && [ "$now" != "$before" ]; do
    before=$now
    sleep 0.3
done
mkdir -p "$(dirname "$picture")"
import -window "$window" "$picture"
echo "Picture of the window saved to $picture"
