#!/usr/bin/env bash
# The program under a Wayland compositor that has no screen: tests/wayland.sh BUILD-FOLDER
# Prints a line "ok ...", "FAIL ..." or "skipped: ..." for each check.
set -u
build=$(readlink -f "$1")
cd "$(dirname "$(readlink -f "$0")")/.." || exit 1
. scripts/ortak.sh
. tests/check.sh

command -v weston >/dev/null || { echo "skipped: Wayland (weston yok)"; exit; }

work=$(mktemp -d)
trap 'kill $program $compositor 2>/dev/null; wait; rm -rf "$work"' EXIT
program='' compositor=''
export XDG_RUNTIME_DIR=$work/calisma XDG_CONFIG_HOME=$work/ayar HOME=$work
mkdir -m 700 "$XDG_RUNTIME_DIR"
cmake --install "$build" --prefix "$work/Belgenar" >/dev/null
"$work/Belgenar/belgenar-kitaplik" oluştur "$work/Belgenar" >/dev/null

weston --backend=headless-backend.so --width=1280 --height=1024 --socket=belgenar >"$work/weston" 2>&1 &
compositor=$!
check "Wayland birleştiricisi başlar" eventually test -S "$XDG_RUNTIME_DIR/belgenar"
WAYLAND_DISPLAY=belgenar QT_QPA_PLATFORM=wayland WAYLAND_DEBUG=client "$work/Belgenar/belgenar" 2>"$work/konusma" &
program=$!
# Its title is the main window's; the frame that is answered is one that was drawn.
shown() { grep -q 'set_title("Tepsan Yazılım - Belgenar' "$work/konusma" && grep -q 'wl_callback.*done' "$work/konusma"; }
check "ana pencere Wayland'da açılır" eventually shown
ended() {
    kill -TERM "$program"
    wait "$program"
}
check "program durum 0 ile biter" ended
program=
[ "$failures" = 0 ]
