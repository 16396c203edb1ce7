#!/usr/bin/env bash
# debian.sh SOURCES PACKAGES WORK: looks into each of the Debian packages, unpacks them into a scratch root and builds the
# examples against that, once by find_package and once by pkg-config alone.
set -euo pipefail
sources=$1 packages=$2 work=$3
root=$work/root
version=$(dpkg-parsechangelog --file "$sources/debian/changelog" --show-field Version)
release=${version%-*}

fail() {
    echo "$*"
    exit 1
}

field() { dpkg-deb --field "$packages"/"$1"_*.deb "$2"; }

# depends PACKAGE PATTERN: the package names this dependency.
depends() { field "$1" Depends | tr ',' '\n' | grep -qE "^ *$2" || fail "$1 does not depend on $2: $(field "$1" Depends)"; }

# holds PACKAGE PATTERN...: the package has a file or link for each pattern, and nothing but those and what every package has.
holds() {
    local package=$1 listing
    local patterns=("${@:2}" "share/doc/$package/(changelog(\.Debian)?\.gz|copyright)")
    [[ ! -e $sources/debian/$package.lintian-overrides ]] || patterns+=("share/lintian/overrides/$package")
    listing=$(dpkg-deb --contents "$packages"/"$package"_*.deb | awk '{ print $6 }')
    for pattern in "${patterns[@]}"; do
        grep -qE "^\./usr/$pattern\$" <<<"$listing" || fail "$package has no file $pattern"
    done
    listing=$(grep -v '/$' <<<"$listing")
    for pattern in "${patterns[@]}"; do
        listing=$(grep -vE "^\./usr/$pattern\$" <<<"$listing" || true)
    done
    [[ ! $listing ]] || fail "$package should not have: $listing"
}

rm -rf "$work"
mkdir -p "$root"

lib='lib/[a-z0-9_]+-linux-gnu'
holds librvproductbase0 \
    "$lib"/lib'RV(Core|XML|ProductBase)\.so\.0(\.[0-9]+\.[0-9]+)?' 'share/RVProductBase/translations/rvproductbase_(de|en)\.qm'
holds librvproductbase-dev \
    "$lib"/lib'RV(Core|XML|ProductBase)\.so' "$lib"/cmake/'RV(TemplateClasses|Core|XML|ProductBase)/RV.*\.cmake' \
    "$lib"/pkgconfig/RVProductBase.pc share/gdb/auto-load/usr/"$lib"/libRVProductBase.so."$release"-gdb.py 'include/RV(TemplateClasses|Core|XML|ProductBase)/RV[A-Za-z]+\.h'
holds librvproductbase-doc \
    'share/qt6/doc/RVProductBase\.qch' share/doc-base/librvproductbase-doc.librvproductbase \
    'share/doc/librvproductbase-doc/html/(index|classRVPriceClass|page_prices)\.html' 'share/doc/librvproductbase-doc/html/.*'
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
    bin/rvbrowser share/man/man1/rvbrowser.1.gz share/applications/rvbrowser.desktop share/mime/packages/rvcatalogue.xml \
    share/icons/hicolor/scalable/apps/rvbrowser.svg share/metainfo/localhost.rvproductbase.rvbrowser.metainfo.xml

for package in librvproductbase0 librvproductbase-dev librvproductbase-doc librvcatalogue0 librvcatalogue-dev rvcatalog rvbrowser; do
    [[ $(field "$package" Version) == "$version" ]] || fail "$package has version $(field "$package" Version)"
    dpkg-deb --extract "$packages"/"$package"_*.deb "$root"
done
# Every package with machine code has its debug symbols beside it, whose files are named by the hash of the code.
for package in librvproductbase0 librvcatalogue0 rvcatalog rvbrowser; do
    symbols=$packages/${package}-dbgsym_${version}_$(field "$package" Architecture).deb
    listing=$(dpkg-deb --contents "$symbols")
    for hash in $(dpkg-deb --field "$symbols" Build-Ids); do
        grep -q "/\.build-id/${hash:0:2}/${hash:2}\.debug$" <<<"$listing" || fail "$package lacks symbols"
    done
done
# Libraries and headers of two architectures can be installed side by side; a program or a text is the same for every one.
for package in librvproductbase0 librvproductbase-dev librvcatalogue0 librvcatalogue-dev; do
    [[ $(field "$package" Multi-Arch) == same ]] || fail "$package is not co-installable"
done
for package in librvproductbase-doc rvcatalog rvbrowser; do
    [[ $(field "$package" Multi-Arch) == foreign ]] || fail "$package of another architecture satisfies nothing"
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

# provides PACKAGE SINCE SYMBOL LIBRARIES...: the linker and other packages are told of the shared libraries, and of the release that
# a symbol came with. Everything needs 0.6.0, since programs read the index of keywords inline, which has another form since then.
provides() {
    local package=$1 control=$work/control/$1 library names name
    mkdir -p "$control"
    dpkg-deb --control "$packages"/"$package"_*.deb "$control"
    grep -qxF 'activate-noawait ldconfig' "$control"/triggers || fail "the linker is not told of the new libraries of $package"
    for library in "${@:4}"; do
        grep -qxF "$library 0 $package (>= $release)" "$control"/shlibs ||
            fail "packages built against $library cannot find out what they depend on"
        grep -qxF "$library.so.0 $package (>= 0.6.0~)" "$control"/symbols || fail "$package does not list the symbols of $library"
    done
    grep -qxF " $3@Base $2" "$control"/symbols || fail "$3 did not come with $2: $(grep -F " $3@" "$control"/symbols)"
    # A name that the list does not have counts as new in each release.
    names=$(sed -n "s/^ \(.*\)@Base $release\$/\1/p" "$control"/symbols | c++filt)
    while read -r name; do
        [[ ! $name || $name == *std::* ]] || grep -qF "\"$name@Base\" $release" "$sources/debian/$package.symbols" ||
            fail "debian/$package.symbols lacks $name"
    done <<<"$names"
}
provides librvproductbase0 0.2.0 _ZNK13RVProductType8isAgendaEv libRVCore libRVXML libRVProductBase
provides librvproductbase0 0.3.0 _ZNK23RVPageCountOrganization10pageCountsEv libRVProductBase
provides librvproductbase0 0.6.0 _ZN11RVMetaTypes11registerAllEv libRVProductBase
provides librvcatalogue0 0.4.0 _ZN17RVCatalogueReader4nextEv libRVCatalogue

libdir=$(dirname "$root"/usr/lib/*/libRVProductBase.so)
export LD_LIBRARY_PATH=$libdir
if readelf -d "$root/usr/bin/rvcatalog" "$root/usr/bin/rvbrowser" "$libdir"/libRV*.so | grep -E 'RPATH|RUNPATH'; then
    fail "a packaged file searches for libraries where the system does not"
fi
for file in "$root/usr/bin/rvcatalog" "$root/usr/bin/rvbrowser" "$libdir"/libRV*.so; do
    readelf -d "$file" | grep -F BIND_NOW >"$work/hardening" || fail "$file is not hardened"
    ! grep -qF "$packages" "$file" || fail "$file names the folder that it was built in"
done
sample=$root/usr/share/doc/rvcatalog/examples/products.xml
"$root/usr/bin/rvcatalog" show "$sample" | grep '^DUN9 '
"$root/usr/bin/rvbrowser" --screenshot "$work/screenshot.png" "$sample"
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

# The scripts that try installed packages do for the scratch root as well.
mkdir -p "$work/examples"
cd "$sources"
AUTOPKGTEST_TMP=$work/examples CMAKE_PREFIX_PATH=$root/usr PKG_CONFIG_PATH=$libdir/pkgconfig debian/tests/build-examples
ldd "$work/examples/consumer/consumer" | grep -F "libRVProductBase.so.0 => $libdir/"
ldd "$work/examples/reader/reader" | grep -F "libRVCatalogue.so.0 => $libdir/"
