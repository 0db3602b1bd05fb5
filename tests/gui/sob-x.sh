#!/usr/bin/env bash
# Runs a command on a virtual X server of its own, with a small window manager, and takes both down with it:
#
#   tests/gui/sob-x.sh [-t <largura>x<altura>] COMMAND [ARGUMENT]...
#
# The screen is 1280x1024 unless told otherwise. The exit code is the command's.
set -euo pipefail

size=1280x1024
if [ "${1:-}" = -t ]; then
  size=$2
  shift 2
fi
if [ $# -eq 0 ]; then
  echo "uso: sob-x.sh [-t LxA] COMANDO..." >&2
  exit 2
fi

place=$(mktemp -d)
server=
manager=
clean_up() {
  trap - EXIT
  local process
  for process in $manager $server; do
    kill "$process" 2>/dev/null || true
    wait "$process" 2>/dev/null || true
  done
  rm -rf "$place"
}
trap clean_up EXIT
trap 'exit 143' TERM
trap 'exit 130' INT

# The server itself picks a free display and writes its number once it can be connected to.
mkfifo "$place/display"
Xvfb -displayfd 9 -screen 0 "${size}x24" -nolisten tcp -noreset 9>"$place/display" >"$place/xvfb.log" 2>&1 &
server=$!
if ! read -r -t 30 number <"$place/display"; then
  echo "sob-x.sh: the X server did not start" >&2
  cat "$place/xvfb.log" >&2
  exit 1
fi
export DISPLAY=:$number
unset WAYLAND_DISPLAY

mkdir -p "$place/config/openbox"
XDG_CONFIG_HOME=$place/config openbox --sm-disable >"$place/openbox.log" 2>&1 &
manager=$!
# A window opened before the manager is there is not decorated nor given the focus.
for ((try = 0; try < 100; ++try)); do
  if xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; then break; fi
  sleep 0.1
done

status=0
"$@" || status=$?
exit "$status"
