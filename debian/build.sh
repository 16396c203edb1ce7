#!/usr/bin/env bash
# usage: build.sh FOLDER
# Makes the source and the binary packages of this tree in FOLDER, which is emptied first. They are built in a copy, so the
# tree stays as it is. If the build fails, the copy is left, and FOLDER/build.log tells why.
set -euo pipefail
folder=$(realpath -m "$1")
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."
source=$(dpkg-parsechangelog --show-field Source)
version=$(dpkg-parsechangelog --show-field Version)
SOURCE_DATE_EPOCH=$(dpkg-parsechangelog --show-field Timestamp)
export SOURCE_DATE_EPOCH
release=${version%-*}
copy=$folder/$source-$release log=$folder/build.log

# debhelper gives the build a home folder of its own, where ccache would find neither its cache nor its settings. The compiler
# is told to forget the folder, so another copy of the tree has use for what this one leaves in the cache.
if command -v ccache >/dev/null; then
    CCACHE_DIR=$(ccache --get-config cache_dir) CCACHE_MAXSIZE=$(ccache --get-config max_size)
    export CCACHE_DIR CCACHE_MAXSIZE CCACHE_BASEDIR=$copy CCACHE_NOHASHDIR=1
fi

rm -rf "$folder"
mkdir -p "$folder"
# Two archives of the same sources are the same, byte for byte.
tar --create --exclude='./build*' --exclude=./.git --exclude=./debian --sort=name --owner=0 --group=0 --numeric-owner \
    --mode=u=rwX,go=rX --mtime="@$SOURCE_DATE_EPOCH" --transform="s,^\.,$source-$release," . |
    xz >"$folder/${source}_$release.orig.tar.xz"
tar --extract --touch --file "$folder/${source}_$release.orig.tar.xz" --directory "$folder"
cp -R debian "$copy"
if ! (cd "$copy" && dpkg-buildpackage --no-sign -sa --jobs-try=auto) >"$log" 2>&1; then
    tail -n 40 "$log" >&2
    echo "The packages could not be built; all of it is in $log" >&2
    exit 1
fi
rm -rf "$copy"

# dpkg-gensymbols shows, as in a diff, what the lists would have to get.
unlisted=$(sed -nE 's/^\+ (_Z.*)@Base .*/\1/p' "$log" | c++filt)
[[ ! $unlisted ]] || printf 'New in this release, and not in debian/*.symbols yet:\n%s\n' "$unlisted"
