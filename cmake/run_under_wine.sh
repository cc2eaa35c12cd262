#!/usr/bin/env bash
# Runs a Windows program in a wine prefix of its own, which is made when it is first needed.
#
# Usage: run_under_wine.sh PREFIX PROGRAM [ARGUMENT...]
#
# Of some thousand programs wine fails to run one, and runs it when asked again. A program that
# failed without having written a byte is therefore run once more; $PREFIX/run_again.log tells of it.
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

# A terminal is no pipe: what a program does with one shows only on the terminal itself.
if [ -t 1 ] || [ -t 2 ]; then
  exec wine "$@"
fi

written=$(mktemp)
trap 'rm "$written"' EXIT

# Copies its input to its output as it comes, byte for byte, and notes that there was some.
pass_on() {
  head -c 1 | tee -a "$written"
  cat
}

# Runs the program and answers its exit code. Where both streams are one, they stay one, so that what
# is written to them keeps its order. What this shell says of a killed program is not the program's.
run() {
  if [ /dev/fd/1 -ef /dev/fd/2 ]; then
    {
      wine "$@" 2>&1 | pass_on
      return "${PIPESTATUS[0]}"
    } 2>/dev/null
  fi
  # Through 3 the errors pass by the pipe of the output, through 4 the output by that of the errors.
  {
    {
      wine "$@" 2>&3 3>&- 4>&- | pass_on >&4 3>&- 4>&-
      exit "${PIPESTATUS[0]}"
    } 3>&1 2>/dev/null | pass_on >&2 4>&-
    return "${PIPESTATUS[0]}"
  } 4>&1
}

set +e
run "$@"
status=$?
if [ "$status" -ne 0 ] && [ ! -s "$written" ]; then
  echo "exit code $status: $*" >>"$WINEPREFIX/run_again.log"
  run "$@"
  status=$?
fi
exit "$status"
