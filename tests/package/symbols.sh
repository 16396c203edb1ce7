#!/usr/bin/env bash
# symbols.sh NM LIBRARY SYMBOL CLASSES OTHERS: the library defines SYMBOL, and exports only CLASSES and functions on
# them; symbols that match OTHERS belong to another library.
set -euo pipefail
nm=$1 library=$2 symbol=$3 classes=$4 others=$5

symbols=$("$nm" -DC --defined-only "$library" | cut -d ' ' -f 2-)
grep -qxF "T $symbol" <<<"$symbols"

public="((typeinfo( name)?|vtable|guard variable|(non-)?virtual thunk) (for|to) )?$classes"
free="(operator[^ (]+|qHash|rv[A-Z][A-Za-z]*)\\(([^)]*[ (,])?$classes"
# The linker's own marks, and those of a sanitizer for the globals that it watches.
marks='(__bss_start|_edata|_end|__odr_asan[._].*)$'
# The standard library and Qt declare their classes visible, so weak copies of them are the same in every module.
standard='[WVu] (.* )?(std::|Q[A-Z])'

leaked=$(grep -vE "^. ($public|$free|$marks)|^$standard" <<<"$symbols" || true)
copied=$(grep -E "$others" <<<"$symbols" || true)
if [[ $leaked || $copied ]]; then
    printf 'leaked:\n%s\ncopied from another library:\n%s\n' "$leaked" "$copied"
    exit 1
fi
