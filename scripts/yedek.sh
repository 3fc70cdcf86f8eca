# shellcheck shell=bash
# The daily backup: a timer of the user's own service manager, put there and taken away again. Sourced by bash after
# ortak.sh.

BACKUP_UNIT=belgenar-yedek

# Sets $units to where the user's units lie.
find_unit_folder() {
    local config=${XDG_CONFIG_HOME-}
    [ "${config:0:1}" = / ] || config=${HOME:?tanımlı değil}/.config # a relative one counts as none
    units=$config/systemd/user
}

# An argument of ExecStart, as systemd reads it: in double quotes backslashes count as in C, and behind them come its
# specifiers (%) and variables ($).
unit_argument() { sed 's/[\\"]/\\&/g; s/%/%%/g; s/\$/$$/g; s/.*/"&"/' <<<"$1"; }

# backup_service FOLDER TARGET: the service's text. The shell stands first because the path of the program to run would
# keep its dollar signs doubled. While the library is in use it tries again every ten minutes, for three hours.
backup_service() {
    cat <<END
[Unit]
Description=Belgenar kitaplığının yedeği
X-Belgenar-Program=$1/belgenar-kitaplik
StartLimitIntervalSec=12h
StartLimitBurst=18

[Service]
Type=oneshot
ExecStart=/bin/sh -c "exec \\"\$\$0\\" yedekle \\"\$\$1\\" \\"\$\$2\\"" $(unit_argument "$1/belgenar-kitaplik") $(unit_argument "$1") $(unit_argument "$2")
Nice=10
IOSchedulingClass=idle
Restart=on-failure
RestartSec=10min
RestartPreventExitStatus=2 126 127
END
}

backup_timer() {
    cat <<END
[Unit]
Description=Belgenar kitaplığının günlük yedeği

[Timer]
OnCalendar=daily
RandomizedDelaySec=30min
Persistent=true

[Install]
WantedBy=timers.target
END
}

backup_offer() { echo "Her gün yedek alınsın isterseniz: ./run --kur --yedek HEDEF_KLASÖR"; }

# backup_add FOLDER TARGET: both paths whole.
backup_add() {
    local path text name
    for path in "$@"; do
        [[ $path != *[[:cntrl:]]* ]] && iconv -f UTF-8 -t UTF-8 <<<"$path" >/dev/null 2>&1 \
            || die "Klasörün yolunda zamanlayıcıya yazılamayan bir karakter var: $(printf %q "$path")"
    done
    case $(readlink -m -- "$2")/ in
        "$(readlink -m -- "$1")"/*) die "Yedekler program klasörünün içinde olamaz: $2" ;;
    esac
    find_unit_folder
    backup_may_go "$1"
    text=$(mktemp) || die "Geçici dosya oluşturulamıyor."
    for name in service timer; do
        "backup_$name" "$@" >"$text" && install -Dm644 "$text" "$units/$BACKUP_UNIT.$name" \
            || { rm -f "$text"; die "Yazılamıyor: $units/$BACKUP_UNIT.$name"; }
    done
    rm -f "$text"
    if systemctl --user daemon-reload >/dev/null 2>&1 \
        && systemctl --user enable --now "$BACKUP_UNIT.timer" >/dev/null 2>&1; then
        echo "Günlük yedek kuruldu: $2"
    else
        echo "Günlük yedeğin dosyaları kondu: $units/$BACKUP_UNIT.timer"
        echo "Oturumunuzda şöyle başlatın: systemctl --user enable --now $BACKUP_UNIT.timer"
    fi
}

# backup_may_go FOLDER: a timer that backs up another folder's library stays, unless that program is gone.
backup_may_go() {
    local other
    other=$(sed -n 's/^X-Belgenar-Program=//p' "$units/$BACKUP_UNIT.service" 2>/dev/null)
    [ -z "$other" ] || [ "$other" = "$1/belgenar-kitaplik" ] || ! [ -x "$other" ] \
        || die "Günlük yedek başka bir klasördeki kitaplık için kurulu; ona dokunulmadı: $other"
}

# backup_remove FOLDER: takes away what backup_add puts there and the folders left empty; the backups stay.
backup_remove() {
    local path
    local -a there=()
    find_unit_folder
    for path in "$units/$BACKUP_UNIT".{service,timer} "$units/timers.target.wants/$BACKUP_UNIT.timer"; do
        [ ! -e "$path" ] && [ ! -L "$path" ] || there+=("$path")
    done
    [ ${#there[@]} -gt 0 ] || return 0
    backup_may_go "$1"
    systemctl --user disable --now "$BACKUP_UNIT.timer" >/dev/null 2>&1
    rm -f "${there[@]}" || die "Günlük yedek kaldırılamadı."
    systemctl --user daemon-reload >/dev/null 2>&1
    for path in "$units/timers.target.wants" "$units"; do
        [ ! -d "$path" ] || (cd "${units%/systemd/user}" && rmdir -p --ignore-fail-on-non-empty "${path#"$PWD"/}")
    done 2>/dev/null
    echo "Günlük yedek kaldırıldı; yedekler duruyor."
}
