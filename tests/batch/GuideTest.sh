#!/bin/bash
# usage: GuideTest.sh PROGRAM
# What the documents show of the program without a window is what its commands do: they make the
# pictures in them, and each way to spread a sweep makes the files of the sweep.

set -euo pipefail
PATH=$(dirname "$(realpath "$1")"):$PATH
docs=$(cd "$(dirname "$0")/../../docs" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
unset DISPLAY
# Neither the driver's cache nor GNU parallel's folder is to be the user's.
export HOME=$work/home XDG_CACHE_HOME=$work/home/cache
mkdir "$HOME"

fail() {
    echo "$1" >&2
    exit 1
}

# differing PICTURE PICTURE: how many pixels differ by more than a rounding of colours
differing() {
    compare -metric AE -fuzz 3% "$1" "$2" null: 2>&1 || true
}

mkdir "$work/figures"
"$docs/make-figures" "$work/figures"
[[ $(cd "$work/figures" && echo *) == "$(cd "$docs/images" && echo *-*)" ]] ||
    fail "the documents make other pictures than they show"
for picture in "$work/figures"/*; do
    shown=$docs/images/${picture##*/}
    [[ $(identify -format %wx%h "$picture") == "$(identify -format %wx%h "$shown")" ]] ||
        fail "$picture has not the size of $shown"
    # Another driver draws some edges otherwise.
    [[ $(differing "$picture" "$shown") -lt 2000 ]] || fail "$picture does not look like $shown"
done

# block WORD: the lines of the guide, as they are meant, of the indented or fenced block that has a word
block() {
    awk -v word="$1" '
        /^```/ { fenced = !fenced }
        fenced && !/^```/ { lines = lines $0 "\n"; next }
        /^    / { lines = lines substr($0, 5) "\n"; next }
        { if (index(lines, word)) { printf "%s", lines; exit } lines = "" }
    ' "$docs/user-guide.md"
}

# line WORD: the line of such a block that has the word, of small pictures
line() {
    block "$1" | grep -F -- "$1" | sed 's/--image/--size 1x1 --dpi 20 --image/'
}

# expect_all WAY: the files in the folder of that name are those that one call makes
expect_all() {
    diff -r --exclude=commands --exclude=one.sh --exclude=Makefile "$work/at once" "$work/$1" >&2 ||
        fail "$1 makes other files"
}

mkdir "$work"/{"at once",xargs,slurm,make,parallel}
cd "$work/at once"
bash -euc "$(line '--list >commands' | sed 's/--list.*//')"
[[ $(find . -name 'u*.eps' | wc -l) -eq 10 ]] || fail "the guide's sweep is not of ten"
for way in xargs slurm make parallel; do
    (cd "$work/$way" && bash -euc "$(line '--list >commands')")
done

cd "$work/xargs"
bash -euc "$(line 'xargs -P')"
expect_all xargs

cd "$work/slurm"
block SLURM_ARRAY_TASK_ID >one.sh
for task in {1..10}; do
    SLURM_ARRAY_TASK_ID=$task sh one.sh
done
expect_all slurm

cd "$work/make"
block 'all: ' >Makefile
make --silent -j2
expect_all make
touch "$work/done"
rm u0.5.eps
make --silent
[[ $(find . -name 'u*.eps' -newer "$work/done") == ./u0.5.eps ]] || fail "make makes all again"
expect_all make

cd "$work/parallel"
bash -euc "$(line 'parallel <commands')"
expect_all parallel

mkdir "$work/config"
cd "$work/config"
block 'vertex = [60, 120]' >figure.toml
torvane-batch --config figure.toml --dpi 10
torvane-batch --K13 0.4 --grid 200x200 --vertex 60,120 --fit --dpi 10 --image U=u.eps \
    --image helix=h.eps
{ cmp surface.eps u.eps && cmp helix.eps h.eps; } ||
    fail "the guide's file of options asks for other pictures"
