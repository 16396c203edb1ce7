#!/usr/bin/env bash
# symbols.sh NM LIBRARY: the library defines nothing for others but the classes RV…, and operators and hashes on them.
set -euo pipefail
nm=$1 library=$2

symbols=$("$nm" -DC --defined-only "$library" | cut -d ' ' -f 2-)
grep -qE '^T RVProductType::isAgenda\(\) const$' <<<"$symbols"

public='((typeinfo( name)?|vtable|guard variable|(non-)?virtual thunk) (for|to) )?RV[A-Z]'
free='(operator[^ (]+|qHash)\(([^)]*[ (,])?RV[A-Z]'
# The linker's own marks, and those of a sanitizer for the globals that it watches.
marks='(__bss_start|_edata|_end|__odr_asan[._].*)$'
# The standard library and Qt declare their classes visible, so weak copies of them are the same in every module.
standard='[WVu] (.* )?(std::|Q[A-Z])'
platform='RVEnumWrapper<RVSpotColorEnum>|RVSingleton<RV(Font|Directory)|[WTDBRVu] RV(SpotColor|Font|Directory|XML)'

leaked=$(grep -vE "^. ($public|$free|$marks)|^$standard" <<<"$symbols" || true)
copied=$(grep -E "$platform" <<<"$symbols" || true)
if [[ $leaked || $copied ]]; then
    printf 'leaked:\n%s\ncopied from the platform layer:\n%s\n' "$leaked" "$copied"
    exit 1
fi
