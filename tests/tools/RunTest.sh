#!/bin/bash
# ./run, called from another folder, starts the viewer in that folder and leaves nothing there. The
# viewer, its building and its display are stood in for by scripts that write down where they are.

set -euo pipefail
source_tree=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
tree="$work/tree with a space"
user=$work/user
record=$work/record
export record
mkdir -p "$tree/build/bin" "$user" "$work/bin"
cp -r "$source_tree/run" "$source_tree/tools" "$tree"
touch "$tree/build/build.ninja"

# write_script FILE LINE...
write_script() {
    printf '%s\n' '#!/bin/bash' "${@:2}" >"$1"
    chmod +x "$1"
}
# shellcheck disable=SC2016 # expanded where the scripts run
{
    write_script "$work/bin/cmake" 'echo "built in $PWD" >>"$record"'
    write_script "$tree/build/bin/torvane" 'echo "started in $PWD with $*" >>"$record"'
    write_script "$work/bin/xvfb-run" 'echo "${*: -3}" >>"$record"'
}
export PATH=$work/bin:$PATH

# expect WHAT IT DOES
expect() {
    if ! diff "$record" - || [[ -n $(ls -A "$user") ]]; then
        echo "$1" >&2
        exit 1
    fi
    rm "$record"
}

cd "$user"
DISPLAY=:none "$tree/run" "a b" >/dev/null
expect "With a display the viewer starts where the user is." <<END
built in $tree
started in $user with a b
END

env -u DISPLAY -u WAYLAND_DISPLAY "$tree/run" "a b" >/dev/null
expect "Without a display the picture lands beside run." <<END
built in $tree
$tree/tools/take-picture $tree/torvane.png a b
END
