#!/bin/sh
# The biller dialog in a real X window (Xvfb) under a window manager (openbox), driven with real
# key events (xdotool): typing is upper-cased by the dialog, Tab and Shift+Tab move the focus, an
# access key selects its option, and the window manager's close (Alt+F4) closes the dialog.
# Every wait is bounded; the X server, the window manager and the dialog are stopped however the
# test ends.
# Usage: real_window_test.sh PROBE
set -u
probe=$1
work=$(mktemp -d)
xvfb_pid='' wm_pid='' probe_pid=''
cleanup() {
  for pid in $probe_pid $wm_pid $xvfb_pid; do kill "$pid" 2>/dev/null; done
  sleep 0.2
  for pid in $probe_pid $wm_pid $xvfb_pid; do kill -9 "$pid" 2>/dev/null; done
  rm -rf "$work"
}
trap cleanup EXIT
fail() {
  echo "real window: $*" >&2
  exit 1
}

# A display number of the server's own choosing, free on this machine.
Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3>"$work/display" 2>"$work/xvfb.log" &
xvfb_pid=$!
for _ in $(seq 50); do [ -s "$work/display" ] && break; sleep 0.1; done
[ -s "$work/display" ] || fail "Xvfb did not start: $(cat "$work/xvfb.log")"
export DISPLAY=":$(cat "$work/display")"
unset WAYLAND_DISPLAY QT_QPA_PLATFORM
export QT_QPA_PLATFORM=xcb

openbox >"$work/openbox.log" 2>&1 &
wm_pid=$!
# The window manager is up once it owns the screen's manager selection.
for _ in $(seq 50); do
  xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' && break
  sleep 0.1
done

"$probe" >"$work/out" 2>"$work/err" &
probe_pid=$!
window=$(timeout 20 xdotool search --sync --onlyvisible --name "Biller / Funds Transfer") ||
  fail "no dialog window: $(cat "$work/err")"
window=$(echo "$window" | head -n 1)
timeout 10 xdotool windowactivate --sync "$window" || fail "the dialog could not be activated"
# Keys go to the window that has the input focus: wait until the dialog has it.
for _ in $(seq 50); do
  [ "$(xdotool getwindowfocus 2>/dev/null)" = "$window" ] && break
  sleep 0.1
done
sleep 0.5

# The focus opens on the street: add to it; Tab to the city, Shift+Tab back, add again.
xdotool key --delay 60 End
xdotool type --delay 60 " suite 9"
xdotool key --delay 60 Tab shift+Tab End
xdotool type --delay 60 "x"
# Alt+I, the underlined letter of "Individual": selected, and its Click moves on to the phone.
xdotool key --delay 60 alt+i
sleep 0.3
xdotool key alt+F4

for _ in $(seq 100); do kill -0 "$probe_pid" 2>/dev/null || break; sleep 0.1; done
kill -0 "$probe_pid" 2>/dev/null && fail "the window manager's close did not close the dialog"
wait "$probe_pid" || fail "the dialog's program failed: $(cat "$work/err")"
probe_pid=''

# What the probe printed as the window was asked to close: the model and the widgets agree.
want=$(printf '%s\n' "ran_payee_street=100 KING ST W SUITE 9X" \
  "ran_payee_street shown=100 KING ST W SUITE 9X" "ran_payee_city=TORONTO" \
  "ran_payee_city shown=TORONTO" "individual=-1" "focus=ran_payee_ph_area")
got=$(cat "$work/out")
[ "$got" = "$want" ] || fail "expected: $(echo $want); got: $(echo $got)"
echo "real window: typed, tabbed back, pressed an access key and closed as expected"
