#!/bin/sh
# Registers NVRandom.dll for the user in the test prefix, checks that unregistering removes it and
# registers it again; then mirrors the user's class keys into the machine hive, because Wine's COM
# reads class registrations from there only (test set-up only: the DLL itself registers per user).
# Usage: com-setup.sh PREFIX DLL
set -e
here=$(cd "$(dirname "$0")" && pwd)
prefix=$1
dll=$2
run() { "$here/wine-run.sh" "$prefix" "$@"; }
clsid='{6E0B7C3A-2F41-4B8E-9C55-1D2A7F3E9B04}'
run regsvr32 /s "$dll"
run reg query "HKCU\\Software\\Classes\\NVRandom.ClsRandom\\CLSID" >/dev/null
run regsvr32 /s /u "$dll"
if run reg query "HKCU\\Software\\Classes\\CLSID\\$clsid" >/dev/null 2>&1; then
  echo "FAIL: the class is still registered after DllUnregisterServer" >&2
  exit 1
fi
run regsvr32 /s "$dll"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for key in "CLSID\\$clsid" NVRandom.ClsRandom NVRandom.ClsRandom.1; do
  run reg export "HKCU\\Software\\Classes\\$key" "$work/user.reg" /y \
    >/dev/null 2>&1
  iconv -f UTF-16LE -t UTF-8 "$work/user.reg" | sed 's/HKEY_CURRENT_USER/HKEY_LOCAL_MACHINE/' |
    iconv -f UTF-8 -t UTF-16LE >"$work/machine.reg"
  run reg import "$work/machine.reg" >/dev/null 2>&1
done
echo "PASS registration round trip; classes mirrored into HKLM"
