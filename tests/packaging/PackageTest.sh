#!/bin/bash
# Builds the Debian package, holds its parts against the tools that judge them, installs it on this
# machine, uses it as its users do, removes it and looks for what is left. Also installs to a prefix.

set -euo pipefail
# shellcheck source=tools/common.sh
source "$(dirname "$0")/../../tools/common.sh"
cd "${root:?}"
export LC_ALL=C.UTF-8
build=$root/build-package
work=$(mktemp -d)
installed=false

as_root() {
    if [[ $EUID -eq 0 ]]; then "$@"; else sudo "$@"; fi
}

clean_up() {
    if $installed; then
        as_root dpkg --purge torvane >/dev/null
    fi
    rm -rf "$work"
}
trap clean_up EXIT

say() {
    echo "package: $1"
}

# expect WHAT IT IS, WHAT IT SHOULD BE
expect() {
    [[ $1 == "$2" ]] || fail "got '$1' instead of '$2'"
}

# Runs a tool that judges, and fails unless it is content and says nothing.
silent() {
    local said
    said=$("$@" 2>&1) || fail "$* failed: $said"
    [[ -z $said ]] || fail "$* says: $said"
}

metadata_is_good() {
    appstreamcli validate --no-net --pedantic "$1" | sed '/^$/d; /^✔ Validation was successful\.$/d'
}

warnings_of_page() {
    man --warnings --local-file --encoding=UTF-8 --ditroff "$1" >"$work/page"
}

# take_picture_of COMMAND: fails unless the command shows four drawn views and ends when told to.
take_picture_of() {
    env -i HOME="$work" PATH=/usr/local/bin:/usr/bin:/bin TORVANE_VIEWER="$1" \
        tests/support/on_own_display tools/take-picture "$work/picture.png"
}

# Everything that a package can leave: not the list of packages itself, nor logs and caches.
all_files() {
    as_root find /etc /opt /srv /usr /var -path /var/lib/dpkg -prune -o -path /var/log -prune \
        -o -path /var/cache -prune -o -print | sort
}

build_package() {
    cmake --preset package >/dev/null
    cmake --build --preset package -- --quiet
    rm -f "$build"/torvane_*.deb
    cpack --config "$build/CPackConfig.cmake" -B "$build" >/dev/null 2>"$work/errors" ||
        fail "$(<"$work/errors")"
    package=$(echo "$build"/torvane_*.deb)
    version=$(dpkg-deb --field "$package" Version)
    expect "${package##*/}" "torvane_${version}_$(dpkg --print-architecture).deb"
}

judge() {
    say "desktop entry, metadata, manual pages, package"
    silent desktop-file-validate packaging/torvane.desktop
    silent metadata_is_good packaging/org.torvane.torvane.metainfo.xml
    local page
    for page in packaging/torvane.1 batch/torvane-batch.1; do
        silent warnings_of_page "$page"
    done
    silent lintian --allow-root --fail-on error,warning "$package"
}

versions_agree() {
    say "one version everywhere"
    expect "$(sed -n 's/^torvane (\(.*\)) .*/\1/p' packaging/changelog | head -n 1)" "$version"
    expect "$(sed -n 's/.*<release version="\([^"]*\)".*/\1/p' packaging/*.metainfo.xml |
        head -n 1)" "$version"
    expect "$("$build/bin/torvane" --version)" "torvane $version"
    expect "$("$build/bin/torvane-batch" --version)" "torvane-batch $version"
}

icons_are_those_of_the_drawing() {
    say "icons"
    packaging/icons/make-icons "$work/icons"
    local icon
    for icon in "$work"/icons/hicolor/*/apps/torvane.png; do
        expect "$(compare -metric AE "$icon" "packaging/icons/${icon#"$work/icons/"}" \
            null: 2>&1)" 0
    done
}

works_from_a_prefix() {
    say "installed to a prefix"
    cmake --install "$build" --prefix "$work/a prefix" >/dev/null
    [[ -f "$work/a prefix/lib/torvane/PlugIns/platforms/libqxcb.so" ]] ||
        fail "PlugIns does not lead to Qt's plug-ins."
    take_picture_of "$work/a prefix/bin/torvane"
}

works_installed() {
    say "installed on this machine"
    local entry=/usr/share/applications/torvane.desktop icon name
    take_picture_of "$(sed -n 's/^Exec=//p' $entry)"
    icon=$(sed -n 's/^Icon=//p' $entry)
    for name in 16x16/apps/"$icon".png scalable/apps/"$icon".svg; do
        [[ -s /usr/share/icons/hicolor/$name ]] || fail "There is no icon $name."
    done
    expect "$(cd / && torvane --version)" "torvane $version"
    (cd "$work" && env -u DISPLAY torvane-batch --dpi 20 --image U=surface.png)
    [[ $(convert "$work/surface.png" -format %k info:) -gt 100 ]] || fail "The picture is empty."
    for name in torvane torvane-batch; do
        expect "$(man --where "$name")" "/usr/share/man/man1/$name.1.gz"
    done
    grep -q "No licence has been chosen" /usr/share/doc/torvane/copyright ||
        fail "The copyright file does not say that there is no licence."
}

if [[ -n $(dpkg-query --show torvane 2>/dev/null) ]]; then
    fail "Torvane is installed on this machine: remove it first."
fi
say "built"
build_package
judge
versions_agree
icons_are_those_of_the_drawing
works_from_a_prefix

all_files >"$work/before"
installed=true
as_root dpkg --install "$package" >/dev/null
works_installed
as_root dpkg --remove torvane >/dev/null
installed=false
say "removed"
all_files >"$work/after"
diff "$work/before" "$work/after" || fail "Installing and removing has left or taken something."
say "good: $package"
