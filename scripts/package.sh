#!/usr/bin/env bash
# Sets everything up, builds the Debian package and installs it with apt.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
cmake --build build
(cd build && cpack -G DEB >/dev/null)
deb=$(ls build/tabo_*.deb | tail -n 1)
echo "Built $deb"
sudo=""
[ "$(id -u)" -eq 0 ] || sudo="sudo"
$sudo apt-get install -y "./$deb"
