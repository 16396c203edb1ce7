#!/usr/bin/env bash
# first_program.sh PAGE WORK PREFIX CMAKE ARGUMENTS...: follows the first page of the guide. The files are copied from
# the page itself into a new folder, and the output of the program must be the one on the page.
set -euo pipefail
page=$1 work=$2 prefix=$3 cmake=$4
shift 4

# block FILE: the code block of the page that is made from that file.
block() {
    awk -v mark="<!-- snippet $1 -->" '
        found && /^```/ { if (inside) exit; inside = 1; next }
        inside { print }
        $0 == mark { found = 1 }' "$page"
}

rm -rf "$work"
mkdir -p "$work"
block examples/reader/CMakeLists.txt >"$work/CMakeLists.txt"
block examples/reader/main.cpp >"$work/main.cpp"
block tests/guide/products.xml >"$work/products.xml"
block tests/guide/reader.txt >"$work/expected.txt"
[ -s "$work/expected.txt" ]

cd "$work"
"$cmake" -S . -B build -DCMAKE_PREFIX_PATH="$prefix" "$@"
"$cmake" --build build
./build/reader products.xml | diff expected.txt -
