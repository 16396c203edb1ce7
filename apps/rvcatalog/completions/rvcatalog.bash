# Completes command lines of rvcatalog in bash. The program itself computes the completions: "rvcatalog complete --
# WORD..." writes lines with a word, a tab and a description, and ":files" for names of files.

_rvcatalog() {
    local words=() word is_glued='' current=${COMP_WORDS[COMP_CWORD]//[\\\"\']/}
    # Bash splits words at "=" as well; the program needs "--format=json" in one piece. The words are as typed, so
    # backslashes and quotes are removed.
    for word in "${COMP_WORDS[@]:1:COMP_CWORD}"; do
        word=${word//[\\\"\']/}
        if [[ ${#words[@]} -gt 0 && ($is_glued || $word == =) ]]; then
            words[-1]+=$word
        else
            words+=("$word")
        fi
        is_glued=''
        [[ $word != = ]] || is_glued=1
    done
    [[ $current != = ]] || current=''
    local written=${words[-1]}
    local prefix=${written%"$current"}

    COMPREPLY=()
    while IFS=$'\t' read -r word _; do
        if [[ $word == :files ]]; then
            compopt -o default 2>/dev/null
        else
            # Commas have a meaning only in braces.
            printf -v word %q "${word#"$prefix"}"
            COMPREPLY+=("${word//\\,/,}")
        fi
    done < <("${COMP_WORDS[0]}" complete -- "${words[@]}" 2>/dev/null)
    # A value follows at once.
    [[ ${#COMPREPLY[@]} -ne 1 || ${COMPREPLY[0]} != *= ]] || compopt -o nospace 2>/dev/null
}

complete -F _rvcatalog rvcatalog
