#!/bin/bash
# make_deb.sh: builds the programs as they are shipped and makes the Debian packages of them in build/packages.
#
# Installs what is missing first. OPTIONS of CMake may follow, for the maker's own addresses:
#   packaging/make_deb.sh -DQUILLFERN_WEB_ADDRESS=https://quillfern.example
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

packaging/install_packages.sh build package
if [ $# -gt 0 ]; then
    cmake --log-level=WARNING --preset release "$@"
fi
packaging/build.sh release all

# The files in the packages carry the time of the last commit, so that the same sources give the same packages.
if SOURCE_DATE_EPOCH="$(git log -1 --format=%ct 2>/dev/null)"; then
    export SOURCE_DATE_EPOCH
fi
rm -rf build/packages
words="$(cpack --config build/release/CPackConfig.cmake -B "$PWD/build/packages" 2>&1)" || { echo "$words" >&2; exit 1; }
rm -rf build/packages/_CPack_Packages
printf '%s\n' build/packages/*.deb
