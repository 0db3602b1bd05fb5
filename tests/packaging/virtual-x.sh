#!/bin/sh
# Inside the virtual X server: the screen is as large as asked, and a window manager is there.
set -eu
xdpyinfo | grep -q "dimensions: *$1 pixels"
xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'
