#!/usr/bin/env bash
# What the linters say of the sources: tests/linters.sh BUILD-FOLDER [--hepsi]
# clang-tidy, which takes minutes, reads what the last commit touched, or all sources.
# Prints a line "ok ..." or "FAIL ..." for each linter.
set -u
build=$(readlink -f "$1")
cd "$(dirname "$(readlink -f "$0")")/.." || exit 1
. tests/check.sh

for tool in clang-format-14 clang-tidy-16 shellcheck; do
    command -v "$tool" >/dev/null || { echo "skipped: $tool yok"; exit; }
done

product="base text document store system app controls forms program tools"
# shellcheck disable=SC2086
if [ "${2-}" = --hepsi ]; then
    readarray -t sources < <(find $product -name '*.cpp')
else
    readarray -t sources < <(git -c core.quotePath=false diff --name-only --diff-filter=d HEAD~1 HEAD -- $product 2>/dev/null \
        | grep '\.cpp$')
fi
# shellcheck disable=SC2086
readarray -t formatted < <(find $product tests benchmark -name '*.cpp' -o -name '*.h')

# A compiler's options that clang does not know are no finding. It can't read the compiler's precompiled headers.
tidy() {
    [ ${#sources[@]} -gt 0 ] || return 0
    mkdir -p "$build/tidy"
    sed 's/ -Winvalid-pch -include [^ ]*cmake_pch\.hxx//' "$build/compile_commands.json" >"$build/tidy/compile_commands.json"
    printf '%s\0' "${sources[@]}" \
        | xargs -0 -n 4 -P "$(nproc)" clang-tidy-16 --quiet -p "$build/tidy" --extra-arg=-Wno-unknown-warning-option
}

check "kaynaklar biçimlidir (clang-format)" clang-format-14 --dry-run -Werror "${formatted[@]}"
check "betikler temizdir (shellcheck)" shellcheck -x -S warning run bench test .ci/run scripts/*.sh tests/*.sh tests/converting/*
check "kaynaklar temizdir (clang-tidy)" tidy
[ "$failures" = 0 ]
