#!/bin/sh
# Peak resident memory (KiB) of `nvrandom demo` on the offscreen platform against the bare-dialog
# program's, and their ratio. Usage: bench/qt/peak_memory.sh [BUILD_DIR] (build/release).
set -eu
build=${1:-build/release}
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
export QT_QPA_PLATFORM=offscreen
/usr/bin/time -o "$out/demo.kib" -f %M "$build/tools/nvrandom/nvrandom" demo --offscreen \
  --out "$out/demo" >/dev/null 2>&1
/usr/bin/time -o "$out/bare.kib" -f %M "$build/bench/nvrandom_bare_dialog" "$out" >/dev/null 2>&1
demo=$(tail -n 1 "$out/demo.kib")
bare=$(tail -n 1 "$out/bare.kib")
echo "peak memory: nvrandom demo $demo KiB, bare dialog $bare KiB, ratio" \
  "$(awk -v d="$demo" -v b="$bare" 'BEGIN { printf "%.2f", d / b }')"
