#!/bin/sh
# check.sh PACKAGE: lets Debian's own checkers judge a package and the descriptions that are in it.
set -eu
unpacked=$(mktemp -d)
trap 'rm -rf "$unpacked"' EXIT
# lintian's errors, not its opinions
lintian --fail-on error --allow-root --tag-display-limit 0 "$1"
dpkg-deb -x "$1" "$unpacked"
desktop-file-validate "$unpacked"/usr/share/applications/*.desktop
appstreamcli validate --no-net "$unpacked"/usr/share/metainfo/*.xml
