# shellcheck shell=bash disable=SC2034 # the lists are for those who source this

# Sourced by ./run and ./test: installs the Debian packages that are missing, and says what it does only when it does
# something. Usage: prepare <package>...

prepare() {
    missing=""
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q '^install ok installed$' || missing="$missing $package"
    done
    [ -n "$missing" ] || return 0

    echo "Installing:$missing"
    if [ "$(id -u)" -eq 0 ]; then
        as_root=""
    elif command -v sudo >/dev/null; then
        as_root="sudo"
    else
        echo "These packages are missing and only root can install them:$missing" >&2
        return 1
    fi
    log=$(mktemp)
    # shellcheck disable=SC2086 # the list is split on purpose
    if ! { $as_root apt-get update -qq && DEBIAN_FRONTEND=noninteractive $as_root apt-get install -y -qq --no-install-recommends $missing; } >"$log" 2>&1; then
        cat "$log" >&2
        echo "The packages could not be installed:$missing" >&2
        rm -f "$log"
        return 1
    fi
    rm -f "$log"
}

# Prints a command's output only when it fails.
quietly() {
    log=$(mktemp)
    if "$@" >"$log" 2>&1; then
        rm -f "$log"
        return 0
    fi
    cat "$log" >&2
    rm -f "$log"
    return 1
}

# What the client writes its languages with, and Qt's own texts in them.
LETTERS="fonts-inter fonts-dejavu-core fonts-wqy-microhei qttranslations5-l10n"
BUILD_PACKAGES="g++ cmake ninja-build ccache qtbase5-dev qttools5-dev qttools5-dev-tools libqt5svg5 qtmultimedia5-dev libqt5multimedia5-plugins libpugixml-dev $LETTERS"
PACKAGE_TOOLS="dpkg-dev file gzip"
TEST_PACKAGES="$PACKAGE_TOOLS lintian pkg-config fakeroot util-linux binutils pulseaudio pulseaudio-utils python3-jsonschema abigail-tools doxygen xvfb openbox xdotool dbus-daemon at-spi2-core python3-gi gir1.2-atspi-2.0 imagemagick"
