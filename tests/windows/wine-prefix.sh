#!/bin/sh
# Creates the Wine prefix the Windows tests run in, once (several tests may ask at the same time):
# no desktop graphics (dialogs run without an X server), no Mono or Gecko installers. With "x11"
# the prefix draws on the X display instead (for screenshots): windows neither managed nor
# decorated by the window manager, so they look the same on any display.
# Usage: wine-prefix.sh PREFIX [x11]
set -e
prefix=$(realpath -m "$1")
[ -f "$prefix/.nvrandom-ready" ] && exit 0
mkdir -p "$(dirname "$prefix")"
export WINEPREFIX="$prefix" WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
exec 9>"$prefix.lock"
flock 9
[ -f "$prefix/.nvrandom-ready" ] && exit 0
wine=$(command -v wine || command -v wine64 || true)
if [ -z "$wine" ]; then
  echo "wine-prefix.sh: Wine is not installed (sudo apt-get install wine64)" >&2
  exit 1
fi
start=$(date +%s)
wineboot -i >/dev/null 2>&1
if [ "$2" = "x11" ]; then
  for value in Managed Decorated; do
    wine reg add 'HKCU\Software\Wine\X11 Driver' /v $value /d N /f >/dev/null 2>&1
  done
else
  wine reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d null /f >/dev/null 2>&1
fi
wineserver -w
touch "$prefix/.nvrandom-ready"
echo "wine-prefix.sh: prefix $prefix ready in $(($(date +%s) - start)) s" >&2
