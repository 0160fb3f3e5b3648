#!/usr/bin/env bash
# Runs the fuzzers: a minute each, or a million inputs each with KV_LONG=1. Arguments name those to run alone.
# They begin with the files in corpus/. An input that breaks something is kept, and its file named.
set -eu
cd "$(dirname "$0")/../.."
. scripts/prepare.sh

# shellcheck disable=SC2086 # a list of packages
prepare $BUILD_PACKAGES clang libclang-rt-14-dev
[ -f build/fuzz/build.ninja ] || quietly cmake --preset fuzz
quietly cmake --build --preset fuzz

export QT_QPA_PLATFORM=offscreen LSAN_OPTIONS="suppressions=$PWD/tests/support/lsan.supp:print_suppressions=0"
length=-max_total_time=60
[ "${KV_LONG:-0}" = 0 ] || length=-runs=1000000

# run <fuzzer>: one fuzzer, in a corner of its own.
run() {
    found="$PWD/build/fuzz/found/$1"
    mkdir -p "$found"
    leaks=1
    [ "$1" != SettingsDocument ] || leaks=0 # Qt's parser leaves memory behind where a document is damaged
    if ! ASAN_OPTIONS=detect_leaks=$leaks "build/fuzz/tests/bin/fuzz_$1" "$length" -timeout=10 -max_len=4096 \
        -detect_leaks=$leaks -print_final_stats=1 -artifact_prefix="$found/broken-" \
        "$found" "$PWD/tests/reliability/corpus/$1" >"$found.log" 2>&1; then
        tail -n 60 "$found.log"
        echo "fuzz_$1: broken"
        return 1
    fi
    sed -n "s/^stat::number_of_executed_units: */fuzz_$1: inputs /p" "$found.log"
}
export -f run
export length

[ $# -gt 0 ] || set -- SettingsDocument AlarmLink IniFile AlarmCatalogue WaveFile
# shellcheck disable=SC2016 # the inner shell expands it
printf '%s\0' "$@" | xargs -0 -n 1 -P "$(nproc)" bash -c 'run "$1"' fuzz
