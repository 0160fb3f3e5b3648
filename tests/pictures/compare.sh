#!/bin/sh
# Draws every section in both skins and all languages and compares that with docs/pictures:
# compare.sh CLIENT FOLDER. Where more differs than how a line is smoothed, FOLDER/differences shows it in red.
set -eu
root=$(cd "$(dirname "$0")/../.." && pwd)
client=$1
folder=$2
tolerance=4% # of a colour's range, which no eye tells apart
allowed=100  # pixels of 660,000 that may differ more; a moved caption changes several hundred

rm -rf "$folder"
mkdir -p "$folder/drawn"
"$root/scripts/pictures.sh" "$client" "$folder/drawn"

(cd "$root/docs/pictures" && find . -name '*.png' -printf '%P\n' | sort) >"$folder/recorded.txt"
(cd "$folder/drawn" && find . -name '*.png' -printf '%P\n' | sort) >"$folder/drawn.txt"
[ -s "$folder/drawn.txt" ] || { echo "Nothing was drawn" >&2; exit 1; }
if ! diff "$folder/recorded.txt" "$folder/drawn.txt"; then
    echo "docs/pictures has not the pictures that are drawn; scripts/pictures.sh makes them" >&2
    exit 1
fi

failed=0
while read -r picture; do
    cmp -s "$root/docs/pictures/$picture" "$folder/drawn/$picture" && continue
    difference="$folder/differences/$picture"
    mkdir -p "$(dirname "$difference")"
    differing=$(compare -metric AE -fuzz "$tolerance" "$root/docs/pictures/$picture" "$folder/drawn/$picture" "$difference" 2>&1) ||
        true # the number says it
    case $differing in
        *[!0-9]* | '') echo "$picture: $differing" ;;
        *)
            if [ "$differing" -le "$allowed" ]; then
                rm "$difference"
                continue
            fi
            echo "$picture: $differing pixels differ, see $difference"
            ;;
    esac
    failed=$((failed + 1))
done <"$folder/drawn.txt"

if [ "$failed" -gt 0 ]; then
    echo "$failed pictures differ from docs/pictures; if they are meant to, scripts/pictures.sh records them" >&2
    exit 1
fi
echo "$(wc -l <"$folder/drawn.txt") pictures are those of docs/pictures"
