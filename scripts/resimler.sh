#!/usr/bin/env bash
# Makes the user's guide's pictures anew: scripts/resimler.sh BUILD-FOLDER
# Drives the built program on a virtual screen of its own and writes docs/resim/*.png. Ends with a status
# other than 0 when a window does not appear. Needs what ./test needs.
set -u
build=$(readlink -f "${1:?Kullanım: scripts/resimler.sh DERLEME-KLASÖRÜ}")
cd "$(dirname "$(readlink -f "$0")")/.." || exit 1
. scripts/ortak.sh
. tests/printing.sh
unset CUPS_SERVER

work=$(mktemp -d)
folder=$work/Belgenar
pictures=$work/resim # moved to their place once all of them are made
# Nothing of the user's own, in the pictures or in the program's settings.
export XDG_CONFIG_HOME=$work/ayar XDG_RUNTIME_DIR=$work/calisma HOME=$work/ev
mkdir -m 700 "$XDG_RUNTIME_DIR" "$HOME" "$pictures"
settings="$XDG_CONFIG_HOME/Tepsan Yazilim/Belgenar.ini"
caption="Tepsan Yazılım - Belgenar 1.00"
program=

# The pauses let the program paint what the keys did; a busier machine may need longer ones.
key() { xdotool key --clearmodifiers "$@"; sleep 0.2; }
types() { xdotool type --delay 40 "$1"; sleep 0.3; }

# Waits until the window with exactly this caption has the keyboard; sets $shown to its id.
window() {
    local title=$1
    eventually shown_or_ended "$title"
    running || die "Program kendiliğinden bitti; beklenen pencere: $title"
    if active_is "$title" && shown=$(xdotool getactivewindow) && eventually picture_of "$shown" "$work/bakis.png"; then
        return
    fi
    import -window root "${TMPDIR:-/tmp}/belgenar-resim-hata.png" 2>/dev/null
    die "Pencere açılmadı: $title"
}
running() { kill -0 "$program" 2>/dev/null; }
active_is() { [ "$(xdotool getactivewindow getwindowname 2>/dev/null)" = "$1" ]; }
shown_or_ended() { active_is "$1" || ! running; }

# picture NAME [HEIGHT]: the active window with its frame and what lies over it, or its upper part only. The
# caret blinks once a second: of the looks within that time the darkest has it, so that pictures do not
# change by it.
picture() {
    local id=$shown frame darkest=2 mean
    frame=$({ xwininfo -id "$id"; xprop -id "$id" _NET_FRAME_EXTENTS; } | awk -F'[:=,]' '
        /Absolute upper-left X/ {x = $2} /Absolute upper-left Y/ {y = $2} /Width:/ {w = $2} /Height:/ {h = $2}
        /FRAME_EXTENTS/ {left = $2; right = $3; top = $4; bottom = $5}
        END {print w + left + right "x" h + top + bottom "+" x - left "+" y - top}')
    for _ in 1 2 3 4 5; do
        import -window root -crop "$frame" +repage "$work/bakis.png" || die "Resim alınamadı: $1"
        mean=$(identify -format '%[fx:mean]' "$work/bakis.png")
        if awk "BEGIN {exit !($mean < $darkest)}"; then
            darkest=$mean
            mv "$work/bakis.png" "$work/secilen.png"
        fi
        sleep 0.2
    done
    convert "$work/secilen.png" -crop "0x${2:-0}+0+0" +repage +dither -colors 32 -strip -define png:compression-level=9 \
        -define png:exclude-chunks=date,time "$pictures/$1.png" || die "Resim yazılamadı: $1"
}

# start AUTHOR: with this entry of the author list selected, always at the same place.
start() {
    mkdir -p "$(dirname "$settings")"
    printf '[Ayarlar]\nTam%%20Ekran=0\nSol=3000\nUst=2250\nSon%%20Yazar=%s\n' "$1" >"$settings"
    "$folder/belgenar" >>"$work/gunluk" 2>&1 &
    program=$!
    window "$caption"
    xdotool mousemove 5 5 # no picture shows what the pointer does to a control
}
ended() { ! running; }
finish() {
    kill -TERM "$program"
    eventually ended || die "Program kapanmadı."
    wait "$program" || die "Program hatayla bitti."
    program=
}
menu() { key alt+m; key "$1"; } # menu MNEMONIC: an entry of the article menu

start_virtual_display
trap 'kill -9 $program 2>/dev/null; [ -z "${CUPS_SERVER-}" ] || stop_print_service; stop_virtual_display; rm -rf "$work"' EXIT

cmake --install "$build" --prefix "$folder" >/dev/null || die "Kurulum başarısız oldu."
"$folder/belgenar-kitaplik" oluştur "$folder" >/dev/null || exit 1
"$folder/belgenar-kitaplik" aktar "$folder" resources/kitaplik/baslangic.jsonl >/dev/null || exit 1

start 6
picture ana-pencere
key alt+m
picture makale-menusu 250
key Escape
key alt+m Right Right # past the entry that opens no menu
picture yardim-menusu 250
key Escape

# The shown text's own menu.
key alt+n Menu
picture metin-menusu 250
key Escape

# Finding, in the author's second article first.
key alt+k Down
key alt+c
types "çay"
key alt+b
picture makalede-bulma
key alt+z
types "deniz"
key alt+t
sleep 0.5
picture tumunde-bulma
key alt+z

# The windows of the article menu.
menu e
window "Listeye Makale Ekle..."
key Return
types "ali ığdır"; key Return
types "kış'ın sesi"; key Return
types "van"; key Return
types "2003 bahar"; key Tab
window Belgenar
picture tarih-sorusu
key Return
window "Listeye Makale Ekle..."
types "Van Gölü’nün kıyısında kış, kuşların susmasıyla başlar."
picture ekleme
key Tab Tab Tab space # the program does not end while an article is being entered
key Escape
window "$caption"
finish

start 0
menu d
window "Makaleyi Değiştir..."
picture degistirme
key Escape; key space
window "$caption"
menu s
window "Listeden Makale Sil..."
picture silme
key alt+s
window Belgenar
picture silme-sorusu
key Escape
window "Listeden Makale Sil..."
key Escape
window "$caption"
menu r
window "Referans Bilgisi Oluşturma..."
picture referans
key Escape
window "$caption"

# Settings, and what tells about the program.
key alt+y alt+y
window "Yazı Tipi Ayarları..."
picture ayarlar
key Escape
window "$caption"
help_entry() { key alt+m Right Right; key "$1"; }
help_entry h
window "Hakkında"
picture hakkinda
key Escape
window "$caption"
help_entry b
window "Hataları Bildirin!"
picture hata-bildirme
key Escape
window "$caption"
key F1
window "Kullanım Kılavuzu"
picture yardim 420
key Escape
window "$caption"
key Escape
window Belgenar
picture cikis-sorusu
finish

# The choice of a printer, where a print service can be had; its own printer's address is a path.
if start_print_service "$work"; then
    lpadmin -x Deneme
    lpadmin -p Ofis -E -v ipp://yazici.example/ipp/print -P /usr/share/ppd/cupsfilters/Generic-PDF_Printer-PDF.ppd 2>/dev/null && lpadmin -d Ofis || die "Yazıcı kurulamadı."
    start 0
    key alt+n Menu; key Down Down Return
    window "Yazıcı Seç"
    picture yazici-secme
    finish
    stop_print_service
else
    echo "Atlandı: yazıcı seçme penceresi (yazdırma hizmeti çalıştırılamıyor)"
fi

mkdir -p docs/resim
mv "$pictures"/*.png docs/resim/
identify -format '%f %wx%h %b\n' docs/resim/*.png
