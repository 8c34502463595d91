#!/usr/bin/env bash
# Installs the Debian packages that building, running and testing need.
# Idempotent, and silent when everything is already there.
set -euo pipefail

packages=(
    cmake ninja-build g++ pkg-config
    qt6-base-dev libqt6opengl6-dev qt6-charts-dev libgl-dev qt6-translations-l10n
    libsqlite3-dev libicu-dev libx11-dev
    libgtest-dev libgmock-dev googletest libbenchmark-dev sqlite3
    fonts-dejavu-core xvfb xauth
    poppler-utils unrtf python3-xlrd
)

missing=()
for p in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$p")
    fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installation des paquets manquants : ${missing[*]}"
sudo_cmd=()
[ "$(id -u)" -ne 0 ] && sudo_cmd=(sudo)
export DEBIAN_FRONTEND=noninteractive
"${sudo_cmd[@]}" apt-get update -qq
"${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
