#!/usr/bin/env bash
# What the linters say of the sources: tests/linters.sh BUILD-FOLDER
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
readarray -t sources < <(find $product -name '*.cpp')
# shellcheck disable=SC2086
readarray -t formatted < <(find $product tests benchmark -name '*.cpp' -o -name '*.h')

# A compiler's options that clang does not know are no finding.
tidy() {
    printf '%s\0' "${sources[@]}" \
        | xargs -0 -n 4 -P "$(nproc)" clang-tidy-16 --quiet -p "$build" --extra-arg=-Wno-unknown-warning-option
}

check "kaynaklar biçimlidir (clang-format)" clang-format-14 --dry-run -Werror "${formatted[@]}"
check "betikler temizdir (shellcheck)" shellcheck -x -S warning run bench test .ci/run scripts/*.sh tests/*.sh tests/converting/*
check "kaynaklar temizdir (clang-tidy)" tidy
[ "$failures" = 0 ]
