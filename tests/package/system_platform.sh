#!/usr/bin/env bash
# system_platform.sh CMAKE SOURCES BUILD LIBDIR OPTIONS...: the libraries build on a platform layer installed in LIBDIR,
# which has only that layer, and are linked with it. Every source includes the headers that it uses, because there are
# no precompiled headers here.
set -euo pipefail
cmake=$1 sources=$2 build=$3 libdir=$(realpath "$4")
shift 4

rm -rf "$build"
"$cmake" -S "$sources" -B "$build" -DBUILD_TESTING=OFF -DRV_PLATFORM=system -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON "$@"
"$cmake" --build "$build" --target RVProductBase RVCatalogue

if compgen -G "$libdir/libRVProductBase*"; then
    echo "the platform layer brought the library along"
    exit 1
fi
built=$(find "$build" -name 'libRVCore*' -o -name 'libRVXML*')
if [[ $built ]]; then
    echo "the platform layer was built: $built"
    exit 1
fi

for name in RVProductBase RVCatalogue; do
    [[ -f $build/libs/$name/lib$name.so ]]
done
library=$build/libs/RVProductBase/libRVProductBase.so
for platform in libRVCore.so.0 libRVXML.so.0; do
    readelf -d "$library" | grep -F "NEEDED" | grep -F "[$platform]"
    found=$(ldd "$library" | sed -n "s/^[[:space:]]*$platform => \(.*\) (0x[0-9a-f]*)$/\1/p")
    if [[ $(realpath "$(dirname "$found")") != "$libdir" ]]; then
        echo "$platform is \"$found\", not from $libdir"
        exit 1
    fi
done
