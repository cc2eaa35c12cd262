#!/usr/bin/env bash
# Runs a Windows program in a wine prefix of its own, which is made when it is first needed.
#
# Usage: run_under_wine.sh PREFIX PROGRAM [ARGUMENT...]
set -euo pipefail

export WINEPREFIX=$1
shift
export WINEDEBUG=-all
# Without these two nobody offers to download anything.
export WINEDLLOVERRIDES='mscoree,mshtml='
unset DISPLAY WAYLAND_DISPLAY

if [ ! -e "$WINEPREFIX/.complete" ]; then
  mkdir -p "$WINEPREFIX"
  # Several may come at once; one makes it, the others wait.
  (
    flock 9
    if [ ! -e "$WINEPREFIX/.complete" ]; then
      wine wineboot --init >/dev/null 2>&1
      touch "$WINEPREFIX/.complete"
    fi
  ) 9>"$WINEPREFIX/.lock"
fi
exec wine "$@"
