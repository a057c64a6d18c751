#!/bin/bash
# Runs tabo-cli as a person would, against a throw-away home.
source "$(dirname "$0")/home.sh"

# run WANTED_EXIT ARGS...: keeps stdout in $OUT; a failure must be one line on stderr.
run() {
    local want=$1 rc lines
    shift
    "$CLI" "$@" >"$T/out" 2>"$T/err"
    rc=$?
    OUT=$(<"$T/out")
    lines=$(wc -l <"$T/err")
    if [ "$rc" -ne "$want" ]; then
        bad "tabo-cli $* exited $rc, wanted $want: $(<"$T/err")"
    elif [ "$want" -ne 0 ] && [ "$lines" -ne 1 ]; then
        bad "tabo-cli $* wrote $lines lines to stderr: $(<"$T/err")"
    else
        pass=$((pass + 1))
    fi
}

# jcheck PYTHON_CONDITION: evaluated on the JSON in $OUT, bound to d.
jcheck() {
    if printf '%s' "$OUT" | python3 -c "import json,sys; d=json.load(sys.stdin); sys.exit(0 if ($1) else 1)" 2>/dev/null; then
        pass=$((pass + 1))
    else
        bad "$1 on: ${OUT:0:400}"
    fi
}

expect() { [ "$2" = "$3" ] && pass=$((pass + 1)) || bad "$1: got '$2', wanted '$3'"; }

# --- usage -----------------------------------------------------------------
run 0 --help
grep -q "add-item ID KEY=VALUE" <<<"$OUT" || bad "help lists add-item"
run 2
run 2 frobnicate
# Messages follow the person's language; one nobody translated stays English.
LANGUAGE=de run 2 frobnicate
grep -q "Unbekannter Befehl" "$T/err" || bad "German message: $(<"$T/err")"
LANGUAGE=fr run 2 frobnicate
grep -q "Commande inconnue" "$T/err" || bad "French message: $(<"$T/err")"
LANGUAGE=xx run 2 frobnicate
grep -q "Unknown command" "$T/err" || bad "English fallback: $(<"$T/err")"
run 2 list --bogus
run 2 list --filter soon
run 2 set only-an-id
run 2 new invoice extra
run 2 new letter
run 2 add-item X not-a-pair
run 2 prefs install-language English
run 0 show --help

# --- preferences -----------------------------------------------------------
run 0 prefs install-language 0
run 0 prefs install-language 7 # nothing installed, but not a failure
run 0 prefs get languageDefaults
expect "languageDefaults" "$OUT" 7
run 0 prefs set tax1Rate 0.19
run 0 prefs get tax1Rate
expect "tax1Rate" "$OUT" 0.19
run 1 prefs get noSuchKey
run 1 prefs set invHaveDueDate maybe
run 1 prefs set noSuchKey 1
run 0 prefs list
grep -qx $'tax1Rate\treal\t0.19' <<<"$OUT" || bad "prefs list: ${OUT:0:300}"
run 0 prefs list --json
jcheck '[x for x in d if x["key"] == "tax1Rate"] == [{"key": "tax1Rate", "type": "real", "value": 0.19, "stored": True}] and [x["value"][0] for x in d if x["key"] == "SyntaxColoring:Color:Tags"] == ["#"] and len(d) > 140'

# --- documents, lines and totals --------------------------------------------
run 0 new invoice; A=$OUT
run 0 new invoice; B=$OUT
run 0 new quote; Q=$OUT
[[ $A =~ ^[0-9A-F-]{36}$ ]] && pass=$((pass + 1)) || bad "uniqueID format: $A"
run 0 show "$A" --json
jcheck 'd["kind"] == 1 and d["status"] == 0 and d["items"] == [] and abs(d["tax1Percent"] - 0.19) < 1e-6'
run 0 show "$Q" --json
jcheck 'd["kind"] == 0 and d["uniqueID"] != "'"$A"'"'

run 0 add-item "$A" title=Consulting baseAmount=100 unitCount=2 isTax1Applied=1; I=$OUT
# Quantity and price are rounded to three decimals before the product.
run 0 add-item "$A" title=Travel baseAmount=10.0004 unitCount=3
run 0 show "$A" --json
jcheck 'd["subAmount"] == 230 and d["tax1Amount"] == 38 and d["amount"] == 268'
jcheck 'len(d["items"]) == 2 and d["items"][0]["uniqueID"] == "'"$I"'" and d["items"][0]["title"] == "Consulting"'
jcheck 'd["items"][0]["tax1Amount"] == 38 and d["items"][0]["amount"] == 238 and d["items"][1]["subAmount"] == 30'

run 0 add-item "$B" title=Hosting baseAmount=50 unitCount=1
run 0 add-item "$Q" title=Offer baseAmount=70 unitCount=1
run 0 set "$B" status 3
run 0 set "$A" status 1
run 0 set "$A" due 2000-01-01T00:00:00Z

# --- list, summary and filters -----------------------------------------------
run 0 list --json
jcheck 'len(d["documents"]) == 3'
jcheck 'd["summary"] == {"invoiceCount": 2, "quoteCount": 1, "invoiceCountForNumber": 2, "totalAmount": 318, "paidAmount": 50, "dueAmount": 268}'
# The summary pass marked the sent invoice overdue, and that was kept.
run 0 show "$A" --json
jcheck 'd["status"] == 2 and d["dueAmount"] == 268'
run 0 list --filter 4 --json
jcheck '[x["uniqueID"] for x in d["documents"]] == ["'"$Q"'"]'
jcheck 'd["summary"]["quoteCount"] == 1 and d["summary"]["invoiceCount"] == 0 and d["summary"]["totalAmount"] == 0'
run 0 list --filter 3 --json
jcheck '[x["uniqueID"] for x in d["documents"]] == ["'"$B"'"] and d["summary"]["paidAmount"] == 50'
run 0 list
expect "plain list lines" "$(wc -l <<<"$OUT")" 9
grep -q "overdue" <<<"$OUT" || bad "plain list shows the overdue status"

# --- values by type, exactly ------------------------------------------------
run 0 set "$B" shippingAmount 0.30000000000000004
run 0 set "$B" discountPercent NaN
run 0 set "$B" sent 2024-02-29T12:34:56.789Z
run 0 set "$B" isDispatched 1
run 0 set "$B" discountAmount -5
run 0 set "$B" customerName $'Müller "Ltd"\nBranch'
run 0 show "$B" --json
jcheck 'repr(d["shippingAmount"]) == "0.30000000000000004" and d["discountPercent"] == "NaN"'
jcheck 'd["sent"] == "2024-02-29T12:34:56.789Z" and d["isDispatched"] is True and d["discountAmount"] == -5'
jcheck 'd["customerName"] == "Müller \"Ltd\"\nBranch" and d["isReminderSent"] is None'
grep -q '"shippingAmount": 0.30000000000000004,' <<<"$OUT" || bad "shippingAmount written exactly"

run 1 set "$B" noSuchKey 1
run 1 set "$B" amount lots
run 1 set "$B" status 1.5
run 1 set "$B" isPaid perhaps
run 1 set "$B" date yesterday
run 1 set "$B" items 1
run 1 add-item "$B" title=Half noSuchKey=1
run 1 show NO-SUCH-DOCUMENT
grep -q "NO-SUCH-DOCUMENT" "$T/err" || bad "unknown ID names the ID"
run 0 show "$B" --json
jcheck 'len(d["items"]) == 1 and d["amount"] == 50' # nothing half-made was kept

# --- by number, recalculation, persistence ----------------------------------
run 0 show "$A" --json
NUM=$(printf '%s' "$OUT" | python3 -c 'import json,sys; print(json.load(sys.stdin)["number"])')
if [ -n "$NUM" ]; then
    run 0 show "$NUM" --json
    jcheck 'd["uniqueID"] == "'"$A"'"'
fi
run 0 set "$A" tax1Percent 0.07
run 0 show "$A" --json
jcheck 'd["amount"] == 268' # set does not recalculate
run 0 calc "$A"
run 0 show "$A" --json
jcheck 'abs(d["tax1Amount"] - 14) < 1e-9 and d["amount"] == 244' # the document tax is not rounded
[ -s "$XDG_DATA_HOME/Tabo/Tabo.mbdb" ] && pass=$((pass + 1)) || bad "store file in XDG_DATA_HOME"

# --- duplicate, convert, delete ----------------------------------------------
run 0 new quote; Q2=$OUT
run 0 add-item "$Q2" title=Design price=80 quantity=1.5
run 0 duplicate "$Q2"; D=$OUT
run 0 show "$D" --json
jcheck 'd["kind"] == 0 and d["uniqueID"] != "'"$Q2"'" and d["number"].startswith("INV-") and [i["title"] for i in d["items"]] == ["Design"] and d["amount"] == 120'
run 1 convert "$A"
grep -q "^Sorry!: You can't convert" "$T/err" || bad "converting an invoice says Sorry!"
run 1 convert "$D" # not without consent
grep -q "^Convert Into Invoice: " "$T/err" || bad "convert asks first"
run 0 show "$D" --json
jcheck 'd["kind"] == 0'
run 0 convert "$D" --yes
run 0 show "$D" --json
jcheck 'd["kind"] == 1 and d["title"] == "Invoice" and len(d["items"]) == 1'
run 0 new invoice; X=$OUT
run 0 show "$X" --json
NX=$(printf '%s' "$OUT" | python3 -c 'import json,sys; print(json.load(sys.stdin)["number"].rsplit("-", 1)[1])')
run 1 delete "$X"
run 0 delete "$X" --yes --adjust-counter
run 1 show "$X"
run 0 prefs get invCount
expect "adjusted counter" "$OUT" 1
run 0 new invoice
run 0 show "$OUT" --json
jcheck 'd["number"].endswith("-'"$((NX + 1))"'")' # not the deleted one's number
run 0 delete "$Q2" --yes # declining the counter question is no failure
run 0 prefs get quotCount
expect "counter kept" "$OUT" 0
run 1 delete "$A" --yes
grep -q "^Error!: The selected invoice is marked as already sent" "$T/err" || bad "sent invoice kept"
run 0 show "$A"

# --- lines, catalogue, shipping, discount -------------------------------------
run 0 new invoice; E=$OUT
run 0 add-item "$E" title=Alpha price=10 quantity=1
run 0 add-item "$E" title=Beta price=20 quantity=1 misc2=7 # beyond the popover: an edit
run 1 add-item "$E" title=Gamma price=ten quantity=1
run 1 add-item "$E" title=Gamma price=1 misc2=half
run 0 add-item "$E" title=Alpha price=10 quantity=2
run 0 add-item "$E" title=Alpha price=12 quantity=1
run 0 catalogue list --json
jcheck 'sorted(e["baseAmount"] for e in d if e["title"] == "Alpha") == [10, 12] and not [e for e in d if e["title"] == "Gamma"]'
run 0 catalogue edit Beta price=25 unit=h tax2=1
run 1 catalogue edit Alpha price=1 # two entries are titled Alpha
run 2 catalogue edit Beta colour=red
run 0 catalogue list --json
jcheck '[(e["baseAmount"], e["unit"], e["isTax2Applied"]) for e in d if e["title"] == "Beta"] == [(25, "h", True)]'
run 1 catalogue delete Beta # asks first
run 0 catalogue delete Beta --yes
run 0 catalogue list --json
jcheck 'len([e for e in d if e["title"] == "Alpha"]) == 2 and not [e for e in d if e["title"] == "Beta"]'
run 1 delete-item "$E" 1
run 1 delete-item "$E" 5 --yes
run 2 delete-item "$E" first --yes
run 0 prefs set itemSortOrder 2 # newest first
run 0 delete-item "$E" 1 --yes
run 0 delete-item "$E" 1 --yes
run 0 delete-item "$E" 2 --yes
run 0 prefs set itemSortOrder 1
run 0 show "$E" --json
jcheck '[(i["title"], i["misc2"]) for i in d["items"]] == [("Beta", 7)] and d["amount"] == 20'
run 0 shipping "$E" enabled=1 title=Parcel amount=4.5
run 0 shipping "$E" hasSubtitle=1 subtitle=Tracked
run 1 shipping "$E" amount=abc
run 2 shipping "$E" colour=red
run 0 catalogue shipping --json
jcheck '[(e["title"], e["amount"]) for e in d] == [("Parcel", 4.5)]' # remembered once
run 0 discount "$E" enabled=1 kind=1 percent=10
run 1 discount "$E" percent=lots
run 0 show "$E" --json
jcheck 'd["shippingAmount"] == 4.5 and d["shippingSubtitle"] == "Tracked" and abs(d["discountPercent"] - 0.1) < 1e-9 and d["amount"] == 22.5'

# --- address from a contact ---------------------------------------------------
cat >"$T/erika.vcf" <<'EOF'
BEGIN:VCARD
VERSION:3.0
N:Muster;Erika;;;
ORG:Muster GmbH
ADR;TYPE=WORK,PREF:;;Hauptstr. 1;Berlin;;10115;Germany
EMAIL:erika@example.org
END:VCARD
EOF
run 0 address "$E" --vcard "$T/erika.vcf" customerVATID=DE123
run 0 show "$E" --json
jcheck 'd["address"].startswith("Erika Muster\nMuster GmbH\nHauptstr. 1\n") and d["customerName"] == "Erika Muster" and d["emailAddress"] == "erika@example.org" and d["customerVATID"] == "DE123" and not d["clientNumber"]'
printf 'BEGIN:VCALENDAR\nEND:VCALENDAR\n' >"$T/bad.vcf"
run 1 address "$E" --vcard "$T/bad.vcf"
run 1 address "$E" --vcard "$T/erika.vcf" --contact 2
run 2 address "$E"
run 0 show "$E" --json
jcheck 'd["customerVATID"] == "DE123" and d["customerName"] == "Erika Muster"' # nothing changed

# --- templates ----------------------------------------------------------------
run 0 prefs get templateIncludeItems; INC=$OUT
run 0 set "$E" subject Retainer
run 0 template save "$E" Monthly --include items,title --notes "every month"
run 0 prefs get templateIncludeItems
expect "include list is for one save" "$OUT" "$INC"
run 1 template save "$E" monthly
run 2 template save "$E" Other --include items,bogus
run 0 template list --json
jcheck '[t["uniqueID"] for t in d] == ["Monthly"] and d[0]["subject"] == "Retainer" and not d[0]["address"] and len(d[0]["items"]) == 1'
run 0 new invoice; F=$OUT
run 0 template apply "$F" Monthly
run 0 show "$F" --json
jcheck 'd["subject"] == "Retainer" and [i["title"] for i in d["items"]] == ["Beta"] and d["amount"] == 20'
run 1 template apply "$F" Nope
run 1 template apply "$A" Monthly # sent
run 0 template delete Monthly
run 0 template list
expect "templates left" "$OUT" ""
run 1 template delete Monthly

# --- document files, backups, accounting export --------------------------------
# pcheck FILE PYTHON_CONDITION: evaluated on the property list in FILE, bound to d.
pcheck() {
    if python3 -c "import plistlib,sys; d=plistlib.load(open(sys.argv[1],'rb')); sys.exit(0 if ($2) else 1)" "$1" 2>/dev/null; then
        pass=$((pass + 1))
    else
        bad "$2 on $1"
    fi
}
# jval PYTHON_EXPRESSION: printed from the JSON in $OUT, bound to d.
jval() { printf '%s' "$OUT" | python3 -c "import json,sys; d=json.load(sys.stdin); print($1)"; }
KEYS='[d[k] for k in ("kind", "status", "number", "customerName", "amount", "date", "shippingAmount")] + [(i["title"], i["amount"]) for i in d["items"]]'

run 0 show "$E" --json; WANT=$(jval "$KEYS")
run 0 export "$E" --tabo "$T/e.tabo"
run 0 export "$E" --xml "$T/e.xml"
pcheck "$T/e.xml" 'd["class"] == "Invoice" and d["customerName"] == "Erika Muster" and "dAtEaTtr:date" in d'
run 2 export "$E"
run 1 import "$T/e.tabo" # the warning needs consent
grep -q "^Warning!: The integrity of your data is your responsibility" "$T/err" || bad "import warns first"
XDG_DATA_HOME=$T/fresh run 1 import "$T/e.xml" --yes
XDG_DATA_HOME=$T/fresh run 0 import "$T/e.tabo" --yes
XDG_DATA_HOME=$T/fresh run 0 show "$OUT" --json
expect "imported document" "$(jval "$KEYS")" "$WANT"

run 0 list --json; ALL=$(jval 'len(d["documents"])')
run 0 list --filter 3 --json; PAID=$(jval 'len(d["documents"])')
run 0 export-xml "$T/all.xml"
pcheck "$T/all.xml" "len(d) == $ALL"
run 0 export-xml "$T/paid.xml" --filter 3
pcheck "$T/paid.xml" "len(d) == $PAID > 0 and all(e['status'] == 3 for e in d)"
run 0 dump "$T/all.invdump"
pcheck "$T/all.invdump" 'sorted(d["$objects"][u.data] for u in d["$objects"][d["$top"]["root"].data]["NS.keys"]) == ["addresses", "designs", "invoices", "items", "shippings", "templates"]'

# A complete backup comes back whole; a file that is not one changes nothing.
mkdir -p "$T/bk"
run 0 list --json; BEFORE=$OUT
run 0 backup database "$T/bk/Tabo 2 Database.mbdb"
expect "backup file" "$OUT" "$T/bk/Tabo 2 Database.tabo2db"
[ -s "$OUT" ] && [ ! -e "$T/bk/Tabo 2 Database.mbdb" ] && pass=$((pass + 1)) || bad "only the .tabo2db stays"
run 0 new invoice
run 1 restore database "$T/bk/Tabo 2 Database.tabo2db"
run 0 restore database "$T/bk/Tabo 2 Database.tabo2db" --yes
run 0 list --json
expect "restored database" "$OUT" "$BEFORE"
printf 'not a database\n' >"$T/bk/fake.tabo2db"
run 1 restore database "$T/bk/fake.tabo2db" --yes
run 1 restore invoices "$T/bk/fake.tabo2db" --yes
run 0 list --json
expect "store after refused restores" "$OUT" "$BEFORE"
run 0 backup invoices "$T/bk/all.taboinvoices"
run 0 restore invoices "$T/bk/all.taboinvoices" --yes
run 0 list --json
expect "documents after their restore" "$(jval 'len(d["documents"])')" "$ALL"
run 2 restore auto extra

run 0 list --json; SENT=$(jval 'sum(1 for x in d["documents"] if x["kind"] == 1 and x["status"] != 0)')
run 0 accounting-export vorlux --no-open --kind 0 --items-kind 0
expect "exported invoices" "$(sed -n 2p <<<"$OUT")" "$SENT"
pcheck "$(head -n 1 <<<"$OUT")" "len(d) == $SENT and all(len(e['items']) == 1 and 'title' in e['items'][0] for e in d)"
run 0 accounting-export quandrella --no-open --kind 1 --from 2000-01-01 --to 2100-01-01
[[ $(head -n 1 <<<"$OUT") == *.quandrtabo ]] && pass=$((pass + 1)) || bad "quandrella file: $OUT"
pcheck "$(head -n 1 <<<"$OUT")" "len(d) == $PAID"
run 0 accounting-export vorlux --no-open --kind 0 --from 2100-01-01
pcheck "$(head -n 1 <<<"$OUT")" 'd == []'
run 2 accounting-export vorlux --kind 3
run 2 accounting-export vorlux --to soon

# --- designs, rendering, print and e-mail -------------------------------------
# A library that has never been filled says how to fill it.
XDG_DATA_HOME=$T/nodesign/data XDG_CONFIG_HOME=$T/nodesign/config run 1 design list
grep -q "No design available. Please download or create a design. .*design add" "$T/err" || bad "empty library gives a hint"
XDG_DATA_HOME=$T/nodesign/data XDG_CONFIG_HOME=$T/nodesign/config run 0 design list --json

run 0 design list --json; NDES=$(jval 'len(d)'); CUR=$(jval '[x["title"] for x in d if x["current"]][0]')
[ "$NDES" -ge 1 ] && pass=$((pass + 1)) || bad "designs installed with the store"
run 0 design add Mine; DID=$OUT
run 0 design list --json
jcheck 'len(d) == '"$((NDES + 1))"' and [x["isDefault"] for x in d if x["title"] == "Mine"] == [False]'
run 0 design default Mine
run 0 design list
grep -qx '\* Mine' <<<"$OUT" || bad "the default design is starred: $OUT"
run 0 design export Mine "$T/mine.design"
# A design edited in one's own editor and put back; a bad file changes nothing.
run 0 design get Mine --css "$T/mine.css" --item "$T/mine-row.html"
grep -q . "$T/mine.css" || bad "design get wrote no stylesheet"
printf 'body { color: #123456; }\n' >"$T/mine.css"
run 0 design set Mine --css "$T/mine.css"
printf '\xff\xfe' >"$T/bad.html"
run 1 design set Mine --css "$T/mine-row.html" --invoice "$T/bad.html"
run 0 design get Mine --css "$T/back.css"
expect "design set" "$(<"$T/back.css")" "body { color: #123456; }"
run 2 design get Mine
run 1 design delete Mine # not without consent
run 0 design delete Mine --yes
run 1 design export Mine "$T/gone.design"
grep -q "Mine" "$T/err" || bad "unknown design named"
run 0 design import "$T/mine.design"
expect "imported design" "$OUT" "Mine"
run 0 design list --json
jcheck '[(x["uniqueID"], x["isDefault"]) for x in d if x["title"] == "Mine"] == [("'"$DID"'", False)] and not any(x["current"] for x in d)'
run 0 design default "$CUR"
run 1 design default Nope
run 1 design import "$T/e.xml"
run 2 design rename Mine
run 2 design list --design Mine

run 2 render "$E"
run 2 render "$E" --html "$T/a" --pdf "$T/b"
run 2 render "$E" --html "$T/a" --reminder --slip
run 2 render --all --pdf "$T/x.pdf"
run 2 render "$E" --filter 1 --out "$T/o"
run 1 render "$E" --pdf "$T/x.pdf" --design Nope
grep -q "Nope" "$T/err" && [ ! -e "$T/x.pdf" ] && pass=$((pass + 1)) || bad "unknown design refused"
run 1 render NO-SUCH-DOCUMENT --html "$T/x.html"
run 0 render "$E" --html "$T/e.html"
grep -q "Erika Muster" "$T/e.html" || bad "page has the client"
run 0 render "$E" --html "$T/mine.html" --design Mine
cmp -s "$T/e.html" "$T/mine.html" && bad "--design renders another design" || pass=$((pass + 1))
run 0 design list
grep -qx "\* $CUR" <<<"$OUT" || bad "--design leaves the library's default"

if command -v pdftotext >/dev/null; then
    run 0 render "$E" --pdf "$T/e.pdf"
    grep -q "Erika Muster" <(pdftotext "$T/e.pdf" -) || bad "PDF has the client"
    run 0 prefs set locReminder "Second Reminder"
    run 0 render "$E" --pdf "$T/r.pdf" --reminder
    grep -q "Second Reminder" <(pdftotext "$T/r.pdf" -) || bad "reminder title in the PDF"
    run 0 render "$E" --pdf "$T/s.pdf" --slip
    grep -q "Delivery Slip" <(pdftotext "$T/s.pdf" -) || bad "slip title in the PDF"
    run 0 design preview "$T/preview.pdf" --design Mine
    grep -q "Lindqvist" <(pdftotext "$T/preview.pdf" -) || bad "design preview shows the sample client"
    run 1 design preview "$T/preview.pdf" --design Nope

    run 0 list --json; NDOC=$(jval 'len(d["documents"])')
    run 0 render --all --out "$T/pdfs"
    expect "files listed" "$(wc -l <<<"$OUT")" "$NDOC"
    expect "files written" "$(find "$T/pdfs" -name '*.pdf' | wc -l)" "$NDOC"
    run 0 render "$E" "$E" --out "$T/twice"
    expect "same number, two names" "$(ls "$T/twice" | wc -l)" 2

    # Stand-ins record what would go to the print system and the mail program.
    mkdir -p "$T/bin"
    for p in lp xdg-email; do
        printf '#!/bin/sh\nprintf "%%s\\n" "$@" >"%s/%s.args"\n' "$T" "$p" >"$T/bin/$p"
        chmod +x "$T/bin/$p"
    done
    run 0 prefs set markInvoiceAsSent 1
    run 0 prefs set tempEmailBody "Hello"
    run 0 new invoice; S=$OUT
    run 0 add-item "$S" title=Print price=5 quantity=1
    run 0 set "$S" emailAddress buyer@example.org
    run 0 set "$S" title Invoice
    run 0 prefs set prefsName Acme
    PATH="$T/bin:$PATH" run 0 print "$S" --printer Office
    grep -qx "Office" "$T/lp.args" && grep -qx "Acme | Invoice | .*" "$T/lp.args" || bad "lp got printer and title: $(tr '\n' ' ' <"$T/lp.args")"
    run 0 show "$S" --json
    jcheck 'd["status"] == 1'
    run 0 set "$S" status 3
    PATH="$T/bin:$PATH" run 0 email "$S"
    grep -qx -- "-\{96\}" "$T/xdg-email.args" && grep -qx "buyer@example.org" "$T/xdg-email.args" \
        && grep -q "PDFInvoice.pdf$" "$T/xdg-email.args" || bad "xdg-email got body, attachment and recipient"
    run 0 show "$S" --json
    jcheck 'd["status"] == 1'
    printf '#!/bin/sh\necho "lp: The printer or class does not exist." >&2\nexit 1\n' >"$T/bin/lp"
    PATH="$T/bin:$PATH" run 1 print "$S" --printer Nowhere
    grep -q "does not exist" "$T/err" || bad "print failure told"
    run 0 prefs set markInvoiceAsSent 0
fi

# --- numbers a field cannot hold, shared numbers, design IDs -----------------
run 0 new invoice; F=$OUT
run 1 add-item "$F" title=Huge price=1e39 quantity=1
run 1 add-item "$F" title=Huge price=1 quantity=1e308
run 1 set "$F" misc3 1e39
run 1 set "$F" amount 1e400
run 1 prefs set tax1Rate 1e39
run 0 show "$F" --json
jcheck 'd["amount"] == 0 and d["misc3"] == 0 and not d.get("items")'
run 0 new invoice; G=$OUT
run 0 show "$F" --json; NUMF=$(jval 'd["number"]')
run 0 set "$G" number "$NUMF"
run 1 show "$NUMF"
grep -q "$F" "$T/err" && grep -q "$G" "$T/err" || bad "an ambiguous number lists both IDs: $(<"$T/err")"
run 1 delete "$NUMF" --yes
run 0 show "$F"
run 0 show "$G"
run 0 design export "$CUR" "$T/cur.design"
run 0 design import "$T/cur.design"
run 0 design import "$T/cur.design"
run 0 design list --json
jcheck 'len(set(x["uniqueID"] for x in d)) == len(d)'
STORE=$XDG_DATA_HOME/Tabo/Tabo.mbdb
DUP=$(python3 -c "import sqlite3,sys; c=sqlite3.connect(sys.argv[1]); r=c.execute('SELECT uniqueID FROM Design ORDER BY id DESC LIMIT 2').fetchall(); c.execute('UPDATE Design SET uniqueID=? WHERE uniqueID=?', (r[0][0], r[1][0])); c.commit(); print(r[0][0])" "$STORE")
run 0 design list --json; NDES=$(jval 'len(d)')
run 1 design delete "$DUP" --yes
grep -q "2 designs" "$T/err" || bad "an ID of two designs refused: $(<"$T/err")"
run 0 design list --json
jcheck "len(d) == $NDES"
# A design without its style renders nothing worth a file.
python3 -c "import sqlite3,sys; c=sqlite3.connect(sys.argv[1]); c.execute(\"UPDATE Design SET css=NULL, title='Broken' WHERE uniqueID=?\", (sys.argv[2],)); c.commit()" "$STORE" "$DUP"
run 1 render "$E" --out "$T/broken" --design Broken
[ -z "$(ls -A "$T/broken" 2>/dev/null)" ] && pass=$((pass + 1)) || bad "a broken design wrote files"
# A design that redirects to a local file renders, every time.
python3 -c "import sqlite3,sys; c=sqlite3.connect(sys.argv[1]); c.execute(\"UPDATE Design SET invoice='<meta http-equiv=\\\"Refresh\\\" content=\\\"0; url=file:///etc/passwd\\\">' || invoice WHERE title=?\", (sys.argv[2],)); c.commit()" "$STORE" "$CUR"
if command -v pdftotext >/dev/null; then
    for i in 1 2 3 4 5; do
        run 0 render "$E" --pdf "$T/refresh.pdf"
        grep -q "Erika Muster" <(pdftotext "$T/refresh.pdf" -) || bad "the redirecting design printed its page"
        grep -q "root:" <(pdftotext "$T/refresh.pdf" -) && bad "a local file reached the PDF"
    done
fi

# --- report ------------------------------------------------------------------
run 0 report --json
jcheck 'set(d) == {"INVOICES", "CREATED", "SENT", "DUE", "PAID", "FLOATTOTAL", "FLOATTOTALNET", "FLOATDUE", "FLOATPAID", "FLOATAVERAGE", "FLOATAVERAGENET"} and all(isinstance(v, int) for v in d.values())'
run 0 report --filter 4 --json # quotes only: nothing counts
jcheck 'd["INVOICES"] == 0 and d["FLOATTOTAL"] == 0 and d["FLOATAVERAGE"] == 0'
run 0 report --from 1999-01-01 --to 1999-12-31 --json
jcheck 'd["INVOICES"] == 0 and d["CREATED"] == 0'
run 0 report --html "$T/report.html"
grep -q "Invoices" "$T/report.html" && ! grep -qE "%[A-Z]+%" "$T/report.html" && pass=$((pass + 1)) || bad "report page"
run 0 account-book --pdf "$T/book.pdf"
pdftotext "$T/book.pdf" - 2>/dev/null | tr -d ' ' | grep -q '1/' && pass=$((pass + 1)) || bad "account book footer"
run 2 account-book
run 2 report --from 2026-01-01
run 2 report --from yesterday --to today

# --- reminders ---------------------------------------------------------------
R=$("$CLI" new invoice 2>/dev/null)
run 0 notify "$R" --date 2030-02-01T09:30 --title "Call" --text "About <b>RE</b> & more"
N=$OUT
run 1 notify "$R"
run 0 notify "$R" --yes --date 2031-01-01
run 0 notifications list --json
jcheck 'len(d) == 2 and d[0]["id"] == '"$N"' and d[0]["text"] == "About <b>RE</b> & more" and d[0]["delivered"] is None and d[0]["uniqueID"] == "'"$R"'"'
run 0 show "$R" --json
jcheck 'd["misc4"] == True'
run 0 notifications cancel "$N"
run 1 notifications cancel "$N"
run 2 notifications cancel first
run 2 notify "$R" --date "next week"
run 1 notify no-such-invoice
run 2 notifications
run 2 notifications deliver-due --wait soon
run 0 notifications list
expect "one reminder left" "$(printf '%s\n' "$OUT" | wc -l)" 1

# --- what e-invoices need: the buyer in parts, unit codes ---------------------
E=$("$CLI" new invoice 2>/dev/null)
run 0 address "$E" address=$'Amt für Wege\nPostfach 1\n10115 Berlin' company="Amt für Wege" street="Postfach 1" \
    postcode=10115 city=Berlin countryCode=DE buyerReference=991-12345-67 electronicAddress=rechnung@amt.example
run 0 show "$E" --json
jcheck 'd["company"] == "Amt für Wege" and d["countryCode"] == "DE" and d["buyerReference"] == "991-12345-67"'
run 0 add-item "$E" title=Work price=10 quantity=1 unitCode=hur
run 0 show "$E" --json
jcheck 'd["items"][-1]["unitCode"] == "HUR"'
run 1 add-item "$E" title=Work price=10 quantity=1 unitCode=HOUR
run 0 export "$E" --tabo "$T/e.tabo"
python3 -c "import plistlib,sys; d=open(sys.argv[1],'rb').read(); sys.exit(1 if b'buyerReference' in d or b'unitCode' in d else 0)" "$T/e.tabo" \
    && pass=$((pass + 1)) || bad "the exchange file carries store-only keys"

# --- e-invoices -----------------------------------------------------------------
run 1 einvoice export "$E" --xrechnung-cii "$T/einvoice.xml"
[ ! -e "$T/einvoice.xml" ] && pass=$((pass + 1)) || bad "an incomplete e-invoice was written"
run 1 einvoice missing "$E"
[[ $OUT == *"The company's IBAN is missing (Preferences ▸ Company)"* ]] && pass=$((pass + 1)) || bad "missing: $OUT"
for kv in "prefsName=Muster GmbH" "prefsStreet=Hauptstraße 1" prefsPostcode=10115 prefsCity=Berlin prefsCountryCode=DE \
          "prefsContactPhone=030 123456" prefsContactEmail=info@muster.example prefsVATID=DE123456789 \
          "prefsIBAN=DE02 1203 0000 0000 2020 51" prefsCurrencyCode=EUR; do
    "$CLI" prefs set "${kv%%=*}" "${kv#*=}" >/dev/null
done
run 0 einvoice missing "$E"
run 0 einvoice export "$E" --xrechnung-ubl "$T/einvoice.xml"
run 0 show "$E" --json
TOTAL=$(printf '%s' "$OUT" | python3 -c 'import json,sys; print("%.2f" % json.load(sys.stdin)["amount"])')
python3 - "$T/einvoice.xml" "$TOTAL" <<'PY' && pass=$((pass + 1)) || bad "the UBL total is not the printed total"
import sys, xml.etree.ElementTree as ET
root = ET.parse(sys.argv[1]).getroot()
first = lambda name: next(e.text for e in root.iter() if e.tag.endswith("}" + name))  # by local name
sys.exit(0 if first("PayableAmount") == sys.argv[2] and first("BuyerReference") == "991-12345-67" else 1)
PY
run 2 einvoice export "$E"
run 2 einvoice send "$E"
run 0 einvoice export "$E" --facturx "$T/hybrid.pdf" --design Classic
if command -v qpdf >/dev/null; then
    qpdf --check "$T/hybrid.pdf" >/dev/null && qpdf --show-attachment=factur-x.xml "$T/hybrid.pdf" \
        | grep -q '<ram:ID>urn:cen.eu:en16931:2017</ram:ID>' && pass=$((pass + 1)) || bad "the Factur-X PDF"
fi
pdftotext "$T/hybrid.pdf" - | grep -q "$("$CLI" show "$E" --json | python3 -c 'import json,sys; print(json.load(sys.stdin)["number"])')" \
    && pass=$((pass + 1)) || bad "the Factur-X PDF lost its page"
# The payment code of a euro invoice reads back from the printed page.
run 0 render "$E" --pdf "$T/qr.pdf" --design "DIN 5008 Form A"
if command -v zbarimg >/dev/null; then
    pdftoppm -png -r 150 -f 1 -l 1 -singlefile "$T/qr.pdf" "$T/qr"
    CODE=$(zbarimg --raw -q "$T/qr.png" 2>/dev/null)
    [[ $CODE == $'BCD\n002\n1\nSCT\n\nMuster GmbH\nDE02120300000000202051\nEUR'*$'\n\n\n'"$("$CLI" show "$E" --json | python3 -c 'import json,sys; print(json.load(sys.stdin)["number"])')" ]] \
        && pass=$((pass + 1)) || bad "payment code: $CODE"
fi
if [ -x "$T/bin/xdg-email" ]; then
    PATH="$T/bin:$PATH" run 0 email "$E" --form xrechnung
    grep -q '\.xml$' "$T/xdg-email.args" && pass=$((pass + 1)) || bad "the XRechnung was not attached"
    PATH="$T/bin:$PATH" run 0 email "$E" --form facturx
    ATTACHED=$(grep '\.pdf$' "$T/xdg-email.args")
    qpdf --list-attachments "$ATTACHED" 2>/dev/null | grep -q factur-x.xml && pass=$((pass + 1)) || bad "no Factur-X attached"
    run 2 email "$E" --form fax
    run 0 prefs get einvoiceForm
    expect "the form is for one message" "$OUT" ""
fi
# A received e-invoice is read and shown, never stored.
COUNT=$("$CLI" list --json | python3 -c 'import json,sys; print(len(json.load(sys.stdin)["documents"]))')
run 0 einvoice check "$T/hybrid.pdf"
[[ $OUT == *"well-formed CII invoice"*"its totals add up"* ]] && pass=$((pass + 1)) || bad "check: $OUT"
run 0 einvoice view "$T/einvoice.xml" --html "$T/received.html"
grep -q "Muster GmbH" "$T/received.html" && pass=$((pass + 1)) || bad "the received page lacks its seller"
run 0 einvoice view "$T/hybrid.pdf" --pdf "$T/received.pdf"
pdftotext "$T/received.pdf" - | grep -q "Amount due" && pass=$((pass + 1)) || bad "the received PDF"
printf '<!DOCTYPE x [<!ENTITY a "b">]><x>&a;</x>' >"$T/dtd.xml"
run 1 einvoice check "$T/dtd.xml"
run 1 einvoice view "$T/qr.png" --html "$T/no.html"
run 2 einvoice view "$T/einvoice.xml"
expect "nothing stored" "$("$CLI" list --json | python3 -c 'import json,sys; print(len(json.load(sys.stdin)["documents"]))')" "$COUNT"
run 1 cancel "$E" --yes # still created: it can be changed instead
"$CLI" set "$E" status 1 >/dev/null
run 1 cancel "$E"
run 0 cancel "$E" --yes
CN=$OUT
run 0 show "$CN" --json
jcheck 'd["amount"] < 0 and d["precedingNumber"] != "" and d["items"][0]["unitCount"] < 0'
# Every built-in design prints the credit note with its negative total.
CNTOTAL=$("$CLI" show "$CN" --json | python3 -c 'import json,sys; print("%.2f" % -json.load(sys.stdin)["amount"])')
"$CLI" design list --json | python3 -c 'import json,sys; [print(d["uniqueID"]) for d in json.load(sys.stdin) if d["uniqueID"].startswith("TABO-BUILTIN")]' >"$T/designs"
while read -r D; do
    "$CLI" render "$CN" --pdf "$T/cn.pdf" --design "$D" >/dev/null 2>&1 \
        && pdftotext "$T/cn.pdf" - | tr -d ' $€' | grep -q -- "-${CNTOTAL/./,}\|-${CNTOTAL}" \
        && pass=$((pass + 1)) || bad "design $D does not print the credit note's total -$CNTOTAL"
done <"$T/designs"
run 0 einvoice export "$CN" --xrechnung-cii "$T/credit.xml"
grep -q '<ram:TypeCode>381</ram:TypeCode>' "$T/credit.xml" && grep -q 'InvoiceReferencedDocument' "$T/credit.xml" \
    && pass=$((pass + 1)) || bad "the credit note's e-invoice is not a credit note"

# --- payments from a bank statement ----------------------------------------
P=$("$CLI" new invoice)
"$CLI" set "$P" number PAY-77 >/dev/null
"$CLI" set "$P" amount 321.5 >/dev/null
"$CLI" set "$P" status 1 >/dev/null
today=$(date +%F)
cat >"$T/statement.xml" <<XML
<?xml version="1.0"?><Document xmlns="urn:iso:std:iso:20022:tech:xsd:camt.053.001.02"><BkToCstmrStmt><Stmt><Id>S</Id>
<Ntry><Amt Ccy="EUR">321.50</Amt><CdtDbtInd>CRDT</CdtDbtInd><BookgDt><Dt>$today</Dt></BookgDt><AcctSvcrRef>R-1</AcctSvcrRef>
<NtryDtls><TxDtls><RmtInf><Ustrd>pay 77 Rechnung PAY 77</Ustrd></RmtInf></TxDtls></NtryDtls></Ntry></Stmt></BkToCstmrStmt></Document>
XML
run 0 payments import "$T/statement.xml" --json
jcheck 'd["format"] == "CAMT.053" and d["applied"] == 0 and d["credits"][0]["confidence"] == "sure" and d["credits"][0]["number"] == "PAY-77"'
run 0 payments import "$T/statement.xml" --apply --json
jcheck 'd["applied"] == 1'
run 0 show "$P" --json
jcheck 'd["status"] == 3 and abs(d["paidAmount"] - 321.5) < 1e-9'
run 0 payments import "$T/statement.xml" --apply --json
jcheck 'd["applied"] == 0 and d["credits"][0]["confidence"] == "imported"'
printf 'date;amount\n' >"$T/not-a-statement.csv"
run 1 payments import "$T/not-a-statement.csv"
run 2 payments export "$T/statement.xml"
# A bank's CSV export whose headings nobody knows: named once, then remembered.
Q=$("$CLI" new invoice)
"$CLI" set "$Q" number CSV-5 >/dev/null
"$CLI" set "$Q" amount 40 >/dev/null
"$CLI" set "$Q" status 1 >/dev/null
printf 'Tag;Wert;Notiz\n%s;40,00;CSV-5\n' "$(date +%d.%m.%Y)" >"$T/odd.csv"
run 1 payments import "$T/odd.csv"
grep -q "Tag, Wert, Notiz" "$T/err" || bad "unknown headings named: $(<"$T/err")"
run 2 payments import "$T/odd.csv" --columns
run 1 payments import "$T/odd.csv" --columns date=1,sum=2
run 0 payments import "$T/odd.csv" --columns date=Tag,amount=2,text=3 --json
jcheck 'd["format"] == "CSV" and d["credits"][0]["number"] == "CSV-5"'
run 0 payments import "$T/odd.csv" --apply --json
jcheck 'd["applied"] == 1'

# --- repeated invoices -------------------------------------------------------
R=$("$CLI" new invoice)
"$CLI" set "$R" subject 'Retainer %PERIOD%' >/dev/null
run 2 recurring add "$R" --every month
run 2 recurring add "$R" --every month --from 2026-13-01
run 1 recurring add "$R" --every '0 weeks' --from 2026-01-01
run 1 recurring add "$R" --every month --from 2026-05-01 --until 2026-04-01
run 1 recurring add NO-SUCH-TEMPLATE --every month --from 2026-05-01
first=$(date -d "$(date +%Y-%m-01) -2 months" +%F)
run 0 recurring add "$R" --every month --from "$first" --count 12
run 0 recurring list
grep -q "next $first" <<<"$OUT" || bad "list shows the next date: $OUT"
run 0 recurring run --dry-run
expect "dry run" "$(grep -c Would <<<"$OUT")" 3
run 0 recurring run
expect "caught up" "$(wc -l <<<"$OUT")" 3
run 0 recurring run
expect "nothing twice" "$OUT" ""
run 0 list --json
jcheck 'len([x for x in d["documents"] if x["subject"].startswith("Retainer ") and "%" not in x["subject"]]) == 3'
run 0 recurring pause 1
run 0 recurring resume 1
run 1 recurring remove 99
run 2 recurring pause one
run 0 recurring remove 1
run 0 recurring list
expect "removed" "$OUT" ""

# --- a store file that is not a database ------------------------------------
mkdir -p "$T/other/data/Tabo"
printf 'not a database, just text\n' >"$T/other/data/Tabo/Tabo.mbdb"
cp "$T/other/data/Tabo/Tabo.mbdb" "$T/original"
XDG_DATA_HOME=$T/other/data run 1 list
XDG_DATA_HOME=$T/other/data run 1 new invoice
cmp -s "$T/original" "$T/other/data/Tabo/Tabo.mbdb" && pass=$((pass + 1)) || bad "foreign file changed"

echo "$pass passed, $fail failed"
[ "$fail" -eq 0 ]
