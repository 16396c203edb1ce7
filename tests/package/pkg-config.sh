#!/bin/sh
# pkg-config.sh COMPILER SOURCE PREFIX LIBDIR: builds and runs a program with what pkg-config says alone.
set -eu
PKG_CONFIG_PATH=$3/$4/pkgconfig
export PKG_CONFIG_PATH
program=$(mktemp)
trap 'rm -f "$program"' EXIT
# shellcheck disable=SC2046
"$1" -std=c++17 -fPIC -o "$program" "$2" $(pkg-config --cflags --libs RVProductBase)
LD_LIBRARY_PATH=$3/$4 "$program"
