#!/usr/bin/env bash
# Configures and builds into build-<type> (Release by default).
set -euo pipefail
cd "$(dirname "$0")/.."
type="${1:-Release}"
dir="build-${type,,}"
if [ ! -f "$dir/build.ninja" ]; then
    cmake -S . -B "$dir" -G Ninja -DCMAKE_BUILD_TYPE="$type" >/dev/null
fi
cmake --build "$dir" -j "$(nproc)"
