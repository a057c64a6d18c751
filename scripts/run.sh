#!/usr/bin/env bash
# Sets everything up, builds and starts Tabo.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
cmake --build build --target tabo tabo-cli
exec ./build/tabo "$@"
