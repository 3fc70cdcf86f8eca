#!/usr/bin/env bash
# Every window at three scales and sizes of the desktop's letters, under a window manager, each with each where all are
# asked for: tests/sizes.sh BUILD-FOLDER [--hepsi]
# Prints a line "ok ..." or "FAIL ..." for each window of each of them.
set -u
build=$(readlink -f "$1")
cd "$(dirname "$(readlink -f "$0")")/.." || exit 1
. scripts/ortak.sh

work=$(mktemp -d)
start_virtual_display 1920x1080
trap 'stop_virtual_display; rm -rf "$work"' EXIT
export XDG_RUNTIME_DIR=$work HOME=$work
status=0
for scale in 1 1.5 2; do
    for points in 9 14 20; do
        case "${2-},$scale,$points" in
            --hepsi,* | *,1,9 | *,1.5,20 | *,2,14) ;;
            *) continue ;;
        esac
        QT_SCALE_FACTOR=$scale timeout 300 "$build/tests/sizes_driver" $points 2>"$work/log" \
            | sed "s/^\(ok\|FAIL\) /&scale $scale, $points points: /" >"$work/said"
        [ "$(grep -c . "$work/said")" = 12 ] || { echo "FAIL scale $scale, $points points: a window is missing"; cat "$work/log"; }
        cat "$work/said"
        grep -q '^FAIL' "$work/said" && status=1
    done
done
exit $status
