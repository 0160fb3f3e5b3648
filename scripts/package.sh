#!/usr/bin/env bash
# Makes the Debian packages: build/package/*.deb.
set -eu
cd "$(dirname "$0")/.."
. scripts/prepare.sh

# shellcheck disable=SC2086 # lists of packages
prepare $BUILD_PACKAGES $PACKAGE_TOOLS
[ -f build/package/build.ninja ] || quietly cmake --preset package
quietly cmake --build --preset package
rm -f build/package/*.deb
(cd build/package && quietly cpack)
