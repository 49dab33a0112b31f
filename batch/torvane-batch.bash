# Completion of torvane-batch for bash. Options are those that its help names.

_torvane_batch() {
    local current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    local words=""
    COMPREPLY=()
    case $before in
    --look) words="lit plain lines" ;;
    --camera) words="orthographic perspective" ;;
    --text | --image | --scene)
        compopt -o nospace 2>/dev/null
        words="U= X= M= helix="
        ;;
    # The shell takes a sign of equality for a word of its own.
    = | --config | --write-config)
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
        return
        ;;
    *) words=$("${COMP_WORDS[0]}" --help 2>/dev/null | grep -oE '^  (-h,)?--[A-Za-z0-9-]+' |
        sed 's/^  \(-h,\)\{0,1\}//') ;;
    esac
    if [[ $current == "=" ]]; then
        mapfile -t COMPREPLY < <(compgen -f)
        return
    fi
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
}
complete -F _torvane_batch torvane-batch
