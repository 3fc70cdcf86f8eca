#!/usr/bin/env bash
# What a screen reader is told, on a virtual screen with an accessibility bus of its own: tests/screen_reader.sh BUILD-FOLDER
# Prints a line "ok ..." or "FAIL ..." for each check.
set -u
build=$(readlink -f "$1")
cd "$(dirname "$(readlink -f "$0")")/.." || exit 1
. scripts/ortak.sh

work=$(mktemp -d)
folder=$work/Belgenar
library=resources/kitaplik/baslangic.jsonl
export XDG_CONFIG_HOME=$work/ayar XDG_RUNTIME_DIR=$work/calisma HOME=$work/ev
mkdir -m 700 "$XDG_RUNTIME_DIR" "$HOME"
session=
start_virtual_display 1280x900
# The buses, what they have started and the program are one group.
trap '[ -z "$session" ] || kill -KILL -- "-$session" 2>/dev/null; stop_virtual_display; rm -rf "$work"' EXIT

cmake --install "$build" --prefix "$folder" >/dev/null
"$folder/belgenar-kitaplik" oluştur "$folder" >/dev/null
"$folder/belgenar-kitaplik" aktar "$folder" "$library" >/dev/null

# Debian's Python: another one may come first and lacks the bindings.
setsid timeout 400 dbus-run-session -- /usr/bin/python3 tests/screen_reader.py "$folder/belgenar" "$library" \
    >"$work/said" 2>"$work/log" &
session=$!
wait "$session"
status=$?
grep -E '^(ok|FAIL|  )' "$work/said"
if [ "$status" != 0 ]; then
    grep -q '^FAIL' "$work/said" || echo "FAIL ekran okuyucunun denemesi sonuna varır"
    tail -n 20 "$work/log" | sed 's/^/  /'
fi
exit "$status"
