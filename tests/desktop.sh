#!/usr/bin/env bash
# What the program brings for the user's desktop: tests/desktop.sh BUILD-FOLDER
# Prints a line "ok ...", "FAIL ..." or "skipped: ..." for each check.
set -u
build=$(readlink -f "$1")
cd "$(dirname "$(readlink -f "$0")")/.." || exit 1
. scripts/ortak.sh
. tests/check.sh

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export HOME=$work/ev XDG_DATA_HOME="$work/ev/veri klasörü" XDG_CONFIG_HOME="$work/ev/ayar %h"
mkdir -p "$work/bin" # the service manager's stand-in: it notes what it is told, and refuses while told so
printf '#!/bin/sh\necho "$@" >>"%s"\n! [ -e "%s" ]\n' "$work/soylenen" "$work/ret" >"$work/bin/systemctl"
chmod +x "$work/bin/systemctl"
export PATH=$work/bin:$PATH
data=$XDG_DATA_HOME
id=example.tepsan.belgenar
entry=$data/applications/$id.desktop

check_with() { # check_with NEEDED TITLE COMMAND...: only where the needed command is
    if command -v "$1" >/dev/null; then check "${@:2}"; else echo "skipped: $2 ($1 yok)"; fi
}
equal() { [ "$1" = "$2" ] || { echo "$1 değil $2"; return 1; }; }
listing() { (cd "$1" && find . -printf '%P %y %l\n' | sort; find . -type f -exec sha256sum {} + | sort); }

source=resources/masaustu
check_with desktop-file-validate "masaüstü girişi geçerlidir" desktop-file-validate "$source/$id.desktop"
check_with appstreamcli "tanıtım bilgisi geçerlidir" appstreamcli validate --no-net --pedantic "$source/$id.metainfo.xml"
check_with mandoc "kılavuz sayfaları geçerlidir" mandoc -Tlint -Wwarning "$source/belgenar.1" "$source/belgenar-kitaplik.1"
version=$(sed -n 's/^project(.*VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
check "tanıtım bilgisi bu sürümü sayar" grep -q "<release version=\"$version\"" "$source/$id.metainfo.xml"
both_pages() { [ "$(grep -l "^\.TH .*\"Belgenar $version\"" "$source"/*.1 | wc -l)" = 2 ]; }
check "kılavuz sayfaları bu sürümündür" both_pages
help_in_page() { # each of the tool's commands has an entry of its own
    local name names
    names=$("$build/tools/belgenar-kitaplik" --yardım | sed -n 's/^  belgenar-kitaplik \([^ ]*\).*/\1/p')
    [ "$(wc -w <<<"$names")" -ge 5 ] || return 1
    for name in $names; do
        grep -qxF ".B ${name//-/\\-}" "$source/belgenar-kitaplik.1" || { echo "$name"; return 1; }
    done
}
check "kılavuz aracın her komutunu anlatır" help_in_page

# The checkout in a folder with all that Exec must quote.
place="$work/Ağır %100 %f \"iş\" 'x' \`y\` \$HOME \\son = şu;&"
mkdir -p "$place" "$data/applications" "$data/icons/hicolor/48x48/apps"
cp -r run scripts resources docs "$place/"
echo other >"$data/icons/hicolor/48x48/apps/other.png"
cp "$source/$id.desktop" "$data/applications/other.desktop"
cmake --install "$build" --prefix "$work/Belgenar" >/dev/null # itself knows no such folders
mv "$work/Belgenar" "$place/"
"$place/Belgenar/belgenar-kitaplik" oluştur "$place/Belgenar" >/dev/null
listing "$data" >"$work/once"
listing "$place" >"$work/klasor"

check "--kur girişi koyar" "$place/run" --kur
check_with desktop-file-validate "konan giriş geçerlidir" desktop-file-validate "$entry"
check "her boyda simge konur" equal "$(find "$data/icons" -name "$id.*" | wc -l)" \
    "$(($(find resources/simgeler -name 'belgenar-[0-9]*.png' | wc -l) + 1))"
check "simge yerindedir" cmp resources/simgeler/belgenar-24.png "$data/icons/hicolor/24x24/apps/$id.png"
pages_there() { diff <(cat "$source"/*.1) <(cat "$data"/man/man1/*.1); }
check "kılavuz sayfaları konur" pages_there
guide_there() { # with every picture that it shows
    cmp docs/kılavuz.md "$data/doc/belgenar/kılavuz.md" \
        && (cd "$data/doc/belgenar" && grep -o 'resim/[^)]*' kılavuz.md | xargs ls)
}
check "kullanım kılavuzu resimleriyle konur" guide_there
listing "$data" >"$work/kurulu"
check "--kur yinelenebilir" "$place/run" --kur
check "ikinci --kur bir şey değiştirmez" cmp "$work/kurulu" <(listing "$data")

# What stands in the program's place tells how it was called.
launched_as() { # launched_as PROGRAM
    mv "$1" "$1.asıl"
    printf '#!/bin/sh\nprintf "%%s\\n" "$#" "$0" >"%s"\n' "$work/cagri" >"$1"
    chmod +x "$1"
    gio launch "$entry"
    eventually test -s "$work/cagri"
    mv "$1.asıl" "$1"
    equal "$(cat "$work/cagri")" "0"$'\n'"$1"
}
check_with gio "menüden program başlar" launched_as "$place/Belgenar/belgenar"

# The daily backup.
unit=$XDG_CONFIG_HOME/systemd/user/belgenar-yedek
target="$work/yedek \"%t\" 'x' \$HOME \\n"
equal_after() { "$place/run" --kur --yedek "$1" && grep -qF 'enable --now belgenar-yedek.timer' "$work/soylenen"; }
check "--yedek zamanlayıcıyı kurar" equal_after "$target"
verified() { export XDG_RUNTIME_DIR=$work; systemd-analyze --user verify "$unit.service" "$unit.timer" && systemd-analyze calendar "$(sed -n 's/^OnCalendar=//p' "$unit.timer")"; }
check_with systemd-analyze "konan birimler geçerlidir" verified
# What systemd makes of ExecStart: words, then specifiers, then variables.
arguments() { # prints the command's words, one a line
    sed -n 's/^ExecStart=//p' "$unit.service" | perl -CSDA -ne 'while (/\G\s*("((?:[^"\\]|\\.)*)"|\S+)/gc) {
        my $w = defined $2 ? $2 : $1; $w =~ s/\\(.)/$1/g; $w =~ s/%%/%/g; $w =~ s/\$\$/\$/g; print "$w\n" }'
}
check "yedeğin komutu doğru yazılıdır" equal "$(arguments | tail -n 3)" \
    "$place/Belgenar/belgenar-kitaplik"$'\n'"$place/Belgenar"$'\n'"$target"
relative() { (cd "$work" && "$place/run" --kur --yedek "göreli klasör" && [ "$(arguments | tail -n 1)" = "$work/göreli klasör" ]); }
check "göreli hedef çağıranın klasöründendir" relative
inside() { ! "$place/run" --kur --yedek "$place/Belgenar/../Belgenar/y"; }
check "program klasöründeki hedef geri çevrilir" inside
told_how() { touch "$work/ret" && "$place/run" --kur --yedek "$target" | grep -F 'systemctl --user enable'; }
check "hizmet yöneticisi yoksa yol gösterilir" told_how
rm -f "$work/ret"
offered() { "$place/run" --kur | grep -F -e '--yedek' && [ -e "$unit.timer" ]; }
check "--kur yedeği önerir, kurulu olana dokunmaz" offered

# Another folder's entry stays, and goes once that folder's program is gone.
cp -r "$place" "$work/baska"
"$work/baska/run" --kur >/dev/null
others_backup() { ! "$work/baska/run" --kur --yedek "$work/y" && ! "$work/baska/run" --kaldır && grep -qF "$place/" "$unit.service"; }
check "başka klasörün yedeğine dokunulmaz" others_backup
refused() { ! "$place/run" --kaldır && [ -e "$entry" ]; }
check "başka klasörün girişine dokunulmaz" refused
rm -r "$work/baska"
check "--kaldır ölü girişi kaldırır" "$place/run" --kaldır
check "--kaldır başka bir şeye dokunmaz" diff "$work/once" <(listing "$data")
check "--kaldır yedeği de kaldırır" test ! -e "$XDG_CONFIG_HOME/systemd"
check "--kaldır yinelenebilir" "$place/run" --kaldır
check "program klasörü ve kitaplık aynı kalır" diff "$work/klasor" <(listing "$place")

[ "$failures" = 0 ]
