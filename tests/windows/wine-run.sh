#!/bin/sh
# Runs a Windows program of the build under Wine in the build's own prefix, which is created on
# first use.  Usage: wine-run.sh PREFIX PROGRAM [ARGUMENTS...]
set -e
prefix=$(realpath -m "$1")
shift
here=$(dirname "$0")
"$here/wine-prefix.sh" "$prefix"
export WINEPREFIX="$prefix" WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
# One Wine server for the whole test run: starting it (and Wine's services) anew for every
# program costs seconds each time.
# Its services (started with the first program) must not hold the caller's output open, or
# ctest would wait for them: they are started here, with no output of ours.
wineserver -p 60 </dev/null >/dev/null 2>&1 || true
wine cmd.exe /c exit </dev/null >/dev/null 2>&1
exec wine "$@"
