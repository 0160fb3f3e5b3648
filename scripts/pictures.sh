#!/usr/bin/env bash
# Draws every section of the dialog, in both skins and in every language, into docs/pictures, and takes away what is no
# longer drawn. With the arguments CLIENT FOLDER it draws with a client that is built, into another folder.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)

if [ $# -eq 0 ]; then
    cd "$root"
    # shellcheck source=scripts/prepare.sh
    . scripts/prepare.sh
    # shellcheck disable=SC2086 # lists of packages
    prepare $BUILD_PACKAGES
    [ -f build/run/build.ninja ] ||
        quietly cmake -S . -B build/run -G Ninja -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF
    quietly cmake --build build/run
    rm -rf docs/pictures
    "$0" "$root/build/run/bin/local-config-client" "$root/docs/pictures"
    echo "$(find docs/pictures -name '*.png' | wc -l) pictures in docs/pictures"
    exit
fi

client=$1
folder=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
sections="basic video playback snapshot recording alarm wall security keys"
skins=""
for file in "$root"/platform/skin/*/palette.json; do
    skin=${file%/palette.json}
    skins="$skins ${skin##*/}"
done
languages="en"
for file in "$root"/LocalConfig/translations/LocalConfig_*.ts; do
    language=${file##*/LocalConfig_}
    languages="$languages ${language%.ts}"
done

# The same on every machine: no fonts but those that prepare.sh installs, no folder of this machine in a path field.
export FONTCONFIG_FILE="$root/tests/support/fonts.conf" XDG_CACHE_HOME="$work/cache" XDG_RUNTIME_DIR="$work"
export HOME="$work" LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen
unset QT_SCALE_FACTOR QT_FONT_DPI QT_SCREEN_SCALE_FACTORS LANGUAGE
"$client" --data-dir "$work/data" --set snapshot.picturePath=/home/operator/Pictures/ \
    --set record.recordPath=/home/operator/Videos/ >/dev/null

for skin in $skins; do
    for language in $languages; do
        mkdir -p "$folder/$skin/$language"
        number=0
        for section in $sections; do
            printf '%s\0' "--section $number --skin $skin --language $language --screenshot '$folder/$skin/$language/$section.png'"
            number=$((number + 1))
        done
    done
done | xargs -0 -P "$(nproc)" -I {} sh -c "exec '$client' --data-dir '$work/data' {}" >"$work/messages" 2>&1 ||
    { cat "$work/messages" >&2; exit 1; }
