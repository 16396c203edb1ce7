#!/usr/bin/env bash
# pre_commit.sh HOOKS RVCATALOG WORK: pre-commit runs the hook of the file HOOKS on the files of a commit: a broken
# catalogue is refused, and accepted if a configuration or a baseline allows it.
set -euo pipefail
hooks=$1 rvcatalog=$2 work=$3

rm -rf "$work"
mkdir -p "$work"/{hooks,catalogues,home}
export HOME=$work/home PRE_COMMIT_HOME=$work/home/pre-commit GIT_CONFIG_NOSYSTEM=1 GIT_CONFIG_GLOBAL=$work/home/gitconfig
PATH=$(dirname "$rvcatalog"):$PATH
git config --global user.name Test
git config --global user.email test@localhost
git config --global init.defaultBranch main
git config --global protocol.file.allow always

fail() {
    echo "$*"
    exit 1
}

# The repository that has the hook.
cd "$work/hooks"
git init -q
cp "$hooks" .
git add .
git commit -q -m "Add the hook"
git tag v1

# The one that has the catalogues.
cd "$work/catalogues"
git init -q
cat >.pre-commit-config.yaml <<TEXT
repos:
  - repo: $work/hooks
    rev: v1
    hooks:
      - id: rvcatalog-check
        files: ^catalogue/
TEXT
pre-commit install >/dev/null

# commits WHAT: git commits the staged files.
commits() { git commit -q -m "$1" >"$work/log" 2>&1 || fail "git refuses $1: $(<"$work/log")"; }
# refuses WHAT TEXT: git does not commit them, and the output has the reason.
refuses() {
    ! git commit -q -m "$1" >"$work/log" 2>&1 || fail "git takes $1"
    grep -qF -- "$2" "$work/log" || fail "$2 is not reported: $(<"$work/log")"
}

mkdir catalogue
echo '<products><product type="DUN9" article_id="1"/></products>' >catalogue/books.xml
echo '<settings/>' >settings.xml
git add .
commits "a clean catalogue, and another XML file beside it"

echo '<products><product type="VIR1" article_id="x"/></products>' >catalogue/calendars.xml
git add .
refuses "a broken catalogue" "catalogue/calendars.xml:1:"

printf '[rules]\narticle-id-invalid = "off"\n' >rvcatalog.toml
git add .
commits "a catalogue that the configuration lets pass"

git rm -q rvcatalog.toml
echo '<products><product type="VIR1" article_id="x" name="again"/></products>' >catalogue/calendars.xml
git add .
refuses "the broken catalogue without the configuration" "[article-id-invalid]"

rvcatalog check --write-baseline known.json catalogue/*.xml
echo '        args: [--baseline, known.json]' >>.pre-commit-config.yaml
git add .
commits "a catalogue whose faults are known"

echo '<products><product type="VIR1" article_id="x"/><product type="VIR2" article_id="y"/></products>' >catalogue/calendars.xml
git add .
refuses "a new fault" '"y"'
! grep -F '"x"' "$work/log" || fail "the known fault is told again"
