#!/usr/bin/env bash
# Compares the export tables of the DLLs with those that are recorded beside this script:
# exports.sh <objdump> <folder of the DLLs> [--renew]. With --renew it records what it finds, for a change that is meant.
set -eu
here=$(dirname "$(realpath "$0")")
differ=0
for library in LocalConfig KvGui UICommonModule; do
    record=$here/$library.dll.txt
    found=$("$1" -p "$2/$library.dll" | sed -n '/^\[Ordinal\/Name Pointer\]/,/^$/s/^.*\] *\(_.*\)$/\1/p' | LC_ALL=C sort)
    [ -n "$found" ] || { echo "$library.dll exports nothing"; exit 1; }
    if [ "${3:-}" = --renew ]; then
        echo "$found" >"$record"
    elif ! diff -u --label "recorded $library.dll" --label "$library.dll now" "$record" <(echo "$found"); then
        differ=1
    fi
done
[ $differ -eq 0 ] || echo "If this is meant: bump the version in CMakeLists.txt, and renew the record with --renew"
exit $differ
