#!/bin/bash
# What ./run, ./test and .ci/run share; to be sourced.
# shellcheck disable=SC2034 # the variables are used where this is sourced

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

viewer_packages=(
    libcoin-dev libsoqt520-dev qtbase5-dev libqt5opengl5-dev libboost-dev libegl-dev libcli11-dev
    cmake ninja-build g++)
virtual_display_packages=(
    xvfb xauth xdotool imagemagick libgl1-mesa-dri fonts-dejavu-core)
test_packages=(
    libgtest-dev libbenchmark-dev libxres-dev openbox ghostscript locales-all
    valgrind time make parallel python3-clang libclang-common-14-dev)
check_packages=(clang clang-format clang-tidy shellcheck black git)
coverage_packages=(gcovr)
package_packages=(file desktop-file-utils appstream librsvg2-bin man-db lintian dpkg-dev)
document_packages=(file imagemagick parallel dpkg-dev xvfb xauth)
mutation_packages=(ccache git)

# Without -noreset the server starts anew whenever its last client leaves, and a program that starts
# just then does not get a window.
screen="-screen 0 1280x1024x24 -noreset"

fail() {
    echo "$1" >&2
    exit 1
}

# Installs those of the given packages that are missing; asks for nothing when all are there.
install_missing() {
    local missing
    mapfile -t missing < <(comm -13 \
        <(dpkg-query --show --showformat='${Package} ${db:Status-Status}\n' "$@" 2>/dev/null |
            sed -n 's/ installed$//p' | sort) \
        <(printf '%s\n' "$@" | sort))
    if [[ ${#missing[@]} -eq 0 ]]; then
        return
    fi
    local as_root=()
    if [[ $EUID -ne 0 ]]; then
        command -v sudo >/dev/null ||
            fail "These packages are missing, and neither root nor sudo is at hand: ${missing[*]}"
        as_root=(sudo)
    fi
    echo "Installing ${missing[*]}"
    "${as_root[@]}" apt-get update -qq
    # Without a terminal nothing can be answered.
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# Builds the viewer. Configured for the first time, without the tests, whose packages may be missing.
build_viewer() {
    [[ -f build/build.ninja ]] ||
        cmake --preset release -DTORVANE_TESTS=OFF -DTORVANE_BENCH=OFF
    cmake --build --preset release --target torvane -- --quiet
}

# Builds everything that a preset has, tests and benchmarks too.
build_all() {
    cmake --preset "$1" -DTORVANE_TESTS=ON -DTORVANE_BENCH=ON
    cmake --build --preset "$1"
}

# The tests without windows, one program after the other, under valgrind. Fails with the first that
# depends on memory that nobody has written. Left out is what repeats a check on the finest grid or
# with thousands of rays: the same code runs on smaller grids, and under valgrind it takes an hour.
memcheck() {
    local folder=$1
    shift
    local program
    local filter='--gtest_filter=-*FinestGrid*:*FineGrids*:*PicksExactlyWhat*'
    for program in "$folder"/bin/{math,helix,scene,hyperboloid,document_scene,data_text,resources,shrinking,batch}_test; do
        echo "memcheck $program"
        valgrind --quiet --error-exitcode=1 --track-origins=yes "$program" --gtest_brief=1 "$filter" "$@"
    done
}

# Which share of our own lines has run, folder by folder and over all, and which lines have not.
print_coverage() {
    local folder=$1 layer
    local report=(gcovr --root . --object-directory "$folder" --exclude-unreachable-branches)
    for layer in math helix hyperboloid scene viewer export app batch; do
        echo "$layer: $("${report[@]}" --filter "$layer/" --print-summary | grep '^lines')"
    done
    "${report[@]}" --filter '(math|helix|hyperboloid|scene|viewer|export|app|batch)/' --print-summary
}
