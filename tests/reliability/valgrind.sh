#!/usr/bin/env bash
# Opens and closes the dialog under valgrind, 5 times or with KV_LONG=1 200 times: no leak, no wrong access to memory.
set -eu
cd "$(dirname "$0")/../.."
. scripts/prepare.sh

# shellcheck disable=SC2086 # lists of packages
prepare $BUILD_PACKAGES $TEST_PACKAGES valgrind
[ -f build/dev/build.ninja ] || quietly cmake --preset dev
quietly cmake --build --preset dev

root=$PWD
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
cd "$home"
export HOME="$home" XDG_CONFIG_HOME="$home/.config" XDG_DATA_HOME="$home/.local/share" XDG_RUNTIME_DIR="$home"
export LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen KV_CLIENT_RESOURCES="$root/build/dev/share/local-config-client"
export QT_ENABLE_REGEXP_JIT=0 # valgrind takes the code that is made at run time for a fault
if ! valgrind --quiet --leak-check=full --show-leak-kinds=definite,possible --errors-for-leak-kinds=definite,possible \
    --error-exitcode=1 --num-callers=40 --suppressions="$root/tests/reliability/valgrind.supp" --log-file="$home/valgrind.log" \
    "$root/build/dev/tests/bin/tst_LongLife" NoWidgetOutlivesTheDialog >"$home/test.log" 2>&1; then
    tail -n 20 "$home/test.log"
    cat "$home/valgrind.log"
    exit 1
fi
echo "valgrind: nothing to complain of"
