#!/usr/bin/env bash
# A print service of the tests' own, whose only printer writes PDF files that keep their text.
# Sourced after scripts/ortak.sh, it gives the functions below; run as tests/printing.sh BUILD-FOLDER it
# prints through the program's code, with a line "ok ..." or "FAIL ..." for each step.

# start_print_service FOLDER: what is printed on the printer Deneme, the default one, goes to
# FOLDER/baski.pdf. Sets CUPS_SERVER. Fails where there is no service or no right to run it.
start_print_service() {
    local output=$1/baski.pdf ppd=/usr/share/ppd/cupsfilters/Generic-PDF_Printer-PDF.ppd name
    [ "$(id -u)" = 0 ] && [ -r "$ppd" ] && command -v cupsd lpadmin lpstat >/dev/null || return 1
    PRINT_SERVICE=$(mktemp -d) # the service's filters run as another user, who must get in
    chmod 755 "$PRINT_SERVICE"
    mkdir "$PRINT_SERVICE"/{root,spool,cache,state}
    mkdir -m 1777 "$PRINT_SERVICE/tmp"
    {
        echo "FileDevice Yes"
        echo "ServerRoot $PRINT_SERVICE/root"
        echo "RequestRoot $PRINT_SERVICE/spool"
        echo "CacheDir $PRINT_SERVICE/cache"
        echo "StateDir $PRINT_SERVICE/state"
        echo "TempDir $PRINT_SERVICE/tmp"
        for name in Access Error Page; do echo "${name}Log $PRINT_SERVICE/$name.log"; done
    } >"$PRINT_SERVICE/root/cups-files.conf"
    cat >"$PRINT_SERVICE/root/cupsd.conf" <<END
Listen $PRINT_SERVICE/sock
Browsing No
DefaultAuthType None
DirtyCleanInterval 0
<Location />
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
END
    cupsd -f -c "$PRINT_SERVICE/root/cupsd.conf" -s "$PRINT_SERVICE/root/cups-files.conf" >/dev/null 2>&1 &
    PRINT_SERVICE_PID=$!
    export CUPS_SERVER=$PRINT_SERVICE/sock
    eventually service_settled
    lpadmin -p Deneme -E -v "file:$output" -P "$ppd" 2>/dev/null && lpadmin -d Deneme && return 0
    stop_print_service
    return 1
}

service_settled() { lpstat -r 2>/dev/null | grep -q 'is running' || ! kill -0 "$PRINT_SERVICE_PID"; }

stop_print_service() {
    kill "$PRINT_SERVICE_PID" 2>/dev/null
    wait "$PRINT_SERVICE_PID" 2>/dev/null
    rm -rf "$PRINT_SERVICE"
    unset CUPS_SERVER
}

# printed FOLDER: waits for the jobs and writes the words on the paper to standard output.
printed() {
    eventually all_printed "$1/baski.pdf"
    pdftotext -layout "$1/baski.pdf" - 2>/dev/null
}
all_printed() { [ -s "$1" ] && [ -z "$(lpstat -W not-completed)" ]; }

[ "${BASH_SOURCE[0]}" = "$0" ] || return 0
set -u
. "$(dirname "$0")/../scripts/ortak.sh"
. "$(dirname "$0")/check.sh"
export QT_QPA_PLATFORM=offscreen
print_test=$(readlink -f "$1")/tests/printing_driver
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export HOME=$work XDG_RUNTIME_DIR=$work # no user's own printer settings
fails_for_the_printer() { "$print_test" "$@" <<<metin 2>/dev/null; [ $? = 2 ]; }

CUPS_SERVER=$work/yok check "hizmet yokken yazdırılmaz" fails_for_the_printer Deneme
if ! start_print_service "$work"; then
    echo "skipped: yazdırma hizmeti başlatılamadı"
    # shellcheck disable=SC2154
    [ "$failures" = 0 ]; exit
fi
trap 'stop_print_service; rm -rf "$work"' EXIT
check "yazıcı ve bağlantı yeri okunur" test \
    "$("$print_test")" = "$(printf 'Deneme\nDeneme\tfile:%s/baski.pdf' "$work")"
check "olmayan yazıcıda yazdırılmaz" fails_for_the_printer Yok
# shellcheck disable=SC1112
{ seq 1 70; printf 'Iğdır’ın\u00a0öğünç şçüİ\n'; } | "$print_test" ""
printed "$work" >"$work/yazi"
# shellcheck disable=SC1112
check "Türkçe harfler kâğıttadır" grep -q 'Iğdır’ın öğünç şçüİ' "$work/yazi"
pages_hold() { [ "$(tr -dc '\f' <"$work/yazi" | wc -c)" = "$1" ] && [ "$(tr -d '\f' <"$work/yazi" | head -n "$2")" = "$(seq "$2")" ]; }
check "satırlar sırasıyla iki sayfadadır" pages_hold 2 70
rm "$work/baski.pdf"
cupsreject Deneme
check "işi geri çeviren yazıcı bildirilir" fails_for_the_printer ""
[ "$failures" = 0 ]
