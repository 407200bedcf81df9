#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Usage: make_pictures.sh [FOLDER]
# Draws every picture of the documentation, into docs/pictures if no folder is
# named.
set -euo pipefail
folder=$(realpath "${1:-$(dirname "$0")/pictures}")
cd "$(dirname "$0")/.."
. packaging/packages.sh

need_packages "${build_packages[@]}" "${run_packages[@]}" libbenchmark-dev libicu-dev
build_preset quick --target make_pictures
# Nothing of the user's environment shows. The screen that the program draws on
# cannot raise windows and would say so for each of them.
env -i QT_LOGGING_RULES=default.warning=false build/quick/bin/make_pictures "$folder"
