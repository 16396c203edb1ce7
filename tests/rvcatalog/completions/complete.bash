#!/usr/bin/env bash
# complete.bash SCRIPT WORD...: how bash goes on with a command line, a candidate a line. The words are those that bash
# makes of it, which splits at "=" as well.
. "$1" || exit 2
[[ $(complete -p rvcatalog) == "complete -F _rvcatalog rvcatalog" ]] || exit 2
COMP_WORDS=("${@:2}")
COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
_rvcatalog
printf '%s\n' "${COMPREPLY[@]}"
