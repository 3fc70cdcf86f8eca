# shellcheck shell=bash disable=SC2015
# The program's entry in the user's desktop menu: put there, and taken away again. Sourced by bash after
# ortak.sh, from the checkout's folder.

DESKTOP_ID=example.tepsan.belgenar

# Sets $data to where the user's programs keep their data.
find_data_folder() {
    data=${XDG_DATA_HOME-}
    [ "${data:0:1}" = / ] || data=${HOME:?tanımlı değil}/.local/share # a relative one counts as none
    entry=$data/applications/$DESKTOP_ID.desktop
}

# The program as the value of Exec, as freedesktop.org has desktops read it: a quoted argument with percent
# signs doubled, then as every string its backslashes doubled. The program's own path may hold no
# "=" there, and GLib looks for it before it undoubles percent signs; a shell takes such a path as its argument.
exec_value() {
    local quoted
    quoted=$(sed 's/[\\"`$]/\\&/g; s/%/%%/g; s/.*/"&"/; s/\\/\\\\/g' <<<"$1")
    case $1 in
        *[=%]*) printf '%s\n' "sh -c \"exec \\\\\"\\\\\$0\\\\\"\" $quoted" ;;
        *) printf '%s\n' "$quoted" ;;
    esac
}

# menu_entry PROGRAM: the entry's text. TryExec hides it once the program is gone.
menu_entry() {
    local line
    while IFS= read -r line; do
        case $line in
            Exec=*) printf 'TryExec=%s\nExec=%s\n' "${1//\\/\\\\}" "$(exec_value "$1")" ;;
            *) printf '%s\n' "$line" ;;
        esac
    done <"resources/masaustu/$DESKTOP_ID.desktop"
}

# The program that the entry in the menu starts.
program_in_menu() { sed -n 's/^TryExec=//p' "$entry" | sed 's/\\\\/\\/g'; }

update_desktop_database_if_there() {
    if command -v update-desktop-database >/dev/null && [ -d "$data/applications" ]; then
        update-desktop-database -q "$data/applications"
    fi
}

# menu_add FOLDER: puts entry, pictures, both manual pages and the guide into the user's data folder.
menu_add() {
    local program=$1/belgenar text picture size file
    [[ $program != *[[:cntrl:]]* ]] && iconv -f UTF-8 -t UTF-8 <<<"$program" >/dev/null 2>&1 \
        || die "Klasörün yolunda menü girişine yazılamayan bir karakter var: $(printf %q "$1")"
    find_data_folder
    text=$(mktemp) && menu_entry "$program" >"$text" || die "Menü girişi oluşturulamadı."
    put() { install -Dm644 "$1" "$data/$2" || { rm -f "$text"; die "Yazılamıyor: $data/$2"; }; }
    for picture in resources/simgeler/belgenar-[0-9]*.png; do
        size=${picture##*-}
        size=${size%.png}
        put "$picture" "icons/hicolor/${size}x$size/apps/$DESKTOP_ID.png"
    done
    put resources/simgeler/belgenar.svg "icons/hicolor/scalable/apps/$DESKTOP_ID.svg"
    for file in resources/masaustu/*.1; do
        put "$file" "man/man1/${file##*/}"
    done
    for file in docs/kılavuz.md docs/resim/*.png; do
        put "$file" "doc/belgenar/${file#docs/}"
    done
    put "$text" "applications/$DESKTOP_ID.desktop" # last: its picture is there when the desktop sees it
    rm -f "$text"
    touch "$data/icons/hicolor" # tells that an icon cache is out of date
    update_desktop_database_if_there
    echo "Belgenar menüye eklendi: $entry"
}

# menu_remove FOLDER: takes away what menu_add puts there and the folders left empty. An entry that starts
# the program of another folder stays, unless that program is gone.
menu_remove() {
    local other path cache
    find_data_folder
    if [ -e "$entry" ]; then
        other=$(program_in_menu)
        [ "$other" = "$1/belgenar" ] || ! [ -x "$other" ] \
            || die "Menüdeki giriş başka bir klasördeki programı açıyor; ona dokunulmadı: $other"
    fi
    local -a there=()
    for path in "$entry" "$data"/icons/hicolor/*/apps/"$DESKTOP_ID".{png,svg} \
        "$data"/man/man1/belgenar{,-kitaplik}.1 "$data"/doc/belgenar/{kılavuz.md,resim/*.png}; do
        [ ! -e "$path" ] && [ ! -L "$path" ] || there+=("$path")
    done
    [ ${#there[@]} -gt 0 ] || { echo "Belgenar menüde yok; kaldırılacak bir şey bulunmadı."; return 0; }
    rm -f "${there[@]}" || die "Belgenar menüden kaldırılamadı."
    [ ! -d "$data/icons/hicolor" ] || touch "$data/icons/hicolor"
    update_desktop_database_if_there
    cache=$data/applications/mimeinfo.cache
    [ "$(cat "$cache" 2>/dev/null)" != "[MIME Cache]" ] || rm -f "$cache" # holds nothing
    for path in "${there[@]}"; do
        (cd "$data" && rmdir -p --ignore-fail-on-non-empty "$(dirname "${path#"$data"/}")")
    done 2>/dev/null
    echo "Belgenar menüden kaldırıldı."
}
