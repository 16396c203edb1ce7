#!/usr/bin/env bash
# translations.sh CMAKE PREFIX LIBDIR WORK OPTIONS...: the translations of an installation are found when it has been moved.
set -euo pipefail
cmake=$1 prefix=$2 libdir=$3 work=$4
shift 4

rm -rf "$work"
mkdir -p "$work"
cp -a "$prefix" "$work/moved"
"$cmake" -S "$(dirname "${BASH_SOURCE[0]}")" -B "$work/build" "$@" -DCMAKE_PREFIX_PATH="$work/moved"
"$cmake" --build "$work/build"
export XDG_DATA_HOME=$work/nothing XDG_DATA_DIRS=$work/nothing
diff <("$work/build/translations") - <<'TEXT'
0
1 2 backgrounds
1 1 Hintergrund
0 1 Hintergrund
1 Hintergründe
1 Einband
0
Cover
TEXT

export PKG_CONFIG_PATH=$work/moved/$libdir/pkgconfig
# translations_of PACKAGE: the folder of its translations. pkg-config writes a blank as a shell reads it.
translations_of() {
    local folder
    folder=$("${PKG_CONFIG:-pkg-config}" --variable=translationsdir "$1")
    echo "${folder//\\ / }"
}
[[ -f $(translations_of RVProductBase)/rvproductbase_en.qm ]]
[[ -f $(translations_of RVCatalogue)/rvcatalogue_de.qm ]]
