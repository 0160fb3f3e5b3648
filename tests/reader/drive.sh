#!/usr/bin/env bash
# Gives drive.py a display, a window manager and two buses of its own, and takes them away again.
# Usage: drive.sh <client>
set -eu
drive="$(cd "$(dirname "$0")" && pwd)/drive.py"

folder=$(mktemp -d)
display_server=""
cleanup() {
    if [ -n "$display_server" ]; then
        kill "$display_server" 2>/dev/null || true
        wait "$display_server" 2>/dev/null || true
    fi
    rm -rf "$folder"
}
trap cleanup EXIT

# Nothing of a user's session is to be seen or changed.
export HOME="$folder" XDG_RUNTIME_DIR="$folder" XDG_CONFIG_HOME="$folder/config" XDG_DATA_HOME="$folder/share"
export GSETTINGS_BACKEND=memory
unset QT_QPA_PLATFORM DBUS_SESSION_BUS_ADDRESS AT_SPI_BUS_ADDRESS WAYLAND_DISPLAY

# Without a reset, for programs find the bus by a property that would go with the last one that looked.
Xvfb -displayfd 3 -screen 0 1600x1000x24 -nolisten tcp -noreset 3>"$folder/display" 2>"$folder/xvfb.log" &
display_server=$!
for _ in $(seq 100); do
    [ -s "$folder/display" ] && break
    sleep 0.1
done
if [ ! -s "$folder/display" ]; then
    cat "$folder/xvfb.log" >&2
    exit 1
fi
DISPLAY=":$(cat "$folder/display")"
export DISPLAY

# The service of the buses dies with dbus-run-session.
timeout --kill-after=5 60 dbus-run-session -- /usr/bin/python3 -B "$drive" "$1" "$folder/data" 2>"$folder/drive.log" || {
    result=$?
    grep -v '^dbus-daemon\|^SpiRegistry\|^Openbox' "$folder/drive.log" >&2 || true
    exit "$result"
}
