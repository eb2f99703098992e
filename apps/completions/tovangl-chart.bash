# bash completion for tovangl-chart
_tovangl_chart() {
    local common='-o --output --map --size --print --font --font-size --locale --threshold
        --background --fast --text-color --csv --caption --value --color --help'
    local bars='--category-title --category-axis --bar-width --position'
    local pie='--bold --shorten-left --keep-overlaps --without-sizes --outline-color --line-color'
    local axis='line labels title bold-labels bold-title prefixes hide-overlapped shift-last none'
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local words files=
    case $previous in
        -o | --output | --map) files=yes ;;
        --category-axis | --value-axis) words=$axis ;;
        --size | --print | --font | --font-size | --locale | --threshold | --*-color | --*-title | \
            --bar-width | --position | --caption | --value | --color) return ;;
        *)
            case ${COMP_WORDS[1]} in
                pie) words="$common $pie" files=yes ;;
                bars) words="$common $bars --value-title --value-axis" files=yes ;;
                hbars) words="$common $bars" files=yes ;;
            esac
            if ((COMP_CWORD == 1)); then words='pie bars hbars --help --version' files=; fi
            ;;
    esac
    mapfile -t COMPREPLY < <(
        compgen -W "${words-}" -- "$current"
        if [[ $files && $current != -* ]]; then compgen -f -- "$current"; fi
    )
}
complete -o filenames -F _tovangl_chart tovangl-chart
