# Completion of tavik-cli for bash. It offers what the program's own help names.

# Commands within the help on standard input.
_tavik_cli_commands()
{
    sed -n '/^Subcommands:/,/^$/s/^  \([a-z-]*\) .*/\1/p'
}

# Options within the help on standard input.
_tavik_cli_options()
{
    sed -n 's/^  \(-.,\)\{0,1\}\(--[a-z-]*\).*/\2/p'
}

# True when the help on standard input gives an option a value: its kind follows after one blank.
_tavik_cli_takes_value()
{
    awk -v begin="  $1 " 'index($0, begin) == 1 && substr($0, length(begin) + 1, 1) != " " { found = 1 }
        END { exit !found }'
}

# Names that the help on standard input lists for an option, as "a, b (if left out) or c".
_tavik_cli_names()
{
    awk -v option="$1" '
        $1 == option && /^  -/ { $1 = $2 = ""; within = 1; print; next }
        within && /^    / { print; next }
        { within = 0 }' |
        sed -e 's/([^)]*)//g' -e 's/.*: //' -e 's/,/ /g' -e 's/ or / /g'
}

# A column of the list of parts, by its heading, each entry once: of the folder, code and numbering that the command
# line names. What a shell would obey, or take for more than one word, is left out: a part can have any name.
_tavik_cli_parts()
{
    local program=$1 text=$2 heading=$3 i options=()
    for ((i = 1; i < COMP_CWORD - 1; ++i)); do
        case ${COMP_WORDS[i]} in
            --data | --code | --numbering) options+=("${COMP_WORDS[i]}" "${COMP_WORDS[i + 1]}") ;;
        esac
    done
    "$program" parts --format csv "${options[@]}" -- "$text" 2>/dev/null | awk -F, -v heading="$heading" '
        NR == 1 { for (i = 1; i <= NF; ++i) if ($i == heading && !column) column = i; next }
        $column !~ /[^A-Za-z0-9._+=@%:\/-]/ && !/"/ && !seen[$column]++ { print $column }'
}

# Capacitances in pF as engineers write them.
_tavik_cli_with_prefix()
{
    awk '{ for (i = 1; $1 >= 1000 && i < 3; ++i) $1 /= 1000; print $1 substr("pnu", i, 1) "F" }' CONVFMT=%.9g OFMT=%.9g
}

_tavik_cli()
{
    local program=$1 current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local help words="" word command=()
    help=$("$program" --help 2>/dev/null)
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        _tavik_cli_commands <<< "$help" | grep -qxF -- "$word" || break
        command+=("$word")
        help=$("$program" "${command[@]}" --help 2>/dev/null)
    done
    case $previous in
        --chart) words=$("$program" curve --help 2>/dev/null | _tavik_cli_names --chart) ;;
        --code | --numbering | --format) words=$(_tavik_cli_names "$previous" <<< "$help") ;;
        --sort) words=$(_tavik_cli_names --sort <<< "$help" | sed -e 's/Order by//' -e 's/;.*//' -e '/hyphen/d') ;;
        --size | --max-size) words=$(_tavik_cli_parts "$program" "" size) ;;
        --characteristic) words=$(_tavik_cli_parts "$program" "" characteristic) ;;
        --capacitance) words=$(_tavik_cli_parts "$program" "" "capacitance [pF]" | _tavik_cli_with_prefix) ;;
        --rated-voltage | --min-rated-voltage) words=$(_tavik_cli_parts "$program" "" "rated voltage [V]" | sed 's/$/V/') ;;
        --parallel) words=auto ;;
        --like) [[ -z $current ]] || words=$(_tavik_cli_parts "$program" "$current" part) ;;
        --parameter) words=$(_tavik_cli_names --parameter <<< "$help" | sed 's/[a-z-]\{1,\}/&=/g') ;;
        *)
            if ! _tavik_cli_takes_value "$previous" <<< "$help"; then
                words="$(_tavik_cli_commands <<< "$help") $(_tavik_cli_options <<< "$help")"
                # All part numbers are too many to choose from.
                if [[ $current == [!-]* ]] && grep -q '^  \(parts\{0,1\} PART\|pieces PIECE\)' <<< "$help"; then
                    words+=" $(_tavik_cli_parts "$program" "$current" part)"
                fi
            fi
            ;;
    esac
    COMPREPLY=()
    while read -r word; do
        [[ -n $word && $word == "$current"* ]] && COMPREPLY+=("$word")
    done < <(tr -s ' ' '\n' <<< "$words")
    [[ ${COMPREPLY[0]:-} == *= ]] && compopt -o nospace 2>/dev/null
    return 0
}
complete -o default -F _tavik_cli tavik-cli
