#!/usr/bin/env bash
# subproject.sh CMAKE TREE BUILD OPTIONS...: a project that includes the tree gets only the libraries: no other target,
# test or installed file, and no entry in its cache.
set -euo pipefail
cmake=$1 tree=$2 build=$3
shift 3

fail() {
    echo "$*"
    exit 1
}

configure() {
    "$cmake" --fresh -S "$(dirname "${BASH_SOURCE[0]}")" -B "$build" -G Ninja -DRV_TREE="$tree" -DRV_TAKE_IN="$1" "${@:2}"
}

# The cache without the entries of every project() and FetchContent_Declare().
cache() {
    grep -E '^[A-Za-z_]' "$build/CMakeCache.txt" |
        grep -vE '^(RV_TAKE_IN|CMAKE_NUMBER_OF_MAKEFILES|RVProductBase_(BINARY_DIR|SOURCE_DIR|IS_TOP_LEVEL)|FETCHCONTENT_[A-Z_]+)[:-]' |
        LC_ALL=C sort
}

# The targets by name, without those that moc runs in and without folders.
targets() {
    "$cmake" --build "$build" --target help | sed -n 's/^\([^/ ]*\): phony$/\1/p' | grep -v _autogen | LC_ALL=C sort
}

# The libraries without RVTemplateClasses, which has only headers.
libraries=(
    RVCatalogue RVCore RVProductBase RVXML libRVCatalogue.so libRVCore.so libRVProductBase.so libRVXML.so rv_precompiled
)
rm -rf "$build"
configure "" "$@"
cache >"$build.cache"
targets >"$build.targets"

for way in add_subdirectory FetchContent; do
    configure "$way" "$@"
    diff "$build.cache" <(cache) || fail "$way changes the cache"
    diff <(printf '%s\n' "${libraries[@]}") <(LC_ALL=C comm -13 "$build.targets" <(targets)) ||
        fail "$way brings other targets"
    "$cmake" --build "$build"
    (cd "$build" && "$(dirname "$cmake")/ctest" --output-on-failure --no-tests=error)
    tests=$("$(dirname "$cmake")/ctest" --test-dir "$build" --show-only | sed -n 's/^  Test *#[0-9]*: //p')
    [[ $tests == catalogue ]] || fail "$way brings tests: $tests"
    rm -rf "$build.prefix"
    "$cmake" --install "$build" --prefix "$build.prefix"
    installed=$(cd "$build.prefix" && find . -type f)
    [[ $installed == ./bin/catalogue ]] || fail "$way brings files: $installed"
done
