#!/bin/bash
# What a careless or unlucky person types must not destroy data: outputs aimed
# at our own files, restores of the wrong kind, damaged or locked settings,
# and numbers given twice by processes running side by side.
source "$(dirname "$0")/home.sh"
STORE=$XDG_DATA_HOME/Tabo/Tabo.mbdb
CONF=$XDG_CONFIG_HOME/Tabo/Tabo.conf
AUTO=$HOME/Documents/Tabo_Backup.mbdb

expect() { [ "$2" = "$3" ] && pass=$((pass + 1)) || bad "$1: got '$2', wanted '$3'"; }
run() {
    local want=$1 rc
    shift
    "$CLI" "$@" >"$T/out" 2>"$T/err"
    rc=$?
    OUT=$(<"$T/out") ERR=$(<"$T/err")
    [ "$rc" -eq "$want" ] && pass=$((pass + 1)) || bad "tabo-cli $* exited $rc, wanted $want: $ERR"
}
jval() { printf '%s' "$OUT" | python3 -c "import json,sys; d=json.load(sys.stdin); print($1)"; }

# --- a store with an invoice that can become an e-invoice -----------------------
"$CLI" prefs install-language 0 >/dev/null
for kv in "prefsName=Muster GmbH" "prefsStreet=Hauptstraße 1" prefsPostcode=10115 prefsCity=Berlin prefsCountryCode=DE \
          "prefsContactPhone=030 123456" prefsContactEmail=info@muster.example prefsVATID=DE123456789 \
          "prefsIBAN=DE02 1203 0000 0000 2020 51" prefsCurrencyCode=EUR; do
    "$CLI" prefs set "${kv%%=*}" "${kv#*=}" >/dev/null
done
run 0 new invoice; E=$OUT
run 0 address "$E" address=$'Amt\nPostfach 1\n10115 Berlin' company=Amt street="Postfach 1" postcode=10115 \
    city=Berlin countryCode=DE buyerReference=991-1
run 0 add-item "$E" title=Work price=10 quantity=1 isTax1Applied=1
run 0 backup auto
[ -f "$AUTO" ] && pass=$((pass + 1)) || bad "no automatic backup at $AUTO"
run 0 design export Classic "$T/ok.design" # the first use installs the designs

# --- outputs aimed at our own files are refused, the files left as they were ---
mkdir -p "$T/links" "$T/deep/er"
ln -s "$STORE" "$T/links/store-link.pdf"
ln -s "$CONF" "$T/links/conf-link.pdf"
TARGETS=("$STORE" "$STORE-wal" "$CONF" "$AUTO" "$T/links/store-link.pdf" "$T/links/conf-link.pdf"
         "$T/deep/er/../../data/Tabo/Tabo.mbdb")
sum() { for f in "$STORE" "$CONF" "$AUTO"; do sha1sum "$f"; done; }
BEFORE=$(sum)
for target in "${TARGETS[@]}"; do
    run 1 render "$E" --html "$target"
    run 1 render "$E" --pdf "$target"
    run 1 export "$E" --tabo "$target"
    run 1 export "$E" --xml "$target"
    run 1 export-xml "$target"
    run 1 dump "$target"
    run 1 report --pdf "$target"
    run 1 report --html "$target"
    run 1 backup invoices "$target"
    run 1 backup items "$target"
    run 1 design export Classic "$target"
    run 1 einvoice export "$E" --xrechnung-cii "$target"
    run 1 einvoice export "$E" --facturx "$target"
    run 1 account-book --pdf "$target"
    [[ $ERR == *"Tabo never writes anything else onto it"* ]] && pass=$((pass + 1)) || bad "refusal for $target says: $ERR"
done
expect "our files after every refused output" "$(sum)" "$BEFORE"
[ -L "$T/links/store-link.pdf" ] && pass=$((pass + 1)) || bad "the link to the store was replaced"
run 0 list --json
expect "the store still opens" "$(jval 'len(d["documents"])')" 1

# --- restores read the kind of file before they touch anything ------------------
run 0 backup invoices "$T/all.taboinvoices"
run 0 backup items "$T/all.taboitems"
run 0 export-xml "$T/all.xml"
run 0 backup database "$T/whole"
run 0 export "$E" --tabo "$T/one.tabo"
run 0 export "$E" --xml "$T/one.xml"
run 0 dump "$T/all.invdump"
run 0 render "$E" --html "$T/page.html"
# Every restore fed every other kind of file: refused, naming what it is.
declare -A FITS=([database]="whole.tabo2db" [invoices]="all.taboinvoices all.xml" [items]="all.taboitems")
for kind in database invoices items; do
    for file in whole.tabo2db all.taboinvoices all.xml all.taboitems one.tabo one.xml all.invdump ok.design page.html; do
        [[ " ${FITS[$kind]} " == *" $file "* ]] && continue
        run 1 restore "$kind" "$T/$file" --yes
    done
done
run 1 restore invoices "$T/all.taboitems" --yes
[[ $ERR == *"catalogue items"*"restore items"* ]] && pass=$((pass + 1)) || bad "items into invoices: $ERR"
run 1 restore items "$T/all.taboinvoices" --yes
[[ $ERR == *"documents"*"restore invoices"* ]] && pass=$((pass + 1)) || bad "invoices into items: $ERR"
run 1 restore invoices "$T/whole.tabo2db" --yes
[[ $ERR == *"complete database backup"* ]] && pass=$((pass + 1)) || bad "database into invoices: $ERR"
run 1 restore database "$T/all.taboinvoices" --yes
[[ $ERR == *"restore invoices"* ]] && pass=$((pass + 1)) || bad "invoices into database: $ERR"
run 0 show "$E" --json
expect "the document after refused restores" "$(jval 'd["uniqueID"]')" "$E"
run 0 restore invoices "$T/all.xml" --yes # an XML export of documents is a list of documents

# --- the automatic backup keeps generations and is never taken of a bad store ---
for i in 1 2 3 4; do run 0 backup auto; done
for g in 1 2 3; do
    [ -f "$HOME/Documents/Tabo_Backup.$g.mbdb" ] && pass=$((pass + 1)) || bad "generation $g is missing"
done
GOOD=$(sha1sum <"$AUTO")
cp "$STORE" "$T/good.mbdb"
python3 - "$STORE" <<'PY'
import sys
with open(sys.argv[1], "r+b") as f:
    size = f.seek(0, 2)
    f.seek(4096)
    f.write(b"\xff" * (size - 4096))
PY
rm -f "$STORE-wal" "$STORE-shm"
run 1 backup auto
expect "the last good backup after a backup of a damaged store" "$(sha1sum <"$AUTO")" "$GOOD"
cp "$T/good.mbdb" "$STORE"

# --- a received PDF whose attachment inflates to 600 MB, under a 1 GB limit ------
python3 - "$T/bomb.pdf" <<'PY'
import sys, zlib
packer = zlib.compressobj(9)
block = b" " * (1 << 20)
data = b"".join(packer.compress(block) for _ in range(600)) + packer.flush()
objects = [
    b"<< /Type /Catalog /Pages 2 0 R /Names << /EmbeddedFiles << /Names [(factur-x.xml) 4 0 R] >> >> >>",
    b"<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
    b"<< /Type /Page /Parent 2 0 R /MediaBox [0 0 10 10] >>",
    b"<< /Type /Filespec /F (factur-x.xml) /UF (factur-x.xml) /EF << /F 5 0 R >> >>",
    b"<< /Type /EmbeddedFile /Filter /FlateDecode /Length %d >>\nstream\n" % len(data) + data + b"\nendstream",
]
pdf, offsets = b"%PDF-1.7\n", []
for number, body in enumerate(objects, 1):
    offsets.append(len(pdf))
    pdf += b"%d 0 obj\n" % number + body + b"\nendobj\n"
xref = len(pdf)
pdf += b"xref\n0 %d\n0000000000 65535 f \n" % (len(objects) + 1)
pdf += b"".join(b"%010d 00000 n \n" % o for o in offsets)
pdf += b"trailer\n<< /Size %d /Root 1 0 R >>\nstartxref\n%d\n%%%%EOF\n" % (len(objects) + 1, xref)
open(sys.argv[1], "wb").write(pdf)
PY
start=$(date +%s)
(ulimit -v 1048576; "$CLI" einvoice check "$T/bomb.pdf" >"$T/out" 2>"$T/err"; echo $? >"$T/rc")
expect "the bomb's exit code" "$(<"$T/rc")" 1
[[ $(<"$T/err") == *"unpacks to more than 20 MB"* ]] && pass=$((pass + 1)) || bad "the bomb says: $(<"$T/err")"
[ $(($(date +%s) - start)) -lt 20 ] && pass=$((pass + 1)) || bad "the bomb took $(($(date +%s) - start)) s"

# --- set keeps what names a document and the codes' meanings ---------------------
run 0 new invoice; F=$OUT
run 1 set "$F" uniqueID "$E"
run 1 set "$F" kind 7
run 1 set "$F" status 99
run 0 set "$F" status 3
run 0 set "$F" status 0
run 0 delete "$F" --yes
run 1 add-item "$E" title=Huge price=1e308 quantity=1
[[ $ERR == *"too large"* ]] && pass=$((pass + 1)) || bad "1e308 says: $ERR"

# --- reminders keep their time ----------------------------------------------------
run 0 notify "$E" --date 2031-12-03T09:00 --yes
run 0 notifications list --json
WANT=$(python3 -c 'import datetime; print(datetime.datetime(2031,12,3,9,0).astimezone().timestamp())')
python3 -c "
import json,sys,datetime
d=json.loads(sys.argv[1]); want=float(sys.argv[2])
got=[datetime.datetime.fromisoformat(n['date'].replace('Z','+00:00')).timestamp() for n in d]
sys.exit(0 if any(abs(g-want)<1 for g in got) else 1)" "$OUT" "$WANT" && pass=$((pass + 1)) || bad "notify --date kept no 09:00: $OUT"
run 0 notify "$E" --date 2031-12-04T09:00:00Z --yes
run 0 notifications list --json
[[ $OUT == *"2031-12-04T09:00:00"* ]] && pass=$((pass + 1)) || bad "a moment in UTC: $OUT"

# --- prefs set follows the window's rules -----------------------------------------
run 1 prefs set invCount -3
run 1 prefs set invPattern RE-2026
run 1 prefs set tax1Rate 19
run 1 prefs set prefsRegion xx_nowhere
run 1 prefs set customDatabasePath relative/dir
run 1 prefs set customDatabasePath "$T/missing"
run 1 prefs set useCustomPath 1 # no folder named yet
mkdir -p "$T/elsewhere"
run 0 prefs set customDatabasePath "$T/elsewhere"
run 0 prefs set useCustomPath 1
[ -f "$T/elsewhere/Tabo.mbdb" ] && pass=$((pass + 1)) || bad "the store did not move"
run 0 show "$E" --json
expect "the document after the move" "$(jval 'd["uniqueID"]')" "$E"
run 0 prefs set useCustomPath 0
run 0 show "$E" --json

# --- one-time upgrades run before the first command, not over its settings ------
(
    export XDG_CONFIG_HOME=$T/fresh-config XDG_DATA_HOME=$T/fresh-data
    run 0 prefs set beforeTaxesBool 0
    run 0 new invoice
    run 0 prefs get beforeTaxesBool
    expect "a setting made before the first document" "$OUT" false
    echo "$pass $fail" >"$T/sub"
)
read -r pass fail <"$T/sub"

# --- damaged, folder, read-only and locked settings ------------------------------
cp "$CONF" "$T/conf.good"
head -c 3000 /dev/urandom >"$CONF"
cp "$CONF" "$T/conf.bad"
run 1 new invoice
cmp -s "$CONF" "$T/conf.bad" && pass=$((pass + 1)) || bad "a damaged settings file was rewritten"
[ -f "$CONF.bak" ] && pass=$((pass + 1)) || bad "no kept copy of the last good settings"
run 0 prefs restore
run 0 prefs get prefsName
expect "the settings restored" "$OUT" "Muster GmbH"
mv "$CONF" "$T/conf.moved"; mkdir "$CONF"
run 1 prefs set prefsName X
rmdir "$CONF"; mv "$T/conf.moved" "$CONF"
# A full disk (no byte may be written) and a read-only file: said, nothing lost.
cp "$CONF" "$T/conf.before"
# (written through a pipe: a file could not take the message either)
(trap '' XFSZ; ulimit -f 0; exec "$CLI" prefs set prefsName Full) 2>&1 | cat >"$T/err"
expect "prefs set on a full disk" "${PIPESTATUS[0]}" 1
[[ $(<"$T/err") == *"could not be written"* ]] && pass=$((pass + 1)) || bad "full disk says: $(<"$T/err")"
cmp -s "$CONF" "$T/conf.before" && pass=$((pass + 1)) || bad "the settings changed on a full disk"
chmod 755 "$T" "$XDG_CONFIG_HOME" "$(dirname "$CONF")"
chmod 644 "$CONF"
RO_CLI=$CLI
if [ "$(id -u)" -eq 0 ]; then
    # root writes anywhere: another user finds the file read-only (with a
    # copy of the program, which may live where that user cannot look)
    AS_OTHER=(setpriv --reuid=65534 --regid=65534 --clear-groups)
    RO_CLI=$T/tabo-cli
    cp "$CLI" "$RO_CLI" && chmod 755 "$RO_CLI"
else
    AS_OTHER=()
    chmod a-w "$CONF" "$(dirname "$CONF")"
fi
"${AS_OTHER[@]}" "$RO_CLI" prefs set prefsName ReadOnly >"$T/out" 2>"$T/err"
expect "prefs set on a read-only file" "$?" 1
[[ $(<"$T/err") == *"could not be written"* ]] && pass=$((pass + 1)) || bad "read-only says: $(<"$T/err")"
cmp -s "$CONF" "$T/conf.before" && pass=$((pass + 1)) || bad "a read-only settings file changed"
chmod u+w "$CONF" "$(dirname "$CONF")"
# A lock held by a live process is waited for, then named; an empty one is cleared.
python3 - "$CONF.lock" <<'PY' &
import fcntl, os, sys, time
fd = os.open(sys.argv[1], os.O_CREAT | os.O_RDWR)
fcntl.flock(fd, fcntl.LOCK_EX)
os.write(fd, b"%d\nlocker\nhost\n" % os.getpid())
open(sys.argv[1] + ".ready", "w").close()
time.sleep(30)
PY
LOCKER=$!
for _ in $(seq 50); do [ -e "$CONF.lock.ready" ] && break; sleep 0.1; done
start=$(date +%s)
run 1 prefs set prefsName Z
[ $(($(date +%s) - start)) -lt 15 ] && pass=$((pass + 1)) || bad "a held lock kept prefs set waiting"
[[ $ERR == *"process $LOCKER"* ]] && pass=$((pass + 1)) || bad "the lock's holder is not named: $ERR"
kill $LOCKER; wait $LOCKER 2>/dev/null
rm -f "$CONF.lock" "$CONF.lock.ready"
: >"$CONF.lock"
start=$(date +%s)
run 0 prefs set prefsName Muster
[ $(($(date +%s) - start)) -lt 5 ] && pass=$((pass + 1)) || bad "an empty lock stalled the start"

# --- no invoice number is ever given twice ---------------------------------------
"$CLI" prefs set invPattern "RE-%COUNT%" >/dev/null
run 0 new quote; Q=$OUT
run 0 duplicate "$Q"
run 0 new invoice
run 0 list --json
dupes() { jval 'len([n for n in (x["number"] for x in d["documents"]) if n]) - len(set(n for n in (x["number"] for x in d["documents"]) if n))'; }
expect "numbers after duplicating a quote" "$(dupes)" 0
N=${TABO_NUMBER_TRIALS:-100}
worker() { # kind of call, how many
    local i id
    for ((i = 0; i < $2; i++)); do
        case $1 in
        new) "$CLI" new invoice >/dev/null 2>&1 ;;
        dup) id=$("$CLI" list --json 2>/dev/null | python3 -c 'import json,sys,random; d=json.load(sys.stdin)["documents"]; print(random.choice(d)["uniqueID"])' 2>/dev/null)
             [ -n "$id" ] && "$CLI" duplicate "$id" >/dev/null 2>&1 ;;
        del) id=$("$CLI" list --json 2>/dev/null | python3 -c 'import json,sys,random; d=[x for x in json.load(sys.stdin)["documents"] if x["status"] == 0]; print(random.choice(d)["uniqueID"] if d else "")' 2>/dev/null)
             if [ -n "$id" ]; then
                 if ((i % 2)); then "$CLI" delete "$id" --yes --adjust-counter >/dev/null 2>&1
                 else "$CLI" delete "$id" --yes >/dev/null 2>&1; fi
             fi ;;
        esac
    done
}
worker new "$N" & worker new "$N" & worker dup $((N / 2)) & worker del $((N / 2)) &
wait
run 0 list --json
expect "repeated numbers after $((3 * N)) concurrent calls" "$(dupes)" 0
echo "concurrent numbering: $((3 * N)) calls, $(jval 'len(d["documents"])') documents, $(dupes) repeated numbers"

echo "$pass passed, $fail failed"
[ "$fail" -eq 0 ]
