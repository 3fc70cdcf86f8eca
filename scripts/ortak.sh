# shellcheck shell=bash disable=SC2034
# Shared by ./run, ./test and ./bench: packages, building, a virtual display. Sourced by bash, from the
# checkout's folder.

export LC_ALL=C.UTF-8 # window captions and file names are not ASCII; always there on Debian

BUILD_PACKAGES="g++ cmake ninja-build pkg-config qt6-base-dev libsqlcipher-dev libssl-dev libicu-dev libcups2-dev
    libbibutils-dev libcsv-dev"
RUNTIME_PACKAGES="qt6-translations-l10n fonts-liberation x11-utils"
VIRTUAL_DISPLAY_PACKAGES="xvfb openbox xdotool x11-utils x11-xkb-utils imagemagick"
# A print service with a printer that writes PDF (cups-*, poppler-utils); the public validators of the desktop
# entry (desktop-file-utils), its metadata (appstream) and the manual page (mandoc); GLib's launcher, which
# reads the entry as desktops do (libglib2.0-bin); a Wayland compositor (weston), and the toolkit's part for it;
# what screen readers listen to (at-spi2-core) on a bus of its own (dbus), and Python's way there (python3-gi).
TEST_PACKAGES="$VIRTUAL_DISPLAY_PACKAGES xclip cups-daemon cups-client cups-filters poppler-utils
    desktop-file-utils appstream mandoc libglib2.0-bin weston qt6-wayland at-spi2-core dbus python3-gi"
# The linters are Debian 12's: others find and format otherwise.
LINT_PACKAGES="clang-format-14 clang-tidy-16 shellcheck"

die() {
    echo "$*" >&2
    exit 1
}

# Installs those of the named Debian packages that are missing.
need_packages() {
    command -v dpkg-query >/dev/null && command -v apt-get >/dev/null \
        || die "Bu sistemde Debian paketleri yok. Gerekenler / needed: $*"
    local missing="" name
    for name in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$name" 2>/dev/null)" = installed ] || missing+=" $name"
    done
    [ -n "$missing" ] || return 0
    local sudo=""
    if [ "$(id -u)" != 0 ]; then
        command -v sudo >/dev/null || die "Kurulması gereken paketler (root olarak) / install as root:$missing"
        sudo=sudo
    fi
    echo "Eksik paketler kuruluyor:$missing"
    $sudo apt-get update -q >/dev/null || die "apt-get update başarısız oldu."
    # shellcheck disable=SC2086
    $sudo env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends $missing >/dev/null \
        || die "Paketler kurulamadı:$missing"
}

# Sets $place to a path of the checkout that the build tools can read. CMake stops at some signs (a quote, a
# bracket), and Ninja takes a file's dependencies apart at others (an apostrophe) and then builds it each
# time: a checkout below such a folder is built through a link, which keeps its name from run to run.
find_build_place() {
    local links
    place=$PWD
    # shellcheck disable=SC2101
    [[ $place == *[!'/._ -'[:alnum:]]* ]] || return 0
    links=/var/tmp/belgenar-$(id -u)
    mkdir -m 700 "$links" 2>/dev/null
    [ -d "$links" ] && [ ! -L "$links" ] && [ -O "$links" ] || die "Kullanılamıyor: $links"
    place=$links/$(sha256sum <<<"$PWD" | cut -c1-16)
    ln -sfn "$PWD" "$place" || die "Yazılamıyor: $place"
}

# build PRESET [TARGET]: configures once and builds a preset; quiet unless something fails. The tools read the folder that they are
# called in, too.
build() {
    local preset=$1 target=${2-all} log place
    find_build_place
    # A build folder that was moved or copied with its checkout still names the old place.
    grep -qsxF "CMAKE_HOME_DIRECTORY:INTERNAL=$place" "build/$preset/CMakeCache.txt" || rm -rf "build/$preset"
    [ -f "build/$preset/build.ninja" ] || log=$(cd / && cmake -S "$place" --preset "$preset" 2>&1) \
        || { echo "$log"; die "Yapılandırma başarısız: $preset"; }
    log=$(cd / && cmake --build "$place/build/$preset" --target "$target" 2>&1) || { echo "$log" | tail -n 60; die "Derleme başarısız: $preset"; }
}

# install_built PRESET FOLDER: puts what was built into a folder of the checkout.
install_built() {
    local place
    find_build_place
    (cd / && cmake --install "$place/build/$1" --prefix "$place/$2") >/dev/null || die "Kurulum başarısız oldu."
}

# eventually COMMAND...: waits until it is true. Gives up after far more time than a busy machine needs.
eventually() {
    local end=$((SECONDS + 120))
    until "$@"; do
        [ "$SECONDS" -lt "$end" ] || return 1
        sleep 0.1
    done
}

# start_virtual_display [SIZE]: starts a virtual screen with a window manager; sets DISPLAY. Ends both when the shell exits.
start_virtual_display() {
    local number_file
    number_file=$(mktemp)
    Xvfb -displayfd 3 -screen 0 "${1-1280x900}x24" -nolisten tcp 3>"$number_file" >/dev/null 2>&1 &
    VIRTUAL_PIDS="$!"
    trap 'stop_virtual_display' EXIT
    eventually test -s "$number_file" || die "Xvfb başlamadı."
    DISPLAY=:$(tr -d '\n' <"$number_file")
    rm -f "$number_file"
    export DISPLAY
    openbox >/dev/null 2>&1 &
    VIRTUAL_PIDS="$! $VIRTUAL_PIDS"
    eventually window_manager_there || die "Pencere yöneticisi başlamadı."
    setxkbmap tr 2>/dev/null || true
}

window_manager_there() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }

stop_virtual_display() {
    # shellcheck disable=SC2086
    kill $VIRTUAL_PIDS 2>/dev/null
    wait 2>/dev/null
}

# Waits until a window with this text in its caption is visible; prints its id.
wait_for_window() { eventually visible_window "$1"; }
visible_window() { xdotool search --onlyvisible --name "$1" 2>/dev/null | tail -n 1 | grep .; }

# picture_of WINDOW FILE: true once the window is painted, which it is as a whole.
picture_of() { import -window "$1" "$2" 2>/dev/null && [ "$(identify -format %k "$2")" -gt 20 ]; }
