#!/usr/bin/env bash
# Installs the Debian 12 packages Tabo needs (those still missing) and
# configures the build. Safe to run again.
set -euo pipefail
cd "$(dirname "$0")/.."

packages=(
  build-essential cmake ninja-build pkg-config python3
  qt6-base-dev qt6-base-dev-tools
  libsqlite3-dev libicu-dev libplist-dev libqpdf-dev
  qt6-webengine-dev qt6-webengine-dev-tools libqt6webenginecore6-bin qt6-pdf-dev
  fonts-dejavu-core fonts-liberation2
  cups-client xdg-utils poppler-utils dbus
  libsaxonhe-java default-jre-headless libqrencode-dev zbar-tools qpdf
  xvfb xauth
  librsvg2-bin desktop-file-utils appstream shared-mime-info libxml2-utils man-db
  qt6-l10n-tools qt6-translations-l10n libglib2.0-bin
)
# Further packages a caller needs (the benchmark's comparison programs).
read -r -a extra <<< "${TABO_EXTRA_PACKAGES:-}"
packages+=("${extra[@]}")

# OpenJDK (for the e-invoice rule checks) fails to install where man pages are left out.
mkdir -p /usr/share/man/man1 2>/dev/null || true
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  sudo=""
  [ "$(id -u)" -eq 0 ] || sudo="sudo"
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi

cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE="${BUILD_TYPE:-RelWithDebInfo}" >/dev/null
