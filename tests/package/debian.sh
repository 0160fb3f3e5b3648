#!/usr/bin/env bash
# Installs the Debian packages into an empty root, builds the example there in both ways, photographs it, and takes the
# packages away again. debian.sh <source folder> <work folder>
set -eu
source=$(realpath "$1")
rm -rf "$2"
mkdir -p "$2"
work=$(realpath "$2")
. "$source/scripts/prepare.sh"
fail() {
    echo "$*" >&2
    exit 1
}
if [ "$(id -u)" -ne 0 ] && [ -z "${FAKEROOTKEY:-}" ]; then
    exec fakeroot "$0" "$source" "$work"
fi

"$source/scripts/package.sh"
packages=("$source"/build/package/*.deb)
[ ${#packages[@]} -eq 3 ] || fail "not three packages: ${packages[*]}"
lintian --allow-root --fail-on error,warning "${packages[@]}"

recommended=$(for package in "${packages[@]}"; do dpkg-deb --field "$package" Recommends; done)
# shellcheck disable=SC2153 # from prepare.sh
for package in $LETTERS; do
    [[ $recommended == *"$package"* ]] || fail "no package recommends $package"
done

root=$work/root
mkdir -p "$root"/var/lib/dpkg/{info,updates,triggers}
touch "$root/var/lib/dpkg/status"
manage() { dpkg --root="$root" --force-not-root,depends,script-chrootless,bad-path "$@" >"$work/dpkg.log" 2>&1 || fail "$(cat "$work/dpkg.log")"; }
manage --install "${packages[@]}"

libraries=$(dirname "$(find "$root/usr/lib" -name 'libLocalConfig.so')")
export QT_QPA_PLATFORM=offscreen
export LD_LIBRARY_PATH=$libraries KV_CLIENT_RESOURCES=$root/usr/share/local-config-client
for library in LocalConfig KvGui UICommonModule; do
    readelf -d "$libraries/lib$library.so" | grep -q "SONAME.*\[lib$library.so.1\]" || fail "lib$library has no SONAME"
done

# The README shows how a host opens the dialog; so does it.
# shellcheck disable=SC2016 # the marks of a code block
shown=$(sed -n '/^```cpp$/,/^```$/p' "$source/README.md" | sed '1,/^$/d;/^```$/d')
[[ $shown == void* && $(<"$source/examples/host/main.cpp") == *"$shown"* ]] || fail "README and example differ"

# check <program> <name>: it draws the dialog.
check() {
    "$1" "$work/$2.png" >"$work/run.log" 2>&1 || fail "$2 does not run: $(cat "$work/run.log")"
    file "$work/$2.png" | grep -q 'PNG image data, 9[0-9][0-9] x' || fail "$2 draws no dialog: $(file "$work/$2.png")"
}
cmake -S "$source/examples/host" -B "$work/by-cmake" -G Ninja -DCMAKE_PREFIX_PATH="$root/usr" >"$work/cmake.log" || fail "$(cat "$work/cmake.log")"
grep -q "LocalConfig_DIR:PATH=$root/" "$work/by-cmake/CMakeCache.txt" || fail "another LocalConfig was found"
cmake --build "$work/by-cmake" >"$work/cmake.log" || fail "$(cat "$work/cmake.log")"
check "$work/by-cmake/local-config-host" by-cmake

export PKG_CONFIG_PATH=$libraries/pkgconfig
# shellcheck disable=SC2046 # options
c++ -std=c++17 -fPIC "$source/examples/host/main.cpp" $(pkg-config --cflags --libs local-config) -o "$work/by-pkg-config"
check "$work/by-pkg-config" by-pkg-config
cmp "$work/by-cmake.png" "$work/by-pkg-config.png" || fail "the two differ"

client=$root/usr/bin/local-config-client
mkdir "$work/data"
"$client" --data-dir "$work/data" --dump | grep -q '"sections"' || fail "the client does not run"
manual=$(gunzip -c "$root/usr/share/man/man1/local-config-client.1.gz" | sed 's/\\-/-/g')
for option in $("$client" --help | grep -o -- '^ *--[a-z-]*'); do
    grep -q -- "$option\b" <<<"$manual" || fail "the manual page does not know $option"
done

manage --purge liblocalconfig-dev local-config-client liblocalconfig1
left=$(find "$root/usr" ! -type d 2>/dev/null || true)
[ -z "$left" ] || fail "left behind: $left"
