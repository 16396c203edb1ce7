#!/usr/bin/env bash
# debian.sh CMAKE SOURCES WORK OPTIONS...: makes the Debian packages, unpacks them into a scratch root and builds the
# examples against that, once by find_package and once by pkg-config alone.
set -euo pipefail
cmake=$1 sources=$2 work=$3
shift 3
build=$work/build root=$work/root
release=$(sed -nE 's/^ +VERSION ([0-9.]+)$/\1/p' "$sources/CMakeLists.txt")
version=$release-1

fail() {
    echo "$*"
    exit 1
}

field() { dpkg-deb --field "$work"/packages/"$1"_*.deb "$2"; }

# depends PACKAGE PATTERN: the package names what it cannot be without.
depends() { field "$1" Depends | tr ',' '\n' | grep -qE "^ *$2" || fail "$1 does not depend on $2: $(field "$1" Depends)"; }

# holds PACKAGE PATTERN...: the package has a file or link for each pattern; what else it has is not its business.
holds() {
    local package=$1 pattern listing
    listing=$(dpkg-deb --contents "$work"/packages/"$package"_*.deb | awk '{ print $6 }')
    for pattern in "${@:2}"; do
        grep -qE "^\./usr/$pattern\$" <<<"$listing" || fail "$package has no file $pattern"
    done
    listing=$(grep -v '/$' <<<"$listing")
    for pattern in "${@:2}"; do
        listing=$(grep -vE "^\./usr/$pattern\$" <<<"$listing" || true)
    done
    [[ ! $listing ]] || fail "$package should not have: $listing"
}

rm -rf "$work"
mkdir -p "$root"
"$cmake" -S "$sources" -B "$build" -DBUILD_TESTING=OFF -DCMAKE_INSTALL_PREFIX=/usr "$@"
"$cmake" --build "$build"
"$(dirname "$cmake")/cpack" --config "$build/CPackConfig.cmake" -B "$work/packages"

lib='lib/[a-z0-9_]+-linux-gnu'
holds librvproductbase0 \
    "$lib"/lib'RV(Core|XML|ProductBase)\.so\.0(\.[0-9]+\.[0-9]+)?' 'share/RVProductBase/translations/rvproductbase_(de|en)\.qm'
holds librvproductbase-dev \
    "$lib"/lib'RV(Core|XML|ProductBase)\.so' "$lib"/cmake/'RV(TemplateClasses|Core|XML|ProductBase)/RV.*\.cmake' \
    "$lib"/pkgconfig/RVProductBase.pc share/gdb/auto-load/usr/"$lib"/libRVProductBase.so."$release"-gdb.py 'include/RV(TemplateClasses|Core|XML|ProductBase)/RV[A-Za-z]+\.h'
holds librvcatalogue0 "$lib"/lib'RVCatalogue\.so\.0(\.[0-9]+\.[0-9]+)?' 'share/RVCatalogue/translations/rvcatalogue_de\.qm'
holds librvcatalogue-dev \
    "$lib"/lib'RVCatalogue\.so' "$lib"/cmake/'RVCatalogue/RVCatalogue.*\.cmake' "$lib"/pkgconfig/RVCatalogue.pc \
    'include/RVCatalogue/RV[A-Za-z]+\.h'
holds rvcatalog \
    bin/rvcatalog share/man/man1/rvcatalog.1.gz \
    share/doc/rvcatalog/catalogue-format.md share/doc/rvcatalog/comparing.md share/doc/rvcatalog/json.md \
    share/doc/rvcatalog/rules.md share/rvcatalog/catalogue.xsd share/rvcatalog/rvcatalog.schema.json \
    'share/doc/rvcatalog/examples/(products|project)\.xml' \
    share/bash-completion/completions/rvcatalog share/zsh/vendor-completions/_rvcatalog \
    share/fish/vendor_completions.d/rvcatalog.fish

holds rvbrowser \
    bin/rvbrowser share/man/man1/rvbrowser.1.gz share/applications/rvbrowser.desktop \
    share/icons/hicolor/scalable/apps/rvbrowser.svg share/metainfo/localhost.rvproductbase.rvbrowser.metainfo.xml

for package in librvproductbase0 librvproductbase-dev librvcatalogue0 librvcatalogue-dev rvcatalog rvbrowser; do
    [[ $(field "$package" Version) == "$version" ]] || fail "$package has version $(field "$package" Version)"
    dpkg-deb --extract "$work"/packages/"$package"_*.deb "$root"
done
depends librvproductbase0 'libqt6core6(t64)? '
depends librvproductbase0 'libqt6gui6 '
depends librvproductbase0 'libqt6xml6 '
depends librvproductbase-dev "librvproductbase0 \(= $version\)"
depends librvproductbase-dev 'qt6-base-dev '
depends librvcatalogue0 "librvproductbase0 \(= $version\)"
depends librvcatalogue0 'libxml2 '
depends librvcatalogue0 'libqt6core6(t64)? '
depends librvcatalogue-dev "librvcatalogue0 \(= $version\)"
depends librvcatalogue-dev "librvproductbase-dev \(= $version\)"
depends rvcatalog "librvproductbase0 \(= $version\)"
depends rvcatalog "librvcatalogue0 \(= $version\)"
depends rvcatalog 'libqt6core6(t64)? '
depends rvcatalog 'libqt6svg6 '
depends rvcatalog 'fonts-dejavu-core'
depends rvbrowser "librvproductbase0 \(= $version\)"
depends rvbrowser "librvcatalogue0 \(= $version\)"
depends rvbrowser 'libqt6widgets6 '
depends rvbrowser 'libqt6svg6'
depends rvbrowser 'libqt6printsupport6(t64)? '
depends rvbrowser 'fonts-dejavu-core'
# provides PACKAGE LIBRARIES...: the linker and other packages are told of the shared libraries.
provides() {
    local package=$1 control=$work/control/$1 library
    mkdir -p "$control"
    dpkg-deb --control "$work"/packages/"$package"_*.deb "$control"
    grep -q ldconfig "$control"/postinst || fail "the linker is not told of the new libraries of $package"
    for library in "${@:2}"; do
        grep -qxF "$library 0 $package (>= $release)" "$control"/shlibs ||
            fail "packages built against $library cannot find out what they depend on"
    done
}
provides librvproductbase0 libRVCore libRVXML libRVProductBase
provides librvcatalogue0 libRVCatalogue

libdir=$(dirname "$root"/usr/lib/*/libRVProductBase.so)
export LD_LIBRARY_PATH=$libdir
if readelf -d "$root/usr/bin/rvcatalog" "$root/usr/bin/rvbrowser" "$libdir"/libRV*.so | grep -E 'RPATH|RUNPATH'; then
    fail "a packaged file searches for libraries where the system does not"
fi
"$root/usr/bin/rvcatalog" show "$root/usr/share/doc/rvcatalog/examples/products.xml" | grep '^DUN9 '
"$root/usr/bin/rvbrowser" --screenshot "$work/screenshot.png" "$root/usr/share/doc/rvcatalog/examples/products.xml"
file "$work/screenshot.png" | grep 'PNG image data, 1280 x 800'

man_page=$(gzip --decompress --stdout "$root/usr/share/man/man1/rvbrowser.1.gz")
for option in $("$root/usr/bin/rvbrowser" --help | grep -oE -- '--[a-z]+'); do
    grep -qE -- "-${option#--}" <<<"$man_page" || fail "the man page does not explain: rvbrowser $option"
done

man_page=$(gzip --decompress --stdout "$root/usr/share/man/man1/rvcatalog.1.gz")
for command in $("$root/usr/bin/rvcatalog" 2>&1 | sed -n 's/^  \([a-z]\+\) .*/\1/p'); do
    grep -qE "^\.It Cm $command\$" <<<"$man_page" || fail "the man page does not explain: rvcatalog $command"
    for option in $("$root/usr/bin/rvcatalog" "$command" --help | grep -oE -- '--[a-z]+'); do
        grep -qE -- "-${option#--}" <<<"$man_page" || fail "the man page does not explain: rvcatalog $command $option"
    done
done

# builds EXAMPLE MODULE ARGUMENTS...: the example finds the library of that name in the packages, and runs.
builds() {
    local example=$1 module=$2
    "$cmake" -S "$sources/examples/$example" -B "$work/$example" "${options[@]}" -DCMAKE_PREFIX_PATH="$root/usr"
    "$cmake" --build "$work/$example"
    ldd "$work/$example/$example" | grep -F "lib$module.so.0 => $libdir/"
    "$work/$example/$example" "${@:3}"
    bash "$(dirname "${BASH_SOURCE[0]}")/pkgconfig.sh" "${CXX:-c++}" "${CXXFLAGS:-}" "$libdir" "$module" \
        "$sources/examples/$example/main.cpp" "$work/pkgconfig_$example" "${@:3}"
}
options=("$@")
builds consumer RVProductBase
builds reader RVCatalogue "$sources/examples/catalogue/products.xml"
