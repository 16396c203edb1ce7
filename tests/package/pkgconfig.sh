#!/usr/bin/env bash
# pkgconfig.sh COMPILER FLAGS LIBDIR SOURCE PROGRAM: builds the program with nothing but pkg-config, and runs it.
set -euo pipefail
compiler=$1 flags=$2 libdir=$3 source=$4 program=$5

export PKG_CONFIG_PATH=$libdir/pkgconfig
# The words of both are options, quoted as for a shell.
eval "options=($flags $("${PKG_CONFIG:-pkg-config}" --cflags --libs RVProductBase))"
"$compiler" -std=c++17 -fPIC "$source" "${options[@]}" -o "$program"
LD_LIBRARY_PATH=$libdir "$program"
