#compdef tavik-cli
# Completion of tavik-cli for zsh: what the completion for bash offers, else files.

local script=${commands[tavik-cli]:A:h}/../../share/bash-completion/completions/tavik-cli
local -a offers
offers=(${(f)"$(bash -c '. "$1" && shift && COMP_WORDS=("$@") && COMP_CWORD=$(($# - 1)) && _tavik_cli "$1" &&
    printf "%s\n" "${COMPREPLY[@]}"' bash $script "${(@Q)words[1,CURRENT]}" 2>/dev/null)"})
if (( ! $#offers )); then
    _files
elif [[ $offers[1] == *= ]]; then
    compadd -S '' -- $offers
else
    compadd -- $offers
fi
