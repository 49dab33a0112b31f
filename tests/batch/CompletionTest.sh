#!/bin/bash
# usage: CompletionTest.sh PROGRAM
# The completion knows all options of the program and what some of them take; the manual page names
# every option.

set -euo pipefail
program=$(realpath "$1")
source_tree=$(cd "$(dirname "$0")/../.." && pwd)
# shellcheck source=batch/torvane-batch.bash
source "$source_tree/batch/torvane-batch.bash"

# complete_words WORD...: what the last word can become
complete_words() {
    COMP_WORDS=("$program" "$@")
    COMP_CWORD=$#
    _torvane_batch
    echo "${COMPREPLY[*]}"
}

# expect WHAT IT IS, WHAT IT SHOULD BE
expect() {
    if [[ $1 != "$2" ]]; then
        echo "got '$1' instead of '$2'" >&2
        exit 1
    fi
}

expect "$(complete_words --K2)" "--K2 --K23"
expect "$(complete_words --u3a)" "--u3axis-range --u3axis-radius"
expect "$(complete_words --fit --hel)" "--help"
expect "$(complete_words --look pl)" "plain"
expect "$(complete_words --image h)" "helix="
expect "$(complete_words --look = pl)" "plain"
expect "$(complete_words --look =)" "lit plain lines"
expect "$(complete_words --camera = per)" "perspective"
expect "$(complete_words --scene = h)" "helix="
expect "$(complete_words --K13 = "")" ""
cd "$source_tree/batch"
expect "$(complete_words --text U = torvane-batch.b)" "torvane-batch.bash"
expect "$(complete_words --text = U = torvane-batch.b)" "torvane-batch.bash"
expect "$(complete_words --config = torvane-batch.b)" "torvane-batch.bash"
expect "$(complete_words --write-config torvane-batch.b)" "torvane-batch.bash"

# shellcheck disable=SC2088 # the shell hands it over as it was typed
expect "$(HOME=$(dirname "$program") program="~/${program##*/}" complete_words --u3a)" \
    "--u3axis-range --u3axis-radius"

manual=$(sed 's/\\-/-/g' "$source_tree/batch/torvane-batch.1")
for option in $(complete_words --); do
    [[ $manual == *"$option"* ]] || {
        echo "the manual page does not name $option" >&2
        exit 1
    }
done
