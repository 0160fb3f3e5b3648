#!/usr/bin/env bash
# Compares what the libraries offer to programs that are already compiled with what is recorded beside this script:
# abi.sh <folder of the libraries> [--renew]. With --renew it records what it finds, for a change that is meant.
set -eu
here=$(dirname "$(realpath "$0")")
libraries=$(realpath "$1")
renew=${2:-}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
differ=0

describe() { abidw --no-show-locs --no-comp-dir-path --no-corpus-path "$1"; }

# compare <name>: "$work/<name>.abi" with the record.
compare() {
    if [ "$renew" = --renew ]; then
        cp "$work/$1.abi" "$here/$1.abi"
    elif ! diff -u --label "recorded $1" --label "$1 now" "$here/$1.abi" "$work/$1.abi"; then
        differ=1
    fi
}

# The symbols alone, of ours; what of Qt's is compiled into a library is nobody's business.
for library in LocalConfig KvGui UICommonModule; do
    strip -o "$work/lib$library.so" "$libraries/lib$library.so"
    describe "$work/lib$library.so" | grep -v '<dependency ' |
        sed -E '/<elf-symbol /{/KVGUI|LocalConfig|UICommonMdl|3Pxa/!d}' >"$work/$library.abi"
    compare $library
done

describe "$libraries/libTables.so" >"$work/Tables.abi"
if [ "$renew" = --renew ]; then
    compare Tables
elif ! abidiff --harmless "$here/Tables.abi" "$work/Tables.abi"; then
    differ=1
fi

[ $differ -eq 0 ] || echo "If this is meant: bump the version in CMakeLists.txt, and renew the record with --renew"
exit $differ
