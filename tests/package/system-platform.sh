#!/bin/sh
# system-platform.sh SOURCE BUILD SCRATCH LAUNCHER: builds RVProductBase against RVCore and RVXML that were installed
# on their own, and runs rvcatalog with them.
set -eu
prefix=$3/prefix
for component in RVTemplateClasses RVCore RVXML; do
  cmake --install "$2" --component "$component" --prefix "$prefix" >/dev/null
done
cmake -S "$1" -B "$3/build" -G Ninja -DRV_PLATFORM=system -DBUILD_TESTING=OFF -DCMAKE_PREFIX_PATH="$prefix" \
  -DCMAKE_CXX_COMPILER_LAUNCHER="$4"
cmake --build "$3/build"
ldd "$3/build/libs/RVProductBase/libRVProductBase.so.0" | grep -F "$prefix" | grep libRVCore.so.0
if [ -e "$3/build/libs/RVCore" ]; then
  echo "RVCore was built although the system's was wanted" >&2
  exit 1
fi
"$3/build/apps/rvcatalog/rvcatalog" order "$1/examples/catalogue/products.xml" "$1/examples/catalogue/project.xml"
