# bash completion for tovangl-du
_tovangl_du() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local words='-o --output --pages --depth --svg --font-file -x --one-file-system --help --version'
    case $previous in
        --pages | --depth) return ;;
        -o | --output) words= ;;
        --font-file)
            mapfile -t COMPREPLY < <(compgen -f -- "$current")
            return
            ;;
    esac
    mapfile -t COMPREPLY < <(
        if [[ $current == -* ]]; then compgen -W "$words" -- "$current"; fi
        if [[ $current != -* ]]; then compgen -d -- "$current"; fi
    )
}
complete -o filenames -F _tovangl_du tovangl-du
