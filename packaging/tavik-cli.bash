# Completion of tavik-cli for bash.

_tavik_cli()
{
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[1]:-}
    local words=""
    if [ "$COMP_CWORD" -eq 1 ]; then
        words="parts curve chart data --help --version"
    else
        case $previous in
            --chart) words="temperature-rise allowable-power capacitance-temperature capacitance-dc-voltage" ;;
            --code) words="eia jis" ;;
            --numbering) words="global previous" ;;
            --parameter) words="current= voltage= effective-power= apparent-power=" ;;
            --format)
                case $command in
                    parts) words="table csv json" ;;
                    curve) words="tvk csv json" ;;
                    chart) words="png svg pdf" ;;
                esac
                ;;
            --data | --output | --requests) ;;
            *)
                local shared="--data --format --output --code --numbering --help"
                local curve="--chart --x --y --dc-bias --frequency --heat-resistance --ambient --parameter --unchecked"
                case $command in
                    parts) words="$shared --chart --size --characteristic --capacitance --rated-voltage" ;;
                    curve) words="$shared $curve --requests --date" ;;
                    chart) words="$shared $curve --line --size --scale --x-from --x-to --y-from --y-to" ;;
                    data) words="check export build --help" ;;
                esac
                ;;
        esac
    fi
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
    [[ ${COMPREPLY[0]:-} == *= ]] && compopt -o nospace
    return 0
}
complete -o default -F _tavik_cli tavik-cli
