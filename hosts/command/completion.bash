# Completion of draftwick's command line for bash.
_draftwick() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    COMPREPLY=()
    case $previous in
    --style) mapfile -t COMPREPLY < <(compgen -W "plain report letter manuscript" -- "$current") ;&
    -o | --output | --data) mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen -f -- "$current") ;;
    --page) mapfile -t COMPREPLY < <(compgen -W "a3 a4 a5 letter legal" -- "$current") ;;
    --spelling) mapfile -t COMPREPLY < <(compgen -W "standard classic" -- "$current") ;;
    --set)
        mapfile -t COMPREPLY < <(compgen -S = -W "title author date language subject keywords company header footer \
            toc-title" -- "$current")
        compopt -o nospace
        ;;
    -j | --jobs) ;;
    *)
        if [[ $current == -* ]]; then
            mapfile -t COMPREPLY < <(compgen -W "--output --style --page --set --toc --number-sections --data --continue \
                --jobs --quiet --spelling --schema --clean --help --version" -- "$current")
        else
            mapfile -t COMPREPLY < <(compgen -f -- "$current")
        fi
        ;;
    esac
}
complete -o filenames -F _draftwick draftwick
