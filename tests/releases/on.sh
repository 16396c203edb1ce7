#!/usr/bin/env bash
# on.sh RELEASE COMMAND...: runs a command at the top of this tree in a bare Debian with that name, as root.
#
# build/on/RELEASE keeps the bare system, its downloaded packages and its own build folder, which replaces build/ while
# the command runs. Each command starts from a new copy of the bare system, so it must install the packages that it
# needs. Mounts are made in a separate namespace, so none is left behind in any case.
set -euo pipefail
tree="$(dirname "$(dirname "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")")")"

fail() {
    echo "dev: $*" >&2
    exit 2
}

# The mirror from which apt gets this system's Debian. Apt knows the origin of packages after it has fetched its lists.
find_mirror() {
    apt-get indextargets --format '$(ORIGIN) $(LABEL) $(RELEASE) $(COMPONENT) $(REPO_URI)' 'Created-By: Packages' |
        sed -nE 's/^Debian Debian [a-z]+ main //p' | grep -m 1 .
}

# Makes the bare system, which has another name until it is finished.
bootstrap() {
    local mirror options=()
    mirror=$(find_mirror) || { apt-get update -qq && mirror=$(find_mirror); } ||
        fail "apt's sources name no mirror of Debian, so there is nowhere to take $release from"
    [[ $mirror != https:* ]] || options+=(--include=ca-certificates)

    echo "dev: making a bare Debian $release from $mirror" >&2
    rm -rf --one-file-system "$home/bare.unfinished"
    http_proxy=${http_proxy:-$(apt-config dump --format '%v' Acquire::http::Proxy)} \
        https_proxy=${https_proxy:-$(apt-config dump --format '%v' Acquire::https::Proxy)} \
        unshare --mount debootstrap --variant=minbase --cache-dir="$home/packages" "${options[@]}" \
        "$release" "$home/bare.unfinished" "$mirror" >"$home/debootstrap.log" ||
        { tail "$home/debootstrap.log" >&2 && fail "Debian $release could not be made; see $home/debootstrap.log"; }

    local etc="$home/bare.unfinished/etc"
    apt-config dump | grep -E '^Acquire::(https?::|Check-|Retries|Languages)' >"$etc/apt/apt.conf.d/90host" || true
    echo force-unsafe-io >"$etc/dpkg/dpkg.cfg.d/unsafe-io" # a copy lives as long as its command
    [[ $mirror != https:* ]] || cp /etc/ssl/certs/ca-certificates.crt "$etc/ssl/certs/"
    printf '[safe]\n\tdirectory = *\n' >"$etc/gitconfig" # for every owner of the clone
    rm -f "$home"/bare.unfinished/var/cache/apt/archives/*.deb
    mv "$home/bare.unfinished" "$home/bare"
}

# Mounts what the command needs below $root and runs it there. It sees little of the caller's environment.
enter() {
    local inside=/RVProductBase name
    for name in proc sys dev; do
        mount --rbind "/$name" "$root/$name"
    done
    mkdir -p "$root$inside" "$root/ccache"
    mount --bind "$tree" "$root$inside"
    mount --bind "$home/build" "$root$inside/build"
    mount --bind "$home/packages" "$root/var/cache/apt/archives"
    mount --bind "$(ccache --get-config cache_dir)" "$root/ccache"
    cp /etc/resolv.conf /etc/hosts "$root/etc/"
    exec chroot "$root" /usr/bin/env -i PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin \
        HOME=/root LANG=C.UTF-8 TERM="${TERM:-dumb}" ${CI:+CI="$CI"} ${http_proxy:+http_proxy="$http_proxy"} \
        CCACHE_DIR=/ccache CCACHE_MAXSIZE="$(ccache --get-config max_size)" \
        sh -c 'cd "$0" && exec "$@"' "$inside" "$@"
}

if [[ $1 == --inside ]]; then # the second half, in the namespace
    home=$2 root=$home/root
    shift 2
    enter "$@"
fi

release=$1
shift
home="$tree/build/on/$release"
mkdir -p "$home/build" "$home/packages" "$(ccache --get-config cache_dir)"
exec {lock}>"$home/lock"
flock --nonblock "$lock" || { echo "dev: waiting for another command on $release" >&2 && flock "$lock"; }
[[ -d $home/bare ]] || bootstrap
rm -rf --one-file-system "$home/root"
trap 'rm -rf --one-file-system "$home/root"' EXIT
cp -a --reflink=auto "$home/bare" "$home/root"
unshare --mount bash "${BASH_SOURCE[0]}" --inside "$home" "$@" {lock}>&-
