#!/usr/bin/env bash
# pkgconfig.sh COMPILER FLAGS LIBDIR MODULE SOURCE PROGRAM ARGUMENTS...: builds the program with pkg-config alone, and
# runs it.
set -euo pipefail
compiler=$1 flags=$2 libdir=$3 module=$4 source=$5 program=$6
shift 6

export PKG_CONFIG_PATH=$libdir/pkgconfig
# The words of both are options, quoted as for a shell.
eval "options=($flags $("${PKG_CONFIG:-pkg-config}" --cflags --libs "$module"))"
"$compiler" -std=c++17 -fPIC "$source" "${options[@]}" -o "$program"
LD_LIBRARY_PATH=$libdir "$program" "$@"
