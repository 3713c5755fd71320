#!/bin/sh
# Installs the Debian packages of one or more groups; does nothing when all of them are there.
#
#   scripts/install-packages.sh GROUP...
#
#   build    the compiler, Qt and DCMTK: what building needs
#   run      what the built program calls when it runs
#   screen   a screen without a monitor, and what drives a program on it
#   desktop  the same, and other programs to work with there
#   test     what the tests need beside these
#   bench    what scripts/bench.sh needs beside what building and testing need
#   fuzz     what scripts/fuzz.sh needs beside what building needs
#   coverage what scripts/coverage.sh needs beside what building and testing need
#   package  what makes and checks the Debian package
#   bare     what tries it on a Debian of its own
set -eu

packages_of() {
    case "$1" in
        build) echo build-essential cmake ninja-build qt6-base-dev qt6-tools-dev qt6-l10n-tools dcmtk libdcmtk-dev libgdcm-dev \
            libfontconfig-dev libssl-dev zlib1g-dev libqt6sql6-sqlite ;;
        run) echo dcmtk libdcmtk17 libgdcm3.0 libssl3 libqt6sql6-sqlite libqt6widgets6 libqt6gui6 \
            libqt6dbus6 qt6-translations-l10n xdg-utils fonts-dejavu-core ;;
        screen) echo xvfb openbox xdotool wmctrl imagemagick dbus-daemon at-spi2-core python3 python3-gi \
            gir1.2-atspi-2.0 gir1.2-gtk-3.0 libgtk-3-bin dcmtk fonts-dejavu-core ;;
        desktop) packages_of screen && echo pcmanfm x11-utils libatk-adaptor libgail-common adwaita-icon-theme ;;
        test) echo python3 dcmtk dicom3tools libgdcm-tools parallel slurm-wlm libgmp-dev clang-format clang-tidy cppcheck \
            qt6-translations-l10n fonts-noto-cjk sway grim qt6-wayland python3-xlib strace ;;
        bench) echo valgrind ;;
        fuzz) echo clang libclang-rt-dev python3 ;;
        coverage) echo gcovr ;;
        package) echo dpkg-dev file gzip lintian appstream desktop-file-utils python3 ;;
        bare) echo mmdebstrap ;;
        *) echo "install-packages.sh: no group '$1' (build, run, screen, desktop, test, bench, fuzz, coverage, package, bare)" >&2; exit 2 ;;
    esac
}

is_installed() {
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

as_root() {
    if [ "$(id -u)" = 0 ]; then "$@"; else sudo "$@"; fi
}

missing=""
for group in "$@"; do
    packages=$(packages_of "$group")
    for package in $packages; do
        case " $missing " in *" $package "*) continue ;; esac
        if ! is_installed "$package"; then missing="$missing $package"; fi
    done
done
if [ -z "$missing" ]; then exit 0; fi

if ! command -v apt-get >/dev/null; then
    echo "This system has no apt-get. Dravolin needs what Debian calls:$missing" >&2
    exit 1
fi
if [ "$(id -u)" != 0 ] && ! command -v sudo >/dev/null; then
    echo "Neither root nor sudo. Run as root: apt-get install --no-install-recommends$missing" >&2
    exit 1
fi
echo "Installing with apt-get, for Dravolin's $*:$missing"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
install() {
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends $missing >"$log" 2>&1
}
# The package lists of a fresh system are empty, those of an old one may be out of date.
if ! install; then
    if ! { as_root apt-get update >"$log" 2>&1 && install; }; then
        cat "$log" >&2
        exit 1
    fi
fi
