#!/usr/bin/env bash
# Builds and runs the benchmark. The rendering table compares Tabo with other
# HTML-to-PDF programs, installed here when missing. Arguments go to the
# bench (e.g. --render-only).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh

others=(weasyprint wkhtmltopdf chromium)
missing=()
for p in "${others[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  sudo=""
  [ "$(id -u)" -eq 0 ] || sudo="sudo"
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi

cmake --build build --target bench tabo-cli
if [ "$(id -u)" -eq 0 ]; then
  export QTWEBENGINE_CHROMIUM_FLAGS="${QTWEBENGINE_CHROMIUM_FLAGS:---no-sandbox}"
fi
exec build/bench "$@"
