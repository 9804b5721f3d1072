#!/bin/bash
# build.sh PRESET TARGET...: configures build/PRESET when that has not been done, and builds the targets ("all" for
# everything). CONFIGURE_OPTIONS may hold one more option for the configuration.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
preset="$1"
shift
if [ ! -e "build/$preset/build.ninja" ]; then
    if command -v ccache >/dev/null; then
        export CMAKE_CXX_COMPILER_LAUNCHER="${CMAKE_CXX_COMPILER_LAUNCHER-ccache}"
    fi
    cmake --log-level=WARNING --preset "$preset" ${CONFIGURE_OPTIONS:+"$CONFIGURE_OPTIONS"}
fi
exec cmake --build "build/$preset" --target "$@"
