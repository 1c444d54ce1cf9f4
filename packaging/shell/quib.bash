# What bash completes after "quib".
_quib()
{
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    if [ "$before" = --snapshot ]; then
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -d -- "$word")
    else
        mapfile -t COMPREPLY < <(compgen -W '--snapshot --help --version' -- "$word")
    fi
}
complete -F _quib quib
