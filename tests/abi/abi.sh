#!/usr/bin/env bash
# abi.sh check|accept LIBRARIES HEADERS WORK
# Compares the binary interface of the shared libraries below LIBRARIES with the baseline beside this script, by exported
# symbols and by abidiff. Applications were compiled against the baseline, so a removed symbol and a changed size, offset
# or virtual slot fail; what is new is shown. "accept" makes today's interface the baseline.
set -euo pipefail
mode=$1 libraries=$2 headers=$3 work=$4
baseline="$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/baseline"
names=(RVCore RVXML RVProductBase)

# One line a symbol; a table of virtual functions with its size.
symbols() {
    nm -D --defined-only --format=posix "$1" |
        awk '$1 ~ /^_Z/ { print $1 ($1 ~ /^_ZTV/ ? " of size 0x" $4 : "") }' | LC_ALL=C sort
}

write_interface() {
    symbols "$libraries/$1/lib$1.so" >"$2/$1.symbols"
    abidw --headers-dir "$headers" --drop-private-types --no-corpus-path --no-comp-dir-path --no-show-locs \
        --out-file "$2/$1.abi" "$libraries/$1/lib$1.so"
}

mkdir -p "$work"
changed=()
for name in "${names[@]}"; do
    write_interface "$name" "$work"
    if [[ $mode == accept ]]; then
        cp "$work/$name.symbols" "$baseline/"
        xz --keep --force --stdout "$work/$name.abi" >"$baseline/$name.abi.xz"
        continue
    fi

    removed=$(LC_ALL=C comm -23 "$baseline/$name.symbols" "$work/$name.symbols" | c++filt)
    added=$(LC_ALL=C comm -13 "$baseline/$name.symbols" "$work/$name.symbols" | c++filt)
    [[ ! $added ]] || printf 'lib%s: new symbols\n%s\n\n' "$name" "$added"
    if [[ $removed ]]; then
        printf 'lib%s: symbols that are gone\n%s\n\n' "$name" "$removed"
        changed+=("$name")
    fi
    xz --decompress --stdout "$baseline/$name.abi.xz" >"$work/$name.baseline.abi"
    if ! abidiff --no-added-syms "$work/$name.baseline.abi" "$work/$name.abi"; then
        changed+=("$name")
    fi
done

if [[ ${#changed[@]} -gt 0 ]]; then
    echo "The binary interface has changed. If that is meant, raise the version and run: ./dev abi --accept"
    exit 1
fi
[[ $mode == accept ]] || echo "Whatever was built against the baseline goes on working."
