#!/bin/sh
# Registers the account verifier DLL in the test prefix, runs a Windows program of the build, and
# unregisters the verifier again whatever the program's outcome (its exit status is the script's),
# so that the tests after it find the installation without a verifier of its own.
# Usage: with-verifier.sh PREFIX VERIFIER_DLL PROGRAM [ARGUMENTS...]
set -e
prefix=$1 dll=$2
shift 2
run() { "$(dirname "$0")/wine-run.sh" "$prefix" "$@"; }
run regsvr32 /s "$dll"
trap 'run regsvr32 /s /u "$dll"' EXIT
# A run stopped by ctest's timeout unregisters too.
trap 'exit 1' INT TERM
run "$@"
