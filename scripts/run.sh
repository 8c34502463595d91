#!/usr/bin/env bash
# Installs what is missing, builds, prepares the work folder and starts Norvane in it.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
cd "$root"
bash scripts/install-deps.sh
bash scripts/build.sh Release
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
