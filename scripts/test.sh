#!/usr/bin/env bash
# Sets everything up, builds and runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
cmake --build build
if [ "$(id -u)" -eq 0 ]; then
  export QTWEBENGINE_CHROMIUM_FLAGS="${QTWEBENGINE_CHROMIUM_FLAGS:---no-sandbox}"
fi
cd build && ctest --output-on-failure -j2 "$@"
