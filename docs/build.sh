#!/usr/bin/env bash
# usage: build.sh FOLDER [QHELPGENERATOR]
# Writes the documentation to FOLDER/html and, with the program that makes Qt help files, to FOLDER/RVProductBase.qch.
# A public name without documentation is an error.
set -euo pipefail
FOLDER="$(realpath -m "$1")"
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."
VERSION="$(sed -nE 's/^ +VERSION ([0-9.]+)$/\1/p' CMakeLists.txt)"
export FOLDER VERSION

rm -rf "$FOLDER/html" "$FOLDER/RVProductBase.qch"
mkdir -p "$FOLDER"
doxygen docs/Doxyfile
docs/site.py "$FOLDER/html"
# doxygen does not report an enumerator without a text, but leaves it without a link.
if grep -ohE '<b>[A-Z0-9_]+</b>' "$FOLDER"/html/group__*.html; then
  echo "build.sh: these enumerators have no text" >&2
  exit 1
fi
[ $# -lt 2 ] || "$2" -s "$FOLDER/html/index.qhp" -o "$FOLDER/RVProductBase.qch"
