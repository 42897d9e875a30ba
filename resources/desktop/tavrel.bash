# bash completion for tavrel

_tavrel() {
    local current=${COMP_WORDS[COMP_CWORD]}
    COMPREPLY=()
    if [[ $current == -* ]]; then
        COMPREPLY=($(compgen -W "-h --help -v --version" -- "$current"))
    fi
}

complete -o default -F _tavrel tavrel
