#!/bin/bash
# Runs tabo-cli as a person would, against a throw-away home.
CLI=$(realpath "${1:?usage: test_cli.sh /path/to/tabo-cli}")
[ -x "$CLI" ] || { echo "not a program: $1" >&2; exit 1; }
T=$(mktemp -d) || exit 1
trap 'rm -rf "$T"' EXIT
export HOME=$T/home XDG_DATA_HOME=$T/data XDG_CONFIG_HOME=$T/config
mkdir -p "$HOME"
pass=0 fail=0

bad() { fail=$((fail + 1)); echo "FAIL: $*" >&2; }

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

# --- a store file that is not a database ------------------------------------
mkdir -p "$T/other/data/Tabo"
printf 'not a database, just text\n' >"$T/other/data/Tabo/Tabo.mbdb"
cp "$T/other/data/Tabo/Tabo.mbdb" "$T/original"
XDG_DATA_HOME=$T/other/data run 1 list
XDG_DATA_HOME=$T/other/data run 1 new invoice
cmp -s "$T/original" "$T/other/data/Tabo/Tabo.mbdb" && pass=$((pass + 1)) || bad "foreign file changed"

echo "$pass passed, $fail failed"
[ "$fail" -eq 0 ]
