#!/usr/bin/env bash
# ./run in a folder whose name holds the signs that build tools stumble over: tests/build_twice.sh
# Prints a line "ok ..." or "FAIL ..." for each check.
set -u
cd "$(dirname "$(readlink -f "$0")")/.." || exit 1
. scripts/ortak.sh
. tests/check.sh

work=$(mktemp -d)
trap 'rm -rf "$work"; [ "$place" = "$PWD" ] || rm -f "$place"' EXIT
checkout="$work/Ali'nin \"iş\" klasörü \$x %f [#;&*\\"
mkdir -p "$checkout/Belgenar"
cp -r run scripts CMakePresets.json "$checkout/"
cd "$checkout" || exit 1
find_build_place

# A program of the same name that is built in a moment, beside a library that is there.
touch Belgenar/Makale.mde
echo '#define STATUS 3' >durum.h
printf '#include "durum.h"\nint main() { return STATUS; }\n' >belgenar.cpp
cat >CMakeLists.txt <<'END'
cmake_minimum_required(VERSION 3.25)
project(belgenar LANGUAGES CXX)
add_executable(belgenar belgenar.cpp)
install(TARGETS belgenar RUNTIME DESTINATION .)
END

prepared_with() { ./run --hazırla && { Belgenar/belgenar; [ $? = "$1" ]; }; }
builds_nothing() { cp build/release/.ninja_log "$work/" && ./run --hazırla && cmp "$work/.ninja_log" build/release/.ninja_log; }
check "adı tuhaf klasörde derlenir" prepared_with 3
check "ikinci kez bir şey derlenmez" builds_nothing
echo '#define STATUS 4' >durum.h
touch -d '1 minute ago' Belgenar/belgenar # CMake takes two files of the same second for the same
check "değişen dosya derlenir" prepared_with 4
mv "$checkout" "$work/taşınmış [2]"
cd "$work/taşınmış [2]" || exit 1
rm -f "$place"
find_build_place
check "taşınınca yeniden derlenir" prepared_with 4

[ "$failures" = 0 ]
