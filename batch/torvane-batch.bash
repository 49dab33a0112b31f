# Completion of torvane-batch for bash. Options are those that its help names.

_torvane_batch() {
    local current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    local program=${COMP_WORDS[0]/#\~\//$HOME/} words="" is_value=""
    COMPREPLY=()
    # The shell takes a sign of equality for a word of its own.
    if [[ $current == "=" ]]; then
        current="" is_value=yes
    elif [[ $before == "=" ]]; then
        before=${COMP_WORDS[COMP_CWORD - 2]} is_value=yes
    fi
    case $before in
    --look) words="lit plain lines" ;;
    --camera) words="orthographic perspective" ;;
    --text | --image | --scene)
        compopt -o nospace 2>/dev/null
        words="U= X= M= helix="
        ;;
    U | X | M | helix | --config | --write-config)
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
        return
        ;;
    *) [[ $is_value ]] || words=$("$program" --help 2>/dev/null | grep -oE '^  (-h,)?--[A-Za-z0-9-]+' |
        sed 's/^  \(-h,\)\{0,1\}//') ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
}
complete -F _torvane_batch torvane-batch
