# Completion of tavik-cli for fish: what the completion for bash offers, else files.

function __tavik_cli_offers
    set -l folder (dirname (realpath (command -s tavik-cli)))
    set -l offers (bash -c '. "$1" && shift && COMP_WORDS=("$@") && COMP_CWORD=$(($# - 1)) && _tavik_cli "$1" &&
        printf "%s\n" "${COMPREPLY[@]}"' bash $folder/../../share/bash-completion/completions/tavik-cli \
        (commandline -opc) (commandline -ct) 2>/dev/null)
    if test -n "$offers"
        printf '%s\n' $offers
    else
        __fish_complete_path (commandline -ct)
    end
end

complete -c tavik-cli -f -a '(__tavik_cli_offers)'
