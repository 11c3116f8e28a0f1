#!/bin/sh
# Runs a Windows program of the build under Wine in the build's own prefix, which is created on
# first use (several tests may ask at the same time): no desktop graphics (dialogs run without an
# X server), no Mono or Gecko installers. With NVRANDOM_WINE_X11=1 a new prefix draws on the X
# display instead (for screenshots): windows neither managed nor decorated by the window manager,
# so they look the same on any display.
# Usage: [NVRANDOM_WINE_X11=1] wine-run.sh PREFIX PROGRAM [ARGUMENTS...]
set -e
prefix=$(realpath -m "$1")
shift
export WINEPREFIX="$prefix" WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
exec 9>"$prefix.lock"
flock 9
if [ ! -f "$prefix/.nvrandom-ready" ]; then
  wineboot -i >/dev/null 2>&1
  if [ "$NVRANDOM_WINE_X11" = 1 ]; then
    wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null 2>&1
    wine reg add 'HKCU\Software\Wine\X11 Driver' /v Decorated /d N /f >/dev/null 2>&1
  else
    wine reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d null /f >/dev/null 2>&1
  fi
  wineserver -w
  touch "$prefix/.nvrandom-ready"
fi
exec 9>&-
# One Wine server for the whole test run: starting it (and Wine's services) anew for every
# program costs seconds each time.
# Its services (started with the first program) must not hold the caller's output open, or
# ctest would wait for them: they are started here, with no output of ours.
wineserver -p 60 </dev/null >/dev/null 2>&1 || true
wine cmd.exe /c exit </dev/null >/dev/null 2>&1
exec wine "$@"
