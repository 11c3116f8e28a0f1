#!/bin/sh
# Screenshots of the Win32 dialogs: runs the dialog client's screenshot test under Xvfb, in a
# Wine prefix of its own that draws with Wine's X11 driver (unmanaged, undecorated windows), and
# checks them; with --docs, also writes them as PNG files into docs/screenshots (ImageMagick).
# Usage: screenshots.sh BUILD_DIR DIALOG_CLIENT_TEST [--docs]
set -e
here=$(cd "$(dirname "$0")" && pwd)
build=$(realpath "$1")
client=$2
prefix=$build/wine-x11
out=$build/screenshots
rm -rf "$out"
mkdir -p "$out"
status=0
NVRANDOM_WINE_X11=1 xvfb-run -a -s "-screen 0 1280x1024x24" \
  "$here/wine-run.sh" "$prefix" "$client" --gtest_filter='Screenshots.*' \
  --install "Z:$build/data" --screenshots "Z:$out" || status=$?
# The prefix's Wine server must not outlive the X server it drew on.
WINEPREFIX=$prefix wineserver -k 2>/dev/null || true
[ "$status" -eq 0 ] || exit "$status"
ls "$out"/*.bmp >/dev/null
if [ "$3" = "--docs" ]; then
  docs=$here/../../docs/screenshots
  mkdir -p "$docs"
  for bmp in "$out"/*.bmp; do
    convert "$bmp" -strip "$docs/win32-$(basename "$bmp" .bmp).png"
  done
  echo "screenshots.sh: docs/screenshots updated"
fi
