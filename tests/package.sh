#!/usr/bin/env bash
# Builds the Debian package from the build folder and checks it: its
# dependencies and files, and that the programs run from an unpacked copy.
# Usage: package.sh BUILD_DIR
set -euo pipefail
build=$(cd "$1" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "package: $*" >&2; exit 1; }

(cd "$work" && cpack -G DEB --config "$build/CPackConfig.cmake" -B "$work" >/dev/null)
deb=$(ls "$work"/tabo_*_*.deb)
info=$(dpkg-deb --info "$deb")
depends=$(printf '%s\n' "$info" | sed -n 's/^ Depends: //p')
for needed in libqt6core6 libqt6webenginecore6 libsqlite3 libqt6webenginecore6-bin xdg-utils; do
  printf '%s' "$depends" | grep -q "$needed" || fail "Depends lacks $needed: $depends"
done
contents=$(dpkg-deb --contents "$deb")
for file in ./usr/bin/tabo ./usr/bin/tabo-cli ./usr/share/applications/tabo.desktop \
            ./usr/share/metainfo/org.tabo.Tabo.metainfo.xml ./usr/share/mime/packages/tabo.xml \
            ./usr/share/icons/hicolor/48x48/apps/tabo.png ./usr/share/man/man1/tabo-cli.1 \
            ./usr/share/bash-completion/completions/tabo-cli; do
  printf '%s\n' "$contents" | grep -q " $file\$" || fail "the package lacks $file"
done
if printf '%s\n' "$contents" | grep -q '/home/\|/root/\|build/'; then fail "the package holds build paths"; fi
root=$work/root
dpkg -x "$deb" "$root"
"$root/usr/bin/tabo-cli" --version | grep -qx "tabo-cli [0-9.]*" || fail "tabo-cli --version from the package"
QT_QPA_PLATFORM=offscreen "$root/usr/bin/tabo" --version 2>/dev/null | grep -q "^Tabo [0-9]" || fail "tabo --version from the package"
echo "package: ok ($(basename "$deb"))"
