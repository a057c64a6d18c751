#!/usr/bin/env bash
# Builds and runs the benchmark. The rendering table compares Tabo with other
# HTML-to-PDF programs, installed here when missing. Arguments go to the
# bench (e.g. --render-only).
set -euo pipefail
cd "$(dirname "$0")/.."
TABO_EXTRA_PACKAGES="weasyprint wkhtmltopdf chromium" bash scripts/setup.sh

cmake --build build --target bench tabo-cli
if [ "$(id -u)" -eq 0 ]; then
  export QTWEBENGINE_CHROMIUM_FLAGS="${QTWEBENGINE_CHROMIUM_FLAGS:---no-sandbox}"
fi
exec build/bench "$@"
