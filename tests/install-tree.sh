#!/usr/bin/env bash
# Installs into a temporary prefix and checks what a desktop reads there:
# the desktop entry, the AppStream data, the file types, the icons, the man
# pages and the completion. Usage: install-tree.sh BUILD_DIR
set -euo pipefail
build=$1
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
fail() { echo "install-tree: $*" >&2; exit 1; }

cmake --install "$build" --prefix "$prefix" >/dev/null
share=$prefix/share
for program in tabo tabo-cli; do
  [ -x "$prefix/bin/$program" ] || fail "bin/$program is missing"
done
"$prefix/bin/tabo-cli" --version | grep -q '^tabo-cli [0-9]' || fail "tabo-cli --version prints no version"

desktop-file-validate "$share/applications/tabo.desktop"
appstreamcli validate --no-net "$share/metainfo/org.tabo.Tabo.metainfo.xml" >/dev/null \
  || appstreamcli validate --no-net "$share/metainfo/org.tabo.Tabo.metainfo.xml"

mime=$share/mime/packages/tabo.xml
xmllint --noout --schema "$(dirname "$0")/mime/shared-mime-info.xsd" "$mime"
update-mime-database "$share/mime" 2>/dev/null
for type in document design invoice-backup item-backup database-backup invoice-dump; do
  grep -q "application/x-tabo-$type" "$share/mime/types" || fail "MIME type x-tabo-$type was not taken in"
done

# Files the programs wrote are recognised by the desktop's own lookup
# (xdg-mime asks gio on a GNOME desktop), from the installed definitions only.
home=$prefix/home
mkdir -p "$home"
cli() { HOME=$home XDG_CONFIG_HOME=$home/config XDG_DATA_HOME=$home/data "$prefix/bin/tabo-cli" "$@"; }
cli prefs install-language 0 >/dev/null
id=$(cli new invoice)
cli export "$id" --tabo "$home/written.tabo"
cli design export Classic "$home/written.design"
backup=$(cli backup database "$home/written.mbdb")
query() { XDG_CURRENT_DESKTOP=GNOME XDG_DATA_HOME=$share XDG_DATA_DIRS=/usr/share xdg-mime query filetype "$1"; }
for pair in written.tabo:application/x-tabo-document written.design:application/x-tabo-design \
    written.tabo2db:application/x-tabo-database-backup; do
  got=$(query "$home/${pair%%:*}")
  [ "$got" = "${pair#*:}" ] || fail "xdg-mime calls ${pair%%:*} '$got', wanted ${pair#*:}"
done
# E-invoices are known by their content when the name says nothing (an
# ".xml" name stays plain XML on desktops that trust the name first).
printf '<?xml version="1.0"?>\n<rsm:CrossIndustryInvoice xmlns:rsm="urn:un:unece:uncefact:data:standard:CrossIndustryInvoice:100"/>\n' >"$home/cii-invoice"
printf '<?xml version="1.0"?>\n<Invoice xmlns="urn:oasis:names:specif''ication:ubl:schema:xsd:Invoice-2"/>\n' >"$home/ubl-invoice"
[ "$(query "$home/cii-invoice")" = application/x-cii-invoice+xml ] || fail "a CII e-invoice is $(query "$home/cii-invoice")"
[ "$(query "$home/ubl-invoice")" = application/x-ubl-invoice+xml ] || fail "a UBL e-invoice is $(query "$home/ubl-invoice")"

[ -f "$share/icons/hicolor/scalable/apps/tabo.svg" ] || fail "the scalable icon is missing"
for px in 16 22 24 32 48 64 128 256 512; do
  png=$share/icons/hicolor/${px}x${px}/apps/tabo.png
  [ -f "$png" ] || fail "icon ${px}x${px} is missing"
  size=$(python3 -c "import struct,sys; d=open(sys.argv[1],'rb').read(24); print('%dx%d' % struct.unpack('>II', d[16:24]))" "$png")
  [ "$size" = "${px}x${px}" ] || fail "icon ${px}x${px} is $size"
done

for page in tabo tabo-cli; do
  file=$share/man/man1/$page.1
  [ -f "$file" ] || fail "man page $page.1 is missing"
  out=$(MANWIDTH=80 man -l "$file" 2>&1 >/dev/null) || fail "man -l $page.1 failed"
  [ -z "$out" ] || fail "man -l $page.1 warns: $out"
done

completion=$share/bash-completion/completions/tabo-cli
bash -n "$completion"
words=$(PATH="$prefix/bin:$PATH" bash -c "source '$completion'; COMP_WORDS=(tabo-cli ren); COMP_CWORD=1; _tabo_cli; echo \"\${COMPREPLY[*]}\"")
[ "$words" = "render" ] || fail "completion of 'tabo-cli ren' gave '$words'"
# The installed program finds its translations beside it in share/tabo.
for lang in de fr es; do
  [ -f "$share/tabo/translations/tabo_$lang.qm" ] || fail "translation $lang is missing"
done
msg=$(LANGUAGE=de "$prefix/bin/tabo-cli" frobnicate 2>&1 >/dev/null || true)
[[ $msg == *"Unbekannter Befehl"* ]] || fail "the installed tabo-cli does not speak German: $msg"
echo "install tree: ok"
