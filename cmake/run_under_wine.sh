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
# In the system's plain locale wine could only name files in ASCII.
export LC_ALL=C.UTF-8

mkdir -p "$WINEPREFIX"
# The server's first client starts wine's services, and they keep its output open as long as they
# live: whoever read our program's output to its end would wait for them. So the server is started
# here, with a client that has no output, and stays for a minute after its last client. Nor may it
# keep the lock, by which one starts it and the others wait. What goes wrong, our program tells.
(
  flock 9
  if wineserver -p60 9>&-; then
    wine wineboot 9>&- || true
  fi
) 9>"$WINEPREFIX/.lock" </dev/null >/dev/null 2>&1
exec wine "$@"
