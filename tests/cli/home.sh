# Sourced by the command-line tests: the program under test in $CLI, a
# throw-away home in $T (removed on exit), the counters and `bad`.
CLI=$(realpath "${1:?usage: $0 /path/to/tabo-cli}")
[ -x "$CLI" ] || { echo "not a program: $1" >&2; exit 1; }
T=$(mktemp -d) || exit 1
trap 'rm -rf "$T"' EXIT
export HOME=$T/home XDG_DATA_HOME=$T/data XDG_CONFIG_HOME=$T/config
mkdir -p "$HOME/Documents"
pass=0 fail=0
bad() { fail=$((fail + 1)); echo "FAIL: $*" >&2; }
