# shellcheck shell=bash
# What the test scripts share. Sourced by bash.

failures=0
on_failure() { :; } # a script may look closer

# check TITLE COMMAND...: prints "ok TITLE", or "FAIL TITLE" and what the command said last.
check() {
    local title=$1 said
    shift
    said=$(mktemp)
    if "$@" >"$said" 2>&1; then
        echo "ok $title"
    else
        echo "FAIL $title"
        tail -n 20 "$said" | sed 's/^/  /'
        failures=$((failures + 1))
        on_failure
    fi
    rm -f "$said"
}
