#!/bin/sh
# Peak resident memory (KiB) of `nvrandom demo` on the offscreen platform against the bare-dialog
# program's, each the median of five runs (the runs alternate, so a busy moment weighs on both),
# and their ratio. Usage: bench/qt/peak_memory.sh [BUILD_DIR] (build/release).
set -eu
build=${1:-build/release}
runs=5
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
export QT_QPA_PLATFORM=offscreen
for run in $(seq "$runs"); do
  /usr/bin/time -a -o "$out/demo.kib" -f %M "$build/tools/nvrandom/nvrandom" demo --offscreen \
    --out "$out/demo-$run" >/dev/null 2>&1
  /usr/bin/time -a -o "$out/bare.kib" -f %M "$build/bench/nvrandom_bare_dialog" "$out" \
    >/dev/null 2>&1
done
median() { sort -n "$1" | sed -n "$(((runs + 1) / 2))p"; }
demo=$(median "$out/demo.kib")
bare=$(median "$out/bare.kib")
echo "peak memory (median of $runs runs): nvrandom demo $demo KiB, bare dialog $bare KiB, ratio" \
  "$(awk -v d="$demo" -v b="$bare" 'BEGIN { printf "%.2f", d / b }')"
