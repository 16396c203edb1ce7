#!/usr/bin/env bash
# debian_installed.sh SOURCES PACKAGES: in a bare Debian of this system's release, packages of 0.2.0 are upgraded to those in
# PACKAGES, which are tried as their own tests say, then purged, and nothing of them is left.
#
# The packages of 0.2.0 are made here of the files that they had, which are empty: what can go wrong in an upgrade is that two
# packages have the same file.
set -euo pipefail

fail() {
    echo "$*"
    exit 1
}

# apt ARGUMENTS...: says only what went wrong.
apt() {
    DEBIAN_FRONTEND=noninteractive apt-get --yes --no-install-recommends "$@" >/tmp/apt.log 2>&1 ||
        fail "apt-get $* failed: $(cat /tmp/apt.log)"
}

# The files and folders of the system, but those that belong to apt, to dpkg, to this test, and to the other systems.
list_files() {
    find / \( -path /RVProductBase -o -path /ccache -o -path /proc -o -path /sys -o -path /dev -o -path /tmp \
        -o -path /var/cache/apt -o -path /var/lib/apt -o -path /var/log \) -prune -o -print |
        grep -vE '^/var/lib/dpkg/(status|available|diversions|statoverride|triggers/Unincorp|triggers/File)' | LC_ALL=C sort
}

# Installs the packages that ours depend on, and those that check the installed ones.
install_dependencies() {
    local needs
    needs=$(for package in "${packages[@]}"; do dpkg-deb --field "$package" Depends; done | tr ',' '\n' |
        grep -vE '^ *(lib)?rv' | sed 's/^ *//' | grep . | sort -u | paste -s -d ,)
    apt update
    apt satisfy "$needs" "cmake, g++, ninja-build, pkgconf | pkg-config, file" \
        "desktop-file-utils, fonts-dejavu-core, hicolor-icon-theme, libglib2.0-bin, shared-mime-info, xdg-utils"
}

# make_old PACKAGE: the package of 0.2.0, in /tmp/old.
make_old() {
    local root=/tmp/old/$1 name path target depends=()
    while read -r name path target; do
        [[ $name == "$1" ]] || continue
        path=$root${path/@TRIPLET@/$triplet}
        mkdir -p "${path%/*}"
        if [[ $target ]]; then ln -s "$target" "$path"; else : >"$path"; fi
    done <tests/package/files_of_0.2.0
    [[ $1 == librvproductbase0 ]] || depends=("Depends: librvproductbase0 (= 0.2.0-1)")
    mkdir "$root/DEBIAN"
    printf '%s\n' "Package: $1" "Version: 0.2.0-1" "Architecture: $(dpkg --print-architecture)" "Maintainer: none <none@none.invalid>" \
        "${depends[@]}" "Description: 0.2.0" >"$root/DEBIAN/control"
    dpkg-deb --build "$root" /tmp/old >/dev/null
}

# as_user COMMAND...: an ordinary user runs it, so nothing that programs write for themselves is taken for a file of theirs.
as_user() { runuser --user nobody -- env HOME=/tmp/tried AUTOPKGTEST_TMP=/tmp/tried/scratch "$@"; }

# try_packages: their own tests pass, and the window opens catalogues, but no other XML file.
try_packages() {
    local test
    mkdir -p /tmp/tried/scratch
    cp -R debian/tests examples /tmp/tried
    chown -R nobody /tmp/tried
    cd /tmp/tried
    for test in $(sed -n 's/^Tests: //p' tests/control); do
        as_user "tests/$test"
    done
    cd "$OLDPWD"
    cp /usr/share/doc/rvcatalog/examples/*.xml /tmp/tried/scratch
    [[ $(mime_type products) == application/x-rvcatalogue+xml ]] || fail "a catalogue is $(mime_type products)"
    [[ $(mime_type project) == application/xml ]] || fail "a project is $(mime_type project)"
    [[ $(as_user xdg-mime query default application/x-rvcatalogue+xml) == *rvbrowser.desktop ]] || fail "the window opens no catalogues"
    [[ ! $(as_user xdg-mime query default application/xml) ]] || fail "the window opens every XML file"
}

mime_type() { as_user env XDG_CURRENT_DESKTOP=GNOME xdg-mime query filetype "/tmp/tried/scratch/$1.xml"; }

if [[ $1 == --inside ]]; then # the second half, in the bare system
    packages=() names=()
    for package in "$PWD/$2"/*.deb; do
        [[ $package != *-dbgsym_* ]] || continue
        packages+=("$package") names+=("$(dpkg-deb --field "$package" Package)")
    done
    triplet=$(dpkg-deb --contents "$2"/librvproductbase0_*.deb | sed -nE 's,.*\./usr/lib/([^/]+)/libRVCore\.so\.0 .*,\1,p')
    mkdir /tmp/old
    install_dependencies
    list_files >/tmp/before

    for name in $(cut -d ' ' -f 1 tests/package/files_of_0.2.0 | sort -u); do
        make_old "$name"
    done
    apt install /tmp/old/*.deb
    apt install "${packages[@]}"
    version=$(dpkg-deb --field "${packages[0]}" Version)
    for name in "${names[@]}"; do
        [[ $(dpkg-query -W -f '${db:Status-Abbrev}${Version}' "$name") == "ii $version" ]] || fail "$name was not upgraded"
        [[ ! $(dpkg --verify "$name") ]] || fail "files of $name are not as they were packed: $(dpkg --verify "$name")"
    done
    ldconfig -p | grep -F libRVCatalogue.so.0 || fail "the linker does not find the libraries"
    try_packages

    apt purge "${names[@]}"
    list_files >/tmp/after
    diff /tmp/before /tmp/after || fail "these files were not there before, or are no longer"
    exit
fi

sources=$1 folder=$2
release=$(sed -n 's/^VERSION_CODENAME=//p' /etc/os-release)
tested=$sources/build/on/$release/build/tested_packages
rm -rf "$tested"
mkdir -p "$tested"
cp "$folder"/*.deb "$tested"
bash "$sources/tests/releases/on.sh" "$release" bash tests/package/debian_installed.sh --inside build/tested_packages
