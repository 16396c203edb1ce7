#!/usr/bin/env bash
# debian_changelog.sh SOURCES: the change log of the Debian packages names the releases of CHANGELOG.md, in their order, each with
# its date, and the newest is the one that is built.
set -euo pipefail
cd "$1"

releases=$(sed -nE 's/^## ([0-9.]+) - ([0-9-]+)$/\1 \2/p' CHANGELOG.md)
# An entry about the packages alone has the release of the entry below it.
packaged=$(dpkg-parsechangelog --file debian/changelog --all --format rfc822 | awk '
    $1 == "Version:" { release = $2; sub(/-[^-]*$/, "", release) }
    $1 == "Timestamp:" { last[release] = strftime("%Y-%m-%d", $2, 1); if (!seen[release]++) order[++count] = release }
    END { for (i = 1; i <= count; ++i) print order[i], last[order[i]] }')
diff <(echo "$releases") <(echo "$packaged")

built=$(sed -nE 's/^ +VERSION ([0-9.]+)$/\1/p' CMakeLists.txt)
[[ $packaged == "$built "* ]] || { echo "$built is built, but the packages are those of ${packaged%% *}" && exit 1; }
