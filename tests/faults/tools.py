"""Programs that stand in for dcmodify."""

# Works file by file. At the file whose number is in "point" it tells its folder in "reached" and
# does what "action" says.
# A child of the program has no PATH.
BY_FILE = """#!/bin/bash
here="${0%/*}"
PATH=/usr/bin:/bin
for word; do
    if [ -e "$word" ] || [ -L "$word" ]; then files+=("$word"); else options+=("$word"); fi
done
for file in "${files[@]}"; do
    echo >> "$here/count"
    if [ "$(wc -l < "$here/count")" = "$(cat "$here/point")" ]; then
        pwd > "$here/coming"
        mv "$here/coming" "$here/reached"
        case "$(cat "$here/action")" in
            kill) kill -KILL $$ ;;
            wait) while [ ! -e "$here/go" ]; do sleep 0.02; done ;;
        esac
    fi
    "$here/real-dcmodify" "${options[@]}" "$file"
done
: > "$here/finished.$$"
"""

# Is killed in its work, at the call of the system whose number is in "point", of those that touch a file.
IN_A_CALL = """#!/bin/bash
here="${0%/*}"
exec /usr/bin/strace -qq -o /dev/null -e trace=rename,unlink,write \\
    -e "inject=rename,unlink,write:signal=KILL:when=$(/bin/cat "$here/point")" "$here/real-dcmodify" "$@"
"""

HANGING = """#!/bin/sh
while :; do /bin/sleep 0.1; done
"""

# 60 MB in lines of 60 characters, then what the tool does.
FLOODING = """#!/bin/sh
/usr/bin/yes "W: nothing that matters, said again and again and again." | /usr/bin/head -c 60000000
"${0%/*}/real-dcmodify" "$@"
"""

NO_UTF8 = """#!/bin/sh
printf 'W: caf\\351 \\377\\n'
"${0%/*}/real-dcmodify" "$@"
"""


def count_files(scene, action):
    """Puts BY_FILE in the place of dcmodify, which acts at the scene's point."""
    resources = scene.replace_tool(BY_FILE)
    (resources / "action").write_text(action, encoding="ascii")
    set_point(scene, scene.point)
    return resources


def set_point(scene, point):
    resources = scene.executable.parent / "resources"
    (resources / "point").write_text(str(point), encoding="ascii")
