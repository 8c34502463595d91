#!/usr/bin/env bash
# Installs what is missing, checks that the folders of src/ include each other in one direction only,
# builds, and runs every test offscreen.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
bash scripts/check-layers.sh
bash scripts/build.sh Release
export QT_QPA_PLATFORM=offscreen
cd build-release
set +e
ctest --output-on-failure -j "$(nproc)"
status=$?
exit $status
