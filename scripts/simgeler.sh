#!/usr/bin/env bash
# Draws the program's picture anew, after resources/simgeler/*.svg changed: one PNG for each size, since
# the small ones have a drawing of their own. Needs rsvg-convert (librsvg2-bin).
set -eu
cd "$(dirname "$(readlink -f "$0")")/../resources/simgeler"

draw() { # draw SVG SIZE...
    local source=$1 size
    shift
    for size in "$@"; do
        rsvg-convert -w "$size" -h "$size" "$source" -o "belgenar-$size.png"
    done
}

draw belgenar-kucuk.svg 16 24 32
draw belgenar.svg 48 64 128 256 512
