#!/usr/bin/env bash
# abi.sh check|accept LIBRARIES HEADERS WORK
# Compares the binary interface of the shared libraries below LIBRARIES with the baseline beside this script, by exported
# symbols and by abidiff. Applications were compiled against the baseline, so a removed symbol and a changed size, offset
# or virtual slot fail; new symbols are shown. "accept" makes the current interface the baseline.
#
# A library that is not in the baseline has promised nothing yet; it is named, and passes.
#
# The exported inline functions of a library depend on the compiler and on the headers of Qt. If they are not those of
# the baseline, only the sizes of the tables of virtual functions are compared, which do not depend on them.
set -euo pipefail
mode=$1 libraries=$2 headers=$3 work=$4
baseline="$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/baseline"
names=(RVCore RVXML RVProductBase RVCatalogue)

# Prints one line for each symbol; a table of virtual functions has its size.
symbols() {
    nm -D --defined-only --format=posix "$1" |
        awk '$1 ~ /^_Z/ { print $1 ($1 ~ /^_ZTV/ ? " of size 0x" $4 : "") }' | LC_ALL=C sort
}

# The compiler, Qt and machine that the libraries were built with and for, as in "GCC 12, Qt 6.4, X86-64".
built_with() {
    local library="$libraries/RVProductBase/libRVProductBase.so" compiler qt machine
    compiler=$(readelf --string-dump=.comment "$library" |
        sed -nE 's/.*(clang) version ([0-9]+).*/\1 \2/p; s/.*(GCC): \(.*\) ([0-9]+).*/\1 \2/p' | sort | tail -n 1)
    qt=$(nm -D "$library" | sed -nE 's/.*qt_version_tag@Qt_([0-9.]+)$/\1/p')
    machine=$(readelf --file-header "$library" | sed -nE 's/^ *Machine: .* ([^ ]+)$/\1/p')
    echo "$compiler, Qt $qt, $machine"
}

# The tables of virtual functions whose sizes in the baseline and in this build differ.
resized_tables() {
    LC_ALL=C join <(grep ' of size ' "$baseline/$1.symbols") <(symbols "$libraries/$1/lib$1.so" | grep ' of size ') |
        awk '$4 != $7 { print $1 " is of size " $7 " instead of " $4 }' | c++filt
}

write_interface() {
    symbols "$libraries/$1/lib$1.so" >"$2/$1.symbols"
    abidw --headers-dir "$headers" --drop-private-types --no-corpus-path --no-comp-dir-path --no-show-locs \
        --out-file "$2/$1.abi" "$libraries/$1/lib$1.so"
}

# Types in headers ending in _p.h are behind pointers, so programs were not compiled with them. They may change; a new rule
# of the check changes some.
private_types() {
    local names
    names=$(sed -nE 's/^(struct|class|enum|enum class) (RV[A-Za-z]+)( final)?( :.*)?( \{)?$/\2/p' "$headers"/*/*_p.h |
        LC_ALL=C sort -u)
    printf '[suppress_type]\n  name_regexp = ^(%s)$\n' "$(paste -sd '|' <<<"$names")"
}

mkdir -p "$work"
private_types >"$work/private.abignore"
this_build=$(built_with)
[[ $mode == check ]] || echo "$this_build" >"$baseline/built_with"
baseline_build=$(<"$baseline/built_with")
changed=()
for name in "${names[@]}"; do
    if [[ $mode == check && ! -e $baseline/$name.symbols ]]; then
        printf 'lib%s: not in the baseline before the next "./dev abi --accept"\n\n' "$name"
        continue
    fi
    if [[ $this_build != "$baseline_build" ]]; then
        resized=$(resized_tables "$name")
        if [[ $resized ]]; then
            printf 'lib%s: tables of virtual functions that have changed\n%s\n\n' "$name" "$resized"
            changed+=("$name")
        fi
        continue
    fi
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
    if ! abidiff --no-added-syms --suppressions "$work/private.abignore" "$work/$name.baseline.abi" "$work/$name.abi"; then
        changed+=("$name")
    fi
done

if [[ ${#changed[@]} -gt 0 ]]; then
    echo "The binary interface has changed. If that is meant, raise the version and run: ./dev abi --accept"
    exit 1
fi
if [[ $this_build != "$baseline_build" ]]; then
    echo "The baseline was made with $baseline_build, and this was built with $this_build."
    echo "So only the tables of virtual functions were compared here; tst_layout compares sizes and slots."
elif [[ $mode == check ]]; then
    echo "Programs that were built against the baseline go on working."
fi
