# bash completion for பொழி and பொழில் (pozhil). What பொழில் knows, it tells itself.

_pozhil_files() {
    compopt -o filenames
    mapfile -t COMPREPLY < <(compgen -d -- "$1"; compgen -f -X '!*.பொழில்' -- "$1")
}

_pozhil_candidates() {
    local current=$1 candidate
    shift
    while IFS=$'\t' read -r candidate _; do
        [[ $candidate == "$current"* ]] && COMPREPLY+=("$candidate")
    done < <("$@" 2>/dev/null)
}

_pozhil() {
    local current=${COMP_WORDS[COMP_CWORD]}
    COMPREPLY=()
    if [ "$COMP_CWORD" -eq 1 ]; then
        _pozhil_candidates "$current" "${COMP_WORDS[0]}" --நிறைவு
    elif [[ $current == -* ]]; then
        _pozhil_candidates "$current" "${COMP_WORDS[0]}" --நிறைவு "${COMP_WORDS[1]}"
    elif [[ ${COMP_WORDS[1]} == உதவி || ${COMP_WORDS[1]} == help ]]; then
        _pozhil_candidates "$current" "${COMP_WORDS[0]}" --நிறைவு
    else
        _pozhil_files "$current"
    fi
}

_pozhil_compiler() {
    local current=${COMP_WORDS[COMP_CWORD]}
    if [[ $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W '--வலை --கண்காணி --பதிப்பு' -- "$current")
    else
        _pozhil_files "$current"
    fi
}

complete -F _pozhil பொழில் pozhil
complete -F _pozhil_compiler பொழி
