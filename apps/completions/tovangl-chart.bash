# bash completion for tovangl-chart
_tovangl_chart() {
    local common='-o --output --format --map --svg --size --print --theme --title --font --font-file --font-size --locale
        --threshold --others --others-link --palette --background --picture-color --text-color --plot-color
        --border-color --outline-color --kilo --scale --follow-display --fast --csv --caption --value --color
        --help'
    local bars='--category-axis --category-title --bar-width --position --axis-color
        --axis-title-color'
    local value='--value-axis --value-title --grid-color'
    local pie='--bold --shorten-left --keep-overlaps --without-sizes --unit --line-color'
    local batch='-o --output --tar --format --frames --maps --resume --errors --jobs --longest-line
        --font-file --help'
    local axis='line labels title bold-labels bold-title prefixes hide-overlapped shift-last none'
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local words files=
    case $previous in
        -o | --output | --map | --font-file | --tar | --errors) files=yes ;;
        --category-axis | --value-axis) words=$axis ;;
        --theme | --palette) words='light dark high-contrast colour-blind' ;;
        --picture-color) words='transparent' ;;
        --format) words='png svg pdf' ;;
        --kilo) words='1024 1000' ;;
        --background | --follow-display | --fast | --bold | --shorten-left | --keep-overlaps | \
            --without-sizes | --csv | --svg | --frames | --maps | --resume | --help | [!-]*)
            case ${COMP_WORDS[1]} in
                pie) words="$common $pie" files=yes ;;
                bars) words="$common $bars $value" files=yes ;;
                hbars) words="$common $bars --value-color" files=yes ;;
                batch) words=$batch files=yes ;;
                doctor) words='--font --font-file --help' ;;
            esac
            if ((COMP_CWORD == 1)); then words='pie bars hbars batch doctor --help --version' files=; fi
            ;;
    esac
    mapfile -t COMPREPLY < <(
        compgen -W "${words-}" -- "$current"
        if [[ $files && $current != -* ]]; then compgen -f -- "$current"; fi
    )
}
complete -o filenames -F _tovangl_chart tovangl-chart
