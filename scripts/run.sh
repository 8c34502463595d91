#!/usr/bin/env bash
# Installs what is missing, builds, prepares the work folder and starts Norvane in it.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
cd "$root"
bash scripts/install-deps.sh
# Only what the program needs to run: a user should not wait for the tests to build.
if [ ! -f build-release/build.ninja ]; then
    cmake -S . -B build-release -G Ninja -DCMAKE_BUILD_TYPE=Release >/dev/null
fi
cmake --build build-release -j "$(nproc)" --target norvane norvane-prepare
work="$root/work"
mkdir -p "$work"
if [ -x build-release/norvane-prepare ]; then
    build-release/norvane-prepare "$work"
fi
cd "$work"
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    echo "Aucun écran graphique : Norvane est lancé dans un affichage virtuel."
    exec xvfb-run -a "$root/build-release/norvane"
fi
exec "$root/build-release/norvane"
