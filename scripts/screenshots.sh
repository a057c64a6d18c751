#!/usr/bin/env bash
# Renders page 1 of every built-in design with the sample document into
# docs/screenshots/designs/, then shoots the preview, preferences, report and
# reminder windows and page 1 of the account book,
# in a temporary home (your own data is not touched).
set -euo pipefail
cd "$(dirname "$0")/.."
build="${BUILD_DIR:-build}"
cmake --build "$build" --target tabo-cli >/dev/null
cli="$(cd "$build" && pwd)/tabo-cli"
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export HOME="$home" XDG_DATA_HOME="$home/data" XDG_CONFIG_HOME="$home/config" LANG=en_US.UTF-8
if [ "$(id -u)" -eq 0 ]; then
  export QTWEBENGINE_CHROMIUM_FLAGS="${QTWEBENGINE_CHROMIUM_FLAGS:---no-sandbox}"
fi

"$cli" prefs install-language 0
"$cli" prefs set prefsName "Northwind Studio"
"$cli" prefs set prefsSlogan "Design, web and print since 1998"
"$cli" prefs set prefsContact $'Northwind Studio LLC\n250 Harbor Street\nPortland, OR 97204\nPhone (503) 555-0142\nhello@northwind.example'
"$cli" prefs set prefsLetterbox "Northwind Studio · 250 Harbor Street · Portland, OR 97204"
"$cli" prefs set prefsCurrency '$'
"$cli" prefs set tax1Title "Sales Tax"
"$cli" prefs set tax2Enabled 1
"$cli" prefs set tax2Title "Local Tax"
"$cli" prefs set tempInvFooter $'Northwind Studio LLC · 250 Harbor Street · Portland, OR 97204\nPhone (503) 555-0142 · hello@northwind.example'
"$cli" prefs set prefsLogo docs/screenshots/sample-logo.png

mkdir -p docs/screenshots/designs
for dir in src/designs/builtin/*/; do
  name=$(basename "$dir")
  title=$(cat "$dir/title.txt")
  "$cli" design preview "$home/$name.pdf" --design "$title"
  pdftoppm -png -r 70 -f 1 -l 1 -singlefile "$home/$name.pdf" "docs/screenshots/designs/$name"
  echo "$name: $title"
done

# The preview window of the desktop application (needs the tabo target and Xvfb).
cmake --build "$build" --target tabo >/dev/null
id=$("$cli" new invoice)
"$cli" address "$id" address=$'Atelier Lumen\nMarta Kowalski\nRue des Fleurs 18\n75011 Paris\nFrance' clientNumber=C-1042
"$cli" set "$id" title "Website relaunch"
"$cli" add-item "$id" title="Concept and wireframes" price=680 quantity=1 tax1=1
"$cli" add-item "$id" title="Front-end development" subtitle="Responsive templates, 6 pages" price=85 quantity=24 unit=h tax1=1
"$cli" add-item "$id" title="Content migration" price=65 quantity=6 unit=h tax1=1
"$cli" add-item "$id" title="Hosting, first year" price=120 quantity=1 tax1=1
xvfb-run -a "$(cd "$build" && pwd)/tabo" --screenshot-preview docs/screenshots/preview.png
echo "preview: docs/screenshots/preview.png"

# Each pane of the preferences window.
xvfb-run -a -s '-screen 0 1600x1000x24' "$(cd "$build" && pwd)/tabo" --screenshot-preferences docs/screenshots/preferences
echo "preferences: docs/screenshots/preferences/"

# The list with a search, the catalogue, and a German invoice's first page,
# in a second home with the German defaults.
home2=$(mktemp -d)
trap 'rm -rf "$home" "$home2"' EXIT
export HOME="$home2" XDG_DATA_HOME="$home2/data" XDG_CONFIG_HOME="$home2/config"
"$cli" prefs install-language 1 >/dev/null
"$cli" prefs set prefsName "Muster GmbH"
for kv in "prefsStreet=Hauptstraße 1" prefsPostcode=10115 prefsCity=Berlin prefsCountryCode=DE "prefsContactPhone=030 123456" \
          prefsContactEmail=info@muster.example prefsVATID=DE123456789 "prefsBankName=Berliner Bank" \
          "prefsIBAN=DE02 1203 0000 0000 2020 51" prefsBIC=BYLADEM1001; do
  "$cli" prefs set "${kv%%=*}" "${kv#*=}"
done
"$cli" prefs set prefsLetterbox "Muster GmbH · Hauptstraße 1 · 10115 Berlin"
"$cli" prefs install-language 1 >/dev/null # composes the footers from the details above
for client in "Kunde GmbH" "Atelier Lumen" "Kunde AG" "Nordlicht KG"; do
  id=$("$cli" new invoice)
  "$cli" address "$id" address="$client"$'\nWeg 5\n20095 Hamburg' company="$client" street="Weg 5" \
    postcode=20095 city=Hamburg countryCode=DE electronicAddress=rechnung@kunde.example >/dev/null
  "$cli" set "$id" subject "Wartung ${client%% *}" >/dev/null
  "$cli" add-item "$id" title=Beratung price=95 quantity=6 unit=Std. tax1=1 >/dev/null
  "$cli" add-item "$id" title="Hosting, ein Jahr" price=240 quantity=1 unit=pauschal tax1=1 >/dev/null
done
"$cli" set "$id" status 3 >/dev/null
"$cli" report --pdf "$home2/report.pdf"
pdftoppm -png -r 70 -f 1 -l 1 -singlefile "$home2/report.pdf" docs/screenshots/report
"$cli" render "$id" --pdf "$home2/de.pdf"
pdftoppm -png -r 70 -f 1 -l 1 -singlefile "$home2/de.pdf" docs/screenshots/invoice-german
xvfb-run -a -s '-screen 0 1400x900x24' "$(cd "$build" && pwd)/tabo" --screenshot-search Kunde --screenshot docs/screenshots/list-search.png
xvfb-run -a -s '-screen 0 1400x900x24' "$(cd "$build" && pwd)/tabo" --screenshot-catalogue docs/screenshots/catalogue.png
"$cli" prefs set isReportHintShown 1 >/dev/null # the one-time hint would wait for a click
xvfb-run -a -s '-screen 0 1400x900x24' "$(cd "$build" && pwd)/tabo" --screenshot-report docs/screenshots/report-window.png
"$cli" account-book --pdf "$home2/book.pdf"
pdftoppm -png -r 70 -f 1 -l 1 -singlefile "$home2/book.pdf" docs/screenshots/account-book
# The reminder sheet, with the tests' notification service on a private bus so
# that the window offers reminders as on a desktop.
cmake --build "$build" --target FakeNotificationServer >/dev/null
dbus-run-session -- bash -c '"$1" "$2/shown.jsonl" & sleep 1
  xvfb-run -a -s "-screen 0 1400x900x24" "$3" --screenshot-reminder docs/screenshots/reminder-sheet.png' _ \
  "$(cd "$build" && pwd)/tests/FakeNotificationServer" "$home2" "$(cd "$build" && pwd)/tabo"
# The export sheet offering the e-invoice, and a received e-invoice's page.
xvfb-run -a -s '-screen 0 1400x1000x24' "$(cd "$build" && pwd)/tabo" --screenshot-export docs/screenshots/export-einvoice.png
"$cli" einvoice export "$id" --xrechnung-ubl "$home2/received.xml"
"$cli" einvoice view "$home2/received.xml" --pdf "$home2/received.pdf"
pdftoppm -png -r 70 -f 1 -l 1 -singlefile "$home2/received.pdf" docs/screenshots/einvoice-received
echo "list, catalogue, report, account book, reminder sheet, export sheet, received e-invoice, German invoice: docs/screenshots/"
