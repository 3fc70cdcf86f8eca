#!/usr/bin/env bash
# A user's round with the real program on a virtual screen: tests/end_to_end.sh BUILD-FOLDER
# Prints a line "ok ..." or "FAIL ..." for each step.
set -u
build=$(readlink -f "$1")
cd "$(dirname "$(readlink -f "$0")")/.." || exit 1
. scripts/ortak.sh
. tests/check.sh
. tests/printing.sh

work=$(mktemp -d)
folder=$work/Belgenar
export XDG_CONFIG_HOME=$work/ayar XDG_RUNTIME_DIR=$work/calisma HOME=$work/ev
mkdir -m 700 "$XDG_RUNTIME_DIR" "$HOME"
settings="$XDG_CONFIG_HOME/Tepsan Yazilim/Belgenar.ini"
caption="Tepsan Yazılım - Belgenar 1.00"
program=

on_failure() { import -window root "${TMPDIR:-/tmp}/belgenar-hata-$failures.png" 2>/dev/null; }
start() { # until the main window has the keyboard, and the splash, whose end moves it for a moment, is gone
    "$folder/belgenar" >>"$work/gunluk" 2>&1 &
    program=$!
    eventually active_is "$caption" && eventually splash_gone && sleep 0.3 && eventually active_is "$caption"
}
splash_gone() { ! xdotool search --onlyvisible --name '^Belgenar$' >/dev/null 2>&1; }
running() { kill -0 "$program" 2>/dev/null; }
ended() { ! running; }
types() { xdotool type --delay 50 "$1"; }
ended_with() { wait "$program"; [ $? = "$1" ]; }
setting() { grep -qx "$1" "$settings"; }
active_is() { [ "$(xdotool getactivewindow getwindowname 2>/dev/null)" = "$1" ]; }
key() { xdotool key --clearmodifiers "$@"; } # the program takes keys in their order, however late
# key_until CAPTION KEY...: presses them until that window has the keyboard. For keys that may come too early;
# where the window is only late, pressing them again would be once too often, so that it gets some time.
key_until() { eventually pressed_shows "$@"; }
pressed_shows() {
    local title=$1
    shift
    active_is "$title" || key "$@"
    for _ in $(seq 100); do
        active_is "$title" && return
        sleep 0.1
    done
    return 1
}
refusal_closed() { ! running || { active_is Belgenar && key Return; ! running; }; } # the splash may be it still
fails_with() { # fails_with [NUMBER]: the program shows a box; Enter ends it with status 1
    "$folder/belgenar" >"$work/red" 2>&1 &
    program=$!
    eventually refusal_closed || { kill -9 "$program"; return 1; }
    ended_with 1 || return 1
    [ -z "${1-}" ] || grep -q "belgenar: $1 " "$work/red"
}
dump() { "$folder/belgenar-kitaplik" dök "$folder" 2>/dev/null; }
same_library() { dump | cmp -s - "$work/dokum"; }

start_virtual_display
trap 'kill -9 $program 2>/dev/null; stop_virtual_display; rm -rf "$work"' EXIT

cmake --install "$build" --prefix "$folder" >/dev/null
check "araç kitaplık kurar" "$folder/belgenar-kitaplik" oluştur "$folder"
check "araç makaleleri aktarır" "$folder/belgenar-kitaplik" aktar "$folder" resources/kitaplik/baslangic.jsonl
dump >"$work/dokum"

# First start: maximised, first author.
check "program açılır" start
check "ana pencere öndedir" eventually active_is "$caption"
refused() { "$folder/belgenar-kitaplik" dök "$folder" 2>&1 >/dev/null | grep -q 3045; }
check "kitaplık açıkken araç kibarca geri çevirir" refused
key Down Down
key Escape
check "çıkış sorulur" eventually active_is Belgenar
key Escape
check "Hayır programı sürdürür" eventually active_is "$caption"
key Escape
eventually active_is Belgenar
key Return
check "Evet programı bitirir" eventually ended
check "çıkış durumu sıfırdır" ended_with 0
check "son yazar saklanır" setting "Son%20Yazar=2"
check "tam ekran saklanır" setting "Tam%20Ekran=2"
check "kitaplık aynıdır" same_library

# Finding a word in all articles selects the author of the only article that holds it.
check "bulmak için açılır" start
key Tab Tab Tab Tab Tab
types "JÜGLON"
key Tab Tab Tab space
key_until Belgenar Escape # while it seeks, Esc does nothing
key Return
check "aramadan sonra çıkılır" eventually ended
check "bulunan makalenin yazarı seçilidir" setting "Son%20Yazar=6"

# Adding from an RTF file, changing, deleting: the library is as before in the end.
printf '{\\rtf1\\ansi\\ansicpg1254 {\\b K\\u305?\\'"'fe}"' geldi,\\par i\\'"'e7ten.}" >"$work/kis.rtf"
menu() { key alt+m; key "$1"; } # menu MNEMONIC: an entry of the article menu
holds() { dump | grep -F "KIŞ´IN" | grep -qF "$1"; }
check "eklemek için açılır" start
menu e
check "ekleme penceresi açılır" eventually active_is "Listeye Makale Ekle..."
key F1
check "F1 kılavuzu açar" eventually active_is "Kullanım Kılavuzu"
key Escape
check "kılavuz, pencere dururken de tuş alır" eventually active_is "Listeye Makale Ekle..."
key Return
types "ali ığdır"; key Return
types "kış'ın"; key Return
types "van ili"; key Return
types "2003 bahar"; key Tab
check "tarih sorulur" eventually active_is Belgenar
key Return
eventually active_is "Listeye Makale Ekle..."
key alt+o
check "dosya sorulur" eventually active_is "Dosya Aç..."
types "$work/kis.rtf"
key_until "Listeye Makale Ekle..." Return # the dialog reads the folder first
cp "$folder/Makale.mde" "$work/once"
saved() { ! cmp -s "$folder/Makale.mde" "$work/once" && [ ! -e "$folder/Makale.mde-journal" ]; }
key alt+e
eventually saved
kill -KILL "$program"
wait "$program" 2>/dev/null
check "öldürülse de eklenen makale kalır" holds "Kış geldi,\\niçten."
check "yazılanlar düzeltilmiştir" holds '"ALİ IĞDIR", "MakaleBasligi": "KIŞ´IN", "YayimYeri": "Van İli", "YayimTarihi": "2003 Bahar"'
sed -i 's/^Son%20Yazar=.*/Son%20Yazar=0/' "$settings"
check "değiştirmek için açılır" start
key F2
check "değiştirme penceresi açılır" eventually active_is "Makaleyi Değiştir..."
key Tab
types "yaz"; key alt+e
check "kaydedilince kapanır" eventually active_is "$caption"
key alt+k Delete # whose release the new window's list sees
check "silme penceresi açılır" eventually active_is "Listeden Makale Sil..."
key alt+s
check "silmek sorulur" eventually active_is Belgenar
key Left; key Return
eventually active_is "Listeden Makale Sil..."
key Escape
eventually active_is "$caption"
kill -TERM "$program"
eventually ended
check "değiştirilen makale silinmiştir" same_library

# Printing, the word processor (a stand-in that keeps what it was given), a reference.
mkdir "$work/bin"
printf '#!/bin/sh\nfor file; do :; done\ncp "$file" "%s"\nexec tail -f --pid=$PPID /dev/null\n' "$work/belge.rtf" >"$work/bin/soffice"
chmod +x "$work/bin/soffice"
text_menu() { key alt+n Menu; key "$@"; } # text_menu KEY...: an entry of the shown text's menu
if start_print_service "$work"; then
    PATH=$work/bin:$PATH start
    text_menu Down Down Return
    check "yazıcı sorulur" eventually active_is "Yazıcı Seç"
    key Escape
    eventually active_is "$caption"
    key alt+n ctrl+Home shift+Right shift+Right shift+Right
    text_menu Down Down Down Return
    eventually active_is "Yazıcı Seç"
    key Return
    piece() { [ "$(printed "$work" | tr -d ' \n\f')" = "İki" ] && [ "$(lpstat -W all | wc -l)" = 1 ]; }
    check "yalnız seçilen basılır, İptal'de hiçbir şey" piece
    check "iş makalenin adını taşır" eventually grep -aqrF "DEPREMLE YAŞAMAK" "$PRINT_SERVICE/spool"
    rm "$work/baski.pdf"
    key Home
    text_menu Down Down Return
    eventually active_is "Yazıcı Seç"
    key Return
    paper() { printed "$work" | grep -q "kırk beş saniye"; }
    check "makale kâğıda basılır" paper
    kill -TERM "$program"
    eventually ended
    stop_print_service
else
    echo "skipped: bu makinede yazdırma hizmeti çalıştırılamıyor"
fi
PATH=$work/bin:$PATH start
key alt+n ctrl+a
text_menu w
check "metin kelime işlemciye gider" eventually grep -qsF '{\rtf1' "$work/belge.rtf"
# While the program waits for the other one, keys are lost.
check "referans penceresi açılır" key_until "Referans Bilgisi Oluşturma..." alt+m r
key Tab Return
cited() { xclip -o -selection clipboard -t UTF8_STRING | grep -qx 'Cevdet Özpınar, "Depremle Yaşamak", Kocaeli, 17 Ağustos 2001'; }
check "referans panoya kopyalanır" eventually cited
key Escape
kill -TERM "$program"
check "kelime işlemciden sonra kapanır" eventually ended

# Second start: at a stored place; a second instance only brings the first one forward.
sed -i 's/^Tam%20Ekran=.*/Tam%20Ekran=0\nSol=1500\nUst=1200/' "$settings"
check "yeniden açılır" start
xdotool windowminimize "$(xdotool getactivewindow)"
minimised() { ! active_is "$caption"; }
eventually minimised
second_gone() { ! kill -0 "$second" 2>/dev/null; }
second_instance() {
    "$folder/belgenar" &
    second=$!
    eventually second_gone || { kill -9 "$second"; return 1; }
    wait "$second"
}
check "ikinci örnek 0 ile biter" second_instance
check "ilk örnek öne gelir" eventually active_is "$caption"
key Escape
eventually active_is Belgenar
kill -TERM "$program"
check "TERM soru dururken de bitirir" eventually ended
check "konum kaymaz" bash -c "grep -qx Sol=1500 '$settings' && grep -qx Ust=1200 '$settings'"

# Abnormal ends and bad input.
start
kill -KILL "$program"
wait "$program" 2>/dev/null
check "öldürülen program yeniden açılır" start
kill -TERM "$program"
eventually ended
check "öldürmeden sonra kitaplık aynıdır" same_library

cp "$folder"/Makale.* "$work"/
restore() { rm -f "$folder"/Makale.*; cp "$work"/Makale.* "$folder"/; }
unchanged() { cmp -s "$folder/Makale.mde" "$1"; }
rm "$folder/Makale.mde"
check "kitaplık yoksa geri çevirir" fails_with
restore; rm "$folder/Makale.tps"
check "çalışma grubu yoksa geri çevirir" fails_with
for case in "boş:3902:: > %s" "yarım:3901:truncate -s 50000 %s" "yabancı:3343:cp scripts/ortak.sh %s" \
    "bozuk:3049:dd if=/dev/urandom of=%s bs=1 seek=100 count=64 conv=notrunc status=none"; do
    for file in Makale.mde Makale.tps; do
        IFS=: read -r name number command <<<"$case"
        restore
        # shellcheck disable=SC2059
        eval "$(printf "$command" "'$folder/$file'")"
        cp "$folder/Makale.mde" "$work/once"
        check "$name $file: $number" fails_with "$number"
        check "$name $file: kitaplık dosyasına dokunulmaz" unchanged "$work/once"
    done
done
restore
(exec 9<"$folder"; flock 9; exec sleep 600) &
locker=$!
locked() { ! flock -n "$folder" true; }
eventually locked
check "kilitli klasör: 3045" fails_with 3045
kill "$locker"
wait "$locker" 2>/dev/null
check "sonunda yine açılır" start
kill -TERM "$program"
eventually ended
check "hiçbir makale yitmez" same_library

[ "$failures" = 0 ]
