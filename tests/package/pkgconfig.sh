#!/usr/bin/env bash
# pkgconfig.sh COMPILER FLAGS LIBDIR SOURCE PROGRAM: builds the program with nothing but pkg-config, and runs it.
set -euo pipefail
compiler=$1 flags=$2 libdir=$3 source=$4 program=$5

export PKG_CONFIG_PATH=$libdir/pkgconfig
package=$("${PKG_CONFIG:-pkg-config}" --cflags --libs RVProductBase)
# The words of both variables are options.
# shellcheck disable=SC2086
"$compiler" -std=c++17 -fPIC $flags "$source" $package -o "$program"
LD_LIBRARY_PATH=$libdir "$program"
