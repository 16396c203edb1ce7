#!/usr/bin/env bash
# on.sh TREE WORK: "./dev on" reports wrong arguments, takes Debian from the mirror in apt's configuration, keeps a bare
# system only when it is finished, and leaves none of its copies behind. Apt reads a configuration made for this test;
# stand-ins replace the programs that need root and a network.
set -euo pipefail
tree=$1 work=$2
clone="$work/a clone" tools="$work/tools" calls="$work/calls" apt="$work/apt"
on="$clone/build/on/trixie"

rm -rf "$work"
mkdir -p "$clone/tests/releases" "$tools" "$apt/"{conf,sources,lists}
cp "$tree/dev" "$clone"
cp "$tree/tests/releases/on.sh" "$clone/tests/releases"

# stand_in NAME [SCRIPT]: a program that records its call, and then runs the script.
stand_in() {
    printf '#!/bin/sh\necho "%s $*" >>"%s"\n%s\n' "$1" "$calls" "${2:-}" >"$tools/$1"
    chmod +x "$tools/$1"
}

stand_in id 'echo "${USER_ID:-0}"'
stand_in dpkg-query 'echo installed'
stand_in ccache 'echo "'"$work"'/ccache"'
stand_in apt-get '[ "$1" = update ] || exec /usr/bin/apt-get "$@"'
# For debootstrap only the namespace is left out, for the command the whole system.
stand_in unshare 'shift; [ "$1" != debootstrap ] || exec "$@"'
bootstraps='for last; do target=$previous previous=$last; done; mkdir -p "$target/etc/apt/apt.conf.d" "$target/etc/dpkg/dpkg.cfg.d"'

cat >"$apt/apt.conf" <<TEXT
Dir::Etc::Parts "$apt/conf";
Dir::Etc::SourceList "$apt/sources.list";
Dir::Etc::SourceParts "$apt/sources";
Dir::State::Lists "$apt/lists";
APT::Architecture "amd64";
APT::Architectures { "amd64"; };
Acquire::http::Proxy "http://proxy.test:3128";
Acquire::Retries "3";
TEXT

# publish HOST_AND_PATH SUITE ORIGIN LABEL: apt has fetched these lists.
publish() {
    local name="$apt/lists/${1//\//_}_dists_$2"
    printf '%s\n' "Origin: $3" "Label: $4" "Codename: $2" "Architectures: amd64" "Components: main" \
        "Date: Sat, 06 Sep 2025 09:00:00 UTC" "SHA256:" " $(printf '0%.0s' {1..64}) 0 main/binary-amd64/Packages" \
        >"${name}_Release"
    touch "${name}_main_binary-amd64_Packages"
}
publish others.test/tools bookworm Others Others
publish mirror.test/debian-security bookworm-security Debian Debian-Security
publish mirror.test/debian bookworm-updates Debian Debian
publish mirror.test/debian bookworm Debian Debian

fail() {
    printf '%s\noutput:\n%s\ncalls:\n%s\n' "$1" "$output" "$(cat "$calls")"
    exit 1
}

# run EXIT_CODE COMMAND...: keeps its output and its calls.
run() {
    local expected=$1 code=0
    shift
    : >"$calls"
    output=$(env -i PATH="$tools:$PATH" APT_CONFIG="$apt/apt.conf" USER_ID="${user_id:-0}" "$@" 2>&1 </dev/null) || code=$?
    [[ $code == "$expected" ]] || fail "$* ended with $code instead of $expected"
}

called() { grep -qE "^$1" "$calls" || fail "did not call $1"; }
not_called() { ! grep -qE "^$1" "$calls" || fail "called $1"; }
says() { grep -qF -- "$1" <<<"$output" || fail "did not say: $1"; }

run 2 "$clone/dev" on
says 'dev: "on" takes a release of Debian and a command, as in: ./dev on trixie ./dev run'
run 2 "$clone/dev" on trixie
says 'dev: "on" takes a release of Debian and a command'
run 2 "$clone/dev" on potato true
says 'dev: "on" knows bookworm and trixie, but got "potato"'
user_id=1000
run 2 "$clone/dev" on trixie true
says 'dev: "on" makes a system of its own, so please run it as root'
user_id=
not_called 'debootstrap'

echo 'deb http://others.test/tools bookworm main' >"$apt/sources.list"
run 2 "$clone/dev" on trixie true
called 'apt-get update'
says "dev: apt's sources name no mirror of Debian"
not_called 'debootstrap'

# The other sources stand before Debian's own.
cat >"$apt/sources.list" <<'TEXT'
deb http://others.test/tools bookworm main
deb [arch=amd64] http://mirror.test/debian-security bookworm-security main
deb http://mirror.test/debian bookworm-updates main
deb http://mirror.test/debian bookworm main
TEXT
stand_in debootstrap "$bootstraps; echo no package >&2; exit 1"
run 2 "$clone/dev" on trixie true
says 'dev: Debian trixie could not be made'
[[ ! -e $on/bare ]] || fail "a system that is not finished counts as made"

stand_in debootstrap "$bootstraps"'; echo "with proxy $http_proxy" >>"'"$calls"'"'
run 0 "$clone/dev" on trixie ./dev run
not_called 'apt-get update'
called "debootstrap .* trixie $on/bare.unfinished http://mirror.test/debian/\$"
called 'with proxy http://proxy.test:3128'
called "unshare --mount bash .*/on.sh --inside $on ./dev run\$"
[[ ! -e $on/root ]] || fail "the copy of the bare system was left behind"
settings=$(<"$on/bare/etc/apt/apt.conf.d/90host")
[[ $settings == *'Acquire::http::Proxy "http://proxy.test:3128";'* ]] || fail "the bare system has no proxy: $settings"

# The second run finds the system. The exit code is that of the command.
stand_in unshare 'exit 7'
run 7 "$clone/dev" on trixie false
not_called 'debootstrap'
[[ ! -e $on/root ]] || fail "the copy of the bare system was left behind"

rm -r "$on"
rm "$apt/sources.list"
printf '%s\n' 'Types: deb' 'URIs: http://mirror.test/debian' 'Suites: bookworm-updates bookworm' 'Components: main' \
    >"$apt/sources/debian.sources"
stand_in unshare 'shift; [ "$1" != debootstrap ] || exec "$@"'
run 0 "$clone/dev" on trixie true
called 'debootstrap .* http://mirror.test/debian/$'
