#!/usr/bin/env bash
# dev.sh DEV WORK: the script DEV works from any directory and in a folder with a blank in its name, names the packages
# before it installs them, and installs nothing when nothing is missing. Stand-ins record the calls.
set -euo pipefail
dev=$1 work=$2
tree="$work/a clone" tools="$work/tools" calls="$work/calls"

rm -rf "$work"
mkdir -p "$tree" "$tools"
cp "$dev" "$tree/dev"
ln -s "$tree/dev" "$work/link to dev"

# stand_in NAME [SCRIPT]: a program that records its call, and then runs the script.
stand_in() {
    printf '#!/bin/sh\necho "%s $*" >>"%s"\n%s\n' "$1" "$calls" "${2:-}" >"$tools/$1"
    chmod +x "$tools/$1"
}

# Programs that the script may call for good.
for program in bash cat dirname readlink grep ls nproc sh env; do
    ln -s "$(command -v "$program")" "$tools/$program"
done
for program in cmake ctest apt-get; do
    stand_in "$program"
done
stand_in flock 'shift; exec "$@"'
stand_in sudo 'exec "$@"'
# All packages are installed except those in $MISSING.
stand_in dpkg-query 'for last; do :; done; [ "$last" != "${MISSING-}" ] && echo installed || echo not-installed'
printf '#!/bin/sh\necho "${USER_ID:-0}"\n' >"$tools/id"
chmod +x "$tools/id"

fail() {
    printf '%s\noutput:\n%s\ncalls:\n%s\n' "$1" "$output" "$(cat "$calls")"
    exit 1
}

# run EXIT_CODE COMMAND...: runs it from the root directory, and keeps its output and its calls.
run() {
    local expected=$1 code=0
    shift
    : >"$calls"
    output=$(cd / && env -i PATH="$tools" MISSING="${missing:-}" USER_ID="${user_id:-0}" "$@" 2>&1) || code=$?
    [[ $code == "$expected" ]] || fail "$* ended with $code instead of $expected"
}

called() { grep -qE "^$1" "$calls" || fail "did not call $1"; }
not_called() { ! grep -qE "^$1" "$calls" || fail "called $1"; }
says() { grep -qF -- "$1" <<<"$output" || fail "did not say: $1"; }

run 0 "$tree/dev" translations
called 'cmake --build build/release --target rv_update_translations'
not_called 'apt-get'
not_called 'sudo'
run 0 "$work/link to dev" translations
called 'cmake --preset release'

missing=ninja-build
run 0 "$tree/dev" translations
says 'dev: installing ninja-build'
called 'flock /var/lib/dpkg apt-get update'
called 'apt-get install .*--no-install-recommends.* ninja-build$'
not_called 'sudo'
# The message about an installation comes before its first call.
stand_in apt-get 'echo apt-get was called; exit 100'
run 100 "$tree/dev" translations
[[ $output == "dev: installing ninja-build"$'\n'"apt-get was called" ]] || fail "the order is wrong"
not_called 'cmake'
stand_in apt-get

user_id=1000
run 0 "$tree/dev" translations
called 'sudo flock /var/lib/dpkg apt-get update'
called 'sudo flock /var/lib/dpkg env DEBIAN_FRONTEND=noninteractive apt-get install'
rm "$tools/sudo"
run 2 "$tree/dev" translations
says 'dev: please install as root: apt-get install ninja-build'
not_called 'apt-get'
not_called 'cmake'
missing=ccache
run 0 "$tree/dev" translations
called 'cmake --build'
missing=
run 0 "$tree/dev" translations
rm "$tools/dpkg-query"
run 0 "$tree/dev" translations
says 'dev: this is no Debian system, so nothing is installed; needed are: g++ cmake'

run 2 "$tree/dev" translation
says 'dev: there is no command "translation"'
run 2 "$tree/dev" run fast
says 'dev: "run" takes no argument, but got "fast"'
not_called 'cmake'

# Only the shown program is built.
mkdir -p "$tree/build/release/bin"
stand_in rvcatalog 'echo "the sample"'
mv "$tools/rvcatalog" "$tree/build/release/bin"
run 0 "$tree/dev" run
called 'cmake --build build/release --target rvcatalog$'
called 'rvcatalog show '
called 'rvcatalog order '
says 'the sample'
says "export PATH=\"$tree/build/release/bin:\$PATH\""
not_called 'ctest'

# "test" leaves out the slow tests; "test --all" runs each test once, and then the sanitizers.
run 0 "$tree/dev" test
called 'ctest --test-dir build/release .*--label-exclude slow$'
[[ $(grep -c '^ctest' "$calls") == 1 ]] || fail "more than the quick tests were run"
run 0 "$tree/dev" test --all
called 'ctest --test-dir build/release .*--label-exclude slow$'
called 'ctest --test-dir build/release .*--label-regex slow$'
called 'ctest --test-dir build/asan .*--label-exclude compile$'
called 'ctest --test-dir build/tsan .*--label-regex concurrency$'
[[ $(grep -c '^ctest' "$calls") == 4 ]] || fail "there are more runs than four"
run 2 "$tree/dev" test --quick
says 'dev: "test" takes no argument but --all'
not_called 'cmake'

mkdir "$tree/benchmarks"
stand_in bench.py 'echo "the table"'
mv "$tools/bench.py" "$tree/benchmarks"
run 0 "$tree/dev" bench
called 'cmake --build build/release --target benchmarks'
called 'bench.py build/release/benchmarks build/bench$'
# The build may print messages, but not to the standard output, whose lines are parsed.
stand_in cmake 'echo building'
[[ $(env -i PATH="$tools" "$tree/dev" bench --summary 2>/dev/null) == "the table" ]] || fail "not only the table came out"
called 'bench.py build/release/benchmarks build/bench --summary$'
stand_in cmake
run 2 "$tree/dev" bench --quick
says 'dev: "bench" takes no argument but --summary'
not_called 'cmake'

mkdir -p "$tree/debian" "$tree/build/packages"
touch "$tree/build/packages/librvproductbase0.deb"
stand_in build.sh
mv "$tools/build.sh" "$tree/debian"
run 0 "$tree/dev" package
says ' debhelper '
called 'build.sh build/packages$'
says 'build/packages/librvproductbase0.deb'
run 2 "$tree/dev" package all
says 'dev: "package" takes no argument, but got "all"'
not_called 'build.sh'

run 0 "$tree/dev" help
[[ $(wc -l <<<"$output") -le 24 ]] || fail "help does not fit one screen of 24 lines"
[[ $(wc -L <<<"$output") -le 80 ]] || fail "help does not fit one screen of 80 columns"
help=$output
for command in $(sed -n 's/^command_\([a-z]*\)() .*/\1/p' "$dev"); do
    grep -qE "^  $command " <<<"$help" || fail "help does not name $command"
    run 2 "$tree/dev" "$command" nonsense
    ! grep -qF 'there is no command' <<<"$output" || fail "$command cannot be called"
    not_called 'cmake'
done
run 0 "$tree/dev"
[[ $output == "$help" ]] || fail "without a command there should be help"
