#!/usr/bin/env bash
# Shoots the user guide's screenshots in English and German
# (docs/screenshots/guide/{en,de}/), and the main window in German, in French
# and in a dark theme (docs/screenshots/main-*.png), each in a temporary home
# with sample data (your own data is not touched). Needs Xvfb.
set -euo pipefail
cd "$(dirname "$0")/.."
build="$(cd "${BUILD_DIR:-build}" && pwd)"
cmake --build "$build" --target tabo tabo-cli translations >/dev/null
cli=$build/tabo-cli
tabo=$build/tabo
if [ "$(id -u)" -eq 0 ]; then
  export QTWEBENGINE_CHROMIUM_FLAGS="${QTWEBENGINE_CHROMIUM_FLAGS:---no-sandbox}"
fi
homes=()
trap 'rm -rf "${homes[@]}"' EXIT

# sample LANGUAGE_DEFAULTS: a home with a company and four invoices.
sample() {
  local home id
  home=$(mktemp -d)
  homes+=("$home")
  export HOME=$home XDG_DATA_HOME=$home/data XDG_CONFIG_HOME=$home/config
  "$cli" prefs install-language "$1" >/dev/null
  if [ "$1" = 1 ]; then
    set -- 1 "Muster GmbH" "Hauptstraße 1" 10115 Berlin DE "Beratung" "Std." "Wartung"
  elif [ "$1" = 2 ]; then
    set -- 2 "Atelier Dupont" "12 rue des Lilas" 75011 Paris FR "Conseil" "h" "Maintenance"
  else
    set -- 0 "Northwind Studio" "250 Harbor Street" 97204 Portland US "Consulting" "h" "Maintenance"
  fi
  "$cli" prefs set prefsName "$2"
  "$cli" prefs set prefsStreet "$3"
  "$cli" prefs set prefsPostcode "$4"
  "$cli" prefs set prefsCity "$5"
  "$cli" prefs set prefsCountryCode "$6"
  "$cli" prefs set prefsLetterbox "$2 · $3 · $4 $5"
  "$cli" prefs set prefsLogo docs/screenshots/sample-logo.png
  "$cli" prefs set firstStartEverDone 1
  "$cli" prefs set isReportHintShown 1
  for client in "Atelier Lumen" "Nordlicht KG" "Harbor Books" "Kowalski & Co"; do
    id=$("$cli" new invoice)
    "$cli" address "$id" address="$client"$'\nWeg 5\n20095 Hamburg' company="$client" >/dev/null
    "$cli" set "$id" subject "$9 ${client%% *}" >/dev/null
    "$cli" add-item "$id" title="$7" price=95 quantity=6 unit="$8" tax1=1 >/dev/null
    "$cli" add-item "$id" title="Hosting" price=240 quantity=1 tax1=1 >/dev/null
  done
  "$cli" set "$id" status 1 >/dev/null
}

shoot() { xvfb-run -a -s '-screen 0 1280x800x24' "$tabo" "$@" 2>/dev/null; }

for lang in en de; do
  out=docs/screenshots/guide/$lang
  mkdir -p "$out"
  sample "$([ $lang = de ] && echo 1 || echo 0)"
  export LANGUAGE=$lang LANG=$([ $lang = de ] && echo de_DE.UTF-8 || echo en_US.UTF-8)
  shoot --screenshot "$out/main-window.png"
  shoot --screenshot-assistant "$out/first-start.png"
  shoot --screenshot-preview "$out/preview.png"
  shoot --screenshot-export "$out/export-einvoice.png"
  shoot --screenshot-preferences "$HOME/panes"
  cp "$HOME/panes/"*Design*.png "$out/designs.png"
  cp "$HOME/panes/"*Data*.png "$out/backups.png"
  echo "guide screenshots: $out"
done

sample 1
LANGUAGE=de LANG=de_DE.UTF-8 shoot --screenshot docs/screenshots/main-de.png
sample 2
LANGUAGE=fr LANG=fr_FR.UTF-8 shoot --screenshot docs/screenshots/main-fr.png
sample 0
LANGUAGE=en LANG=en_US.UTF-8 shoot --dark --screenshot docs/screenshots/main-dark.png
echo "main window in German, French and dark: docs/screenshots/main-{de,fr,dark}.png"

# The installed menu entry, as a desktop's launcher (rofi) lists it.
if command -v rofi >/dev/null && command -v import >/dev/null; then
  prefix=$(mktemp -d)
  homes+=("$prefix")
  cmake --install "$build" --prefix "$prefix" >/dev/null
  XDG_DATA_DIRS=$prefix/share:/usr/share XDG_DATA_HOME=$prefix/none HOME=$prefix LANG=C.UTF-8 \
    xvfb-run -a -s '-screen 0 800x400x24' bash -c '
      rofi -show drun -show-icons -filter Tabo \
        -theme-str "window {width: 480px; location: north west; x-offset: 0; y-offset: 0;} listview {lines: 3;} element-icon {size: 2.5em;}" &
      sleep 2
      import -window root -crop 480x130+0+0 "$0"
      kill $!' docs/screenshots/menu-entry.png
  echo "menu entry: docs/screenshots/menu-entry.png"
fi

# The review of a bank statement and the list of repeated invoices.
sample 0
today=$(date +%F)
statement=$HOME/statement.xml
entries=""
n=0
for id in $("$cli" list --json | python3 -c 'import json,sys; [print(d["uniqueID"]) for d in json.load(sys.stdin)["documents"]]'); do
  n=$((n + 1))
  "$cli" set "$id" number "RE-2026-$((40 + n))" >/dev/null
  "$cli" set "$id" status 1 >/dev/null
  amount=$("$cli" show "$id" --json | python3 -c 'import json,sys; print("%.2f" % json.load(sys.stdin)["amount"])')
  client=$("$cli" show "$id" --json | python3 -c 'import json,sys,html; print(html.escape(json.load(sys.stdin)["company"]))')
  case $n in
    1) text="Invoice RE-2026-41" ;;
    2) text="RE 2026 42 part payment"; amount=400.00 ;;
    3) text="Thank you"; ;;
    *) text="Order 7781" amount=99.00 ;;
  esac
  entries+="<Ntry><Amt Ccy=\"USD\">$amount</Amt><CdtDbtInd>CRDT</CdtDbtInd><BookgDt><Dt>$today</Dt></BookgDt>"
  entries+="<AcctSvcrRef>BK-$n</AcctSvcrRef><NtryDtls><TxDtls><RltdPties><Dbtr><Nm>$client</Nm></Dbtr></RltdPties>"
  entries+="<RmtInf><Ustrd>$text</Ustrd></RmtInf></TxDtls></NtryDtls></Ntry>"
  last=$id
done
printf '<?xml version="1.0"?><Document xmlns="urn:iso:std:iso:20022:tech:xsd:camt.053.001.08"><BkToCstmrStmt><Stmt><Id>S</Id>%s</Stmt></BkToCstmrStmt></Document>' "$entries" >"$statement"
shoot --screenshot-statement "$statement" --screenshot-payments docs/screenshots/payment-review.png
"$cli" recurring add "$last" --every month --from "$(date -d '-2 months' +%Y-%m-01)" >/dev/null
"$cli" recurring add "$last" --every quarter --from "$(date -d '+1 month' +%Y-%m-15)" --count 4 >/dev/null
"$cli" recurring add "$last" --every "2 weeks" --from "$today" --until "$(date -d '+6 months' +%F)" >/dev/null
"$cli" recurring pause 2 >/dev/null
"$cli" recurring run >/dev/null
shoot --screenshot-schedules docs/screenshots/repeated-invoices.png
echo "payments and repeated invoices: docs/screenshots/{payment-review,repeated-invoices}.png"
