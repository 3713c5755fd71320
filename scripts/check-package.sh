#!/bin/sh
# check-package.sh [BUILD | PACKAGE]: tries Dravolin's Debian package on a bare Debian of its own: installs it with nothing
# but what it depends on, starts it from its desktop entry, anonymizes the sample study with it, removes it and sees that
# nothing but its user's files is left. The package is made of what is built in the folder BUILD; with neither, package.sh
# makes it. Needs root and Debian's package servers.
set -eu
cd "$(dirname "$0")/.."
release=bookworm
user=person

scripts/install-packages.sh bare
server=$(apt-get indextargets --format '$(REPO_URI)' "Codename: $release" | head -n 1)

root=$(mktemp -d)
made=$(mktemp -d)
leave() {
    for process in /proc/[0-9]*; do # what was started in there
        if [ "$(readlink "$process/root")" = "$root" ]; then kill "${process#/proc/}" 2>/dev/null || true; fi
    done
    for place in proc sys dev/pts dev/shm; do umount "$root/$place" 2>/dev/null || true; done
    rm -rf --one-file-system "$root" "$made"
}
trap leave EXIT
trap 'exit 1' INT TERM

say() { echo "== $(date +%T) $*"; }
# nothing of this outlives a crash: no waiting for the disk
changing() { quietly inside eatmydata "$@"; }
inside() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"; }
as_user() { chroot --userspec=$user:$user "$root" env -i PATH=/usr/bin:/bin HOME=/home/$user LC_ALL=C.UTF-8 "$@"; }
quietly() { "$@" >"$root/log" 2>&1 || { tail -n 40 "$root/log" >&2; exit 1; }; }
files() {
    (cd "$root" && find . \( -path ./proc -o -path ./dev -o -path ./run -o -path ./tmp -o -path ./var/cache \
        -o -path ./var/log -o -path ./var/lib/apt -o -path ./var/lib/dpkg -o -path ./log \) -prune -o -print) | sort
}

if [ -z "${1-}" ]; then
    scripts/package.sh
    package=$(ls build/package/dravolin_*.deb)
elif [ -d "$1" ]; then
    say "the package"
    cpack -G DEB -B "$made" --config "$1/CPackConfig.cmake" >/dev/null
    package=$(ls "$made"/dravolin_*.deb)
else
    package=$1
fi

say "a bare Debian ($release)"
# with its lists of packages, for what is installed later
mmdebstrap --quiet --variant=minbase --include=eatmydata --skip=cleanup/apt "$release" "$root" \
    "deb $server $release main"
chmod 755 "$root" # its user goes through it
# not everywhere is it allowed; then things go on without
mountpoint -q "$root/proc" || mount -t proc proc "$root/proc" 2>/dev/null || echo "without /proc"
inside useradd --create-home --shell /bin/sh $user
inside install -d -m 1777 /tmp/.X11-unix
cp "$package" "$root/tmp/dravolin.deb"
cp -r desktop scripts "$root/opt"

say "the package with what it depends on"
changing apt-get install -y --no-install-recommends /tmp/dravolin.deb
# it runs until it is told to end
status=0
as_user env QT_QPA_PLATFORM=offscreen timeout 3 Dravolin 2>"$root/log" || status=$?
if [ $status != 124 ]; then cat "$root/log" >&2; echo "It does not start." >&2; exit 1; fi
rm -rf "$root/home/$user"
inside install -d -o $user -g $user /home/$user
changing dpkg --purge dravolin

say "a desktop to start it on"
changing /opt/scripts/install-packages.sh screen
files >"$root/tmp/before"

say "the study, with the program from the desktop's menu"
changing dpkg --install /tmp/dravolin.deb
as_user /usr/bin/python3 /opt/desktop/in_a_box.py /usr/bin/python3 /opt/scripts/installed.py /home/$user

say "what is left of it"
changing dpkg --purge dravolin
files >"$root/tmp/after"
left=$(comm -13 "$root/tmp/before" "$root/tmp/after")
echo "$left" | grep "^\./home/$user/" | grep -v "/studies/\|/before/\|/tried/" || true
others=$(echo "$left" | grep -v "^\./home/$user/" || true)
if [ -n "$others" ]; then
    echo "Left behind, and no user's:" >&2
    echo "$others" >&2
    exit 1
fi
say "as it should be"
