#!/usr/bin/env bash
# headers.sh SOURCES INCLUDES STANDARD COMPILER OPTIONS...: every public header is installed, found in both include forms,
# and compiles alone without a warning.
set -euo pipefail
sources=$1 includes=$2 standard=$3
shift 3

headers=$(cd "$includes" && ls RVTemplateClasses/*.h RVCore/*.h RVXML/*.h RVProductBase/*.h RVCatalogue/*.h)
diff <(cd "$sources" && ls -- */*.h | grep -v '_p\.h$' | sort) <(sort <<<"$headers")

compile() {
    printf '#include "%s"\n#include <%s>\n' "${1#*/}" "$1" | "${@:2}" -x c++ - && return
    echo "does not compile alone: $1"
    return 1
}
export -f compile

xargs -d '\n' -P "$(nproc)" -I '{}' bash -c 'compile "$@"' compile '{}' "$@" \
    -std=c++"$standard" -fsyntax-only -fPIC \
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror \
    -DQT_NO_KEYWORDS -DQT_NO_CAST_FROM_ASCII -DQT_NO_CAST_TO_ASCII \
    -I"$includes" -I"$includes"/RVTemplateClasses -I"$includes"/RVCore -I"$includes"/RVXML -I"$includes"/RVProductBase \
    -I"$includes"/RVCatalogue \
    <<<"$headers"
